#include "employees/approver_list.h"

#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/names.h"
#include "foundation/rows.h"
#include "foundation/texts.h"

namespace
{
constexpr int kLocationWidth = 20;

/// One part of the list: a statement with the id of a unit and its name as Location, or without both.
struct Block
{
    QString Statement; ///< up to the conditions that all blocks share
    int UnitID = 0;
};

/// Those who stand in a unit of the record and in none below it, with the name of the unit that `location` tells.
Block UnitBlock(const Level& unit, int unitID, const Level& location, const QString& noneBelow)
{
    return {Fill("SELECT Employees.FamilyName, Employees.FirstName, Employees.RecordID, {name} AS Location "
                 "FROM Employees, {kind}s WHERE {id} = {kind}s.RecordID AND {column} = ?{none}",
                 {{"name", location.Name + ("s." + NameColumn(location.Name))},
                  {"kind", location.Name},
                  {"id", location.Column},
                  {"column", unit.Column},
                  {"none", noneBelow}}),
            unitID};
}

QVector<Block> BlocksOf(const EmployeeRecord& record)
{
    QVector<Block> blocks;
    if (record.GroupID != 0)
        blocks.append(UnitBlock(kGroupLevel, record.GroupID, kDepartmentLevel, ""));
    if (record.DepartmentID != 0)
        blocks.append(UnitBlock(kDepartmentLevel, record.DepartmentID, kDepartmentLevel, " AND Employees.GroupID = 0"));
    if (record.OrganizationID != 0)
        blocks.append(UnitBlock(kOrganizationLevel, record.OrganizationID, kOrganizationLevel,
                                " AND Employees.DepartmentID = 0"));
    blocks.append({"SELECT FamilyName, FirstName, RecordID FROM Employees WHERE GlobalLevelCreate = ?", 1});
    return blocks;
}

QString WholeStatement(const Block& block)
{
    return block.Statement + " AND Employees.FiscalYear = ? AND Employees.RecordID <> ? AND "
                             "Employees.IsAuthorizedToApprove = 1 AND Employees.DeactivatedDate = 0 "
                             "ORDER BY Employees.FamilyName ASC, Employees.FirstName ASC";
}

QString Listed(const Recordset& employee)
{
    if (!employee.Columns().contains("Location"))
        return ListedName(employee);
    const QString location = employee.Text("Location").left(kLocationWidth).trimmed();
    return location.leftJustified(kLocationWidth) + " / " + ListedName(employee);
}
} // namespace

QVector<ListEntry> LoadApprovedBy(DataControl& datAbsence, const EmployeeRecord& record)
{
    const Connection connection(datAbsence);
    QVector<ListEntry> approvers;
    for (const Block& block : BlocksOf(record))
        for (const Recordset& employee :
             datAbsence.Select(WholeStatement(block), block.UnitID, SessionState.FiscalYearID, record.RecordID))
            approvers.append({Listed(employee), employee.Long("RecordID")});
    return approvers;
}

QString ApproverName(DataControl& datAbsence, int recordID)
{
    const Connection connection(datAbsence);
    const Recordset found =
        datAbsence.Select("SELECT FamilyName, FirstName FROM Employees WHERE RecordID = ?", recordID);
    return found.AtEnd() ? QString() : ListedName(found);
}
