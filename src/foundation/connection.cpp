#include "foundation/connection.h"

#include "foundation/common_services.h"
#include "foundation/failure_words.h"
#include "foundation/texts.h"
#include "platform/dao/server.h"
#include "platform/program.h"

namespace
{
int connections = 0; // nested connections of the shared workspace
[[maybe_unused]] const bool followed = FollowServerChoice(SessionState.SQL_Server);

/// Another user's lock is no failed connection: it is told like a refused statement, and what was typed stays.
[[noreturn]] void ThrowOfOpening(const RuntimeError& error)
{
    if (error.Number == EngineError::Locked)
        throw; // as it is
    throw ConnectionFailed(error);
}

void OpenFile()
{
    DefaultWorkspace().OpenDatabase(JoinPath(SessionState.DatabasePath, "Tarvell.mdb"), ";PWD=" + kDatabasePassword);
}

void Restore(DataControl& /*datAbsence*/)
{
    try {
        if (!IsServerChosen())
            OpenFile();
    } catch (const RuntimeError& error) {
        ThrowOfOpening(error);
    }
}
} // namespace

QString ConnectionFailure(const RuntimeError& error)
{
    return T("A connection to the database could not be established due to the following error:",
             "L'erreur suivante est survenue au moment où le système tentait d'établir une connexion à votre banque de "
             "données:") +
           "\r\n\r\n" + FailureWords(error) + "\r\n\r\n";
}

void EndOnFailedConnection(const RuntimeError& error)
{
    Tell(T("FATAL ERROR:", "UNE ERREUR EST SURVENUE:"),
         ConnectionFailure(error) + T("The system will now be shut down!", "Le système sera maintenant interrompu!"),
         Face::Paniquing);
    EndProgram();
}

void TryToConnect(DataControl& datAbsence)
{
    DataControl::Reconnect = Restore;
    if (!IsServerChosen() && (connections == 0 || !DefaultWorkspace().IsOpen())) {
        OpenFile();
        connections = 0;
    }
    ++connections;
    try {
        LogConnection(datAbsence.FormName, true);
    } catch (const RuntimeError&) {
        --connections;
        DefaultWorkspace().PauseReading(); // without its line in the log there is no connection, nor a lock
        throw;
    }
}

void ConnectToDatabase(DataControl& datAbsence)
{
    try {
        TryToConnect(datAbsence);
    } catch (const RuntimeError& error) {
        ThrowOfOpening(error);
    }
}

void DisconnectFromDatabase(DataControl& datAbsence)
{
    if (connections > 0 && --connections == 0)
        DefaultWorkspace().Close();
    LogConnection(datAbsence.FormName, false);
}

Connection::Connection(DataControl& datAbsence) : datAbsence_(datAbsence), foundReading_(DefaultWorkspace().IsReading())
{
    ConnectToDatabase(datAbsence_);
}

Connection::~Connection()
{
    if (!foundReading_)
        DefaultWorkspace().PauseReading();
    try {
        DisconnectFromDatabase(datAbsence_);
    } catch (const RuntimeError&) {
        // A log line that cannot be written must not hide the failure that may be on its way.
    }
}
