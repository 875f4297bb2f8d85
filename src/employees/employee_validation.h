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

/// A text as it stands once its field has been left: names with capitals, codes and log-in in upper case, the rate with
/// two decimals. A name whose field nobody visits stays as it was written.
QString TextWhenLeft(QString EmployeeRecord::*member, const QString& text);
/// Brings what is typed into the form in which it is stored whether its field was left or not.
void NormaliseTexts(EmployeeRecord& record);
