#include "foundation/start_up.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/database_choice.h"
#include "foundation/deployment.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/program.h"

#include <QFile>

namespace
{
constexpr int kChooseMailProgram = 333; // the stage of a workstation that no earlier version was on

std::unique_ptr<Database> OpenConfiguration()
{
    return Database::Open(JoinPath(ProgramFolder(), "Config.mdb"), kConfigPassword);
}

const Table<Session> kConfiguration = {
    "Configuration",
    {COLUMN(Session, English), COLUMN(Session, SQL_Server), COLUMN(Session, IP_Address), COLUMN(Session, Username),
     COLUMN(Session, Password), COLUMN(Session, DatabasePath), COLUMN(Session, DatabaseName),
     Column<Session>("Configured", &Session::MailConfigured), COLUMN(Session, LastUpgradeDate)}};

/// A configuration that cannot be written is told; the database found serves this run all the same.
void KeepConfiguration()
{
    try {
        WriteConfiguration();
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}

void ConnectToNewAccessDatabase(DataControl& datAbsence)
{
    const QString path =
        ChooseDatabaseFile(T("Locate database:", "Localisation de la banque de données:"), ProgramFolder());
    if (path.isEmpty())
        return;
    if (!HasDatabaseName(path))
        return TellInvalidDatabaseName();
    if (!CanBeConnectedTo(path))
        return;
    SessionState.DatabasePath = path.chopped(kDatabaseNameLength);
    SessionState.DatabaseName = "Tarvell.mdb";
    SessionState.SQL_Server = false;
    if (Ask(T("CONNECTION TO DATABASE SUCCESSFUL:", "CONNEXION À LA BANQUE DE DONNÉES ÉTABLIE:"),
            T("Tarvell was able to access the specified database.\r\n\r\nDo you wish to connect to the same database "
              "the next time you start Tarvell?",
              "Tarvell est maintenant connecté à la banque de données spécifiée.\r\n\r\nSouhaitez-vous exploiter cette "
              "banque de données la prochaine fois que vous démarrerez Tarvell?")))
        KeepConfiguration();
    ConnectToDatabase(datAbsence);
}
} // namespace

void CleanUpProgramFolder()
{
    for (const char* name : {"Initiate.bat", "NewVersn.cfg", "Version.dat", "Tarvell.ex_", "Download.bat",
                             "NewVersn.txt", "Connections.log", "EMailErrors.log"})
        QFile::remove(NativePath(JoinPath(ProgramFolder(), name)));
}

bool ReadConfiguration()
{
    const Recordset row = OpenConfiguration()->OpenRecordset(SelectFrom(kConfiguration, "1 = 1"));
    if (row.AtEnd())
        return false;
    for (const Column<Session>& column : kConfiguration.List)
        column.In(SessionState, [&](auto& value) { row.Take(column.Name, value); });
    SessionState.VersionText = Deployment::VersionText();
    return true;
}

void WriteConfiguration()
{
    const Session& s = SessionState;
    const auto config = OpenConfiguration();
    Transaction transaction(*config);
    if (config->OpenRecordset("SELECT English FROM Configuration").AtEnd())
        config->Execute("INSERT INTO Configuration (English, LastUpgradeDate) VALUES (?, ?)",
                        {s.English, kChooseMailProgram});
    config->Execute("UPDATE Configuration SET SQL_Server = ?, IP_Address = ?, Username = ?, Password = ?, "
                    "DatabasePath = ?, DatabaseName = ?",
                    {s.SQL_Server, s.IP_Address, s.Username, s.Password, s.DatabasePath, s.DatabaseName});
    transaction.Commit();
}

bool ChooseCurrentFiscalYear(DataControl& datAbsence)
{
    SessionState.FiscalYearID = 0;
    if (!IsServerChosen() && !DefaultWorkspace().IsOpen()) // and the user does not know of another database
        return false;
    const int today = Today();
    auto year = First<FiscalYearRow>(datAbsence, "CommencingDate <= ? AND EndingDate >= ?", today, today);
    if (!year)
        year = First<FiscalYearRow>(datAbsence, "CommencingDate > ? ORDER BY CommencingDate ASC", today);
    if (!year)
        year = First<FiscalYearRow>(datAbsence, "EndingDate < ? ORDER BY RecordID DESC", today);
    if (year)
        TakeFiscalYear(*year);
    return SessionState.FiscalYearID != 0;
}

void FindNextYear(DataControl& datAbsence)
{
    const auto year = First<FiscalYearRow>(datAbsence, "CommencingDate = ?", SessionState.EndingDate + 1);
    SessionState.NextFYID = year ? year->RecordID : 0;
    SessionState.NextFYName = year ? year->FiscalYearName : QString();
}

void FindPreviousYear(DataControl& datAbsence)
{
    const auto year = First<FiscalYearRow>(datAbsence, "EndingDate = ?", SessionState.CommencingDate - 1);
    SessionState.PreviousFYID = year ? year->RecordID : 0;
    SessionState.PreviousFYName = year ? year->FiscalYearName : QString();
}

void FindNeighbouringYears(DataControl& datAbsence)
{
    FindNextYear(datAbsence);
    FindPreviousYear(datAbsence);
}

bool ConnectOrAskForAnotherDatabase(DataControl& datAbsence)
{
    try {
        TryToConnect(datAbsence);
        return false;
    } catch (const RuntimeError& error) {
        return Ask(T("FATAL ERROR:", "UNE ERREUR EST SURVENUE:"),
                   ConnectionFailure(error) +
                       T("Do you wish to specify a new/different location for your database?",
                         "Souhaitez-vous spécifier une nouvelle/différente localisation pour votre banque de données?"),
                   Face::Paniquing);
    }
}

void LocateDatabase(DataControl& datAbsence, const std::function<void()>& showServerForm)
{
    Session& s = SessionState;
    for (QString* field : {&s.IP_Address, &s.DatabaseName, &s.Username, &s.Password})
        field->clear();
    while (s.DatabaseName.isEmpty()) {
        const int answer = ShowMessage({
            .Text = T("Specify which type of database you wish to use.",
                      "Veuillez spécifier quel type de banque de données vous souhaitez exploiter."),
            .Title = T("SPECIFYING DATABASE TYPE:", "TYPE DE BANQUE DE DONNÉES:"),
            .Set = Buttons::Custom2,
            .Picture = Face::Presenting,
            .Captions = {"Microsoft Access", T("SQL Server", "SQL Serveur")},
        });
        if (answer == MessageCode::First)
            ConnectToNewAccessDatabase(datAbsence);
        else if (answer == MessageCode::Second)
            showServerForm();
        else
            EndProgram(); // the box was closed: there is no database to go on with
    }
}
