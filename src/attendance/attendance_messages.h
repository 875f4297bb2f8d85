#pragma once

#include "attendance/attendance_entry.h"

/// The questions and announcements around the writing of records.

/// The category is limited, and the employee has no entitlement: true to go on all the same.
bool AcceptMissingEntitlement(const AttendanceEntry& entry);

bool ConfirmNewAttendance(const AttendanceEntry& entry);
/// Keeps the list of dates in the entry, for the notices.
bool ConfirmSubmission(AttendanceEntry& entry);
bool ConfirmModification(const AttendanceEntry& entry);

/// Which approvers will not hear of the request, and why, a line each; empty when all will.
QString ApproversOutOfReach(const AttendanceEntry& entry);

void TellSubmitted(const AttendanceEntry& entry);
void TellModified();
