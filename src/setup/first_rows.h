#pragma once

#include "platform/dao/dao.h"
#include "setup/set_up_choices.h"

/// Adds the rows that a new database begins with: the first fiscal year, the administrator, the eight system
/// categories. All of them or, when one cannot be written or the database has a fiscal year already, none: it throws
/// RuntimeError then.
void AddFirstRows(DataControl& datAbsence, const SetUpChoices& choices);

/// The same rows as statements for the server.
void SendFirstRows(DataControl& datAbsence, const SetUpChoices& choices);
