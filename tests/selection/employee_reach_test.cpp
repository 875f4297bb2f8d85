#include "selection/employee_reach.h"
#include "selection/frm_select_employee.h"
#include "support/user.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

/// Anna and Bruno assemble in Production, Carla works there without a group, Dan sells; Eva is with the other
/// organization.
class Reach : public testing::Test
{
protected:
    Reach()
    {
        house.Company();
        anna = house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly", {}});
        house.Hire({"BRUNO", "Bruno", "Bell", "Production", "Assembly", {}});
        house.Hire({"CARLA", "Carla", "Cote", "Production", "", {}});
        house.Hire({"DAN", "Dan", "Dube", "Sales", "", {}});
        eva = house.Hire({"EVA", "Eva", "Ellis", "Stores", "", {}});
    }

    void Grant(const QString& loginID, const QStringList& rights)
    {
        for (const QString& right : rights)
            house.Sql("UPDATE Employees SET " + right + " = 1 WHERE LoginID = ?", {loginID});
        house.LogIn(loginID);
    }

    QStringList Listed(ReachList list, const EmployeeSelection& within = {})
    {
        QStringList names;
        for (const ReachEntry& entry : EntriesInReach(datAbsence, list, within))
            names << entry.Listed;
        return names;
    }

    House house;
    User user;
    DataControl datAbsence{"test"};
    int anna = 0;
    int eva = 0;
};

TEST_F(Reach, EachLevelOpensTheListsBelowIt)
{
    Grant("ANNA", {"SelfLevelRead"});
    EXPECT_THAT(Listed(ReachList::Employees), ElementsAre("Abel, Anna"));
    EXPECT_THAT(Listed(ReachList::Organizations), ElementsAre("Northern Works"));
    Grant("ANNA", {"GroupLevelRead"});
    EXPECT_THAT(Listed(ReachList::Groups), ElementsAre("Assembly"));
    EXPECT_THAT(Listed(ReachList::Employees), ElementsAre("Abel, Anna", "Bell, Bruno"));
    Grant("ANNA", {"DepartmentLevelRead"});
    EXPECT_THAT(Listed(ReachList::Departments), ElementsAre("Production"));
    EXPECT_THAT(Listed(ReachList::Employees), ElementsAre("Abel, Anna", "Bell, Bruno", "Cote, Carla"));
    Grant("ANNA", {"OrganizationLevelRead"});
    EXPECT_THAT(Listed(ReachList::Departments), ElementsAre("Production", "Sales"));
    EXPECT_THAT(Listed(ReachList::Employees), ElementsAre("Abel, Anna", "Bell, Bruno", "Cote, Carla", "Dube, Dan"));
    Grant("ANNA", {"GlobalLevelRead"});
    EXPECT_THAT(Listed(ReachList::Organizations), ElementsAre("Northern Works", "Southern Trade"));
    EXPECT_THAT(Listed(ReachList::Employees),
                ElementsAre("Abel, Anna", "Bell, Bruno", "Cote, Carla", "Dube, Dan", "Ellis, Eva"));
}

TEST_F(Reach, ALevelWithoutItsUnitReachesOnlyOneself)
{
    Grant("CARLA", {"GroupLevelRead"});
    EXPECT_THAT(Listed(ReachList::Employees), ElementsAre("Cote, Carla"));
    EXPECT_THAT(Listed(ReachList::Groups), IsEmpty());
    house.Sql("UPDATE Employees SET DepartmentID = 0 WHERE LoginID = 'DAN'");
    Grant("DAN", {"DepartmentLevelRead"});
    EXPECT_THAT(Listed(ReachList::Employees), ElementsAre("Dube, Dan"));
    EXPECT_THAT(Listed(ReachList::Groups), IsEmpty());
}

TEST_F(Reach, WhatIsClosedIsNotListedAndAChoiceNeverWidensTheReach)
{
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE LoginID = 'BRUNO'");
    house.Sql("UPDATE Departments SET Active = 0 WHERE DepartmentEnglishName = 'Sales'");
    Grant("ANNA", {"GroupLevelRead"});
    EXPECT_THAT(Listed(ReachList::Employees, {2, 3, 0, 0, {}}), ElementsAre("Abel, Anna"));
    Grant("ANNA", {"OrganizationLevelRead"});
    EXPECT_THAT(Listed(ReachList::Departments), ElementsAre("Production"));
    EXPECT_THAT(Listed(ReachList::Employees, {2, 0, 0, 0, {}}), testing::Not(testing::Contains("Ellis, Eva")));
}

TEST_F(Reach, TheUserNarrowsTheListsAndSelectsAnEmployee)
{
    house.LogIn("ADMIN");
    user.Opens<frmSelectEmployee>();
    EXPECT_FALSE(user.CanUse("cmdSelect"));
    user.Picks("lstOrganizations", "Northern Works");
    EXPECT_THAT(user.Entries("lstDepartments"), ElementsAre("Production", "Sales"));
    user.Picks("lstDepartments", "Production");
    EXPECT_THAT(user.Entries("lstEmployees"), ElementsAre("Abel, Anna", "Bell, Bruno", "Cote, Carla"));
    user.Picks("lstEmployees", "Abel");
    EXPECT_EQ(user.Reads("lblChoice"), "Anna Abel");
    EXPECT_EQ(user.Reads("lstGroups"), "Assembly") << "the units above the employee stand out";
    user.Clicks("cmdSelect");

    EXPECT_EQ(SessionState.EmployeeID, anna);
    EXPECT_EQ(SessionState.EmployeeOrganizationID, 1);
    EXPECT_EQ(SessionState.EmployeeDepartmentID, 1);
    EXPECT_EQ(SessionState.EmployeeGroupID, 1);
    EXPECT_EQ(SessionState.CurrentSelection, "Anna Abel");
}

TEST_F(Reach, AWholeUnitLeavesTheIdsBelowItZero)
{
    house.LogIn("ADMIN");
    SessionState.English = false;
    user.Opens<frmSelectEmployee>().Picks("lstEmployees", "Abel").Picks("lstDepartments", "Ventes");
    EXPECT_EQ(user.Reads("lblChoice"), "Ventes");
    user.Presses("lstDepartments", Qt::Key_Return);

    EXPECT_EQ(SessionState.EmployeeOrganizationID, 1);
    EXPECT_EQ(SessionState.EmployeeDepartmentID, 2);
    EXPECT_EQ(SessionState.EmployeeGroupID, 0);
    EXPECT_EQ(SessionState.EmployeeID, 0);
    EXPECT_EQ(SessionState.CurrentSelection, "Ventes");
}

TEST_F(Reach, AUnitAboveTheUsersLevelCannotBeShownWhole)
{
    Grant("ANNA", {"GroupLevelRead"});
    user.Opens<frmSelectEmployee>();
    EXPECT_EQ(user.Reads("lblChoice"), "Assembly") << "his own group stands chosen from the start";
    user.Picks("lstDepartments", "Production");
    EXPECT_FALSE(user.CanUse("cmdSelect"));
    EXPECT_THAT(user.Entries("lstEmployees"), ElementsAre("Abel, Anna", "Bell, Bruno"));
    user.Picks("lstEmployees", "Bell").Clicks("cmdSelect");
    EXPECT_EQ(SessionState.CurrentSelection, "Bruno Bell");
}

TEST_F(Reach, ForARecordAnEmployeeIsNeededAndTheCalendarKeepsItsOwn)
{
    house.LogIn("ADMIN");
    SessionState.EmployeeID = anna;
    user.Opens<frmSelectEmployee>(nullptr, frmSelectEmployee::Purpose::EmployeeRecord);
    EXPECT_EQ(user.Reads("lblInstructions"),
              "Select the employee record to be modified or deactivated from the following list");
    user.Picks("lstDepartments", "Stores");
    EXPECT_FALSE(user.CanUse("cmdSelect"));
    user.Picks("lstEmployees", "Ellis").Clicks("cmdSelect");
    EXPECT_EQ(user.The<frmSelectEmployee>().ChosenEmployeeID(), eva);
    EXPECT_EQ(user.The<frmSelectEmployee>().ChosenName(), "Eva Ellis");
    EXPECT_EQ(SessionState.EmployeeID, anna);

    user.Opens<frmSelectEmployee>().Picks("lstEmployees", "Ellis").Clicks("cmdQuit");
    EXPECT_EQ(user.The<frmSelectEmployee>().ChosenEmployeeID(), 0);
    EXPECT_EQ(SessionState.EmployeeID, anna);
}
