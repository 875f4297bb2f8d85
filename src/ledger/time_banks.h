#pragma once

#include "foundation/session_state.h"
#include "platform/dao/dao.h"

/// The time bank of an employee, or else of a group, department or organization, in decimal hours: the signed sum of
/// the live records, pending ones included, in the categories related to the time bank. 0 when there are none or
/// nothing is selected.
float TimeBankOf(DataControl& datAbsence, const CalendarSelection& selection);
