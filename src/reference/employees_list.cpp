#include "reference/employees_list.h"

#include "foundation/connection.h"
#include "foundation/fiscal_year_row.h"
#include "foundation/session_state.h"

namespace
{
void InsertYear(DataControl& datAbsence, ListedEmployees which, int year)
{
    const QString active = which == ListedEmployees::ActiveOnly ? " AND Employees.DeactivatedDate = 0" : "";
    datAbsence.Execute(
        "INSERT INTO Employees_List (FiscalYear, OrgID, DeptID, GroupID, EmplID, OrgEnglishName, OrgFrenchName, "
        "DeptEnglishName, DeptFrenchName, GroupEnglishName, GroupFrenchName, FamilyName, FirstName, DailyHours, EMail, "
        "CanViewComments, CanViewHidden, HourlyRate) "
        "SELECT Employees.FiscalYear, Employees.OrganizationID, Employees.DepartmentID, Employees.GroupID, "
        "Employees.RecordID, Organizations.OrganizationEnglishName, Organizations.OrganizationFrenchName, "
        "COALESCE(Departments.DepartmentEnglishName, ''), COALESCE(Departments.DepartmentFrenchName, ''), "
        "COALESCE(Groups.GroupEnglishName, ''), COALESCE(Groups.GroupFrenchName, ''), Employees.FamilyName, "
        "Employees.FirstName, Employees.HoursWorkedDaily, Employees.EMailAddress, Employees.CanViewComments, "
        "Employees.AccessToRestrictedCategory, Employees.HourlyRate "
        "FROM Employees JOIN Organizations ON Employees.OrganizationID = Organizations.RecordID "
        "LEFT JOIN Departments ON Departments.RecordID = Employees.DepartmentID "
        "LEFT JOIN Groups ON Groups.RecordID = Employees.GroupID "
        "WHERE Employees.FiscalYear = ?" +
            active,
        year);
}
} // namespace

void EmployeesListToBeReloaded(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    Set<FiscalYearRow>(datAbsence, SessionState.FiscalYearID, {{&FiscalYearRow::ReloadEmployeesList, 1}});
}

void ReloadEmployeesList(DataControl& datAbsence, ListedEmployees which, int year)
{
    InTransaction(datAbsence, [&] {
        datAbsence.Execute("DELETE FROM Employees_List WHERE FiscalYear = ?", year);
        if (IsServerChosen()) // whose list is only emptied
            return;
        InsertYear(datAbsence, which, year);
        Set<FiscalYearRow>(datAbsence, year, {{&FiscalYearRow::ReloadEmployeesList, 0}});
    });
}

void ReloadEmployeesListIfFlagged(DataControl& datAbsence, ListedEmployees which, int year)
{
    const Connection connection(datAbsence);
    const auto found = Find<FiscalYearRow>(datAbsence, year);
    if (found && found->ReloadEmployeesList == 1)
        ReloadEmployeesList(datAbsence, which, year);
}
