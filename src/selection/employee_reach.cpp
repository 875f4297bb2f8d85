#include "selection/employee_reach.h"

#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/names.h"

#include <algorithm>

namespace
{
/// Stands for a unit that no row has.
constexpr int kNoUnit = -1;

/// The level of the units in a list.
const Level& LevelOf(ReachList list)
{
    return kLevelTable[static_cast<std::size_t>(list) + 1];
}

/// The widest level that the user reads; the individual one when there is none above it.
const Level& WidestRead()
{
    return WidestLevel([](const Level& level) { return level.IsHeld(Access::Read); });
}

/// Without a unit of his own at his widest level, a user reaches only himself.
bool ReachesAUnit()
{
    const Level& widest = WidestRead();
    return &widest != &kIndividualLevel && widest.HasUnit();
}

/// The one unit that a list is limited to: 0, all of them, for a user who reads the level above, otherwise his own.
int OnlyUnit(const Level& level)
{
    if ((&level)[-1].IsHeld(Access::Read) && ReachesAUnit())
        return 0;
    return level.Unit() > 0 ? level.Unit() : kNoUnit;
}

/// How a list of units is read: the units that an entry selects, and which rows there are.
struct UnitQuery
{
    const char* Units;
    const char* Rows;
};

UnitQuery QueryOf(ReachList list)
{
    switch (list) {
    case ReachList::Organizations:
        return {"RecordID AS OrganizationID, 0 AS DepartmentID, 0 AS GroupID", ""};
    case ReachList::Departments:
        return {"OrganizationID, RecordID AS DepartmentID, 0 AS GroupID",
                "Active = 1 AND (?2 = 0 OR OrganizationID = ?2) AND "};
    default:
        return {"OrganizationID, DepartmentID, RecordID AS GroupID",
                "Active = 1 AND (?2 = 0 OR OrganizationID = ?2) AND (?3 = 0 OR DepartmentID = ?3) AND "};
    }
}

CalendarSelection SelectionOf(const Recordset& row, int employeeID, const QString& name)
{
    return {employeeID, row.Long("OrganizationID"), row.Long("DepartmentID"), row.Long("GroupID"), name};
}

QVector<ReachEntry> Units(DataControl& datAbsence, ReachList list, const CalendarSelection& within)
{
    const Level& level = LevelOf(list);
    const UnitQuery query = QueryOf(list);
    QVector<ReachEntry> entries;
    for (const Recordset& row : datAbsence.Select(
             Fill("SELECT {units}, {name} AS Name FROM {kind}s WHERE FiscalYear = ?1 AND {rows}"
                  "(?4 = 0 OR RecordID = ?4) ORDER BY Name ASC",
                  {{"units", query.Units},
                   {"name", NameColumn(level.Name)},
                   {"kind", level.Name},
                   {"rows", query.Rows}}),
             SessionState.FiscalYearID, within.EmployeeOrganizationID, within.EmployeeDepartmentID, OnlyUnit(level)))
        entries.append({row.Text("Name"), SelectionOf(row, 0, row.Text("Name"))});
    return entries;
}

QVector<ReachEntry> Employees(DataControl& datAbsence, const CalendarSelection& within)
{
    QVector<ReachEntry> entries;
    for (const Recordset& row : datAbsence.Select(
             "SELECT RecordID, OrganizationID, DepartmentID, GroupID, FamilyName, FirstName FROM Employees "
             "WHERE FiscalYear = ?1 AND DeactivatedDate = 0 AND (?2 = 0 OR OrganizationID = ?2) AND "
             "(?3 = 0 OR DepartmentID = ?3) AND (?4 = 0 OR GroupID = ?4) AND (?5 = 0 OR RecordID = ?5) "
             "ORDER BY FamilyName ASC, FirstName ASC",
             SessionState.FiscalYearID, within.EmployeeOrganizationID, within.EmployeeDepartmentID,
             within.EmployeeGroupID, ReachesAUnit() ? 0 : SessionState.UserID)) {
        entries.append({ListedName(row), SelectionOf(row, row.Long("RecordID"), FullName(row))});
    }
    return entries;
}

using UnitMember = int CalendarSelection::*;
constexpr UnitMember kUnits[] = {&CalendarSelection::EmployeeOrganizationID, &CalendarSelection::EmployeeDepartmentID,
                                 &CalendarSelection::EmployeeGroupID, &CalendarSelection::EmployeeID};

/// What is chosen never lifts the bounds that the user's rights set.
CalendarSelection Bounded(CalendarSelection within)
{
    const CalendarSelection start = StartingUnit();
    for (const UnitMember unit : kUnits)
        if (start.*unit != 0)
            within.*unit = start.*unit;
    return within;
}
} // namespace

int IdInList(const CalendarSelection& selection, ReachList list)
{
    return selection.*kUnits[static_cast<std::size_t>(list)];
}

CalendarSelection StartingUnit()
{
    CalendarSelection start;
    for (const Level* level = &kOrganizationLevel; level < &kIndividualLevel; ++level)
        if (!level[-1].IsHeld(Access::Read))
            start.*kUnits[level - &kOrganizationLevel] = level->Unit();
    return start;
}

QVector<ReachEntry> EntriesInReach(DataControl& datAbsence, ReachList list, const CalendarSelection& within)
{
    const Connection connection(datAbsence);
    return list == ReachList::Employees ? Employees(datAbsence, Bounded(within))
                                        : Units(datAbsence, list, Bounded(within));
}

bool MayBeShown(const CalendarSelection& selection)
{
    if (selection.EmployeeID != 0)
        return true;
    for (const ReachList list : {ReachList::Groups, ReachList::Departments, ReachList::Organizations})
        if (IdInList(selection, list) != 0)
            return &WidestRead() <= &LevelOf(list);
    return false;
}
