#include "employees/transfer_employee.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/employee_row.h"
#include "foundation/entitlement_row.h"
#include "foundation/names.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "reference/employees_list.h"

namespace
{
/// More entitlements than this of one employee are not looked at.
constexpr int kMostEntitlements = 1000;

/// Records up to today keep their unit, so that reports of the past still charge it.
void UpdateAttendance(DataControl& datAbsence, const EmployeeTransfer& transfer)
{
    datAbsence.Execute(
        "UPDATE Attendance SET OrganizationID = ?, DepartmentID = ?, GroupID = ? WHERE EmployeeID = ? AND "
        "RecordDate > ? AND CancelledDate = 0",
        transfer.To.OrganizationID, transfer.To.DepartmentID, transfer.To.GroupID, transfer.RecordID, Today());
}

/// The new department decides which categories its people use; balances move along unchanged. The employee's row
/// already names that department.
void UpdateEntitlements(DataControl& datAbsence, int employee)
{
    for (const Recordset& row : datAbsence.Select(
             "SELECT DISTINCT Entitlements.RecordID, CategoriesDepartments.IsUsed, Employees.DepartmentID FROM "
             "Entitlements, CategoriesDepartments, Employees, Categories WHERE "
             "Entitlements.CategoryID = CategoriesDepartments.CategoryID AND "
             "Entitlements.CategoryID = Categories.RecordID AND Entitlements.EmployeeID = Employees.RecordID AND "
             "Categories.CanBeRemoved = 1 AND CategoriesDepartments.DepartmentID = Employees.DepartmentID AND "
             "Entitlements.EmployeeID = ? LIMIT ?",
             employee, kMostEntitlements))
        Set<EntitlementRow>(datAbsence, row.Long("RecordID"), {{&EntitlementRow::Active, row.Long("IsUsed")}});
}

void ShowPlaceInCalendar(const EmployeeTransfer& transfer)
{
    SessionState.ReloadCalendar = true;
    if (SessionState.EmployeeID != transfer.RecordID)
        return;
    SessionState.EmployeeOrganizationID = transfer.To.OrganizationID;
    SessionState.EmployeeDepartmentID = transfer.To.DepartmentID;
    SessionState.EmployeeGroupID = transfer.To.GroupID;
}

/// The condition that names the deepest unit chosen; all employees without one.
std::pair<QString, int> DeepestUnit(const TransferPlace& place)
{
    if (place.GroupID != 0)
        return {"GroupID = ?1", place.GroupID};
    if (place.DepartmentID != 0)
        return {"DepartmentID = ?1", place.DepartmentID};
    return {"(?1 = 0 OR OrganizationID = ?1)", place.OrganizationID};
}
} // namespace

QVector<ListEntry> ReloadEmployees(DataControl& datAbsence, const TransferPlace& within)
{
    const Connection connection(datAbsence);
    const auto [condition, unit] = DeepestUnit(within);
    QVector<ListEntry> candidates;
    for (const Recordset& row :
         datAbsence.Select("SELECT RecordID, FamilyName, FirstName FROM Employees WHERE " + condition +
                               " AND DeactivatedDate = 0 AND FiscalYear = ?2 "
                               "ORDER BY FamilyName ASC, FirstName ASC",
                           unit, SessionState.FiscalYearID))
        candidates.append({ListedName(row), row.Long("RecordID")});
    return candidates;
}

void TakePlaceOfEmployee(DataControl& datAbsence, int employee, TransferPlace& place)
{
    const Connection connection(datAbsence);
    if (const auto row = Find<EmployeeRow>(datAbsence, employee))
        place = {row->OrganizationID, row->DepartmentID, row->GroupID};
}

bool ValidateTransfer(const EmployeeTransfer& transfer)
{
    if (transfer.RecordID == 0)
        Refuse(T("You must select the name of the employee you wish to transfer!",
                 "Vous devez spécifier le nom de l'employé(e) que vous souhaitez transférer!"));
    else if (transfer.To.OrganizationID == 0)
        Refuse(T("You must specify where the employee is being transferred to!",
                 "Vous devez spécifier l'endroit où l'employé(e) sera transféré(e)!"));
    return transfer.RecordID != 0 && transfer.To.OrganizationID != 0;
}

bool ConfirmTransfer(const EmployeeTransfer& transfer, const QString& fromLines, const QString& toLines)
{
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
               Fill(T("Do you wish to transfer {name} from:", "Souhaitez-vous transférer {name} de:"),
                    {{"name", transfer.Name}}) +
                   "\r\n\r\n" + fromLines + "\r\n" + T("TO:", "À:") + "\r\n\r\n" + toLines);
}

void TransferEmployee(DataControl& datAbsence, const EmployeeTransfer& transfer)
{
    InOpenYear(datAbsence, [&] {
        TransferPlace from = transfer.From;
        TakePlaceOfEmployee(datAbsence, transfer.RecordID, from); // another user may have moved him meanwhile
        Change<EmployeeRow>(datAbsence, transfer.RecordID,
                            {{&EmployeeRow::OrganizationID, transfer.To.OrganizationID},
                             {&EmployeeRow::DepartmentID, transfer.To.DepartmentID},
                             {&EmployeeRow::GroupID, transfer.To.GroupID}});
        UpdateAttendance(datAbsence, transfer);
        if (from.DepartmentID != transfer.To.DepartmentID)
            UpdateEntitlements(datAbsence, transfer.RecordID);
        EmployeesListToBeReloaded(datAbsence);
    });
    ShowPlaceInCalendar(transfer);
}
