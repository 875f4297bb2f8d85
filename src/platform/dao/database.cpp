#include "platform/dao/collation.h"
#include "platform/dao/statement.h"
#include "platform/program.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <chrono>
#include <sqlite3.h>
#include <thread>

namespace
{
constexpr int kApplicationId = 0x54525641; // marks a file as one of this program
constexpr int kRetryInterval = 5;          // milliseconds

QString HashOf(const QString& salt, const QString& password)
{
    const QByteArray hash = QCryptographicHash::hash((salt + password).toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex());
}

QString NewSalt()
{
    return QString::number(QRandomGenerator::system()->generate64(), 16);
}

/// Waits in even steps, so that a user who has waited long asks as often as one who has just come.
int WaitForLock(void*, int tries)
{
    if (tries * kRetryInterval >= Database::LockWait)
        return 0;
    std::this_thread::sleep_for(std::chrono::milliseconds(kRetryInterval));
    return 1;
}

void Run(sqlite3* handle, const char* script, FileAccess access)
{
    if (sqlite3_exec(handle, script, nullptr, nullptr, nullptr) != SQLITE_OK)
        ThrowEngineError(handle, access, QString::fromUtf8(script).left(200));
}

void SetUpConnection(sqlite3* handle)
{
    sqlite3_extended_result_codes(handle, 1);
    sqlite3_busy_handler(handle, WaitForLock, nullptr);
    // A misspelt column in quotes is an error, not a text.
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    InstallTextRules(handle);
    Run(handle, "PRAGMA synchronous = FULL; PRAGMA cache_size = -32768; PRAGMA temp_store = MEMORY;",
        FileAccess::Reading);
}

sqlite3* OpenFile(const QString& file, int flags)
{
    sqlite3* handle = nullptr;
    try {
        if (sqlite3_open_v2(file.toUtf8().constData(), &handle, flags, nullptr) != SQLITE_OK)
            ThrowEngineError(handle, FileAccess::Reading);
        SetUpConnection(handle);
    } catch (...) {
        sqlite3_close_v2(handle);
        throw;
    }
    return handle;
}

qint64 ReadNumber(sqlite3* handle, const QString& sql)
{
    Statement statement(handle, sql);
    return statement.Step() ? statement.WholeNumber(0) : 0;
}

void RequireOwnFile(sqlite3* handle)
{
    const bool own = ReadNumber(handle, "PRAGMA application_id") == kApplicationId &&
                     ReadNumber(handle, "SELECT COUNT(*) FROM sqlite_master WHERE name = 'FilePassword'") == 1;
    if (!own)
        throw RuntimeError(EngineError::ForeignFile, "The file is not a database of this program.");
}

void RequirePassword(sqlite3* handle, const QString& password)
{
    Statement statement(handle, "SELECT Salt, Hash FROM FilePassword");
    const bool right =
        statement.Step() && HashOf(statement.Value(0).toString(), password) == statement.Value(1).toString();
    if (!right)
        throw RuntimeError(EngineError::WrongPassword, "Not a valid password.");
}

void RemoveFile(const QString& file)
{
    QFile::remove(file + "-journal");
    if (QFile::exists(file) && !QFile::remove(file))
        throw RuntimeError(EngineError::CannotOpen, "The file cannot be replaced: " + file);
}

void WriteNewFile(Database& database, const QString& password, const QString& script)
{
    const QString salt = NewSalt();
    database.ExecuteScript(QStringLiteral("PRAGMA application_id = %1;").arg(kApplicationId));
    Transaction transaction(database);
    database.ExecuteScript("CREATE TABLE FilePassword (Salt TEXT, Hash TEXT);");
    database.Execute("INSERT INTO FilePassword VALUES (?, ?)", {salt, HashOf(salt, password)});
    database.ExecuteScript(script);
    transaction.Commit();
}
} // namespace

int Database::LockWait = 5000;

Database::Database(sqlite3* handle, QString path)
    : handle_(handle), path_(std::move(path)), self_(std::make_shared<Database*>(this))
{}

Database::~Database()
{
    sqlite3_close_v2(handle_);
}

std::unique_ptr<Database> Database::Open(const QString& path, const QString& password)
{
    const QString file = NativePath(path);
    if (!QFileInfo(file).isFile())
        throw RuntimeError(EngineError::FileNotFound, "Could not find the file '" + file + "'.");
    std::unique_ptr<Database> database(new Database(OpenFile(file, SQLITE_OPEN_READWRITE), file));
    RequireOwnFile(database->Handle());
    RequirePassword(database->Handle(), password);
    return database;
}

void Database::Create(const QString& path, const QString& password, const QString& script)
{
    const QString file = NativePath(path);
    RemoveFile(file);
    try {
        Database database(OpenFile(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE), file);
        WriteNewFile(database, password, script);
    } catch (...) {
        QFile::remove(file);
        throw;
    }
}

/// Runs `work`, unless a failure has ended the open transaction: what was to be written together would be torn apart.
template <typename Work>
auto Database::Guarded(Work work)
{
    if (ended_)
        std::rethrow_exception(ended_);
    try {
        return work();
    } catch (const RuntimeError&) {
        if (IsInTransaction() && sqlite3_get_autocommit(handle_) != 0)
            ended_ = std::current_exception();
        throw;
    }
}

Recordset Database::OpenRecordset(const QString& sql, const Values& values)
{
    return Guarded([&] {
        Statement statement(handle_, sql, values);
        return Recordset(statement);
    });
}

int Database::Execute(const QString& sql, const Values& values)
{
    return Guarded([&] {
        Statement statement(handle_, sql, values);
        const int before = sqlite3_total_changes(handle_);
        while (statement.Step()) {
        }
        return sqlite3_total_changes(handle_) - before;
    });
}

void Database::ExecuteScript(const QString& script)
{
    Guarded([&] { Run(handle_, script.toUtf8().constData(), FileAccess::Writing); });
}

QStringList Database::Columns(const QString& table)
{
    QStringList names;
    for (const Recordset& column : OpenRecordset("SELECT name FROM pragma_table_info(?) ORDER BY cid", {table}))
        names += column.Text("name");
    return names;
}

int Database::LastKey() const
{
    return static_cast<int>(sqlite3_last_insert_rowid(handle_));
}
