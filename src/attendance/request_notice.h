#pragma once

struct AttendanceEntry;

/// Tells the approvers of a request that has been written, by mail. A failure is told to nobody: the request stands.
void EMailRequest(const AttendanceEntry& entry);
