#include "reference/employees_list.h"
#include "support/company_test.h"

namespace
{
const char* const kNames = "SELECT FirstName FROM Employees_List ORDER BY FirstName";

class EmployeesList : public CompanyTest
{
protected:
    EmployeesList() { Dismiss("BRUNO"); }
};

TEST_F(EmployeesList, BearsTheUnitsOfEachEmployeeInBothLanguages)
{
    house.Sql(
        "UPDATE Employees SET DepartmentID = 0, EMailAddress = 'dan@example.org', AccessToRestrictedCategory = 1, "
        "HourlyRate = 20.55 WHERE LoginID = 'DAN'");
    house.Sql("UPDATE Employees SET FiscalYear = 2 WHERE LoginID = 'EVA'");
    house.Sql("INSERT INTO Employees_List (FiscalYear, FirstName) VALUES (1, 'Stale')");
    ReloadEmployeesList(datAbsence, ListedEmployees::ActiveOnly);
    EXPECT_EQ(
        house.Rows("SELECT FiscalYear, OrgID, DeptID, GroupID, OrgEnglishName, OrgFrenchName, DeptEnglishName, "
                   "DeptFrenchName, GroupEnglishName, GroupFrenchName, FamilyName, FirstName, DailyHours, EMail, "
                   "CanViewComments, CanViewHidden, ROUND(HourlyRate, 2) AS Rate, EmplID - ? AS Employee "
                   "FROM Employees_List ORDER BY EmplID",
                   {anna}),
        "1|1|1|1|Northern Works|Ateliers du Nord|Production|Fabrication|Assembly|Assemblage|Abel|Anna|7||0|0|20|0\n"
        "1|1|1|0|Northern Works|Ateliers du Nord|Production|Fabrication|||Cote|Carla|7||0|0|20|2\n"
        "1|1|0|0|Northern Works|Ateliers du Nord|||||Dube|Dan|7|dan@example.org|0|1|20.55|3");
}

TEST_F(EmployeesList, IsRebuiltOnceByWhoeverReadsItAfterAChange)
{
    house.Sql("INSERT INTO Employees_List (FiscalYear, FirstName) VALUES (2, 'Zoe')");
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::ActiveOnly);
    EXPECT_EQ(house.Rows(kNames), "Zoe") << "nothing was flagged";
    EmployeesListToBeReloaded(datAbsence);
    EXPECT_EQ(ListFlag(), 1);
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::All);
    EXPECT_EQ(house.Rows(kNames), "Anna\nBruno\nCarla\nDan\nEva\nZoe") << "and the other year keeps its own";
    EXPECT_EQ(ListFlag(), 0);

    EmployeesListToBeReloaded(datAbsence);
    house.Refuses("UPDATE ON FiscalYears");
    EXPECT_THROW(ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::ActiveOnly), RuntimeError);
    EXPECT_EQ(house.Rows(kNames), "Anna\nBruno\nCarla\nDan\nEva\nZoe") << "what cannot be rebuilt stays";
    EXPECT_EQ(ListFlag(), 1);
}
} // namespace
