#pragma once

#include "attendance/leave_requests.h"

struct AttendanceEntry;
struct CancelledRecords;

// What is told of requests by mail. A failure is told to nobody, as what was written stands; whoever has no address is
// told nothing. They throw nothing.

/// Tells the approvers of a request that has been written.
void EMailRequest(const AttendanceEntry& entry);
/// Tells the employee who asked what came of it. The reason goes with a denial only.
void EMailNotice(int employee, const QString& address, const QVector<RequestedDate>& settled, const QString& reason);
/// Tells the approver which requests were withdrawn.
void EMailRequestCancellation(DataControl& datAbsence, const CancelledRecords& cancelled);
