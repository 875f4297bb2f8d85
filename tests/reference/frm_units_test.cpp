#include "reference/frm_unit.h"
#include "support/company_test.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QPushButton>
#include <QTest>

namespace
{
const char* const kActive = "SELECT 'O' || RecordID || '=' || Active AS A FROM Organizations UNION ALL "
                            "SELECT 'D' || RecordID || '=' || Active FROM Departments UNION ALL "
                            "SELECT 'G' || RecordID || '=' || Active FROM Groups";

class FrmUnits : public CompanyTest
{
protected:
    void DismissEverybody()
    {
        house.Sql("UPDATE Employees SET DeactivatedDate = 46000, DeactivatedBy = 'ADMIN', ReasonForDeactivation = "
                  "'Retired' WHERE LoginID <> 'ADMIN'");
    }
    void ExpectIdle()
    {
        EXPECT_EQ(user.Usable({"cmdAdd", "cmdModify", "cmdDeactivate", "cmdQuit", "cmdCancelOperation", "cboRecords",
                               "txtEnglishName"}),
                  "cmdAdd cmdModify cmdDeactivate cmdQuit cboRecords");
        EXPECT_EQ(user.ReadsAll({"cboRecords", "txtEnglishName", "txtFrenchName"}), "||");
    }
    /// The units that are active, or not, as "O1" "D2".
    QString Units(bool active)
    {
        return house.Rows(kActive).split('\n').filter(active ? "=1" : "=0").join(' ').remove(active ? "=1" : "=0");
    }
};

TEST_F(FrmUnits, TheArrowsWalkTheListBeforeAUnitIsTakenAndEscapeAsksBeforeChangesAreLost)
{
    user.Opens<frmOrganizations>().Clicks("cmdModify").Presses("cboRecords", Qt::Key_Down);
    auto& form = user.The<frmOrganizations>();
    QAbstractItemView* entries = form.findChild<QComboBox*>("cboRecords")->view();
    QTest::keyClick(entries, Qt::Key_Down);
    EXPECT_EQ(user.Reads("txtEnglishName"), "") << "nothing is taken yet";
    QTest::keyClick(entries, Qt::Key_Return);
    EXPECT_EQ(user.Reads("txtEnglishName"), "Southern Trade");
    user.Types("txtCity", "Laval").WillAnswer("CONFIRM:", "No", "Changes have not been saved!");
    form.close();
    EXPECT_TRUE(form.isVisible() && user.Reads("txtCity") == "Laval");
    user.WillConfirm().Presses("txtCity", Qt::Key_Escape);
    ExpectIdle();
    user.Clicks("cmdAdd").WillBeRefused("").Clicks("cmdAdd").Types("txtCity", "Laval");
    form.findChild<QWidget*>("cmdCancelOperation")->setFocus();
    user.Presses("cmdCancelOperation", Qt::Key_Return); // the button with the focus, which does as it is told
    ExpectIdle();
    user.Clicks("cmdAdd");
    for (const char* field : {"txtEnglishName", "txtState", "txtCountry"})
        EXPECT_NE(form.findChild<QWidget*>(field)->property("look"), "missing") << field << ": nothing was tried yet";
}

TEST_F(FrmUnits, AnOrganizationIsAddedInTwoPresses)
{
    user.Opens<frmOrganizations>();
    ExpectIdle();
    user.Clicks("cmdAdd");
    EXPECT_EQ(user.Usable({"cmdModify", "cmdQuit", "cboRecords"}), "");
    EXPECT_TRUE(user.HasFocus("txtEnglishName"));
    user.Types("txtEnglishName", "Nothing").Clicks("cmdCancelOperation");
    ExpectIdle();
    user.Picks("cboRecords", "Northern Works").Clicks("cmdModify").Presses("txtCity", Qt::Key_Escape);
    ExpectIdle();

    user.Clicks("cmdAdd").Types("txtEnglishName", "Eastern 'Labs' ").Types("txtAddressLine1", "12 King's Road ");
    user.WillBeRefused("You must specify a city").Clicks("cmdAdd");
    EXPECT_TRUE(user.HasFocus("txtCity"));
    EXPECT_EQ(user.Reads("txtFrenchName"), "Eastern `Labs`");
    user.Enters({{"txtCity", "Moncton"}, {"txtState", "NB"}, {"txtCountry", "Canada"}, {"txtZipCode", "e1a 0b1"}});
    user.LeavesField("txtZipCode");
    EXPECT_EQ(user.Reads("txtZipCode"), "E1A 0B1");
    const QString question = "Add the following organization to your database?\r\n\r\n"
                             "Organization English name: Eastern `Labs`\r\nOrganization French name:  Eastern `Labs`";
    user.WillAnswer("CONFIRM:", "No", question).Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Organizations") + ListFlag(), 2);
    user.Types("txtZipCode", "e1a 0b2");
    user.WillConfirm(question).WillBeDone("The new organization has been added to your database.");
    user.The<frmOrganizations>().findChild<QPushButton*>("cmdAdd")->click(); // as a mnemonic does, the field not left

    ExpectIdle();
    EXPECT_EQ(user.Reads("txtCity"), "");
    EXPECT_EQ(user.Entries("cboRecords"), (QStringList{"Eastern `Labs`", "Northern Works", "Southern Trade"}));
    EXPECT_EQ(
        house.Filled("Organizations", 3),
        "RecordID=3|FiscalYear=1|OrganizationFrenchName=Eastern `Labs`|OrganizationEnglishName=Eastern `Labs`|"
        "AddressLine1=12 King`s Road|City=Moncton|StateProvince=NB|Country=Canada|ZipCode=E1A 0B2|EnteredDate=46083|"
        "EnteredBy=ADMIN|Active=1");
    EXPECT_EQ(ListFlag(), 1);
    user.Clicks("cmdQuit");
    EXPECT_FALSE(user.The<frmOrganizations>().isVisible());
}

TEST_F(FrmUnits, AModifiedOrganizationLeavesItsOldSelfInTheAuditTwin)
{
    SessionState.English = false;
    house.Sql("UPDATE Organizations SET AddressLine1 = '1, rue Principale', City = 'Hull', StateProvince = 'QC', "
              "Country = 'Canada', Suite = 'B2'");
    user.Opens<frmOrganizations>().Clicks("cmdModify");
    EXPECT_FALSE(user.CanUse("cmdModify")) << "no record is chosen yet";
    EXPECT_EQ(user.Picks("cboRecords", "Commerce du Sud").Reads("txtRoomNumber"), "B2");
    EXPECT_TRUE(user.HasFocus("txtFrenchName"));
    user.Types("txtFrenchName", "Commerce de l'Est").Types("txtCity", "Gatineau");
    user.WillConfirm("Souhaitez-vous sauvegarder les modifications suivantes:\r\n\r\nNom anglais de l'organisation:  "
                     "Southern Trade\r\nNom français de l'organisation:Commerce de l`Est")
        .WillBeDone("Toutes les modifications ont été enregistrées.")
        .Clicks("cmdModify");
    ExpectIdle();
    const QString columns = "SELECT RecordID, OrganizationEnglishName, OrganizationFrenchName, City, Suite, Active, "
                            "ModifiedBy, ModifiedDate FROM ";
    EXPECT_EQ(house.Rows(columns + "Organizations WHERE RecordID = 2"),
              "2|Southern Trade|Commerce de l`Est|Gatineau|B2|1|ADMIN|46083");
    EXPECT_EQ(house.Rows(columns + "Organizations_Modifications"), "2|Southern Trade|Commerce du Sud|Hull|B2|1||0");
    EXPECT_EQ(ListFlag(), 1);

    user.Picks("cboRecords", "Ateliers du Nord");
    house.Sql("ALTER TABLE Organizations RENAME TO Gone");
    user.WillAnswer("UNE ERREUR EST SURVENUE:", "OK").Picks("cboRecords", "Commerce");
    EXPECT_EQ(user.Reads("cboRecords"), "Ateliers du Nord") << "the list names what would be changed";
}

TEST_F(FrmUnits, AnOrganizationIsClosedWithAllBelowItOnceNobodyWorksThereAndBroughtBackWithAll)
{
    house.Sql("UPDATE Organizations SET Active = 0 WHERE RecordID = 2");
    user.Opens<frmOrganizations>();
    EXPECT_EQ(user.The<frmOrganizations>().findChild<QComboBox*>("cboRecords")->itemData(1, Qt::UserRole + 1),
              "inactive");
    EXPECT_EQ(user.Clicks("cmdDeactivate").Entries("cboRecords"), QStringList{"Northern Works"});
    user.Picks("cboRecords", "Northern Works")
        .WillAnswer("OPERATION NOT ALLOWED:", "OK", "To deactivate Northern Works, you must first")
        .Clicks("cmdDeactivate");
    DismissEverybody();
    user.WillAnswer("WARNING:", "No", "all the departments and groups within it").Clicks("cmdDeactivate");
    EXPECT_EQ(Units(false), "O2");
    user.WillAnswer("WARNING:", "Yes", "Are you sure you want to deactivate «Northern Works»?")
        .WillBeDone("The selected organization and all associated records have been deactivated.")
        .Clicks("cmdDeactivate");
    ExpectIdle();
    EXPECT_EQ(user.Entries("cboRecords").size(), 2);
    EXPECT_EQ(Units(false), "O1 O2 D1 D2 G1");
    EXPECT_EQ(house.Rows("SELECT RecordID, Active FROM Organizations_Modifications"), "1|1");
    EXPECT_EQ(ListFlag(), 1);

    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 0");
    SessionState.English = false;
    user.Opens<frmOrganizations>();
    user.WillAnswer("ORGANISATION INACTIVE:", "Non", "Souhaitez-vous réactiver «Ateliers du Nord»?")
        .Picks("cboRecords", "Ateliers du Nord");
    ExpectIdle();
    EXPECT_EQ(Units(true), "D3");
    user.Clicks("cmdModify")
        .WillAnswer("ORGANISATION INACTIVE:", "Oui",
                    "réactivez en même temps tous les départements, groupes et employés")
        .Picks("cboRecords", "Ateliers du Nord");
    EXPECT_EQ(user.Reads("txtFrenchName"), "Ateliers du Nord");
    EXPECT_TRUE(user.CanUse("cmdModify")) << "the modification goes on";
    EXPECT_EQ(Units(true), "O1 D1 D2 D3 G1");
    EXPECT_EQ(house.Rows("SELECT LoginID, DeactivatedDate, DeactivatedBy, ReasonForDeactivation FROM Employees "
                         "WHERE LoginID >= 'D'"),
              "DAN|0||\nEVA|46000|ADMIN|Retired");
    EXPECT_EQ(ListFlag(), 1);
}

TEST_F(FrmUnits, ANewDepartmentUsesThePublicCategoriesOnly)
{
    house.FiscalYear("2027", 2027);
    house.Sql("UPDATE Categories SET IsPublic = 0 WHERE SystemName <> 'Sick'");
    user.Opens<frmDepartments>().Clicks("cmdAdd").Types("txtFrenchName", "Recherche");
    user.WillBeRefused("You must specify the organization under which").Clicks("cmdAdd");
    EXPECT_TRUE(user.HasFocus("lstOrganizations"));
    user.Picks("lstOrganizations", "Southern Trade")
        .WillConfirm("Department English name: Recherche\r\nDepartment French name:  Recherche")
        .WillBeDone("The new department has been added to your database.")
        .Clicks("cmdAdd");
    EXPECT_EQ(house.Filled("Departments", 4),
              "RecordID=4|FiscalYear=1|OrganizationID=2|DepartmentFrenchName=Recherche|"
              "DepartmentEnglishName=Recherche|EnteredBy=ADMIN|EnteredDate=46083|Active=1");
    EXPECT_EQ(house.Rows("SELECT FiscalYear, COUNT(*), SUM(IsUsed), SUM(IsUsed * CategoryID) AS Sick FROM "
                         "CategoriesDepartments WHERE DepartmentID = 4 GROUP BY FiscalYear"),
              QStringLiteral("1|8|1|%1").arg(house.CategoryID("Sick")));
}

TEST_F(FrmUnits, AMovedDepartmentTakesItsGroupsAndEmployeesAlongOrNothingIsMoved)
{
    const QString tree = "SELECT OrganizationID, DepartmentEnglishName FROM Departments WHERE RecordID = 1 UNION ALL "
                         "SELECT OrganizationID, DepartmentID FROM Groups UNION ALL "
                         "SELECT OrganizationID, DepartmentEnglishName FROM Departments_Modifications";
    user.Opens<frmDepartments>().Picks("cboRecords", "Production").Clicks("cmdModify");
    EXPECT_EQ(user.Reads("lstOrganizations"), "Northern Works");
    user.Types("txtEnglishName", "Plant").Picks("lstOrganizations", "Southern Trade");
    const QString moving =
        "You are moving «Plant» under a new organization! If you proceed with this modification, all "
        "the employees currently associated to this department will be assigned to «Southern Trade»";
    user.WillConfirm("Record the following modifications?\r\n\r\nDepartment English name: Plant")
        .WillAnswer("WARNING:", "No", moving)
        .Clicks("cmdModify");
    house.Refuses("UPDATE ON Employees");
    user.WillConfirm()
        .WillAnswer("WARNING:", "Yes", moving)
        .WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused")
        .Clicks("cmdModify");
    EXPECT_EQ(user.ReadsAll({"txtEnglishName", "lstOrganizations"}), "Plant|Southern Trade");
    EXPECT_TRUE(user.CanUse("cmdModify") && user.CanUse("cmdCancelOperation") && !user.CanUse("cmdAdd"));
    EXPECT_EQ(house.Rows(tree), "1|Production\n1|1");
    EXPECT_EQ(Places("Employees"), "000 111 111 110 120 230");
    EXPECT_EQ(ListFlag(), 0);

    house.Sql("DROP TRIGGER Refusing");
    user.WillConfirm().WillAnswer("WARNING:", "Yes", moving).WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(house.Rows(tree), "2|Plant\n2|1\n1|Production");
    EXPECT_EQ(Places("Employees"), "000 211 211 210 120 230");
}

TEST_F(FrmUnits, GroupsMayShareANameAndMoveIntoTheOtherOrganization)
{
    user.Opens<frmGroups>().Clicks("cmdAdd").Types("txtEnglishName", "Assembly").Picks("lstDepartments", "Stores");
    user.WillConfirm("Group English name: Assembly\r\nGroup French name:  Assembly")
        .WillBeDone("The new group has been added to your database.")
        .Clicks("cmdAdd");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentID, GroupFrenchName FROM Groups WHERE RecordID = 2"),
              "2|3|Assembly");
    SessionState.English = false;
    user.Opens<frmGroups>().Clicks("cmdModify").Picks("cboRecords", "Assemblage").Picks("lstDepartments", "Magasins");
    user.WillConfirm()
        .WillAnswer("AVERTISSEMENT:", "Oui",
                    "Vous êtes sur le point d'assigner «Assemblage» à un nouveau département! Si vous effectuez cette "
                    "modification tous les employés présentement liés à ce groupe seront également regroupés sous "
                    "«Magasins».\r\n\r\nSouhaitez-vous effectuer cette modification?")
        .WillBeDone()
        .Clicks("cmdModify");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentID FROM Groups"), "2|3\n2|3");
    EXPECT_EQ(Places("Employees"), "000 231 231 110 120 230");
    EXPECT_EQ(ListFlag(), 1);

    DismissEverybody();
    user.Clicks("cmdDeactivate").Picks("cboRecords", "Assemblage");
    user.WillAnswer("MISE EN GARDE:", "Oui", "«Assemblage»").WillBeDone().Clicks("cmdDeactivate");
    EXPECT_EQ(Units(false), "G1") << "each is deactivated alone";
}

TEST_F(FrmUnits, AFormWithoutAUnitAboveSaysSoAndCloses)
{
    house.Sql("UPDATE Organizations SET Active = 0");
    user.WillBeRefused("you must first set up at least one organization in fiscal year 2026!");
    EXPECT_FALSE(user.Opens<frmDepartments>().The<frmDepartments>().isVisible());
    house.Sql("UPDATE Departments SET Active = 0");
    SessionState.English = false;
    user.WillBeRefused("vous devez d'abord créer au moins un département dans l'année fiscale 2026!");
    EXPECT_FALSE(user.Opens<frmGroups>().The<frmGroups>().isVisible());
}
} // namespace
