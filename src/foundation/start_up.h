#pragma once

#include "platform/dao/dao.h"

#include <functional>

/// Removes what file transfers left behind, and the two logs that hold one run only. Errors are ignored.
void CleanUpProgramFolder();

/// Reads the workstation's configuration into the session. False when the workstation is not configured yet. Throws
/// RuntimeError when Config.mdb cannot be read.
bool ReadConfiguration();
/// Writes the database part of the session's configuration; adds the record when there is none. Throws.
void WriteConfiguration();

/// Chooses the fiscal year that holds today; failing that the nearest future one; failing that the newest past one by
/// key. False when there is none: SessionState.FiscalYearID is 0 then.
bool ChooseCurrentFiscalYear(DataControl& datAbsence);
/// Finds the years before and after the session's year; 0 and an empty name for none.
void FindNeighbouringYears(DataControl& datAbsence);
void FindNextYear(DataControl& datAbsence);
void FindPreviousYear(DataControl& datAbsence);

/// Opens the database; a failure asks whether to look for it elsewhere. True when the user wants that.
bool ConnectOrAskForAnotherDatabase(DataControl& datAbsence);

/// Asks for the kind of database, then for the file, until one is known (SessionState.DatabaseName is not empty).
/// `showServerForm` handles the choice of a server.
void LocateDatabase(DataControl& datAbsence, const std::function<void()>& showServerForm);
