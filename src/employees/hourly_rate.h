#pragma once

#include "employees/employee_record.h"
#include "platform/dao/dao.h"

/// The rate typed differs from the one of the row.
bool HasNewRate(const EmployeeRecord& record);

/// Asks whether the new rate holds for attendance that is entered already. True for Yes.
bool AskForRetroactiveRate(const EmployeeRecord& record);

/// Rewrites the costs of all attendance of the employee from the serial day `effective` on. Throws RuntimeError;
/// nothing is written then.
void UpdateHourlyRate(DataControl& datAbsence, const EmployeeRecord& record, int effective);
