#include "attendance/request_notice.h"

#include "attendance/attendance_entry.h"
#include "attendance/record_cancellation.h"
#include "attendance/request_approval.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "mail/leave_notices.h"

void EMailRequest(const AttendanceEntry& entry)
{
    SendNotices(RequestNotices({.Employee = entry.EmployeeName,
                                .Category = entry.CategoryName,
                                .Dates = entry.RequestedDates,
                                .Comment = entry.Comment,
                                .FirstApprover = entry.FirstApprover,
                                .SecondApprover = entry.SecondApprover}));
}

void EMailNotice(int employee, const QString& address, const QVector<RequestedDate>& settled, const QString& reason)
{
    if (!settled.isEmpty())
        SendNotice(OutcomeNotice(employee, address, MarkSummary(settled), HasDenied(settled) ? reason : QString()));
}

void EMailRequestCancellation(DataControl& datAbsence, const CancelledRecords& cancelled)
{
    if (cancelled.Approver == 0)
        return;
    QString address, category;
    try {
        const Connection connection(datAbsence);
        address = MailAddressOf(datAbsence, cancelled.Approver);
        category = datAbsence.Scalar<QString>(
            "SELECT " + NameColumn("Category") + " FROM Categories WHERE RecordID = ?", cancelled.CategoryID);
    } catch (const RuntimeError&) {
        return; // without an address nobody can be told
    }
    SendNotice(CancellationNotice(cancelled.Approver, address, category.trimmed(), cancelled.WithdrawnDates));
}
