#include "platform/controls/flex_grid.h"
#include "reports/frm_lists.h"
#include "support/company_test.h"

namespace
{
class ReferenceLists : public CompanyTest
{
protected:
    /// Title and heading of the form, and the rows of its grid, columns joined by "|". Its button closes it.
    QString Shown(ListKind kind)
    {
        user.Opens<frmLists>(kind);
        const auto* grid = user.The<frmLists>().findChild<FlexGrid*>("flxList");
        QString shown = user.The<frmLists>().windowTitle() + ": " + user.Reads("lblHeading");
        for (int row = 0; row < grid->Rows(); ++row)
            for (int col = 0; col < grid->Cols(); ++col)
                shown += (col == 0 ? "\n" : "|") + grid->TextMatrix(row, col);
        user.Clicks("cmdOK");
        EXPECT_FALSE(user.The<frmLists>().isVisible());
        return shown;
    }
};

TEST_F(ReferenceLists, EmployeesStandByUnitWithTheirLogInDetailsAsFarAsTheUserReaches)
{
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    EXPECT_EQ(Shown(ListKind::Employees).section('\n', 0, 2),
              "Employees: Employees list:\nOrganization (Division)|Department|Group|Name|Username|Password\n"
              "Northern Works|Production||Cote, Carla|CARLA|PASS");
    house.Sql("INSERT INTO Employees_List (FiscalYear, EmplID, FamilyName) VALUES (2, ?, 'Next')", {eva});
    house.Sql("UPDATE Employees SET Language = 1");
    const QString head = "Employés: Liste des employés:\n"
                         "Organisation (Division)|Département|Groupe|Nom|Nom d'usager|Mot-clé";
    const QString carla = "\nAteliers du Nord|Fabrication||Cote, Carla|CARLA|PASS";
    const QString group = "\nAteliers du Nord|Fabrication|Assemblage|Abel, Anna|ANNA|PASS"
                          "\nAteliers du Nord|Fabrication|Assemblage|Bell, Bruno|BRUNO|PASS";
    const QString sales = "\nAteliers du Nord|Ventes||Dube, Dan|DAN|PASS";
    const std::tuple<const char*, const char*, QString> levels[] = {
        {"CARLA", "GroupLevelRead", carla}, // no group: not those without one
        {"ANNA", "GroupLevelRead", group},
        {"ANNA", "DepartmentLevelRead", carla + group},
        {"ANNA", "OrganizationLevelRead", carla + group + sales},
        {"DAN", "GlobalLevelRead", carla + group + sales + "\nCommerce du Sud|Magasins||Ellis, Eva|EVA|PASS"}};
    for (const auto& [loginID, right, people] : levels) {
        Grant(loginID, {right});
        EXPECT_EQ(Shown(ListKind::Employees), head + people) << right;
    }
    house.Refuses("INSERT ON Employees_List");
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    user.WillAnswer("UNE ERREUR EST SURVENUE:", "OK", "3022");
    EXPECT_EQ(Shown(ListKind::Employees), "Employés: ") << "a failure is told, and the form can be left";
}

TEST_F(ReferenceLists, CategoriesTellWhatIsDueEachYear)
{
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName NOT IN ('Vacation', 'Sick', 'Personal time')");
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1, StandardEntitlement = 112.5, CarryOverAtYearEnd = 1 "
              "WHERE SystemName = 'Vacation'");
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE SystemName = 'Sick'");
    house.Sql("UPDATE Categories SET StandardEntitlement = 14, Restricted = 1 WHERE SystemName = 'Personal time'");
    EXPECT_EQ(Shown(ListKind::Categories),
              "Categories: Categories list:\n"
              "Category|Annual entitlement|Balance can be carried over at the end of the fiscal year\n"
              "Personal time|No annual entitlement|No\nSick|Varies between employees|No\nVacation|112:30|Yes");
    SessionState.English = false;
    SessionState.AccessToRestrictedCategory = 0;
    EXPECT_EQ(Shown(ListKind::Categories).section('\n', 2), "Maladie|Varie entre employés|Non\nVacances|112:30|Oui");
}
} // namespace
