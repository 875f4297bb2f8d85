#include "platform/controls/flex_grid.h"
#include "reports/frm_lists.h"
#include "support/user.h"

#include <gtest/gtest.h>

namespace
{
class ReferenceLists : public testing::Test
{
protected:
    ReferenceLists()
    {
        house.Company();
        house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly"});
        house.Hire({"CARLA", "Carla", "Cote", "Production", ""});
        house.Hire({"DAN", "Dan", "Dube", "Sales", ""});
        house.Hire({"BEA", "Bea", "Best", "Sales", ""});
        house.Hire({"EVA", "Eva", "Ellis", "Stores", ""});
        house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
        house.LogIn("ADMIN");
    }

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

    House house;
    User user;
};

TEST_F(ReferenceLists, EmployeesStandByUnitWithTheirLogInDetailsAsFarAsTheUserReaches)
{
    EXPECT_EQ(Shown(ListKind::Employees), "Employees: Employees list:\n"
                                          "Organization (Division)|Department|Group|Name|Username|Password\n"
                                          "Northern Works|Production||Cote, Carla|CARLA|PASS\n"
                                          "Northern Works|Production|Assembly|Abel, Anna|ANNA|PASS\n"
                                          "Northern Works|Sales||Best, Bea|BEA|PASS\n"
                                          "Northern Works|Sales||Dube, Dan|DAN|PASS\n"
                                          "Southern Trade|Stores||Ellis, Eva|EVA|PASS");
    house.FiscalYear("2027", 2027);
    house.Sql("UPDATE Employees_List SET FiscalYear = 2 WHERE FamilyName = 'Ellis'");
    const QString head = "Employés: Liste des employés:\n"
                         "Organisation (Division)|Département|Groupe|Nom|Nom d'usager|Mot-clé";
    const QString carla = "\nAteliers du Nord|Fabrication||Cote, Carla|CARLA|PASS";
    const QString anna = "\nAteliers du Nord|Fabrication|Assemblage|Abel, Anna|ANNA|PASS";
    const QString sales = "\nAteliers du Nord|Ventes||Best, Bea|BEA|PASS\nAteliers du Nord|Ventes||Dube, Dan|DAN|PASS";
    const std::tuple<const char*, const char*, QString> levels[] = {
        {"CARLA", "GroupLevelRead", carla}, // no group: not those without one
        {"ANNA", "GroupLevelRead", anna},
        {"ANNA", "DepartmentLevelRead", carla + anna},
        {"ANNA", "OrganizationLevelRead", carla + anna + sales},
        {"DAN", "GlobalLevelRead", carla + anna + sales}}; // Eva is of another year
    for (const auto& [loginID, right, people] : levels) {
        house.Sql(QStringLiteral("UPDATE Employees SET %1 = 1, Language = 1 WHERE LoginID = ?").arg(right), {loginID});
        house.LogIn(loginID);
        EXPECT_EQ(Shown(ListKind::Employees), head + people) << right;
    }
    house.Refuses("INSERT ON Employees_List");
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    user.WillAnswer("UNE ERREUR EST SURVENUE:", "OK", "refused");
    EXPECT_EQ(Shown(ListKind::Employees), "Employés: ") << "a failure is told, and the form can be left";
}

TEST_F(ReferenceLists, CategoriesTellWhatIsDueEachYear)
{
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName NOT IN ('Vacation', 'Sick', 'Personal time')");
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE SystemName IN ('Vacation', 'Sick')");
    house.Sql(
        "UPDATE Categories SET CarryOverAtYearEnd = 1, StandardEntitlement = 112.5 WHERE SystemName = 'Vacation'");
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
