#include "selection/employee_reach.h"
#include "selection/frm_select_employee.h"
#include "selection/unit_lists.h"
#include "support/company_test.h"

#include <QListWidget>

using testing::ElementsAre;

namespace
{
constexpr ReachList kLists[] = {ReachList::Organizations, ReachList::Departments, ReachList::Groups,
                                ReachList::Employees};

class Reach : public CompanyTest
{
protected:
    /// Further groups, and units that are closed or of the next year.
    Reach()
    {
        house.Sql("INSERT INTO Groups (FiscalYear, Active, OrganizationID, DepartmentID, GroupEnglishName) VALUES "
                  "(1, 1, 1, 1, 'Paint'), (1, 1, 1, 2, 'Counter'), (1, 1, 2, 3, 'Yard'), (1, 0, 1, 1, 'Old'), "
                  "(2, 1, 1, 1, 'Later')");
        house.Sql("INSERT INTO Departments (FiscalYear, Active, OrganizationID, DepartmentEnglishName) "
                  "VALUES (1, 0, 1, 'Old'), (2, 1, 1, 'Later')");
        house.Sql("INSERT INTO Organizations (FiscalYear, Active, OrganizationEnglishName) VALUES (2, 1, 'Later')");
    }
    /// The four lists, "/" between them; of employees the first names.
    QString Listed(const CalendarSelection& within = {})
    {
        QStringList lists;
        for (const ReachList list : kLists) {
            QStringList names;
            for (const ReachEntry& entry : EntriesInReach(datAbsence, list, within))
                names << entry.Listed.section(", ", -1);
            lists << names.join(' ');
        }
        return lists.join(" / ");
    }
    /// What the session shows in the calendar.
    static QString Shown()
    {
        const Session& s = SessionState;
        QStringList shown = {s.CurrentSelection};
        for (const int unit : {s.EmployeeOrganizationID, s.EmployeeDepartmentID, s.EmployeeGroupID, s.EmployeeID})
            shown << QString::number(unit);
        return shown.join('|');
    }
};

TEST_F(Reach, EachLevelOpensTheListsBelowIt)
{
    house.Hire({"NED", "Ned", "Next", "Production", "Assembly"}, house.FiscalYear("2027", 2027));
    house.Hire({"HUGO", "Hugo", "Hall", "Production", "Assembly"});
    Dismiss("HUGO");
    const std::pair<const char*, const char*> levels[] = {
        {"SelfLevelRead", "Northern Works / Production / Assembly / Anna"},
        {"GroupLevelRead", "Northern Works / Production / Assembly / Anna Bruno"},
        {"DepartmentLevelRead", "Northern Works / Production / Assembly Paint / Anna Bruno Carla"},
        {"OrganizationLevelRead", "Northern Works / Production Sales / Assembly Counter Paint / Anna Bruno Carla Dan"},
        {"GlobalLevelRead", "Northern Works Southern Trade / Production Sales Stores / Assembly Counter Paint Yard / "
                            "Anna Bruno Carla Dan Eva"}};
    for (const auto& [right, lists] : levels) {
        Grant("ANNA", {right});
        EXPECT_EQ(Listed(), lists) << right;
        const bool fixed = SessionState.OrganizationLevelRead != 1;
        EXPECT_EQ(Listed(fixed ? CalendarSelection{0, 2, 3, 0, {}} : CalendarSelection()), lists)
            << "a choice never widens the reach";
    }
    EXPECT_EQ(Listed({0, 1, 1, 1, {}}),
              "Northern Works Southern Trade / Production Sales / Assembly Paint / Anna Bruno");
    EXPECT_EQ(Listed({0, 1, 2, 0, {}}), "Northern Works Southern Trade / Production Sales / Counter / Dan");
}

TEST_F(Reach, ALevelWithoutItsUnitReachesOnlyOneself)
{
    Grant("CARLA", {"GroupLevelRead"});
    EXPECT_EQ(Listed(), "Northern Works / Production /  / Carla");
    house.Sql("UPDATE Employees SET DepartmentID = 0 WHERE LoginID = 'DAN'");
    Grant("DAN", {"DepartmentLevelRead"});
    EXPECT_EQ(Listed(), "Northern Works /  /  / Dan");
    house.Sql("UPDATE Employees SET OrganizationID = 0, DepartmentID = 0 WHERE LoginID = 'EVA'");
    Grant("EVA", {"OrganizationLevelRead"});
    EXPECT_EQ(Listed(), " /  /  / Eva");
}

TEST_F(Reach, TheUserNarrowsTheListsAndSelectsAnEmployeeOrAWholeUnit)
{
    user.Opens<frmSelectEmployee>();
    EXPECT_FALSE(user.CanUse("cmdSelect"));
    user.Picks("lstOrganizations", "Northern Works");
    EXPECT_THAT(user.Entries("lstDepartments"), ElementsAre("Production", "Sales"));
    user.Picks("lstDepartments", "Production");
    EXPECT_THAT(user.Entries("lstEmployees"), ElementsAre("Abel, Anna", "Bell, Bruno", "Cote, Carla"));
    user.Picks("lstEmployees", "Abel").ClicksWithCtrl("lstEmployees");
    EXPECT_EQ(user.The<frmSelectEmployee>().findChild<QListWidget*>("lstEmployees")->selectedItems().size(), 1);
    EXPECT_EQ(user.ReadsAll({"lblChoice", "lstGroups"}), "Anna Abel|Assembly")
        << "the units above the employee stand out";
    user.Clicks("cmdSelect");
    EXPECT_EQ(Shown(), QStringLiteral("Anna Abel|1|1|1|%1").arg(anna));

    SessionState.English = false;
    user.Opens<frmSelectEmployee>().Picks("lstEmployees", "Abel").Picks("lstDepartments", "Ventes");
    EXPECT_EQ(user.Reads("lblChoice"), "Ventes");
    user.Presses("lstDepartments", Qt::Key_Return);
    EXPECT_EQ(Shown(), "Ventes|1|2|0|0");

    SessionState.English = true;
    user.Opens<frmSelectEmployee>(nullptr, frmSelectEmployee::Purpose::EmployeeRecord)
        .Picks("lstDepartments", "Stores");
    EXPECT_EQ(user.Reads("lblInstructions"),
              "Select the employee record to be modified or deactivated from the following list");
    EXPECT_FALSE(user.CanUse("cmdSelect")) << "for a record an employee is needed";
    user.Picks("lstEmployees", "Ellis").Clicks("cmdSelect");
    EXPECT_EQ(user.The<frmSelectEmployee>().ChosenEmployeeID(), eva);
    EXPECT_EQ(user.The<frmSelectEmployee>().ChosenName(), "Eva Ellis");
    user.Opens<frmSelectEmployee>().Picks("lstEmployees", "Ellis").Clicks("cmdQuit");
    EXPECT_EQ(user.The<frmSelectEmployee>().ChosenEmployeeID(), 0);
    EXPECT_EQ(Shown(), "Ventes|1|2|0|0") << "the calendar keeps its own";
}

TEST_F(Reach, AUnitAboveTheUsersLevelCannotBeShownWhole)
{
    Grant("ANNA", {"GroupLevelRead"});
    user.Opens<frmSelectEmployee>();
    EXPECT_EQ(user.Reads("lblChoice"), "Assembly") << "his own group stands chosen from the start";
    EXPECT_TRUE(user.CanUse("cmdSelect"));
    for (const char* right : {"DepartmentLevelRead", "OrganizationLevelRead", ""}) {
        user.Opens<frmSelectEmployee>().Picks("lstDepartments", "Production");
        EXPECT_EQ(user.CanUse("cmdSelect"), SessionState.DepartmentLevelRead == 1);
        user.Picks("lstOrganizations", "Northern Works");
        EXPECT_EQ(user.CanUse("cmdSelect"), SessionState.OrganizationLevelRead == 1);
        if (*right != 0)
            Grant("ANNA", {right});
    }
    house.Sql("UPDATE Employees SET DepartmentLevelRead = 0 WHERE LoginID = 'ANNA'");
    house.LogIn("ANNA");
    user.Opens<frmSelectEmployee>().Picks("lstDepartments", "Sales");
    EXPECT_TRUE(user.CanUse("cmdSelect")) << "the organization reaches its departments";
}

TEST_F(Reach, TheUnitsOfAFormFollowTheUsersPositionAndLanguage)
{
    house.Sql("INSERT INTO Organizations (FiscalYear, Active, OrganizationEnglishName) VALUES (1, 0, 'Old')");
    const auto names = [this](UnitList list, int organization = 0, int department = 0) {
        QStringList units;
        for (const Unit& unit : UnitsByPosition(datAbsence, list, organization, department))
            units << unit.Name;
        return units.join(", ");
    };
    const auto all = [&names] {
        return names(UnitList::Organizations) + " / " + names(UnitList::Departments) + " / " + names(UnitList::Groups);
    };
    EXPECT_EQ(all(), "Northern Works, Southern Trade / Production, Sales, Stores / Assembly, Counter, Paint, Yard");
    EXPECT_EQ(names(UnitList::Departments, 2) + names(UnitList::Groups, 1, 2) + names(UnitList::Groups, 0, 1),
              "StoresCounterAssembly, Paint");
    SessionState.UserOrganizationID = 1;
    EXPECT_EQ(all(), "Northern Works / Production, Sales / Assembly, Counter, Paint");
    SessionState.UserDepartmentID = 2;
    EXPECT_EQ(all(), "Northern Works / Sales / Counter");
    SessionState.UserDepartmentID = SessionState.UserGroupID = 1;
    SessionState.English = false;
    EXPECT_EQ(all(), "Ateliers du Nord / Fabrication / Assemblage");
    const Unit group = UnitsByPosition(datAbsence, UnitList::Groups).first();
    EXPECT_EQ(group.OrganizationID * 10 + group.DepartmentID, 11);
}
} // namespace
