#include "reference/frm_unit.h"
#include "support/user.h"

#include <gtest/gtest.h>

namespace
{
const char* const kActive = "SELECT 'O' || RecordID || '=' || Active AS A FROM Organizations UNION ALL "
                            "SELECT 'D' || RecordID || '=' || Active FROM Departments UNION ALL "
                            "SELECT 'G' || RecordID || '=' || Active FROM Groups";
const char* const kPlaces = "SELECT OrganizationID, DepartmentID, GroupID FROM Employees WHERE LoginID <> 'ADMIN' "
                            "ORDER BY RecordID";
const QString kNobodyMoved = "1|1|1\n1|2|0";

/// Chris sits in Assembly (Production, Northern Works), Eve in Sales (Northern Works).
class FrmUnits : public testing::Test
{
protected:
    FrmUnits()
    {
        house.Configured().Company().LogIn("ADMIN");
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly"});
        house.Hire({"EVE", "Ève", "Émond", "Sales"});
    }
    void DismissEverybody()
    {
        house.Sql("UPDATE Employees SET DeactivatedDate = 46000, DeactivatedBy = 'ADMIN', ReasonForDeactivation = "
                  "'Retired' WHERE LoginID <> 'ADMIN'");
    }
    int EmployeesListFlag() { return house.Number("SELECT ReloadEmployeesList FROM FiscalYears WHERE RecordID = 1"); }
    void ExpectIdle()
    {
        for (const char* button : {"cmdAdd", "cmdModify", "cmdDeactivate", "cmdQuit", "cboRecords"})
            EXPECT_TRUE(user.CanUse(button)) << button;
        EXPECT_FALSE(user.CanUse("cmdCancelOperation"));
        EXPECT_FALSE(user.CanUse("txtEnglishName"));
        EXPECT_EQ(user.Reads("cboRecords") + user.Reads("txtEnglishName") + user.Reads("txtFrenchName"), "");
    }
    QStringList Active() { return house.Rows(kActive).split('\n'); }

    House house;
    User user;
    int chris = 0;
};

TEST_F(FrmUnits, AnOrganizationIsAddedInTwoPresses)
{
    user.Opens<frmOrganizations>();
    ExpectIdle();
    user.Clicks("cmdAdd");
    EXPECT_FALSE(user.CanUse("cmdModify") || user.CanUse("cmdQuit") || user.CanUse("cboRecords"));
    EXPECT_TRUE(user.HasFocus("txtEnglishName"));
    user.Types("txtEnglishName", "Eastern 'Labs' ").Types("txtAddressLine1", "12 King's Road");
    user.WillAnswer("ERROR:", "OK", "You must specify a city").Clicks("cmdAdd");
    EXPECT_TRUE(user.HasFocus("txtCity"));
    EXPECT_EQ(user.Reads("txtFrenchName"), "Eastern `Labs`");
    user.Types("txtCity", "Moncton").Types("txtState", "NB").Types("txtCountry", "Canada");
    user.Types("txtZipCode", "e1a 0b1").LeavesField("txtZipCode");
    EXPECT_EQ(user.Reads("txtZipCode"), "E1A 0B1");
    const QString question = "Add the following organization to your database?\r\n\r\n"
                             "Organization English name: Eastern `Labs`\r\nOrganization French name:  Eastern `Labs`";
    user.WillAnswer("CONFIRM:", "No", question).Clicks("cmdAdd");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Organizations"), 2);
    user.WillAnswer("CONFIRM:", "Yes", question)
        .WillAnswer("OPERATION COMPLETED:", "OK", "The new organization has been added to your database.")
        .Clicks("cmdAdd");

    ExpectIdle();
    EXPECT_EQ(user.Reads("txtCity"), "");
    EXPECT_EQ(user.Entries("cboRecords"), (QStringList{"Eastern `Labs`", "Northern Works", "Southern Trade"}));
    EXPECT_EQ(house.Rows("SELECT FiscalYear, OrganizationFrenchName, OrganizationEnglishName, AddressLine1, "
                         "AddressLine2, Suite, City, StateProvince, Country, ZipCode, EnteredDate, EnteredBy, "
                         "ModifiedDate, ModifiedBy, Active, PreviousID FROM Organizations WHERE RecordID = 3"),
              "1|Eastern `Labs`|Eastern `Labs`|12 King`s Road|||Moncton|NB|Canada|E1A 0B1|46083|ADMIN|0||1|0");
    EXPECT_EQ(EmployeesListFlag(), 1);
}

TEST_F(FrmUnits, AModifiedOrganizationLeavesItsOldSelfInTheAuditTwin)
{
    SessionState.English = false;
    house.Sql("UPDATE Organizations SET AddressLine1 = '1, rue Principale', City = 'Hull', StateProvince = 'QC', "
              "Country = 'Canada', Suite = 'B2'");
    user.Opens<frmOrganizations>().Clicks("cmdModify");
    EXPECT_FALSE(user.CanUse("cmdModify")) << "no record is chosen yet";
    user.Picks("cboRecords", "Commerce du Sud");
    EXPECT_EQ(user.Reads("txtRoomNumber"), "B2");
    EXPECT_TRUE(user.HasFocus("txtFrenchName"));
    user.Types("txtFrenchName", "Commerce de l'Est").Types("txtCity", "Gatineau");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui",
                    "Souhaitez-vous sauvegarder les modifications suivantes:\r\n\r\nNom anglais de l'organisation:  "
                    "Southern Trade\r\nNom français de l'organisation:Commerce de l`Est")
        .WillAnswer("OPÉRATION COMPLÉTÉE:", "OK", "Toutes les modifications ont été enregistrées.")
        .Clicks("cmdModify");

    ExpectIdle();
    const QString columns = "SELECT RecordID, OrganizationEnglishName, OrganizationFrenchName, City, Suite, Active, "
                            "ModifiedBy, ModifiedDate FROM ";
    EXPECT_EQ(house.Rows(columns + "Organizations WHERE RecordID = 2"),
              "2|Southern Trade|Commerce de l`Est|Gatineau|B2|1|ADMIN|46083");
    EXPECT_EQ(house.Rows(columns + "Organizations_Modifications"), "2|Southern Trade|Commerce du Sud|Hull|B2|1||0");
    EXPECT_EQ(EmployeesListFlag(), 1);
}

TEST_F(FrmUnits, CancellingOrEscapeLeavesTheModeWithoutAWord)
{
    user.Opens<frmOrganizations>().Clicks("cmdAdd").Types("txtEnglishName", "Nothing").Clicks("cmdCancelOperation");
    ExpectIdle();
    user.Picks("cboRecords", "Northern Works").Clicks("cmdModify").Presses("txtCity", Qt::Key_Escape);
    ExpectIdle();
    EXPECT_TRUE(user.The<frmOrganizations>().isVisible());
    user.Clicks("cmdQuit");
    EXPECT_FALSE(user.The<frmOrganizations>().isVisible());
    EXPECT_EQ(EmployeesListFlag(), 0);
}

TEST_F(FrmUnits, AUnitWithActiveEmployeesBelowItIsNotDeactivated)
{
    user.Opens<frmDepartments>().Clicks("cmdDeactivate").Picks("cboRecords", "Production");
    user.WillAnswer("OPERATION NOT ALLOWED:", "OK",
                    "To deactivate Production, you must first deactivate or transfer all its employees to another "
                    "department.")
        .Clicks("cmdDeactivate");
    EXPECT_EQ(Active().filter("=0"), QStringList());
}

TEST_F(FrmUnits, ADeactivatedOrganizationTakesItsDepartmentsAndGroupsAlong)
{
    DismissEverybody();
    house.Sql("UPDATE Organizations SET Active = 0 WHERE RecordID = 2");
    user.Opens<frmOrganizations>();
    EXPECT_EQ(user.Entries("cboRecords").size(), 2);
    user.Clicks("cmdDeactivate");
    EXPECT_EQ(user.Entries("cboRecords"), QStringList{"Northern Works"});
    user.Picks("cboRecords", "Northern Works");
    user.WillAnswer("WARNING:", "No", "all the departments and groups within it").Clicks("cmdDeactivate");
    EXPECT_EQ(Active().filter("=0"), QStringList{"O2=0"});
    user.WillAnswer("WARNING:", "Yes", "Are you sure you want to deactivate «Northern Works»?")
        .WillAnswer("OPERATION COMPLETED:", "OK",
                    "The selected organization and all associated records have been deactivated.")
        .Clicks("cmdDeactivate");

    ExpectIdle();
    EXPECT_EQ(user.Entries("cboRecords").size(), 2);
    EXPECT_EQ(Active(), (QStringList{"O1=0", "O2=0", "D1=0", "D2=0", "D3=1", "G1=0"}));
    EXPECT_EQ(house.Rows("SELECT RecordID, Active FROM Organizations_Modifications"), "1|1");
    EXPECT_EQ(EmployeesListFlag(), 1);
}

TEST_F(FrmUnits, AReactivatedOrganizationBringsAllBackThatWasBelowIt)
{
    SessionState.English = false;
    DismissEverybody();
    for (const char* table : {"Organizations", "Departments", "Groups"})
        house.Sql(QStringLiteral("UPDATE %1 SET Active = 0").arg(table));
    user.Opens<frmOrganizations>();
    user.WillAnswer("ORGANISATION INACTIVE:", "Non", "Souhaitez-vous réactiver «Ateliers du Nord»?")
        .Picks("cboRecords", "Ateliers du Nord");
    ExpectIdle();
    EXPECT_EQ(Active().filter("=1"), QStringList());

    user.Clicks("cmdModify");
    user.WillAnswer("ORGANISATION INACTIVE:", "Oui",
                    "réactivez en même temps tous les départements, groupes et employés")
        .Picks("cboRecords", "Ateliers du Nord");
    EXPECT_EQ(user.Reads("txtFrenchName"), "Ateliers du Nord");
    EXPECT_TRUE(user.CanUse("cmdModify")) << "the modification goes on";
    EXPECT_EQ(Active().filter("=1"), (QStringList{"O1=1", "D1=1", "D2=1", "G1=1"}));
    EXPECT_EQ(house.Rows("SELECT DeactivatedDate, DeactivatedBy, ReasonForDeactivation FROM Employees "
                         "WHERE LoginID <> 'ADMIN'"),
              "0||\n0||");
    EXPECT_EQ(EmployeesListFlag(), 1);
}

TEST_F(FrmUnits, ANewDepartmentUsesThePublicCategoriesOnly)
{
    house.FiscalYear("2027", 2027);
    house.Sql("UPDATE Categories SET IsPublic = 0 WHERE SystemName <> 'Sick'");
    user.Opens<frmDepartments>().Clicks("cmdAdd").Types("txtFrenchName", "Recherche");
    user.WillAnswer("ERROR:", "OK", "You must specify the organization under which").Clicks("cmdAdd");
    EXPECT_TRUE(user.HasFocus("lstOrganizations"));
    user.WillAnswer("ERROR:", "OK", "You must specify the organization under which").Clicks("cmdAdd");
    user.Picks("lstOrganizations", "Southern Trade");
    user.WillAnswer("CONFIRM:", "Yes", "Department English name: Recherche\r\nDepartment French name:  Recherche")
        .WillAnswer("OPERATION COMPLETED:", "OK", "The new department has been added to your database.")
        .Clicks("cmdAdd");

    EXPECT_EQ(
        house.Rows("SELECT FiscalYear, OrganizationID, DepartmentEnglishName, Active, PreviousID, DepartmentHead, "
                   "EnteredBy FROM Departments WHERE RecordID = 4"),
        "1|2|Recherche|1|0|0|ADMIN");
    EXPECT_EQ(house.Rows("SELECT FiscalYear, COUNT(*), SUM(IsUsed), SUM(IsUsed * CategoryID) AS Sick FROM "
                         "CategoriesDepartments WHERE DepartmentID = 4 GROUP BY FiscalYear"),
              QStringLiteral("1|8|1|%1").arg(house.CategoryID("Sick")));
}

TEST_F(FrmUnits, AMovedDepartmentTakesItsGroupsAndEmployeesAlong)
{
    user.Opens<frmDepartments>().Picks("cboRecords", "Production").Clicks("cmdModify");
    EXPECT_EQ(user.Reads("lstOrganizations"), "Northern Works");
    user.Types("txtEnglishName", "Plant").Picks("lstOrganizations", "Southern Trade");
    const QString moving =
        "You are moving «Plant» under a new organization! If you proceed with this modification, all "
        "the employees currently associated to this department will be assigned to «Southern Trade»";
    user.WillAnswer("CONFIRM:", "Yes", "Record the following modifications?\r\n\r\nDepartment English name: Plant")
        .WillAnswer("WARNING:", "No", moving)
        .Clicks("cmdModify");
    EXPECT_EQ(user.Reads("txtEnglishName"), "Plant");
    EXPECT_EQ(house.Rows(kPlaces), kNobodyMoved);
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Departments_Modifications"), 0);

    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("WARNING:", "Yes", moving).WillAnswer("OPERATION COMPLETED:", "OK");
    user.Clicks("cmdModify");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentEnglishName FROM Departments WHERE RecordID = 1"),
              "2|Plant");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentID FROM Groups"), "2|1");
    EXPECT_EQ(house.Rows(kPlaces), "2|1|1\n1|2|0");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentEnglishName FROM Departments_Modifications"),
              "1|Production");
}

TEST_F(FrmUnits, AMovedGroupFollowsItsNewDepartmentIntoTheOtherOrganization)
{
    SessionState.English = false;
    user.Opens<frmGroups>().Clicks("cmdModify").Picks("cboRecords", "Assemblage").Picks("lstDepartments", "Magasins");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui")
        .WillAnswer("AVERTISSEMENT:", "Oui",
                    "Vous êtes sur le point d'assigner «Assemblage» à un nouveau département! Si vous effectuez cette "
                    "modification tous les employés présentement liés à ce groupe seront également regroupés sous "
                    "«Magasins».\r\n\r\nSouhaitez-vous effectuer cette modification?")
        .WillAnswer("OPÉRATION COMPLÉTÉE:", "OK")
        .Clicks("cmdModify");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentID FROM Groups"), "2|3");
    EXPECT_EQ(house.Rows(kPlaces), "2|3|1\n1|2|0");
    EXPECT_EQ(EmployeesListFlag(), 1);
}

TEST_F(FrmUnits, GroupsOfTwoDepartmentsMayShareANameAndEachIsDeactivatedAlone)
{
    user.Opens<frmGroups>().Clicks("cmdAdd").Types("txtEnglishName", "Assembly").Picks("lstDepartments", "Stores");
    user.WillAnswer("CONFIRM:", "Yes", "Group English name: Assembly\r\nGroup French name:  Assembly")
        .WillAnswer("OPERATION COMPLETED:", "OK", "The new group has been added to your database.")
        .Clicks("cmdAdd");
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentID, GroupFrenchName FROM Groups WHERE RecordID = 2"),
              "2|3|Assembly");

    DismissEverybody();
    user.Picks("cboRecords", "Assembly").Clicks("cmdDeactivate");
    user.WillAnswer("WARNING:", "Yes", "Are you sure you want to deactivate «Assembly»?")
        .WillAnswer("OPERATION COMPLETED:", "OK", "group and all associated employee records have been deactivated.")
        .Clicks("cmdDeactivate");
    EXPECT_EQ(Active(), (QStringList{"O1=1", "O2=1", "D1=1", "D2=1", "D3=1", "G1=0", "G2=1"}));
}

TEST_F(FrmUnits, AFailureInTheMiddleUndoesTheWholeMoveAndKeepsWhatWasTyped)
{
    house.Sql("CREATE TRIGGER Full BEFORE UPDATE ON Employees BEGIN SELECT RAISE(ABORT, 'disk is full'); END");
    user.Opens<frmDepartments>().Picks("cboRecords", "Production").Clicks("cmdModify");
    user.Types("txtEnglishName", "Plant").Picks("lstOrganizations", "Southern Trade");
    user.WillAnswer("CONFIRM:", "Yes")
        .WillAnswer("WARNING:", "Yes")
        .WillAnswer("AN ERROR HAS OCCURRED:", "OK", "disk is full")
        .Clicks("cmdModify");
    EXPECT_EQ(user.Reads("txtEnglishName") + "|" + user.Reads("lstOrganizations"), "Plant|Southern Trade");
    EXPECT_TRUE(user.CanUse("cmdModify") && user.CanUse("cmdCancelOperation") && !user.CanUse("cmdAdd"));
    EXPECT_EQ(house.Rows("SELECT OrganizationID, DepartmentEnglishName FROM Departments WHERE RecordID = 1"),
              "1|Production");
    EXPECT_EQ(house.Rows("SELECT OrganizationID FROM Groups"), "1");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Departments_Modifications"), 0);
    EXPECT_EQ(EmployeesListFlag(), 0);

    house.Sql("DROP TRIGGER Full");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("WARNING:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK");
    user.Clicks("cmdModify");
    EXPECT_EQ(house.Rows(kPlaces), "2|1|1\n1|2|0");
}

TEST_F(FrmUnits, AFormWithoutAUnitAboveSaysSoAndCloses)
{
    house.Sql("UPDATE Organizations SET Active = 0");
    user.WillAnswer("ERROR:", "OK", "you must first set up at least one organization in fiscal year 2026!");
    user.Opens<frmDepartments>();
    EXPECT_FALSE(user.The<frmDepartments>().isVisible());

    house.Sql("UPDATE Departments SET Active = 0");
    SessionState.English = false;
    user.WillAnswer("ERREUR:", "OK", "vous devez d'abord créer au moins un département dans l'année fiscale 2026!");
    user.Opens<frmGroups>();
    EXPECT_FALSE(user.The<frmGroups>().isVisible());
}
} // namespace
