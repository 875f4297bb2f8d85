#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
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
constexpr int DiskError = 3043;
constexpr int Damaged = 3049;
constexpr int CannotOpen = 3051;  ///< no permission to the file or its folder
constexpr int UnknownName = 3061; ///< a statement names a column that no table has
constexpr int StatementError = 3075;
constexpr int NoSuchTable = 3078;
constexpr int DiskFull = 3183;
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
/// record after opening. A result of "SELECT * FROM one table" can be edited; others are read-only.
class Recordset
{
public:
    Recordset() = default;

    bool AtEnd() const { return current_ < 0 || current_ >= count_; }
    /// Throws 3021 when there is no record at all.
    void MoveFirst();
    /// Changes that were not written by Update are dropped, here and in MoveFirst.
    void MoveNext();
    /// The records read, without those removed by Delete.
    int RecordCount() const { return static_cast<int>(count_ - deleted_); }
    /// Column names in the order of the result.
    const QStringList& Columns() const { return names_; }

    /// The value of a column in the current record, or in the one being edited. Throws 3021 without a current
    /// record, 3265 for an unknown column. Column names are found whatever their letter case.
    QVariant Value(const QString& column) const;
    bool IsNull(const QString& column) const { return Value(column).isNull(); }

    /// Copies a column into `target`. NULL, no record or an unknown column leave the target as it was.
    void Take(const QString& column, int& target) const;
    void Take(const QString& column, qint64& target) const;
    void Take(const QString& column, float& target) const;
    void Take(const QString& column, double& target) const;
    void Take(const QString& column, bool& target) const;
    void Take(const QString& column, QString& target) const;

    /// The value itself; 0 or an empty text for NULL.
    int Long(const QString& column) const { return Value(column).toInt(); }
    float Single(const QString& column) const { return static_cast<float>(Value(column).toDouble()); }
    QString Text(const QString& column) const { return Value(column).toString(); }

    class Field
    {
    public:
        Field(Recordset& owner, QString column) : owner_(owner), column_(std::move(column)) {}
        /// Throws 3020 without Edit or AddNew, 3265 for an unknown column. A single-precision column keeps the nearest
        /// float, a whole-number column the nearest whole number (the even one of two).
        void operator=(const QVariant& value) { owner_.Set(column_, value); }

    private:
        Recordset& owner_;
        QString column_;
    };
    Field operator[](const QString& column) { return Field(*this, column); }

    /// Starts a new record. After Update the cursor stands where it was; the next opening reads the new record.
    void AddNew();
    void Edit();
    /// Writes the values set since Edit or AddNew. Throws; the record is unchanged then.
    void Update();
    /// Forgets the values set since Edit or AddNew.
    void CancelUpdate();
    /// Removes the current record from its table. The cursor stays in its place until MoveNext.
    void Delete();

private:
    friend class Database;
    enum class Editing
    {
        None,
        Existing,
        New
    };
    enum class Kind
    {
        Plain,
        Whole,
        Single
    };

    void ReadColumns(const Statement& statement);
    void ReadRow(const Statement& statement);
    int ColumnIndex(const QString& column) const; // -1 unknown
    const QVariant* Find(int column) const;
    bool IsDeleted(qsizetype record) const { return !keys_.isEmpty() && keys_[record] < 0; }
    void SkipDeleted();
    Database& Owner() const;
    void RequireTable() const;
    void RequireRecord() const;
    void Set(const QString& column, const QVariant& value);
    QString UpdateStatement() const;
    QString InsertStatement() const;
    void WriteExisting();

    std::weak_ptr<Database*> database_;
    QString table_; // empty: cannot be edited
    QStringList names_;
    QVector<Kind> kinds_;
    QHash<QString, int> columns_;
    QVector<QVariant> cells_; // record after record
    QVector<qint64> keys_;    // of an editable result: -1 once deleted
    qsizetype count_ = 0;
    qsizetype deleted_ = 0;
    qsizetype current_ = -1;
    Editing editing_ = Editing::None;
    QMap<int, QVariant> changes_;
};

/// One open file. Values are bound to the question marks of a statement in order.
class Database
{
public:
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    Recordset OpenRecordset(const QString& sql, const Values& values = {});
    /// Runs one statement and returns the number of records that it touched. Values are stored as they are: only a
    /// recordset rounds to single precision.
    int Execute(const QString& sql, const Values& values = {});
    /// Runs a whole script of statements.
    void ExecuteScript(const QString& script);
    /// Column names of a table in physical order; empty when there is no such table.
    QStringList Columns(const QString& table);
    /// RecordID of the record added last through this connection, 0 none yet.
    int LastKey() const;
    QString Path() const { return path_; }
    sqlite3* Handle() const { return handle_; }

    /// Makes a new file at `path` with `script` run in it and `password` set. An existing file is replaced.
    static void Create(const QString& path, const QString& password, const QString& script);
    /// Opens a file of this program. `password`: what follows "PWD=" in a connect string.
    /// Throws 3024 no such file, 3051 no permission, 3343 no file of this program, 3031 wrong password, 3260 held by
    /// another user for the whole LockWait.
    static std::unique_ptr<Database> Open(const QString& path, const QString& password);

    /// How long a statement waits for another user's lock, in milliseconds.
    static int LockWait;

private:
    friend class Recordset;
    friend class Batch;
    Database(sqlite3* handle, QString path);
    Statement Prepare(const QString& sql, const Values& values);

    sqlite3* handle_;
    QString path_;
    std::shared_ptr<Database*> self_; // what outlives the database looks here whether it is still open
};

/// The application's one workspace: it holds the database that was opened last.
class Workspace
{
public:
    /// Opens `path` (either separator, any letter case) with a connect string such as ";PWD=secret".
    Database& OpenDatabase(const QString& path, const QString& connect);
    void Close() { database_.reset(); }
    bool IsOpen() const { return database_ != nullptr; }
    /// Throws 91 when nothing is open.
    Database& Current();

private:
    std::unique_ptr<Database> database_;
};

/// Workspaces(0).
Workspace& DefaultWorkspace();

/// One transaction around bulk work. It commits when the scope ends, also when an exception leaves it, so that the
/// file holds just what record-by-record writing would have left. A batch inside another is written to the file with
/// the outer one.
class Batch
{
public:
    /// Throws when another user writes for longer than the engine waits.
    explicit Batch(Database& database);
    ~Batch();
    Batch(const Batch&) = delete;
    Batch& operator=(const Batch&) = delete;
    /// Commits now and reports a failure, which the destructor cannot. After a failure all is undone.
    void Commit();
    /// Undoes all that was written in the batch.
    void Rollback();

private:
    void Run(const char* sql);

    std::weak_ptr<Database*> database_;
    bool nested_ = false;
    bool open_ = true;
};

/// The data control of a form: it names the form in the connection log and holds the form's recordset.
class DataControl
{
public:
    explicit DataControl(QString formName) : FormName(std::move(formName)) {}

    const QString FormName;
    Recordset Records; ///< what Read found

    /// Reads with errors resumed: true when there is a first record. Nothing is thrown. A lost connection (91, 3420)
    /// is restored through Reconnect and read once more.
    template <typename... V>
    bool Read(const QString& sql, const V&... values)
    {
        Records = ReadResumed(sql, {BoundValue(values)...});
        return !Records.AtEnd();
    }
    /// The same as a result of its own, empty after a failure.
    template <typename... V>
    Recordset Select(const QString& sql, const V&... values)
    {
        return ReadResumed(sql, {BoundValue(values)...});
    }
    template <typename T>
    void Take(const QString& column, T& target) const
    {
        Records.Take(column, target);
    }

    /// Opens for writing; throws.
    template <typename... V>
    Recordset Open(const QString& sql, const V&... values)
    {
        return DefaultWorkspace().Current().OpenRecordset(sql, {BoundValue(values)...});
    }
    template <typename... V>
    int Execute(const QString& sql, const V&... values)
    {
        return DefaultWorkspace().Current().Execute(sql, {BoundValue(values)...});
    }
    Database& Engine() const { return DefaultWorkspace().Current(); }

    /// How a lost connection is restored; set once by the connection routines.
    static std::function<void(DataControl&)> Reconnect;

private:
    Recordset ReadResumed(const QString& sql, const Values& values);
};
