#pragma once

#include "platform/dao/dao.h"

/// What the program tells about requests for leave: to their approver and, at log-in or when asked, to whoever asked.

/// The requests that are new to the user, who is their first approver: a heading and a line each; empty when there are
/// none. With them all of his that he has not been told of count as told, withdrawn ones too. Throws; then none does.
QString TakeNewRequests(DataControl& datAbsence);
/// Tells of them and asks whether to settle them now; true for Yes. An empty list asks nothing.
bool OfferApproval(const QString& list);

/// Tells the user how his requests stand, if there are any; what has been settled is not told again. A denial is told
/// by mail only: its record is cancelled. Throws.
void WereRequestsApproved(DataControl& datAbsence);

/// Tells the user which of his requests of the session's year were denied, by whom and why. Throws.
void TellDeniedRequests(DataControl& datAbsence);
