#pragma once

#include "platform/dao/dao.h"

/// What the program tells about requests for leave when their approver or whoever asked logs in.

/// The requests that are new to the user, who is their first approver: a heading and a line each; empty when there are
/// none. From here on they count as told, all of his that he has not been told of, withdrawn ones too. Throws; then he
/// has been told of none.
QString AreThereRequestsToApprove(DataControl& datAbsence);
/// Notes that he has been told.
void MarkRequestsAsTold(DataControl& datAbsence);

/// Tells the user how his requests stand, if there are any; what has been settled is not told again. A denial is told
/// by mail only: its record is cancelled. Throws.
void WereRequestsApproved(DataControl& datAbsence);
