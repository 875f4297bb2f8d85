#pragma once

#include "foundation/session_state.h"
#include "platform/dao/dao.h"

/// The four lists, from the widest to the narrowest.
enum class ReachList
{
    Organizations,
    Departments,
    Groups,
    Employees
};
constexpr int kReachLists = 4;

/// A line of a list and what choosing it selects.
struct ReachEntry
{
    QString Listed; ///< "Family, First" for an employee, otherwise the unit's name in the user's language
    CalendarSelection Selection;
};

/// The part of a selection that a list is about: the organization's id in the list of organizations, and so on.
int IdInList(const CalendarSelection& selection, ReachList list);

/// The units that the user's rights fix: his organization without the global level, his department without the
/// organization level, his group without the department level. All 0 for a user who reaches everybody.
CalendarSelection StartingUnit();

/// The entries of a list that lie within a selection and within the reach of the user, in the session's fiscal year,
/// by name. Employees are active ones; a user without read rights over a unit of his own finds only himself.
QVector<ReachEntry> EntriesInReach(DataControl& datAbsence, ReachList list, const CalendarSelection& within);

/// True for an employee, and for a whole unit that the user may read at its level. False for no selection.
bool MayBeShown(const CalendarSelection& selection);
