#pragma once

#include "platform/dao/dao.h"
#include "setup/set_up_choices.h"

/// Records in Config.mdb where this workstation finds its database. Throws RuntimeError.
void ConfigureWorkstation(const SetUpChoices& choices);

/// Configures the workstation and fills a new database with its first rows. Throws RuntimeError; the workstation is not
/// configured then and the database is as empty as it was.
void InstallDatabase(DataControl& datAbsence, const SetUpChoices& choices);

/// Configures the workstation for a server and sends it the first rows. Throws RuntimeError.
void InstallOnServer(DataControl& datAbsence, const SetUpChoices& choices);

/// The statement that tries a server connection. No client sends it, so nothing comes back and nothing fails.
void AskServerForFiscalYears();

/// Writes Absence.dsn, the data source file that a server connection reads, anew. Throws RuntimeError.
void WriteDataSource(const SetUpChoices& choices);
