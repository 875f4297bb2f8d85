#pragma once

#include "foundation/session_state.h"
#include "platform/dao/dao.h"

/// Copies the 25 rights of an `Employees` record.
void ReadRights(const Recordset& employee, SecurityProfile& profile);
/// Copies the 28 clock times and seven day lengths of an `Employees` record; HoursWorkedDaily when it is above 0.
void ReadSchedule(const Recordset& employee, WorkSchedule& schedule);
/// Makes the session the user of an `Employees` record: id, approver, units, rights; the calendar shows him.
void TakeUser(const Recordset& employee);
/// Makes the session's fiscal year that of a `FiscalYears` record: name, id, dates.
void TakeFiscalYear(const Recordset& year);
/// Name and mail address of the ADMIN row, which messages quote.
void LoadAdministratorInfo(DataControl& datAbsence);
