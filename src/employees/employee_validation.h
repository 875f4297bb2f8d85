#pragma once

#include "employees/employee_record.h"
#include "foundation/fault.h"
#include "platform/dao/dao.h"

#include <optional>

/// What the checks of a record need beside it.
struct ValidationContext
{
    bool Modifying = false;
    bool ApproversOffered = false; ///< the list of first-level approvers has entries
};

/// Checks a record in the order of the form, and asks its questions. The first error, or the first question that is
/// answered with No, ends the checks and is the fault; none when the record may be saved. On the way the dates are
/// taken in and the schedule is brought up to date.
std::optional<Fault> ValidateRecord(DataControl& datAbsence, EmployeeRecord& record, const ValidationContext& context);

/// Brings what is typed into the form in which it is stored: names with capitals, codes and log-in in upper case, the
/// rate with two decimals.
void NormaliseTexts(EmployeeRecord& record);
