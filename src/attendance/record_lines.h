#pragma once

#include "attendance/attendance_entry.h"
#include "platform/dao/dao.h"

#include <QString>

/// Lines by which messages list attendance records, each ended by CR LF.

/// The category of a record in the user's language; the row carries CategoryEnglishName and CategoryFrenchName.
QString CategoryOfRow(const Recordset& row);

/// A line per selected date of an operation: date, clock times if there are any, duration.
QString EntryLines(const AttendanceEntry& entry);

/// Date, category (20 characters) and total duration. The row carries RecordDate, TotalDuration and the category's
/// names.
QString OtherRecordLine(const Recordset& row);

/// Category, clock times if there are any, duration, and whether it waits for approval. The row carries StartTime,
/// EndTime, Duration, Submitted and the category's names.
QString ConflictLine(const Recordset& row);
