#include "setup/installation.h"

#include "foundation/connection.h"
#include "foundation/database_choice.h"
#include "foundation/session_state.h"
#include "foundation/start_up.h"
#include "platform/dao/server.h"
#include "platform/program.h"
#include "setup/database_relocation.h"
#include "setup/first_rows.h"

#include <QFile>
#include <QScopeGuard>

namespace
{
void TakeChoices(const SetUpChoices& choices)
{
    Session& s = SessionState;
    s.SQL_Server = IsServer(choices.Kind);
    s.IP_Address = s.SQL_Server ? choices.IPAddress.trimmed() : QString();
    s.Username = s.SQL_Server ? choices.UserName.trimmed() : QString();
    s.Password = s.SQL_Server ? choices.Password.trimmed() : QString();
    s.DatabasePath = s.SQL_Server ? QString() : choices.NewDatabasePath.chopped(kDatabaseNameLength);
    s.DatabaseName = s.SQL_Server ? choices.DatabaseName : QString();
}

void RemoveConfiguration()
{
    Database::Open(JoinPath(ProgramFolder(), "Config.mdb"), kConfigPassword)->Execute("DELETE FROM Configuration");
}

void FillDatabase(DataControl& datAbsence, const SetUpChoices& choices)
{
    DefaultWorkspace().OpenDatabase(choices.NewDatabasePath, ";PWD=" + kDatabasePassword);
    const auto close = qScopeGuard([] { DefaultWorkspace().Close(); });
    AddFirstRows(datAbsence, choices);
}
} // namespace

void ConfigureWorkstation(const SetUpChoices& choices)
{
    TakeChoices(choices);
    WriteConfiguration();
}

void InstallDatabase(DataControl& datAbsence, const SetUpChoices& choices)
{
    ConfigureWorkstation(choices);
    SessionState.DatabaseName = "Tarvell.mdb";
    try {
        FillDatabase(datAbsence, choices);
    } catch (const RuntimeError&) {
        // A configured workstation without a fiscal year could never start, nor run the wizard again.
        try {
            RemoveConfiguration();
        } catch (const RuntimeError&) {
            // The first failure is the one to tell.
        }
        throw;
    }
}

void InstallOnServer(DataControl& datAbsence, const SetUpChoices& choices)
{
    ConfigureWorkstation(choices);
    SendFirstRows(datAbsence, choices);
}

void AskServerForFiscalYears()
{
    SendToServer("SELECT * FROM FiscalYears");
}

void WriteDataSource(const SetUpChoices& choices)
{
    const QStringList lines = {"[ODBC]",
                               "DRIVER=SQL Server",
                               "UID = " + choices.UserName.trimmed(),
                               "Address=" + choices.IPAddress.trimmed(),
                               "Database = " + choices.DatabaseName.trimmed(),
                               "WSID = COMPUTER",
                               "SERVER=" + choices.IPAddress.trimmed(),
                               "Description = Tarvell"};
    QFile file(NativePath(JoinPath(ProgramFolder(), "Absence.dsn")));
    const QByteArray text = (lines.join("\r\n") + "\r\n").toUtf8();
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text) != text.size())
        throw RuntimeError(EngineError::CannotOpen, file.errorString());
}
