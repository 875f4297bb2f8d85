#include "ledger/live_records.h"

#include "platform/clock.h"

QString ConditionOf(LiveRecords records)
{
    const QString approved = " AND Attendance.Submitted = 0";
    switch (records) {
    case LiveRecords::Approved:
        return approved;
    case LiveRecords::TakenToDate:
        return approved + QStringLiteral(" AND Attendance.RecordDate <= %1").arg(Today());
    case LiveRecords::BookedAhead:
        return approved + QStringLiteral(" AND Attendance.RecordDate > %1").arg(Today());
    case LiveRecords::Pending:
        return " AND Attendance.Submitted = 1";
    default:
        return {};
    }
}
