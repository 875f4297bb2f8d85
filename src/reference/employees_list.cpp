#include "reference/employees_list.h"

#include "foundation/connection.h"
#include "foundation/rows.h"
#include "foundation/session_state.h"

namespace
{
void InsertYear(DataControl& datAbsence, ListedEmployees which)
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
        SessionState.FiscalYearID);
}
} // namespace

void EmployeesListToBeReloaded(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    WriteRow(datAbsence, "FiscalYears", SessionState.FiscalYearID, {{"ReloadEmployeesList", 1}});
}

void ReloadEmployeesList(DataControl& datAbsence, ListedEmployees which)
{
    if (SessionState.SQL_Server)
        return SendToServer(
            QStringLiteral("DELETE FROM Employees_List WHERE FiscalYear = %1").arg(SessionState.FiscalYearID));
    const Connection connection(datAbsence);
    Batch batch(datAbsence.Engine());
    try {
        datAbsence.Execute("DELETE FROM Employees_List WHERE FiscalYear = ?", SessionState.FiscalYearID);
        InsertYear(datAbsence, which);
        WriteRow(datAbsence, "FiscalYears", SessionState.FiscalYearID, {{"ReloadEmployeesList", 0}});
        batch.Commit();
    } catch (const RuntimeError&) {
        batch.Rollback();
        throw;
    }
}

void ReloadEmployeesListIfFlagged(DataControl& datAbsence, ListedEmployees which)
{
    const Connection connection(datAbsence);
    if (datAbsence.Read("SELECT * FROM FiscalYears WHERE RecordID = ?", SessionState.FiscalYearID) &&
        datAbsence.Records.Long("ReloadEmployeesList") == 1)
        ReloadEmployeesList(datAbsence, which);
}
