#include "attendance/request_balance.h"

#include "attendance/attendance_records.h"
#include "foundation/connection.h"

namespace
{
float TotalOf(const QVector<RequestedDate>& dates)
{
    double hours = 0;
    for (const RequestedDate& date : dates)
        hours += date.TotalDuration;
    return static_cast<float>(hours);
}

/// The employee comes in last: of the category only its kind is read, and no sums.
AttendanceEntry EntryOf(DataControl& datAbsence, const RequestGroup& group)
{
    AttendanceEntry entry;
    entry.SelectedCategoryID = group.CategoryID;
    ReadCategory(datAbsence, entry);
    entry.EmployeeID = group.EmployeeID;
    return entry;
}
} // namespace

std::optional<RequestBalance> BalanceOfRequest(DataControl& datAbsence, const RequestGroup& group,
                                               const QVector<RequestedDate>& dates)
{
    const Connection connection(datAbsence);
    const AttendanceEntry entry = EntryOf(datAbsence, group);
    RequestBalance balance{.InTimeBank = entry.RequiresMonitoring != 1, .Lines = ExplainBalance(datAbsence, entry)};
    const auto left = HoursOf(balance.Lines, BalancePart::Left);
    if (!left)
        return std::nullopt;
    const float taken = balance.InTimeBank ? 1 : -1; // by an hour of a record
    const float pending = HoursOf(balance.Lines, BalancePart::Pending).value_or(0);
    balance.Request = TotalOf(dates);
    balance.OtherPending = pending - balance.Request;
    balance.AfterAll = *left;
    balance.Before = *left - taken * pending;
    balance.After = balance.Before + taken * balance.Request;
    return balance;
}
