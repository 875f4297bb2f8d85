#include "attendance/record_cancellation.h"

#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
/// Another user may have cancelled the record, or settled the request, since the calendar was read.
void RequireAsShown(const AttendanceRow& record)
{
    constexpr Text kCancelled = {"\r\n\r\nWhat stood on {date} has been cancelled meanwhile.",
                                 "\r\n\r\nCe qui figurait au {date} a été supprimé entre-temps."};
    constexpr Text kSettled = {"\r\n\r\nThe request for {date} has been settled meanwhile.",
                               "\r\n\r\nLa demande du {date} a été traitée entre-temps."};
    const bool cancelled = !record.CancelledBy.isEmpty(); // a denial has but the date
    if (!IsServerChosen() && (record.CancelledDate != 0 || (record.Submitted == 1) == SessionState.ShowApproved))
        RefuseChangedRow(
            T(cancelled ? kCancelled : kSettled, {{"date", FormatDate(record.RecordDate, "dd-mmm-yyyy")}}));
}

/// Gives the record back as it was before.
AttendanceRow Cancel(DataControl& datAbsence, int recordID)
{
    const auto record = Standing<AttendanceRow>(datAbsence, recordID);
    RequireAsShown(record);
    Settings<AttendanceRow> cancelled = {{&AttendanceRow::CancelledBy, UserStamp()},
                                         {&AttendanceRow::CancelledDate, Today()}};
    if (!IsServerChosen()) // where a withdrawn request stays one, as required
        cancelled.push_back({&AttendanceRow::Submitted, 0});
    Set(datAbsence, recordID, cancelled);
    return record;
}

CancelledRecords ToldOf(const QVector<AttendanceRow>& records)
{
    CancelledRecords cancelled;
    for (const AttendanceRow& record : records) {
        const QString date = FormatDate(record.RecordDate, "ddd dd-mm-yyyy") + "\r\n";
        cancelled.Dates += date;
        if (record.Submitted == 0)
            continue;
        cancelled.WithdrawnDates += date;
        cancelled.CategoryID = record.CategoryID;
        cancelled.Approver = record.SubmittedTo_First;
    }
    return cancelled;
}
} // namespace

CancelledRecords CancelRecords(DataControl& datAbsence, const QVector<int>& records)
{
    SessionState.ReloadCalendar = true;
    QVector<AttendanceRow> before;
    const Kept kept = InOpenYearOneByOne(datAbsence, records.size(),
                                         [&](qsizetype record) { before.append(Cancel(datAbsence, records[record])); });
    CancelledRecords cancelled = ToldOf(before.first(kept.Done));
    cancelled.Failure = kept.Failure;
    return cancelled;
}

void TellFailure(const CancelledRecords& cancelled)
{
    const QString heading = T("\r\n\r\nThese records have been cancelled:\r\n\r\n",
                              "\r\n\r\nCes enregistrements ont été supprimés:\r\n\r\n");
    try {
        ThrowAgain(cancelled.Failure, cancelled.Dates.isEmpty() ? QString() : heading + cancelled.Dates);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}
