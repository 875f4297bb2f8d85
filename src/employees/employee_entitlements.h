#pragma once

#include "employees/employee_record.h"
#include "platform/dao/dao.h"

#include <QStringList>

/// Writes one entitlement per category of the session's year for the new employee `employee`, with the standard amount
/// of the category; those that his department does not monitor stand inactive. Returns the names, in the user's
/// language and at most 25, of the monitored ones whose standard amount is 0. Throws RuntimeError.
QStringList CreateEntitlements(DataControl& datAbsence, const EmployeeRecord& record, int employee);

/// Switches off all entitlements of an employee. Throws RuntimeError.
void DeactivateEntitlements(DataControl& datAbsence, int employee);
