#pragma once

#include "platform/dao/dao.h"

/// The employee's time bank in decimal hours: the signed sum of his live records, pending ones included, in the
/// categories related to the time bank. 0 when there are none.
float TimeBankOfEmployee(DataControl& datAbsence, int employeeID);

/// The time bank of what the calendar shows: the employee, or else the group, department or organization. 0 when
/// nothing is selected.
float TimeBankOfSelection(DataControl& datAbsence);
