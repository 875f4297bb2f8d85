#pragma once

#include "platform/dao/dao.h"

/// Looks up SessionState.LoginID and UserPassword (both upper case) among the active employees of `fiscalYear`; ADMIN
/// is found in every year. A user found becomes the session's user, with his rights, time-out and language, and
/// LoggedIn is written on his record. False when there is no such user; nothing has changed then. Throws when LoggedIn
/// cannot be written.
bool LogInUser(DataControl& datAbsence, int fiscalYear);

/// True for a user who has entered more than 25 batches of records and needs no floating hint any more.
bool CountAttenceRecords(DataControl& datAbsence);

/// Clears LoggedIn of the user; errors are ignored, as the program is ending.
void LogOutUser(DataControl& datAbsence);

/// Tells that the session's fiscal year is closed, if it is.
void TellWhenYearIsClosed();
