#pragma once

#include "foundation/employee_row.h"
#include "foundation/fiscal_year_row.h"
#include "foundation/session_state.h"

/// Takes over the weekly schedule of an employee; HoursWorkedDaily only when it is above 0.
void TakeSchedule(const WorkSchedule& employee, WorkSchedule& schedule);
/// Makes the session the user of an employee's row: id, approver, units, rights; the calendar shows him.
void TakeUser(const EmployeeRow& employee);
/// Makes the session's fiscal year that of a row: name, id, dates.
void TakeFiscalYear(const FiscalYearRow& year);
/// Reads again whether the session's year has been closed: another workstation may do that.
void RereadClosing(DataControl& datAbsence);

/// The session's year was closed before its records could be written.
struct YearClosed : RuntimeError
{
    YearClosed() : RuntimeError(0, "The fiscal year is closed.") {}
};
/// Writes records of the session's year in one transaction, as InTransaction does. Throws YearClosed, and writes
/// nothing, when the year has been closed.
void InOpenYear(DataControl& datAbsence, const std::function<void()>& work,
                Transaction::OnFailure onFailure = Transaction::Undo);
/// The administrator's row, if there is one.
std::optional<EmployeeRow> FindAdministrator(DataControl& datAbsence);
/// Name and mail address of the ADMIN row, which messages quote.
void LoadAdministratorInfo(DataControl& datAbsence);
