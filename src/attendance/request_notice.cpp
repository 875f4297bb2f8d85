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
                                .FirstApproverName = entry.FirstApproverName,
                                .FirstApproverEMail = entry.FirstApproverEMail,
                                .SecondApproverName = entry.SecondApproverName,
                                .SecondApproverEMail = entry.SecondApproverEMail}));
}

void EMailNotice(const QString& address, const QVector<RequestedDate>& settled, const QString& reason)
{
    if (!settled.isEmpty())
        SendNotice(OutcomeNotice(address, MarkSummary(settled), HasDenied(settled) ? reason : QString()));
}

void EMailRequestCancellation(DataControl& datAbsence, const CancelledRecords& cancelled)
{
    if (cancelled.Approver == 0)
        return;
    QString address, category;
    try {
        const Connection connection(datAbsence);
        address =
            datAbsence.Scalar<QString>("SELECT EMailAddress FROM Employees WHERE RecordID = ?", cancelled.Approver);
        category = datAbsence.Scalar<QString>(
            "SELECT " + NameColumn("Category") + " FROM Categories WHERE RecordID = ?", cancelled.CategoryID);
    } catch (const RuntimeError&) {
        return; // without an address nobody can be told
    }
    SendNotice(CancellationNotice(address, category.trimmed(), cancelled.WithdrawnDates));
}
