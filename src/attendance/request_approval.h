#pragma once

#include "attendance/leave_requests.h"
#include "foundation/explained_balance.h"
#include "foundation/fault.h"

#include <exception>
#include <optional>

/// Says of a date what an approver has pressed; pressed again, it is taken back.
void Toggle(RequestedDate& date, Verdict verdict);
/// Those of which something has been said.
QVector<RequestedDate> Judged(const QVector<RequestedDate>& dates);

/// A heading and a line for each judged date: what was said, the date, the category.
QString VerdictSummary(const QVector<RequestedDate>& judged);
/// Why these dates cannot be settled; one reason covers all that are denied.
std::optional<Fault> ValidateVerdicts(const QVector<RequestedDate>& judged, const QString& reason);
bool ConfirmVerdicts(const QVector<RequestedDate>& judged);

/// What came of settling dates.
struct Settlement
{
    QVector<RequestedDate> Settled;
    int FailedDate = 0;         ///< serial day of the one that could not be written, 0 none
    std::exception_ptr Failure; ///< of that date; those behind it were not tried
};
/// Writes what was said into the record of each date, one after the other: what is settled before a failure stays
/// settled. An approver who comes second writes over what the first one said. Throws nothing.
Settlement SettleRequests(DataControl& datAbsence, const QVector<RequestedDate>& judged, const QString& reason);
/// Throws the failure of a settlement, which tells the date and what was settled before it.
[[noreturn]] void ThrowFailure(const Settlement& settlement);

/// Tells whoever asked what came of it, by mail. The reason goes with a denial only. Nobody is told without an address.
void EMailNotice(const QString& address, const QVector<RequestedDate>& settled, const QString& reason);
/// Announces that all is written; without an address the approver learns that he must tell it himself.
void TellSettled(const QString& address);

/// What a group leaves of a limited category or of a time bank. Decimal hours, off a bank below 0.
struct RequestBalance
{
    bool InTimeBank = false;
    float Before = 0;        ///< left when nothing that waits is counted
    float Request = 0;       ///< what the group asks for
    float After = 0;         ///< left when only the group is approved
    float OtherPending = 0;  ///< what else waits
    float AfterAll = 0;      ///< left when all that waits is approved
    BalanceLines Lines = {}; ///< how it comes about
};
/// Empty for a category without limit or bank.
std::optional<RequestBalance> BalanceOfRequest(DataControl& datAbsence, const RequestGroup& group,
                                               const QVector<RequestedDate>& dates);
