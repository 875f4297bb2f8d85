#pragma once

#include "foundation/session_state.h"
#include "platform/dao/dao.h"

/// `Employees_List` is the flat copy of a year's employees and their units that lists, reports and schedules read. A
/// change of an employee or unit only flags it; whoever reads it next rebuilds it.

/// Flags the list of the session's year. Throws when the year cannot be written.
void EmployeesListToBeReloaded(DataControl& datAbsence);

enum class ListedEmployees
{
    ActiveOnly,
    All
};

/// Rebuilds the list of a year and clears the flag. Throws when it cannot be written; the list is then as
/// it was.
void ReloadEmployeesList(DataControl& datAbsence, ListedEmployees which, int year = SessionState.FiscalYearID);
/// The same, only when the flag is set.
void ReloadEmployeesListIfFlagged(DataControl& datAbsence, ListedEmployees which, int year = SessionState.FiscalYearID);
