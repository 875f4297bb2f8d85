#pragma once

#include "platform/dao/dao.h"

#include <QVector>

/// Requests that were withdrawn before anybody settled them.
struct WithdrawnRequests
{
    QString Dates;      ///< a line each
    int CategoryID = 0; ///< of all of them
    int Approver = 0;   ///< the first approver of the request read last: a notice goes to him alone
};

/// Cancels attendance records: they stay, with who and when, and count nowhere any more. The calendar is asked for a
/// reload. Throws; the records before a failure are cancelled then.
WithdrawnRequests CancelRecords(DataControl& datAbsence, const QVector<int>& records);

/// Tells the approver by mail which requests were withdrawn, as far as he has an address. A failure is told to nobody:
/// the requests are withdrawn. Throws nothing.
void EMailRequestCancellation(DataControl& datAbsence, const WithdrawnRequests& withdrawn);
