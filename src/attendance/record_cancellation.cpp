#include "attendance/record_cancellation.h"

#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/session_rows.h"
#include "mail/leave_notices.h"
#include "platform/clock.h"

namespace
{
/// Who may have it approved is read before the row changes.
AttendanceRow Cancel(DataControl& datAbsence, int recordID)
{
    const auto record = Standing<AttendanceRow>(datAbsence, recordID);
    Settings<AttendanceRow> cancelled = {{&AttendanceRow::CancelledBy, UserStamp()},
                                         {&AttendanceRow::CancelledDate, Today()}};
    if (!IsServerChosen()) // where a withdrawn request stays one, as required
        cancelled.push_back({&AttendanceRow::Submitted, 0});
    Set(datAbsence, recordID, cancelled);
    return record;
}
} // namespace

WithdrawnRequests CancelRecords(DataControl& datAbsence, const QVector<int>& records)
{
    SessionState.ReloadCalendar = true;
    WithdrawnRequests withdrawn;
    InOpenYear(
        datAbsence,
        [&] {
            for (const int recordID : records) {
                const AttendanceRow record = Cancel(datAbsence, recordID);
                if (SessionState.ShowApproved)
                    continue;
                withdrawn.Dates += FormatDate(record.RecordDate, "ddd dd-mm-yyyy") + "\r\n";
                withdrawn.CategoryID = record.CategoryID;
                withdrawn.Approver = record.SubmittedTo_First;
            }
        },
        Transaction::KeepOnFailure);
    return withdrawn;
}

void EMailRequestCancellation(DataControl& datAbsence, const WithdrawnRequests& withdrawn)
{
    if (withdrawn.Approver == 0)
        return;
    QString address, category;
    try {
        const Connection connection(datAbsence);
        address =
            datAbsence.Scalar<QString>("SELECT EMailAddress FROM Employees WHERE RecordID = ?", withdrawn.Approver);
        category = datAbsence.Scalar<QString>(
            "SELECT " + NameColumn("Category") + " FROM Categories WHERE RecordID = ?", withdrawn.CategoryID);
    } catch (const RuntimeError&) {
        return; // without an address nobody can be told
    }
    if (!address.trimmed().isEmpty())
        SendNotice(CancellationNotice(address, category.trimmed(), withdrawn.Dates));
}
