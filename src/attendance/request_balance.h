#pragma once

#include "attendance/leave_requests.h"
#include "foundation/explained_balance.h"

#include <optional>

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
/// Empty for a category without limit or bank. Throws.
std::optional<RequestBalance> BalanceOfRequest(DataControl& datAbsence, const RequestGroup& group,
                                               const QVector<RequestedDate>& dates);
