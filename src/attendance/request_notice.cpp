#include "attendance/request_notice.h"

#include "attendance/attendance_entry.h"
#include "mail/leave_notices.h"

void EMailRequest(const AttendanceEntry& entry)
{
    SendNotices(RequestNotices({.Employee = entry.EmployeeName,
                                .Category = entry.CategoryName,
                                .Dates = entry.RequestedDates,
                                .Comment = entry.Comment,
                                .FirstApproverName = entry.FirstApproverName,
                                .FirstApproverEMail = entry.FirstApproverEMail,
                                .SecondApproverName = entry.SecondApproverName,
                                .SecondApproverEMail = entry.SecondApproverEMail}));
}
