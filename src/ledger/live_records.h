#pragma once

#include <QString>

/// Which of the records that are not cancelled a figure sums up.
enum class LiveRecords
{
    All,
    Approved,
    TakenToDate, ///< approved, up to today
    BookedAhead, ///< approved, after today
    Pending      ///< waiting for approval
};

/// The same as a further condition of a statement on Attendance: "" or " AND ...".
QString ConditionOf(LiveRecords records);
