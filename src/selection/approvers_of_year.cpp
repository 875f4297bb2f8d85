#include "selection/approvers_of_year.h"

#include "foundation/connection.h"
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
