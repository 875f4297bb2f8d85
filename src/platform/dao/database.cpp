#include "platform/dao/collation.h"
#include "platform/dao/engine_thread.h"
#include "platform/dao/file_system.h"
#include "platform/dao/statement.h"
#include "platform/program.h"

#include <QCryptographicHash>
#include <QFile>
#include <QRandomGenerator>

#include <chrono>
#include <sqlite3.h>
#include <thread>
#include <utility>

namespace
{
constexpr int kApplicationId = 0x54525641; // marks a file as one of this program
constexpr int kRetryInterval = 5;          // milliseconds
constexpr int kLongestRefusal = 500;       // milliseconds: now and then a network folder refuses a lock, then gives it

QString HashOf(const QString& salt, const QString& password)
{
    const QByteArray hash = QCryptographicHash::hash((salt + password).toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex());
}

QString NewSalt()
{
    return QString::number(QRandomGenerator::system()->generate64(), 16);
}

/// Waits in even steps, so that a user who has waited long asks as often as one who has just come. The clock tells how
/// long: over a network asking takes its time too.
int WaitForLock(void*, int tries)
{
    using std::chrono::milliseconds;
    using std::chrono::steady_clock;
    static steady_clock::time_point since;
    if (tries == 0)
        since = steady_clock::now();
    if (steady_clock::now() - since >= milliseconds(AreLocksRefused() ? kLongestRefusal : Database::LockWait))
        return 0;
    std::this_thread::sleep_for(milliseconds(kRetryInterval));
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
    NoteRefusedLocks();
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

void RequireOwnFile(sqlite3* handle, const QString& password)
{
    Statement mark(handle, "SELECT application_id, (SELECT COUNT(*) FROM sqlite_master WHERE name = 'FilePassword') "
                           "FROM pragma_application_id");
    if (!mark.Step() || mark.WholeNumber(0) != kApplicationId || mark.WholeNumber(1) != 1)
        throw RuntimeError(EngineError::ForeignFile, "The file is not a database of this program.");
    Statement word(handle, "SELECT Salt, Hash FROM FilePassword");
    if (!word.Step() || HashOf(word.Value(0).toString(), password) != word.Value(1).toString())
        throw RuntimeError(EngineError::WrongPassword, "Not a valid password.");
}

/// Workstations cannot share a write-ahead log over a network.
void RequireRollbackJournal(sqlite3* handle)
{
    const auto mode = [handle](const char* pragma) {
        Statement journal(handle, pragma);
        return journal.Step() ? journal.Value(0).toString() : QString();
    };
    if (mode("PRAGMA journal_mode") == "wal" && mode("PRAGMA journal_mode = DELETE") != "delete")
        throw RuntimeError(EngineError::Locked, "The database is in a mode that a network folder cannot share.");
}

/// The journal goes last: while there is a file, it may need it.
void RemoveFile(const QString& file)
{
    if (QFile::exists(file) && !QFile::remove(file))
        throw RuntimeError(EngineError::CannotOpen, "The file cannot be replaced: " + file);
    QFile::remove(file + "-journal");
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

int Database::LockWait = 30'000;

Database::Database(sqlite3* handle, QString path)
    : handle_(handle), path_(std::move(path)), self_(std::make_shared<Database*>(this))
{}

Database::~Database()
{
    OnEngineThread([this] { sqlite3_close_v2(handle_); });
}

std::unique_ptr<Database> Database::Open(const QString& path, const QString& password)
{
    return OnEngineThread([&] {
        const QString file = NativePath(path);
        RequireFile(file);
        std::unique_ptr<Database> database(new Database(OpenFile(file, SQLITE_OPEN_READWRITE), file));
        RequireOwnFile(database->Handle(), password);
        RequireRollbackJournal(database->Handle());
        return database;
    });
}

void Database::Create(const QString& path, const QString& password, const QString& script)
{
    OnEngineThread([&] {
        const QString file = NativePath(path);
        RemoveFile(file);
        try {
            Database database(OpenFile(file, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE), file);
            WriteNewFile(database, password, script);
            ShareAsFolder(file);
        } catch (...) {
            QFile::remove(file);
            throw;
        }
    });
}

/// A file that was moved away or replaced is still readable through its open handle; its rows are no longer the
/// users' rows.
void Database::RequireInPlace(int failure) const
{
    int moved = 0;
    sqlite3_file_control(handle_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved != 0)
        throw RuntimeError(failure, failure == EngineError::ConnectionLost
                                        ? "The connection to the database file was lost."
                                        : "The database file is no longer in its place.");
}

void Database::BeginReading()
{
    readsTogether_ = true;
    try {
        OpenRecordset("PRAGMA schema_version");
        if (OpenRecordset("PRAGMA journal_mode").Text("journal_mode") == "wal") // a tool has switched it on meanwhile
            throw RuntimeError(EngineError::ConnectionLost, "The database file can no longer be shared.");
    } catch (const RuntimeError&) {
        EndReading();
        throw;
    }
}

void Database::PauseReading()
{
    if (std::exchange(reading_, false))
        OnEngineThread([this] { sqlite3_exec(handle_, "COMMIT", nullptr, nullptr, nullptr); });
}

void Database::EndReading()
{
    PauseReading();
    readsTogether_ = false;
}

/// Runs `work`, unless a failure has ended the open transaction: what was to be written together would be torn apart.
template <typename Work>
auto Database::Guarded(Work work)
{
    if (ended_)
        std::rethrow_exception(ended_);
    try {
        return OnEngineThread(work);
    } catch (const RuntimeError&) {
        if (IsInTransaction() && sqlite3_get_autocommit(handle_) != 0)
            ended_ = std::current_exception();
        throw;
    }
}

Recordset Database::OpenRecordset(const QString& sql, const Values& values)
{
    return Guarded([&] {
        if (sqlite3_get_autocommit(handle_) != 0) {
            RequireInPlace(EngineError::ConnectionLost);
            if (readsTogether_) {
                Run(handle_, "BEGIN", FileAccess::Reading);
                reading_ = true;
            }
        }
        Statement statement(handle_, sql, values);
        return Recordset(statement);
    });
}

int Database::Execute(const QString& sql, const Values& values)
{
    PauseReading();
    return Guarded([&] {
        if (sqlite3_get_autocommit(handle_) != 0)
            RequireInPlace(EngineError::DiskError);
        Statement statement(handle_, sql, values);
        const int before = sqlite3_total_changes(handle_);
        while (statement.Step()) {
        }
        return sqlite3_total_changes(handle_) - before;
    });
}

void Database::ExecuteScript(const QString& script)
{
    PauseReading();
    Guarded([&] {
        if (sqlite3_get_autocommit(handle_) != 0)
            RequireInPlace(EngineError::DiskError);
        Run(handle_, script.toUtf8().constData(), FileAccess::Writing);
    });
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
