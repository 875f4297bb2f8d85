#include "foundation/start_up.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/database_choice.h"
#include "foundation/deployment.h"
#include "foundation/rows.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/program.h"

#include <QFile>

namespace
{
std::unique_ptr<Database> OpenConfiguration()
{
    return Database::Open(JoinPath(ProgramFolder(), "Config.mdb"), kConfigPassword);
}

RowValues ConfigurationValues()
{
    const Session& s = SessionState;
    return {{"SQL_Server", s.SQL_Server}, {"IP_Address", s.IP_Address},     {"Username", s.Username},
            {"Password", s.Password},     {"DatabasePath", s.DatabasePath}, {"DatabaseName", s.DatabaseName}};
}

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
    const auto config = OpenConfiguration();
    const Recordset row = config->OpenRecordset("SELECT * FROM Configuration");
    if (row.AtEnd())
        return false;
    Session& s = SessionState;
    row.Take("English", s.English);
    row.Take("SQL_Server", s.SQL_Server);
    row.Take("IP_Address", s.IP_Address);
    row.Take("Username", s.Username);
    row.Take("Password", s.Password);
    row.Take("DatabasePath", s.DatabasePath);
    row.Take("DatabaseName", s.DatabaseName);
    row.Take("Configured", s.MailConfigured);
    row.Take("LastUpgradeDate", s.LastUpgradeDate);
    s.VersionText = Deployment::VersionText();
    return true;
}

void WriteConfiguration()
{
    const auto config = OpenConfiguration();
    Recordset row = config->OpenRecordset("SELECT * FROM Configuration");
    if (row.AtEnd()) {
        row.AddNew();
        row["English"] = SessionState.English;
    } else {
        row.Edit();
    }
    for (const auto& [column, value] : ConfigurationValues())
        row[column] = value;
    row.Update();
}

bool ChooseCurrentFiscalYear(DataControl& datAbsence)
{
    SessionState.FiscalYearID = 0;
    const int today = Today();
    if (datAbsence.Read("SELECT * FROM FiscalYears WHERE CommencingDate <= ? AND EndingDate >= ?", today, today) ||
        datAbsence.Read("SELECT * FROM FiscalYears WHERE CommencingDate > ? ORDER BY CommencingDate ASC", today) ||
        datAbsence.Read("SELECT * FROM FiscalYears WHERE EndingDate < ? ORDER BY RecordID DESC", today))
        TakeFiscalYear(datAbsence.Records);
    return SessionState.FiscalYearID != 0;
}

void FindNextYear(DataControl& datAbsence)
{
    SessionState.NextFYID = 0;
    SessionState.NextFYName.clear();
    if (datAbsence.Read("SELECT * FROM FiscalYears WHERE CommencingDate = ?", SessionState.EndingDate + 1)) {
        datAbsence.Take("RecordID", SessionState.NextFYID);
        datAbsence.Take("FiscalYearName", SessionState.NextFYName);
    }
}

void FindPreviousYear(DataControl& datAbsence)
{
    SessionState.PreviousFYID = 0;
    SessionState.PreviousFYName.clear();
    if (datAbsence.Read("SELECT * FROM FiscalYears WHERE EndingDate = ?", SessionState.CommencingDate - 1)) {
        datAbsence.Take("RecordID", SessionState.PreviousFYID);
        datAbsence.Take("FiscalYearName", SessionState.PreviousFYName);
    }
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
