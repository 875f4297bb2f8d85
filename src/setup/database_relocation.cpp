#include "setup/database_relocation.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/database_choice.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/dao/file_system.h"
#include "platform/program.h"

#include <QFile>

#include <filesystem>

namespace
{
constexpr int kLongestWait = 30; // seconds

void TellOtherName()
{
    Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
         T("In order to move your database, specify the new directory where you want the database to be relocated but "
           "do not change the name of the database itself.",
           "Afin de relocaliser votre banque de données, spécifiez le nouveau répertoire où elle doit être déplacée "
           "mais ne changez pas le nom de la banque de données elle-même."),
         Face::Warning);
}

void TellSamePlace()
{
    Tell(T("UNABLE TO PROCEED:", "OPÉRATION REFUSÉE:"),
         T("You must specify a different directory in order to complete this operation!",
           "Vous devez spécifier un répertoire différent afin de compléter cette opération!"),
         Face::Warning);
}

void TellOccupied(const QString& target)
{
    Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
         Fill(T("The database «{path}» already exists!\r\n\r\nBecause of the risk that this other database could be in "
                "use by another implementation of Tarvell, it cannot be overwritten. If you are absolutely certain "
                "that «{path}» IS NOT an active database, you should erase it or rename it first.",
                "La banque de données «{path}» existe déjà!\r\n\r\nPuisque cette autre banque de données pourrait être "
                "exploitée par une autre installation de Tarvell, elle ne peut être remplacée. Si vous êtes absolument "
                "certain que «{path}» N'EST PAS une banque de données active, vous devriez d'abord l'effacer ou la "
                "renommer."),
              {{"path", NativePath(target)}}),
         Face::Warning);
}

bool IsSamePlace(const QString& path, const QString& other)
{
    return NativePath(path).compare(NativePath(other), Qt::CaseInsensitive) == 0;
}

void CopyFile(const QString& original, const QString& copy)
{
    std::error_code failure;
    if (std::filesystem::copy_file(original.toStdString(), copy.toStdString(), failure))
        return;
    if (failure != std::errc::file_exists)
        QFile::remove(copy); // what is half written
    const int number = !QFile::exists(original)                   ? EngineError::FileNotFound
                       : failure == std::errc::no_space_on_device ? EngineError::DiskFull
                                                                  : EngineError::CannotOpen;
    throw RuntimeError(number, QString::fromStdString(failure.message()));
}

void WaitUntilReadable(const QString& path)
{
    for (int second = 1;; ++second) {
        try {
            Database::Open(path, kDatabasePassword);
            return;
        } catch (const RuntimeError&) {
            if (second >= kLongestWait)
                throw;
        }
        Wait(1);
    }
}
} // namespace

QString OriginalDatabasePath()
{
    return JoinPath(ProgramFolder(), "Tarvell.mdb");
}

bool MayBeRelocated(const QString& target, const QString& current)
{
    if (!HasDatabaseName(target))
        TellOtherName();
    else if (IsSamePlace(target, current))
        TellSamePlace();
    else if (QFile::exists(NativePath(target)))
        TellOccupied(target);
    else
        return true;
    return false;
}

void CopyDatabase(const QString& original, const QString& target)
{
    const QString copy = NativePath(JoinPath(target.chopped(kDatabaseNameLength), "Tarvell.mdb"));
    CopyFile(NativePath(original), copy);
    ShareAsFolder(copy);
    try {
        WaitUntilReadable(copy);
    } catch (const RuntimeError&) {
        QFile::remove(copy);
        throw;
    }
}

bool IsDatabaseEmpty(const QString& path)
{
    return Database::Open(path, kDatabasePassword)->OpenRecordset("SELECT RecordID FROM FiscalYears").AtEnd();
}
