#pragma once

#include "attendance/leave_requests.h"
#include "foundation/fault.h"

#include <exception>
#include <optional>

/// Marks a date as an approver has pressed; pressed again, the mark is taken back.
void Toggle(RequestedDate& date, RequestMark mark);
/// Those that bear a mark.
QVector<RequestedDate> Marked(const QVector<RequestedDate>& dates);
/// A denial is among them.
bool HasDenied(const QVector<RequestedDate>& dates);

/// A heading and a line for each marked date: the mark in a word, the date, the category.
QString MarkSummary(const QVector<RequestedDate>& marked);
/// Why these dates cannot be settled; one reason covers all that are denied.
std::optional<Fault> ValidateMarks(const QVector<RequestedDate>& marked, const QString& reason);
bool ConfirmMarks(const QVector<RequestedDate>& marked);

/// What came of settling dates.
struct Settlement
{
    QVector<RequestedDate> Settled;
    int FailedDate = 0;         ///< serial day of the one that could not be written, 0 none
    std::exception_ptr Failure; ///< of that date; those behind it were not tried
};
/// Writes the marks into the records of the dates, one after the other: what is settled before a failure stays settled.
/// A date that was withdrawn meanwhile is refused; an approver who comes second writes over what the first one said.
/// Throws nothing.
Settlement SettleRequests(DataControl& datAbsence, const QVector<RequestedDate>& marked, const QString& reason);
/// Throws the failure of a settlement, which tells the date and what was settled before it.
[[noreturn]] void ThrowFailure(const Settlement& settlement);
/// Announces that all is written; without an address the approver learns that he must tell it himself.
void TellSettled(const QString& address);
