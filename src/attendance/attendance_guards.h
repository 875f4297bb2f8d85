#pragma once

#include "attendance/attendance_entry.h"
#include "platform/dao/dao.h"

/// The guards of the entry form. Each shows its own message and leaves its verdict in `entry.Validated`. Reads that
/// fail leave the values as they were, and the guard decides on those.

/// Something that must be given is missing: `entry.FieldInError` names the control. A comment is brought to one line.
void ValidateRecords(AttendanceEntry& entry);

/// A request beyond the annual entitlement is refused; whoever enters records for others is warned and may go on.
void WillEntitlBeExceeded(DataControl& datAbsence, AttendanceEntry& entry);

/// Time claimed or paid beyond the bank is refused. Time borrowed that the bank covers may be turned into time claimed:
/// that changes the category of the entry.
void IsTimeBankedEnough(AttendanceEntry& entry);

/// Warns of other live records of the employee on the selected dates, one line per date.
void AreThereOtherAttendanceRecords(DataControl& datAbsence, AttendanceEntry& entry);
