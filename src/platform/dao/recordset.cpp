#include "platform/dao/statement.h"

#include <algorithm>
#include <cmath>

namespace
{
QString Quoted(const QString& name)
{
    return '"' + name + '"';
}
} // namespace

void Recordset::ReadColumns(const Statement& statement)
{
    const int first = table_.isEmpty() ? 0 : 1;
    for (int i = first; i < statement.ColumnCount(); ++i) {
        const QByteArray type = statement.DeclaredType(i);
        const bool whole = type.contains("INT");
        names_ += statement.ColumnName(i);
        kinds_ += type.startsWith("SINGLE") ? Kind::Single : whole ? Kind::Whole : Kind::Plain;
        if (!columns_.contains(names_.last()))
            columns_.insert(names_.last(), i - first);
    }
}

void Recordset::ReadRow(const Statement& statement)
{
    const int first = table_.isEmpty() ? 0 : 1;
    if (first == 1)
        keys_ += statement.WholeNumber(0);
    for (int i = first; i < statement.ColumnCount(); ++i)
        cells_ += statement.Value(i);
    ++count_;
}

void Recordset::MoveFirst()
{
    CancelUpdate();
    current_ = 0;
    SkipDeleted();
    RequireRecord();
}

void Recordset::MoveNext()
{
    CancelUpdate();
    ++current_;
    SkipDeleted();
}

void Recordset::SkipDeleted()
{
    while (!AtEnd() && IsDeleted(current_))
        ++current_;
}

int Recordset::ColumnIndex(const QString& column) const
{
    const auto found = columns_.constFind(column);
    if (found != columns_.cend())
        return *found;
    const auto same = [&](const QString& name) { return name.compare(column, Qt::CaseInsensitive) == 0; };
    const auto near = std::find_if(names_.cbegin(), names_.cend(), same);
    return near == names_.cend() ? -1 : static_cast<int>(near - names_.cbegin());
}

const QVariant* Recordset::Find(int column) const
{
    if (column < 0)
        return nullptr;
    const auto changed = changes_.constFind(column);
    if (changed != changes_.cend())
        return &*changed;
    if (editing_ == Editing::New || AtEnd() || IsDeleted(current_))
        return nullptr;
    return &cells_[current_ * names_.size() + column];
}

QVariant Recordset::Value(const QString& column) const
{
    if (editing_ != Editing::New)
        RequireRecord();
    const int index = ColumnIndex(column);
    if (index < 0)
        throw RuntimeError(EngineError::NoSuchField, "There is no column '" + column + "' in this result.");
    const QVariant* value = Find(index);
    return value != nullptr ? *value : QVariant();
}

void Recordset::Take(const QString& column, int& target) const
{
    qint64 value = target;
    Take(column, value);
    target = static_cast<int>(value);
}

void Recordset::Take(const QString& column, qint64& target) const
{
    if (const QVariant* value = Find(ColumnIndex(column)); value != nullptr && value->isValid())
        target = value->toLongLong();
}

void Recordset::Take(const QString& column, float& target) const
{
    double value = static_cast<double>(target);
    Take(column, value);
    target = static_cast<float>(value);
}

void Recordset::Take(const QString& column, double& target) const
{
    if (const QVariant* value = Find(ColumnIndex(column)); value != nullptr && value->isValid())
        target = value->toDouble();
}

void Recordset::Take(const QString& column, bool& target) const
{
    if (const QVariant* value = Find(ColumnIndex(column)); value != nullptr && value->isValid())
        target = value->toDouble() != 0;
}

void Recordset::Take(const QString& column, QString& target) const
{
    if (const QVariant* value = Find(ColumnIndex(column)); value != nullptr && value->isValid())
        target = value->toString();
}

void Recordset::RequireRecord() const
{
    if (AtEnd() || IsDeleted(current_))
        throw RuntimeError(EngineError::NoCurrentRecord, "No current record.");
}

void Recordset::RequireTable() const
{
    if (table_.isEmpty())
        throw RuntimeError(EngineError::ReadOnly, "This result is read-only.");
}

Database& Recordset::Owner() const
{
    const auto database = database_.lock();
    if (!database)
        throw RuntimeError(EngineError::ConnectionLost, "The database of this result is no longer open.");
    return **database;
}

void Recordset::AddNew()
{
    RequireTable();
    changes_.clear();
    editing_ = Editing::New;
}

void Recordset::Edit()
{
    RequireRecord();
    RequireTable();
    changes_.clear();
    editing_ = Editing::Existing;
}

void Recordset::CancelUpdate()
{
    changes_.clear();
    editing_ = Editing::None;
}

void Recordset::Set(const QString& column, const QVariant& value)
{
    if (editing_ == Editing::None)
        throw RuntimeError(EngineError::NoEditStarted, "A value was set without Edit or AddNew.");
    const int index = ColumnIndex(column);
    if (index < 0)
        throw RuntimeError(EngineError::NoSuchField, "There is no column '" + column + "' in this result.");
    QVariant stored = value;
    const bool real = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    if (real && kinds_[index] == Kind::Single)
        stored = static_cast<double>(static_cast<float>(value.toDouble()));
    else if (real && kinds_[index] == Kind::Whole)
        stored = static_cast<qlonglong>(std::nearbyint(value.toDouble()));
    changes_.insert(index, stored);
}

QString Recordset::UpdateStatement() const
{
    QStringList columns;
    for (const int column : changes_.keys())
        columns += Quoted(names_[column]) + " = ?";
    return "UPDATE " + Quoted(table_) + " SET " + columns.join(", ") + " WHERE rowid = ?";
}

QString Recordset::InsertStatement() const
{
    if (changes_.isEmpty())
        return "INSERT INTO " + Quoted(table_) + " DEFAULT VALUES";
    QStringList columns;
    for (const int column : changes_.keys())
        columns += Quoted(names_[column]);
    const QStringList marks(columns.size(), QStringLiteral("?"));
    return "INSERT INTO " + Quoted(table_) + " (" + columns.join(", ") + ") VALUES (" + marks.join(", ") + ")";
}

void Recordset::WriteExisting()
{
    RequireRecord();
    if (changes_.isEmpty())
        return;
    if (Owner().Execute(UpdateStatement(), changes_.values() << keys_[current_]) == 0)
        throw RuntimeError(EngineError::NoCurrentRecord, "The record has been removed by another user.");
    for (auto change = changes_.cbegin(); change != changes_.cend(); ++change)
        cells_[current_ * names_.size() + change.key()] = *change;
}

void Recordset::Update()
{
    if (editing_ == Editing::None)
        throw RuntimeError(EngineError::NoEditStarted, "Update without Edit or AddNew.");
    if (editing_ == Editing::New)
        Owner().Execute(InsertStatement(), changes_.values());
    else
        WriteExisting();
    CancelUpdate();
}

void Recordset::Delete()
{
    RequireRecord();
    RequireTable();
    CancelUpdate();
    Owner().Execute("DELETE FROM " + Quoted(table_) + " WHERE rowid = ?", {keys_[current_]});
    keys_[current_] = -1;
    ++deleted_;
}
