#include "selection/unit_lists.h"

#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/names.h"

namespace
{
const Level& LevelOf(UnitList list)
{
    return kLevelTable[static_cast<std::size_t>(list) + 1];
}

/// The rows that the user's position lets him see. His own unit is found in whatever year it is.
Recordset SelectUnits(DataControl& datAbsence, UnitList list)
{
    static constexpr const char* kUnitColumns[] = {"RecordID AS OrganizationID, 0 AS DepartmentID",
                                                   "OrganizationID, RecordID AS DepartmentID",
                                                   "OrganizationID, DepartmentID"};
    const Level& level = LevelOf(list);
    const QString select = QStringLiteral("SELECT RecordID, %1, %2 AS Name FROM %3s WHERE ")
                               .arg(kUnitColumns[static_cast<std::size_t>(list)], NameColumn(level.Name), level.Name);
    const QString order = " ORDER BY Name ASC";
    if (level.Unit() != 0)
        return datAbsence.Select(select + "RecordID = ?" + order, level.Unit());
    const QString active = select + "FiscalYear = ? AND Active = 1";
    for (const Level* above = &level - 1; above > &kGlobalLevel; --above)
        if (above->Unit() != 0)
            return datAbsence.Select(active + QStringLiteral(" AND %1ID = ?").arg(above->Name) + order,
                                     SessionState.FiscalYearID, above->Unit());
    return datAbsence.Select(active + order, SessionState.FiscalYearID);
}

bool IsWithin(const Unit& unit, UnitList list, int organizationID, int departmentID)
{
    if (list == UnitList::Organizations)
        return true;
    const bool department = list == UnitList::Departments || departmentID == 0 || unit.DepartmentID == departmentID;
    return department && (organizationID == 0 || unit.OrganizationID == organizationID);
}
} // namespace

QVector<Unit> UnitsByPosition(DataControl& datAbsence, UnitList list, int organizationID, int departmentID)
{
    const Connection connection(datAbsence);
    QVector<Unit> units;
    for (const Recordset& row : SelectUnits(datAbsence, list)) {
        const Unit unit{row.Long("RecordID"), row.Text("Name").trimmed(), row.Long("OrganizationID"),
                        row.Long("DepartmentID")};
        if (IsWithin(unit, list, organizationID, departmentID))
            units.append(unit);
    }
    return units;
}
