#include "reference/employees_list.h"
#include "support/house.h"

#include <gtest/gtest.h>

namespace
{
const char* const kNames = "SELECT FamilyName FROM Employees_List ORDER BY FamilyName";

class EmployeesList : public testing::Test
{
protected:
    EmployeesList()
    {
        house.Configured().Company().LogIn("ADMIN");
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly", {"CanViewComments"}, 0, 20.55F});
        eve = house.Hire({"EVE", "Ève", "Émond", "Sales", "", {"AccessToRestrictedCategory"}});
        gone = house.Hire({"GONE", "Guy", "Gone", "Sales"});
        house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?", {gone});
    }
    int Flag() { return house.Number("SELECT ReloadEmployeesList FROM FiscalYears WHERE RecordID = 1"); }

    House house;
    DataControl datAbsence{"EmployeesList"};
    int chris = 0;
    int eve = 0;
    int gone = 0;
};

TEST_F(EmployeesList, BearsTheUnitsOfEachEmployeeInBothLanguages)
{
    house.Sql("UPDATE Employees SET DepartmentID = 0, EMailAddress = 'eve@example.org' WHERE RecordID = ?", {eve});
    ReloadEmployeesList(datAbsence, ListedEmployees::ActiveOnly);

    const QString rows = "1|1|1|1|%1|Northern Works|Ateliers du Nord|Production|Fabrication|Assembly|Assemblage|Davis|"
                         "Chris|7||1|0|20.55\n"
                         "1|1|0|0|%2|Northern Works|Ateliers du Nord|||||Émond|Ève|7|eve@example.org|0|1|20";
    EXPECT_EQ(house.Rows("SELECT FiscalYear, OrgID, DeptID, GroupID, EmplID, OrgEnglishName, OrgFrenchName, "
                         "DeptEnglishName, DeptFrenchName, GroupEnglishName, GroupFrenchName, FamilyName, FirstName, "
                         "DailyHours, EMail, CanViewComments, CanViewHidden, ROUND(HourlyRate, 2) AS Rate "
                         "FROM Employees_List ORDER BY EmplID"),
              rows.arg(chris).arg(eve));
}

TEST_F(EmployeesList, HoldsTheDeactivatedOnlyWhenAllAreAskedForAndReplacesItsOwnYearAlone)
{
    house.Sql("INSERT INTO Employees_List (FiscalYear, FamilyName) VALUES (1, 'Stale'), (2, 'Zoe')");
    ReloadEmployeesList(datAbsence, ListedEmployees::All);
    EXPECT_EQ(house.Rows(kNames), "Davis\nÉmond\nGone\nZoe");
    ReloadEmployeesList(datAbsence, ListedEmployees::ActiveOnly);
    EXPECT_EQ(house.Rows(kNames), "Davis\nÉmond\nZoe");
}

TEST_F(EmployeesList, IsRebuiltOnceByWhoeverReadsItAfterAChange)
{
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::ActiveOnly);
    EXPECT_EQ(house.Rows(kNames), "") << "nothing was flagged";

    EmployeesListToBeReloaded(datAbsence);
    EXPECT_EQ(Flag(), 1);
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::ActiveOnly);
    EXPECT_EQ(house.Rows(kNames), "Davis\nÉmond");
    EXPECT_EQ(Flag(), 0);
}

TEST_F(EmployeesList, StaysAsItWasWhenItCannotBeRebuilt)
{
    ReloadEmployeesList(datAbsence, ListedEmployees::All);
    EmployeesListToBeReloaded(datAbsence);
    house.Sql("CREATE TRIGGER Full BEFORE UPDATE ON FiscalYears BEGIN SELECT RAISE(ABORT, 'disk is full'); END");

    EXPECT_THROW(ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::ActiveOnly), RuntimeError);
    EXPECT_EQ(house.Rows(kNames), "Davis\nÉmond\nGone");
    EXPECT_EQ(Flag(), 1);
}
} // namespace
