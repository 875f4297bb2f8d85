#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVector>

#include <exception>
#include <functional>
#include <initializer_list>
#include <memory>
#include <type_traits>

struct sqlite3;

/// The numbers under which the data engine reports its failures.
namespace EngineError
{
constexpr int ObjectNotSet = 91; ///< nothing is connected
constexpr int TableExists = 3010;
constexpr int NoEditStarted = 3020; ///< Update without Edit or AddNew
constexpr int NoCurrentRecord = 3021;
constexpr int DuplicateKey = 3022;
constexpr int FileNotFound = 3024;
constexpr int ReadOnly = 3027;
constexpr int WrongPassword = 3031;
constexpr int OutOfMemory = 3035;
constexpr int DiskError = 3043;
constexpr int Damaged = 3049;
constexpr int CannotOpen = 3051;  ///< no permission to the file or its folder
constexpr int UnknownName = 3061; ///< a statement names a column that no table has
constexpr int StatementError = 3075;
constexpr int NoSuchTable = 3078;
constexpr int DiskFull = 3183;
constexpr int LockRefused = 3050; ///< the file's folder cannot lock files
constexpr int RowChanged = 3197;
constexpr int Locked = 3260; ///< another user held the file for longer than the engine waits
constexpr int NoSuchField = 3265;
constexpr int ForeignFile = 3343; ///< the file is no database of this program
constexpr int FieldExists = 3380;
constexpr int ConnectionLost = 3420;
} // namespace EngineError

/// A failure with the number and the description that messages quote.
struct RuntimeError : std::exception
{
    RuntimeError(int number, const QString& description);

    int Number;
    QString Description;

    const char* what() const noexcept override { return text_.constData(); }

private:
    QByteArray text_;
};

/// There is no way to the database: it could not be opened or restored, or is damaged. The program cannot go on.
struct ConnectionFailed : RuntimeError
{
    explicit ConnectionFailed(const RuntimeError& reason) : RuntimeError(reason) {}
};

class Database;
class Statement;
using Values = QVariantList;

/// What is bound to a question mark: an invalid QVariant is NULL, a null QString the empty text, a bool 0 or 1.
template <typename T>
QVariant BoundValue(const T& value)
{
    if constexpr (std::is_null_pointer_v<T>)
        return {};
    else if constexpr (std::is_convertible_v<const T&, QString>)
        return QString(value);
    else if constexpr (std::is_enum_v<T>)
        return static_cast<int>(value);
    else
        return QVariant::fromValue(value);
}

/// A result read whole into memory: the file is not held while a caller walks it. The cursor stands on the first
/// record after opening. "for (const Recordset& row : result)" walks the records.
class Recordset
{
public:
    Recordset() = default;

    bool AtEnd() const { return current_ >= count_; }
    /// Throws 3021 when there is no record at all.
    void MoveFirst();
    void MoveNext() { ++current_; }
    int RecordCount() const { return static_cast<int>(count_); }
    /// Column names in the order of the result.
    const QStringList& Columns() const { return names_; }

    /// The value of a column in the current record. Throws 3021 without a current record, 3265 for an unknown column.
    /// Column names are found whatever their letter case.
    const QVariant& Value(const QString& column) const;
    bool IsNull(const QString& column) const { return Value(column).isNull(); }

    /// Copies a column into `target`. NULL and no record leave the target as it was; an unknown column throws 3265.
    template <typename T>
    void Take(const QString& column, T& target) const
    {
        if (const QVariant* value = Find(column); value != nullptr && value->isValid())
            target = Converted<T>(*value);
    }

    /// The value itself; 0 or an empty text for NULL.
    int Long(const QString& column) const { return Value(column).toInt(); }
    float Single(const QString& column) const { return static_cast<float>(Value(column).toDouble()); }
    QString Text(const QString& column) const { return Value(column).toString(); }

    struct End
    {};
    class Cursor
    {
    public:
        explicit Cursor(Recordset& records) : records_(records) {}
        const Recordset& operator*() const { return records_; }
        void operator++() { records_.MoveNext(); }
        bool operator!=(End) const { return !records_.AtEnd(); }

    private:
        Recordset& records_;
    };
    Cursor begin() { return Cursor(*this); }
    End end() { return {}; }

private:
    friend class Database;

    explicit Recordset(Statement& statement);
    int ColumnIndex(const QString& column) const; // throws 3265
    const QVariant* Find(const QString& column) const;
    template <typename T>
    static T Converted(const QVariant& value)
    {
        if constexpr (std::is_same_v<T, QString>)
            return value.toString();
        else if constexpr (std::is_same_v<T, bool>)
            return value.toDouble() != 0;
        else if constexpr (std::is_floating_point_v<T>)
            return static_cast<T>(value.toDouble());
        else
            return static_cast<T>(value.toLongLong());
    }

    QStringList names_;
    QHash<QString, int> columns_;
    QVector<QVariant> cells_; // record after record
    qsizetype count_ = 0;
    qsizetype current_ = 0;
};

/// One open file. Values are bound to the question marks of a statement in order. The engine works on a thread of its
/// own, for which the caller waits.
class Database
{
public:
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    Recordset OpenRecordset(const QString& sql, const Values& values = {});
    /// Runs one statement and returns the number of records that it touched. Values are stored as they are.
    int Execute(const QString& sql, const Values& values = {});
    /// Runs a whole script of statements.
    void ExecuteScript(const QString& script);
    /// Column names of a table in physical order; empty when there is no such table.
    QStringList Columns(const QString& table);
    /// RecordID of the record added last through this connection, 0 none yet.
    int LastKey() const;
    QString Path() const { return path_; }
    sqlite3* Handle() const { return handle_; }
    bool IsInTransaction() const { return transactions_ > 0; }

    /// From here on what is read is read together, behind one lock, until something is written or the reading ends.
    /// Throws when the file cannot be read, or can no longer be shared.
    void BeginReading();
    /// Whether that lock is held.
    bool IsReading() const { return reading_; }
    /// The next thing that is read begins anew; what is being written goes on.
    void PauseReading();
    void EndReading();

    /// Makes a new file at `path` with `script` run in it and `password` set. An existing file is replaced. Whoever may
    /// write in its folder may write in it.
    static void Create(const QString& path, const QString& password, const QString& script);
    /// Opens a file of this program. `password`: what follows "PWD=" in a connect string. A write-ahead log, which a
    /// network folder cannot share, is turned into a rollback journal.
    /// Throws 3024 no such file, 3051 no permission, 3343 no file of this program, 3031 wrong password, 3260 held by
    /// another user for the whole LockWait, 3050 in a folder that cannot lock files.
    static std::unique_ptr<Database> Open(const QString& path, const QString& password);

    /// How long a statement waits for another user's lock, in milliseconds.
    static int LockWait;

private:
    friend class Transaction;
    Database(sqlite3* handle, QString path);
    template <typename Work>
    auto Guarded(Work work);
    void RequireInPlace(int failure) const;

    sqlite3* handle_;
    QString path_;
    bool readsTogether_ = false;
    bool reading_ = false;            // behind one lock
    int transactions_ = 0;            // open ones, each inside the one before
    std::exception_ptr ended_;        // the failure by which the engine has undone the open transaction
    std::shared_ptr<Database*> self_; // what outlives the database looks here whether it is still open
};

/// The application's one workspace: it holds the database that was opened last. What is read between opening and
/// closing is read together.
class Workspace
{
public:
    /// Opens `path` (either separator, any letter case) with a connect string such as ";PWD=secret". A file that was
    /// closed is kept at hand: opened again while it lies in its place, it costs one look.
    Database& OpenDatabase(const QString& path, const QString& connect);
    void Close();
    /// Closes the file for good.
    void Forget();
    /// No lock is held while a person looks at a form: reading goes on behind a new one.
    void PauseReading();
    bool IsOpen() const { return database_ != nullptr; }
    bool IsReading() const { return IsOpen() && database_->IsReading(); }
    bool IsInTransaction() const { return IsOpen() && database_->IsInTransaction(); }
    /// Throws 91 when nothing is open.
    Database& Current();

private:
    bool Reopen(const QString& path, const QString& connect);

    std::unique_ptr<Database> database_;
    std::unique_ptr<Database> kept_; // the one closed last
    QString path_;                   // as asked for
    QString connect_;
};

/// Workspaces(0).
Workspace& DefaultWorkspace();

/// All that is written while it lives is written together. It is undone unless committed, whatever leaves the scope. A
/// transaction inside another is written to the file with the outer one. A failure that ends it by itself, such as a
/// full disk, is thrown again by whatever is read or written in its scope afterwards.
class Transaction
{
public:
    enum OnFailure
    {
        Undo,
        KeepOnFailure ///< the file then holds what writing without a transaction would have left
    };

    /// Throws when another user writes for longer than the engine waits.
    explicit Transaction(Database& database, OnFailure onFailure = Undo);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    /// Throws when the file cannot be written; all is undone then.
    void Commit();

private:
    void Run(const char* sql);
    void Rollback();
    void Close();

    std::weak_ptr<Database*> database_;
    OnFailure onFailure_;
    bool nested_;
    bool open_ = true;
};

/// The data control of a form: it names the form in the connection log and is its way to the database. Where the
/// server back end is chosen it reads nothing and sends what is written to the server.
class DataControl
{
public:
    explicit DataControl(QString formName) : FormName(std::move(formName)) {}

    const QString FormName;

    /// True when there is a first record. A lost connection (91, 3420) is restored through Reconnect and read once
    /// more, but not inside a transaction, which is over then. Throws ConnectionFailed when it cannot be restored or
    /// the file is damaged, and any other failure as it is.
    template <typename... V>
    bool Read(const QString& sql, const V&... values)
    {
        return !ReadRestoring(sql, {BoundValue(values)...}).AtEnd();
    }
    /// The same as a result of its own.
    template <typename... V>
    Recordset Select(const QString& sql, const V&... values)
    {
        return ReadRestoring(sql, {BoundValue(values)...});
    }
    /// The same for a statement of one value; T() when it is NULL, or there is none.
    template <typename T, typename... V>
    T Scalar(const QString& sql, const V&... values)
    {
        const Recordset found = Select(sql, values...);
        T value{};
        if (!found.AtEnd())
            found.Take(found.Columns().first(), value);
        return value;
    }

    /// Reads for writing: a lost connection is not restored.
    template <typename... V>
    Recordset Open(const QString& sql, const V&... values)
    {
        return OpenResult(sql, {BoundValue(values)...});
    }
    /// Runs one statement and returns the number of records that it touched; 1 for one sent to the server.
    template <typename... V>
    int Execute(const QString& sql, const V&... values)
    {
        return Run(sql, {BoundValue(values)...});
    }
    int Run(const QString& sql, const Values& values);
    /// RecordID of the record added last; 0 on the server.
    int LastKey() const;
    Database& Engine() const { return DefaultWorkspace().Current(); }

    /// How a lost connection is restored; set once by the connection routines. Throws when it cannot be.
    static std::function<void(DataControl&)> Reconnect;

private:
    Recordset OpenResult(const QString& sql, const Values& values);
    Recordset ReadRestoring(const QString& sql, const Values& values);
};
