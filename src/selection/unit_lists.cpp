#include "selection/unit_lists.h"

#include "foundation/connection.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"

#include <algorithm>

namespace
{
/// A unit in which the user may stand: the column that holds it, and his own.
struct Position
{
    const char* Column;
    int Session::*Own;
};

struct UnitTable
{
    const char* Table;
    const char* Kind; ///< the beginning of its name columns
    int Session::*Own;
    std::array<Position, 2> Above; ///< the units above it, the nearest first
};

const UnitTable& TableOf(UnitList list)
{
    static constexpr Position kOrganization = {"OrganizationID", &Session::UserOrganizationID};
    static constexpr Position kDepartment = {"DepartmentID", &Session::UserDepartmentID};
    static constexpr std::array<UnitTable, 3> kTables = {{
        {"Organizations", "Organization", &Session::UserOrganizationID, {}},
        {"Departments", "Department", &Session::UserDepartmentID, {kOrganization}},
        {"Groups", "Group", &Session::UserGroupID, {kDepartment, kOrganization}},
    }};
    return kTables[static_cast<std::size_t>(list)];
}

/// The rows that the user's position lets him see. His own unit is found in whatever year it is.
Recordset SelectUnits(DataControl& datAbsence, const UnitTable& table, const QString& nameColumn)
{
    const QString select = QStringLiteral("SELECT * FROM %1 WHERE ").arg(table.Table);
    const QString order = QStringLiteral(" ORDER BY %1 ASC").arg(nameColumn);
    if (SessionState.*table.Own != 0)
        return datAbsence.Select(select + "RecordID = ?" + order, SessionState.*table.Own);
    const QString active = select + "FiscalYear = ? AND Active = 1";
    for (const Position& above : table.Above)
        if (above.Column && SessionState.*above.Own != 0)
            return datAbsence.Select(active + QStringLiteral(" AND %1 = ?").arg(above.Column) + order,
                                     SessionState.FiscalYearID, SessionState.*above.Own);
    return datAbsence.Select(active + order, SessionState.FiscalYearID);
}

Unit ReadUnit(const Recordset& row, UnitList list, const QString& nameColumn)
{
    Unit unit{row.Long("RecordID"), row.Text(nameColumn).trimmed()};
    unit.OrganizationID = list == UnitList::Organizations ? unit.RecordID : row.Long("OrganizationID");
    if (list != UnitList::Organizations)
        unit.DepartmentID = list == UnitList::Departments ? unit.RecordID : row.Long("DepartmentID");
    return unit;
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
    const UnitTable& table = TableOf(list);
    const QString nameColumn = table.Kind + T("EnglishName", "FrenchName");
    QVector<Unit> units;
    for (Recordset row = SelectUnits(datAbsence, table, nameColumn); !row.AtEnd(); row.MoveNext()) {
        const Unit unit = ReadUnit(row, list, nameColumn);
        if (IsWithin(unit, list, organizationID, departmentID))
            units.append(unit);
    }
    return units;
}

Unit FindUnit(const QVector<Unit>& units, int recordID)
{
    const auto found =
        std::find_if(units.begin(), units.end(), [recordID](const Unit& unit) { return unit.RecordID == recordID; });
    return found == units.end() || recordID == 0 ? Unit() : *found;
}
