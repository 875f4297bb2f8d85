#include "selection/employee_reach.h"

#include "foundation/connection.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"

namespace
{
/// Stands for a unit that no row has.
constexpr int kNoUnit = -1;

QString NameColumn(const char* kind)
{
    return QLatin1String(kind) + T("EnglishName", "FrenchName");
}

/// Without a unit of his own, a user whose rights end at that unit reaches only himself.
bool ReachesAUnit()
{
    const Session& s = SessionState;
    if (s.GlobalLevelRead == 1)
        return true;
    if (s.OrganizationLevelRead == 1)
        return s.UserOrganizationID != 0;
    if (s.DepartmentLevelRead == 1)
        return s.UserDepartmentID != 0;
    return s.GroupLevelRead == 1 && s.UserGroupID != 0;
}

/// The one unit that a list is limited to: 0, all of them, for a user who reads the level above, otherwise his own.
int OnlyUnit(int levelAbove, int ownUnit)
{
    if (levelAbove == 1 && ReachesAUnit())
        return 0;
    return ownUnit > 0 ? ownUnit : kNoUnit;
}

template <typename MakeEntry>
QVector<ReachEntry> Entries(Recordset row, MakeEntry makeEntry)
{
    QVector<ReachEntry> entries;
    for (; !row.AtEnd(); row.MoveNext())
        entries.append(makeEntry(row));
    return entries;
}

QVector<ReachEntry> Organizations(DataControl& datAbsence)
{
    const QString name = NameColumn("Organization");
    const int only = OnlyUnit(SessionState.GlobalLevelRead, SessionState.UserOrganizationID);
    return Entries(datAbsence.Select("SELECT * FROM Organizations WHERE FiscalYear = ? AND (? = 0 OR RecordID = ?) "
                                     "ORDER BY " +
                                         name + " ASC",
                                     SessionState.FiscalYearID, only, only),
                   [&name](const Recordset& row) {
                       return ReachEntry{row.Text(name), {row.Long("RecordID"), 0, 0, 0, row.Text(name)}};
                   });
}

QVector<ReachEntry> Departments(DataControl& datAbsence, const EmployeeSelection& within)
{
    const QString name = NameColumn("Department");
    const int only = OnlyUnit(SessionState.OrganizationLevelRead, SessionState.UserDepartmentID);
    return Entries(
        datAbsence.Select("SELECT * FROM Departments WHERE FiscalYear = ? AND Active = 1 AND "
                          "(? = 0 OR OrganizationID = ?) AND (? = 0 OR RecordID = ?) ORDER BY " +
                              name + " ASC",
                          SessionState.FiscalYearID, within.OrganizationID, within.OrganizationID, only, only),
        [&name](const Recordset& row) {
            return ReachEntry{row.Text(name), {row.Long("OrganizationID"), row.Long("RecordID"), 0, 0, row.Text(name)}};
        });
}

QVector<ReachEntry> Groups(DataControl& datAbsence, const EmployeeSelection& within)
{
    const QString name = NameColumn("Group");
    const int only = OnlyUnit(SessionState.DepartmentLevelRead, SessionState.UserGroupID);
    return Entries(datAbsence.Select("SELECT * FROM Groups WHERE FiscalYear = ? AND Active = 1 AND "
                                     "(? = 0 OR OrganizationID = ?) AND (? = 0 OR DepartmentID = ?) AND "
                                     "(? = 0 OR RecordID = ?) ORDER BY " +
                                         name + " ASC",
                                     SessionState.FiscalYearID, within.OrganizationID, within.OrganizationID,
                                     within.DepartmentID, within.DepartmentID, only, only),
                   [&name](const Recordset& row) {
                       return ReachEntry{row.Text(name),
                                         {row.Long("OrganizationID"), row.Long("DepartmentID"), row.Long("RecordID"), 0,
                                          row.Text(name)}};
                   });
}

QVector<ReachEntry> Employees(DataControl& datAbsence, const EmployeeSelection& within)
{
    const int only = ReachesAUnit() ? 0 : SessionState.UserID;
    return Entries(datAbsence.Select("SELECT RecordID, OrganizationID, DepartmentID, GroupID, FamilyName, FirstName "
                                     "FROM Employees WHERE FiscalYear = ? AND DeactivatedDate = 0 AND "
                                     "(? = 0 OR OrganizationID = ?) AND (? = 0 OR DepartmentID = ?) AND "
                                     "(? = 0 OR GroupID = ?) AND (? = 0 OR RecordID = ?) "
                                     "ORDER BY FamilyName ASC, FirstName ASC",
                                     SessionState.FiscalYearID, within.OrganizationID, within.OrganizationID,
                                     within.DepartmentID, within.DepartmentID, within.GroupID, within.GroupID, only,
                                     only),
                   [](const Recordset& row) {
                       const QString first = row.Text("FirstName").trimmed();
                       const QString family = row.Text("FamilyName").trimmed();
                       return ReachEntry{family + ", " + first,
                                         {row.Long("OrganizationID"), row.Long("DepartmentID"), row.Long("GroupID"),
                                          row.Long("RecordID"), first + " " + family}};
                   });
}

/// What is chosen never lifts the bounds that the user's rights set.
EmployeeSelection Bounded(EmployeeSelection within)
{
    const EmployeeSelection start = StartingUnit();
    for (const auto unit :
         {&EmployeeSelection::OrganizationID, &EmployeeSelection::DepartmentID, &EmployeeSelection::GroupID})
        if (start.*unit != 0)
            within.*unit = start.*unit;
    return within;
}
} // namespace

int IdInList(const EmployeeSelection& selection, ReachList list)
{
    const std::array<int, kReachLists> ids = {selection.OrganizationID, selection.DepartmentID, selection.GroupID,
                                              selection.EmployeeID};
    return ids[static_cast<std::size_t>(list)];
}

EmployeeSelection StartingUnit()
{
    const Session& s = SessionState;
    EmployeeSelection start;
    if (s.GlobalLevelRead != 1)
        start.OrganizationID = s.UserOrganizationID;
    if (s.OrganizationLevelRead != 1)
        start.DepartmentID = s.UserDepartmentID;
    if (s.DepartmentLevelRead != 1)
        start.GroupID = s.UserGroupID;
    return start;
}

QVector<ReachEntry> EntriesInReach(DataControl& datAbsence, ReachList list, const EmployeeSelection& within)
{
    const Connection connection(datAbsence);
    switch (list) {
    case ReachList::Organizations:
        return Organizations(datAbsence);
    case ReachList::Departments:
        return Departments(datAbsence, Bounded(within));
    case ReachList::Groups:
        return Groups(datAbsence, Bounded(within));
    case ReachList::Employees:
        return Employees(datAbsence, Bounded(within));
    }
    return {};
}

bool MayBeShown(const EmployeeSelection& selection)
{
    const Session& s = SessionState;
    const bool organization = s.GlobalLevelRead == 1 || s.OrganizationLevelRead == 1;
    const bool department = organization || s.DepartmentLevelRead == 1;
    if (selection.EmployeeID != 0)
        return true;
    if (selection.GroupID != 0)
        return department || s.GroupLevelRead == 1;
    if (selection.DepartmentID != 0)
        return department;
    return selection.OrganizationID != 0 && organization;
}

void ShowInCalendar(const EmployeeSelection& selection)
{
    SessionState.EmployeeOrganizationID = selection.OrganizationID;
    SessionState.EmployeeDepartmentID = selection.DepartmentID;
    SessionState.EmployeeGroupID = selection.GroupID;
    SessionState.EmployeeID = selection.EmployeeID;
    SessionState.CurrentSelection = selection.Name;
}
