#pragma once

#include "platform/dao/dao.h"

/// Tells the user which of his requests of the session's year were denied, by whom and why. Throws.
void TellDeniedRequests(DataControl& datAbsence);
