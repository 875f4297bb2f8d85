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
/// The administrator's row, if there is one.
std::optional<EmployeeRow> FindAdministrator(DataControl& datAbsence);
/// Name and mail address of the ADMIN row, which messages quote.
void LoadAdministratorInfo(DataControl& datAbsence);
