#include "platform/controls/flex_grid.h"
#include "reports/frm_lists.h"
#include "support/user.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

class ReferenceLists : public testing::Test
{
protected:
    ReferenceLists()
    {
        house.Company();
        house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly", {}});
        house.Hire({"CARLA", "Carla", "Cote", "Production", "", {}});
        house.Hire({"DAN", "Dan", "Dube", "Sales", "", {}});
        house.Hire({"EVA", "Eva", "Ellis", "Stores", "", {}});
        house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    }

    /// The rows below the head, columns joined by "|".
    QStringList Shown(ListKind kind)
    {
        user.Opens<frmLists>(kind);
        const auto* grid = user.The<frmLists>().findChild<FlexGrid*>("flxList");
        QStringList rows;
        for (int row = 0; row < grid->Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < grid->Cols(); ++col)
                cells << grid->TextMatrix(row, col);
            rows << cells.join('|');
        }
        head = rows.takeFirst();
        return rows;
    }
    QStringList NamesFor(const QString& loginID, const QString& right)
    {
        house.Sql("UPDATE Employees SET " + right + " = 1 WHERE LoginID = ?", {loginID});
        house.LogIn(loginID);
        QStringList names;
        for (const QString& row : Shown(ListKind::Employees))
            names << row.section('|', 3, 3);
        return names;
    }

    House house;
    User user;
    QString head;
};

TEST_F(ReferenceLists, EmployeesStandByUnitWithTheirLogInDetails)
{
    house.LogIn("ADMIN");
    EXPECT_THAT(Shown(ListKind::Employees),
                ElementsAre("Northern Works|Production||Cote, Carla|CARLA|PASS",
                            "Northern Works|Production|Assembly|Abel, Anna|ANNA|PASS",
                            "Northern Works|Sales||Dube, Dan|DAN|PASS", "Southern Trade|Stores||Ellis, Eva|EVA|PASS"));
    EXPECT_EQ(head, "Organization (Division)|Department|Group|Name|Username|Password");
    EXPECT_EQ(user.Reads("lblHeading"), "Employees list:");
    EXPECT_EQ(user.The<frmLists>().windowTitle(), "Employees");
    EXPECT_EQ(house.Number("SELECT ReloadEmployeesList FROM FiscalYears"), 0);
    user.Clicks("cmdOK");
    EXPECT_FALSE(user.The<frmLists>().isVisible());

    SessionState.English = false;
    EXPECT_EQ(Shown(ListKind::Employees).value(1), "Ateliers du Nord|Fabrication|Assemblage|Abel, Anna|ANNA|PASS");
    EXPECT_EQ(head, "Organisation (Division)|Département|Groupe|Nom|Nom d'usager|Mot-clé");
}

TEST_F(ReferenceLists, ALevelSeesItsOwnUnitOnly)
{
    EXPECT_THAT(NamesFor("ANNA", "SelfLevelRead"), ElementsAre("Abel, Anna"));
    EXPECT_THAT(NamesFor("ANNA", "GroupLevelRead"), ElementsAre("Abel, Anna"));
    EXPECT_THAT(NamesFor("ANNA", "DepartmentLevelRead"), ElementsAre("Cote, Carla", "Abel, Anna"));
    EXPECT_THAT(NamesFor("ANNA", "OrganizationLevelRead"), ElementsAre("Cote, Carla", "Abel, Anna", "Dube, Dan"));
    EXPECT_EQ(NamesFor("ANNA", "GlobalLevelRead").size(), 4);
    EXPECT_THAT(NamesFor("CARLA", "GroupLevelRead"), ElementsAre("Cote, Carla")) << "no group: not those without one";
}

TEST_F(ReferenceLists, CategoriesTellWhatIsDueEachYear)
{
    house.LogIn("ADMIN");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName NOT IN ('Vacation', 'Sick', 'Personal time')");
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1, CarryOverAtYearEnd = 1, StandardEntitlement = 112.5 "
              "WHERE SystemName = 'Vacation'");
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE SystemName = 'Sick'");
    house.Sql("UPDATE Categories SET StandardEntitlement = 14, Restricted = 1 WHERE SystemName = 'Personal time'");
    EXPECT_THAT(Shown(ListKind::Categories), ElementsAre("Personal time|No annual entitlement|No",
                                                         "Sick|Varies between employees|No", "Vacation|112:30|Yes"));
    EXPECT_EQ(head, "Category|Annual entitlement|Balance can be carried over at the end of the fiscal year");
    EXPECT_EQ(user.The<frmLists>().windowTitle(), "Categories");

    SessionState.English = false;
    SessionState.AccessToRestrictedCategory = 0;
    EXPECT_THAT(Shown(ListKind::Categories), ElementsAre("Maladie|Varie entre employés|Non", "Vacances|112:30|Oui"));
    EXPECT_EQ(user.Reads("lblHeading"), "Liste des catégories:");
}

TEST_F(ReferenceLists, AListThatCannotBeRebuiltIsToldAndTheFormStaysUsable)
{
    house.LogIn("ADMIN");
    house.Sql("CREATE TRIGGER broken BEFORE INSERT ON Employees_List BEGIN SELECT RAISE(ABORT, 'broken'); END");
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "broken").Opens<frmLists>(ListKind::Employees);
    user.Clicks("cmdOK");
    EXPECT_FALSE(user.The<frmLists>().isVisible());
}
