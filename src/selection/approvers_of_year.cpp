#include "selection/approvers_of_year.h"

#include "foundation/connection.h"
#include "foundation/located_employees.h"
#include "foundation/names.h"
#include "reference/employees_list.h"

namespace
{
QString Place(const Recordset& row, const QStringList& columns)
{
    QStringList names;
    for (const QString& column : columns)
        names << row.Text(column).trimmed();
    names.removeAll(QString());
    return names.join(" / ");
}

/// Those who stand directly in a unit, listed with what the reach of `ListedAs` tells of their place.
struct ApproverLevel
{
    int CalendarSelection::*Unit; ///< of the employee; null for none
    const char* Condition;
    const Level& ListedAs;
};
constexpr ApproverLevel kApproverLevels[] = {
    {&CalendarSelection::EmployeeGroupID, "Employees.GroupID = ?", kOrganizationLevel},
    {&CalendarSelection::EmployeeDepartmentID, "Employees.DepartmentID = ? AND Employees.GroupID = 0",
     kOrganizationLevel},
    {&CalendarSelection::EmployeeOrganizationID, "Employees.OrganizationID = ? AND Employees.DepartmentID = 0",
     kGlobalLevel},
    {nullptr, "Employees.OrganizationID = ?", kDepartmentLevel}};
} // namespace

QVector<ListedApprover> LoadApproversList(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::All);
    const QStringList units = {NameColumn("Org"), NameColumn("Dept"), NameColumn("Group")};
    QVector<ListedApprover> approvers;
    for (const Recordset& row : datAbsence.Select(
             "SELECT EmplID, Employees_List.FamilyName, Employees_List.FirstName, " + units.join(", ") +
                 " FROM Employees_List, Employees WHERE Employees_List.EmplID = Employees.RecordID "
                 "AND Employees.IsAuthorizedToApprove = 1 AND Employees.DeactivatedDate = 0 AND "
                 "Employees_List.FiscalYear = ? ORDER BY Employees_List." +
                 units.join(", Employees_List.") + ", Employees_List.FamilyName, Employees_List.FirstName",
             SessionState.FiscalYearID))
        approvers.append({row.Long("EmplID"), ListedName(row), Place(row, units)});
    return approvers;
}

QVector<ListEntry> ApproversAbove(DataControl& datAbsence, const CalendarSelection& requester)
{
    const Connection connection(datAbsence);
    QVector<ListEntry> approvers;
    for (const ApproverLevel& level : kApproverLevels) {
        const int unit = level.Unit ? requester.*level.Unit : 0;
        if (level.Unit && unit == 0)
            continue;
        const QString condition = QStringLiteral(" AND Employees.IsAuthorizedToApprove = 1 AND "
                                                 "Employees.RecordID <> ? AND ") +
                                  level.Condition;
        approvers << LocatedEmployees(datAbsence.Select(EmployeesWithin(level.ListedAs, condition),
                                                        SessionState.FiscalYearID, requester.EmployeeID, unit));
    }
    return approvers;
}
