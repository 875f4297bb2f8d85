#include "foundation/database_choice.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/failure_words.h"
#include "foundation/texts.h"
#include "platform/program.h"

QString ChooseDatabaseFile(const QString& title, const QString& folder, bool saving)
{
    return ChooseFile({title, "Access(*.mdb)|*.mdb", "Tarvell.mdb", folder, saving}).replace('/', '\\').toUpper();
}

bool HasDatabaseName(const QString& path)
{
    return path.endsWith("\\TARVELL.MDB");
}

void TellInvalidDatabaseName()
{
    Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
         T("Invalid database name!\r\n\r\nThe database used by Tarvell is called «Tarvell.mdb».",
           "Nom de banque de données invalide!\r\n\r\nLa banque de données exploitée par Tarvell porte le nom "
           "«Tarvell.mdb»."),
         Face::Warning);
}

bool CanBeConnectedTo(const QString& path)
{
    try {
        Database::Open(path, kDatabasePassword)->OpenRecordset("SELECT RecordID FROM FiscalYears").MoveFirst();
        return true;
    } catch (const RuntimeError& error) {
        Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
             T("Unable to connect to the selected database!",
               "La connexion à la banque de données spécifiée a échoué!") +
                 "\r\n\r\n" + FailureWords(error),
             Face::Warning);
        return false;
    }
}
