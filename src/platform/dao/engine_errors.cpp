#include "platform/dao/engine_errors.h"

#include "platform/dao/file_system.h"

#include <sqlite3.h>
#include <utility>

namespace
{
struct Failure
{
    int Number;
    const char* Description;
};

/// Failures of a statement's text, told apart by the words that the engine uses.
constexpr std::pair<const char*, Failure> kStatementFailures[] = {
    {"no such table", {EngineError::NoSuchTable, "The engine cannot find a table that the statement names"}},
    {"no such column", {EngineError::UnknownName, "The engine cannot find a column that the statement names"}},
    {"has no column named", {EngineError::UnknownName, "The engine cannot find a column that the statement names"}},
    {"already exists", {EngineError::TableExists, "The table already exists"}},
    {"duplicate column name", {EngineError::FieldExists, "The table already has that column"}},
};

Failure FailureOfStatement(const QString& words)
{
    for (const auto& [part, failure] : kStatementFailures)
        if (words.contains(QLatin1String(part)))
            return failure;
    return {EngineError::StatementError, "The statement cannot be understood"};
}

Failure FailureOfDisk(FileAccess access)
{
    if (access == FileAccess::Reading)
        return {EngineError::ConnectionLost, "The connection to the database file was lost"};
    return {EngineError::DiskError, "The database file could not be written to the disk or network"};
}

Failure FailureOf(int code, const QString& words, FileAccess access)
{
    if (code == SQLITE_READONLY_DBMOVED)
        return FailureOfDisk(FileAccess::Writing);
    switch (code & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        if (AreLocksRefused())
            return {EngineError::LockRefused, "The folder of the database cannot lock files"};
        return {EngineError::Locked, "The database is locked by another user"};
    case SQLITE_FULL:
        return {EngineError::DiskFull, "There is not enough space on the disk"};
    case SQLITE_READONLY:
        return {EngineError::ReadOnly, "The database or its folder is read-only"};
    case SQLITE_IOERR:
        return FailureOfDisk(access);
    case SQLITE_CORRUPT:
        return {EngineError::Damaged, "The database file is damaged"};
    case SQLITE_NOTADB:
        return {EngineError::ForeignFile, "The file is not a database of this program"};
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return {EngineError::CannotOpen, "There is no permission to open the file or to write in its folder"};
    case SQLITE_CONSTRAINT:
        return {EngineError::DuplicateKey, "The values would break a rule of the table"};
    case SQLITE_NOMEM:
        return {EngineError::OutOfMemory, "There is not enough memory"};
    default:
        return FailureOfStatement(words);
    }
}
} // namespace

RuntimeError::RuntimeError(int number, const QString& description)
    : Number(number), Description(description), text_(QStringLiteral("%1: %2").arg(number).arg(description).toUtf8())
{}

void ThrowEngineError(sqlite3* handle, FileAccess access, const QString& sql)
{
    const QString words = QString::fromUtf8(sqlite3_errmsg(handle));
    const Failure failure = FailureOf(sqlite3_extended_errcode(handle), words, access);
    QString description = QString::fromLatin1(failure.Description) + " (" + words + ").";
    if (failure.Number == EngineError::StatementError && !sql.isEmpty())
        description += " " + sql;
    throw RuntimeError(failure.Number, description);
}
