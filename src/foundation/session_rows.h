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
/// How far rows have come that are written one after the other.
struct Kept
{
    qsizetype Done = 0;         ///< so many are in the file
    std::exception_ptr Failure; ///< of the one behind them, or of all; none when all are written
};
/// Writes `count` rows of the session's year in one transaction, `work` each by its number from 0: those before a
/// failure stay written. What fails is given back; nothing is thrown.
Kept InOpenYearOneByOne(DataControl& datAbsence, qsizetype count, const std::function<void(qsizetype)>& work);
/// Throws a failure again, as what it was; its description goes on with `more`.
[[noreturn]] void ThrowAgain(const std::exception_ptr& failure, const QString& more);
/// The administrator's row, if there is one.
std::optional<EmployeeRow> FindAdministrator(DataControl& datAbsence);
/// Name and mail address of the ADMIN row, which messages quote.
void LoadAdministratorInfo(DataControl& datAbsence);
