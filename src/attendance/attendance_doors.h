#pragma once

#include "attendance/attendance_entry.h"

#include <functional>

/// What the entry form asks of floors above it. A door that is not there is told as not available, or passed over.
struct AttendanceDoors
{
    std::function<void(AttendanceEntry&)> ShowGetApprovedBy;       ///< finds a FirstApprover for a request
    std::function<void(const AttendanceEntry&)> SendRequestNotice; ///< tells the approvers of a written request
};
