#pragma once

#include "platform/dao/dao.h"

#include <QVector>

/// What came of cancelling records. Dates are a line each.
struct CancelledRecords
{
    QString Dates;              ///< of those that are cancelled
    QString WithdrawnDates;     ///< of the requests among them, which nobody had settled yet
    int CategoryID = 0;         ///< of all of them
    int Approver = 0;           ///< the first approver of the request read last: a notice goes to him alone
    std::exception_ptr Failure; ///< of the record behind them; those after it were not tried
};

/// Cancels the attendance records that the view in force shows: they stay, with who and when, and count nowhere any
/// more. What is cancelled before a failure stays so; a record that is no longer what the view showed is refused. The
/// calendar is asked for a reload. Throws nothing.
CancelledRecords CancelRecords(DataControl& datAbsence, const QVector<int>& records);
/// Tells the failure of cancelling, or of what followed it, with the dates that are cancelled all the same.
void TellFailure(const CancelledRecords& cancelled);
