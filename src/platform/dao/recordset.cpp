#include "platform/dao/statement.h"

#include <algorithm>

Recordset::Recordset(Statement& statement)
{
    for (int i = 0; i < statement.ColumnCount(); ++i) {
        names_ += statement.ColumnName(i);
        if (!columns_.contains(names_.last()))
            columns_.insert(names_.last(), i);
    }
    for (; statement.Step(); ++count_)
        for (int i = 0; i < names_.size(); ++i)
            cells_ += statement.Value(i);
}

void Recordset::MoveFirst()
{
    current_ = 0;
    if (AtEnd())
        throw RuntimeError(EngineError::NoCurrentRecord, "No current record.");
}

int Recordset::ColumnIndex(const QString& column) const
{
    const auto found = columns_.constFind(column);
    if (found != columns_.cend())
        return *found;
    const auto same = [&](const QString& name) { return name.compare(column, Qt::CaseInsensitive) == 0; };
    const auto near = std::find_if(names_.cbegin(), names_.cend(), same);
    if (near == names_.cend())
        throw RuntimeError(EngineError::NoSuchField, "There is no column '" + column + "' in this result.");
    return static_cast<int>(near - names_.cbegin());
}

const QVariant* Recordset::Find(const QString& column) const
{
    if (names_.isEmpty()) // nothing could be read
        return nullptr;
    const int index = ColumnIndex(column);
    return AtEnd() ? nullptr : &cells_[current_ * names_.size() + index];
}

const QVariant& Recordset::Value(const QString& column) const
{
    if (const QVariant* value = Find(column))
        return *value;
    throw RuntimeError(EngineError::NoCurrentRecord, "No current record.");
}
