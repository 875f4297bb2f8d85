#pragma once

#include "platform/dao/server.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <variant>
#include <vector>

/// One column of the table whose rows are `R`: its name, and the member that holds its value.
template <typename R>
struct Column
{
    using Place = std::variant<int R::*, float R::*, double R::*, bool R::*, QString R::*, std::array<float, 7> R::*>;

    const char* Name;
    Place Member;
    int Element = 0; ///< of an array member

    /// Calls `use` with the value in `row`.
    template <typename Row, typename Use>
    void In(Row& row, Use use) const
    {
        std::visit(
            [&](auto member) {
                if constexpr (std::is_same_v<decltype(member), std::array<float, 7> R::*>)
                    use((row.*member)[static_cast<std::size_t>(Element)]);
                else
                    use(row.*member);
            },
            Member);
    }
};

/// The column that bears the name of its member.
#define COLUMN(row, member) Column<row>(#member, &row::member)

/// Whether a row, as it stands, goes to its audit twin before it changes. Tried: the change goes on when it cannot.
enum class Twin
{
    None,
    Kept,
    Tried
};

/// A table as statements see it.
struct TableShape
{
    QString Name;
    QStringList Columns; ///< without RecordID
    bool HasRecordID = false;
    Twin Audit = Twin::None;
    int FileOnly = 0; ///< so many columns at the end reach neither the audit twin nor the server
};

/// A table with its columns, each named once: whatever reads, writes, compares or copies rows walks this list.
template <typename R>
struct Table : TableShape
{
    Table(const char* name, std::vector<Column<R>> columns, Twin audit = Twin::None, int fileOnly = 0)
        : TableShape{QLatin1String(name), {}, false, audit, fileOnly}, List(std::move(columns))
    {
        for (const Column<R>& column : List)
            Columns << QLatin1String(column.Name);
        HasRecordID = Columns.removeAll("RecordID") > 0;
    }

    std::vector<Column<R>> List;
};

template <typename R>
constexpr bool kHasTable = false;

/// The table of the rows `R`; it is given beside each of them.
template <typename R>
inline const Table<R> kTable = [] { static_assert(kHasTable<R>, "include the header of the row"); }();

/// A list of columns followed by further ones, such as kRights.
template <typename R, typename... Lists>
std::vector<Column<R>> Joined(std::vector<Column<R>> columns, const Lists&... lists)
{
    const auto append = [&columns](const auto& list) {
        for (const auto& entry : list)
            if constexpr (requires { entry.Name; })
                columns.push_back(entry);
            else if constexpr (requires { entry.Weekday; })
                columns.push_back({entry.Column, entry.Member, entry.Weekday});
            else
                columns.push_back({entry.Column, entry.Member});
    };
    (append(lists), ...);
    return columns;
}

struct ColumnValue
{
    QString Column;
    QVariant Value;
};
/// A row, or a part of it, as it goes into a statement.
using RowValues = std::vector<ColumnValue>;

// What the templates below have in common. Adding gives the RecordID, 0 on the server and for tables without that key.

int AddRow(DataControl& datAbsence, const TableShape& table, const RowValues& values);
void ChangeRow(DataControl& datAbsence, const TableShape& table, int recordID, const RowValues& values);
void WriteRow(DataControl& datAbsence, const TableShape& table, int recordID, const RowValues& values);
/// Writes the same values into all records of a table that name `id` in the column `key`.
void WriteRowsOf(DataControl& datAbsence, const char* table, const char* key, int id, const RowValues& values);
void CopyToAuditTwin(DataControl& datAbsence, const TableShape& table, int recordID);
/// The same of all rows that "SELECT ... WHERE `conditions`" finds.
void CopyToAuditTwin(DataControl& datAbsence, const TableShape& table, const QString& conditions,
                     const Values& values = {});
QString SelectFrom(const TableShape& table, const QString& conditions);
/// Those of `now` that `before` has not got.
RowValues Differing(const RowValues& before, const RowValues& now);

template <typename R>
RowValues ValuesOf(const Table<R>& table, const R& row)
{
    RowValues values;
    for (const Column<R>& column : table.List)
        column.In(row, [&](const auto& value) { values.push_back({column.Name, BoundValue(value)}); });
    return values;
}

/// The current record. NULL leaves a member as a new row has it.
template <typename R>
R RowOf(const Table<R>& table, const Recordset& found)
{
    R row;
    for (const Column<R>& column : table.List)
        column.In(row, [&](auto& value) { found.Take(column.Name, value); });
    return row;
}

/// The rows that "SELECT ... WHERE `conditions`" finds. Throws.
template <typename R, typename... V>
QVector<R> Where(DataControl& datAbsence, const QString& conditions, const V&... values)
{
    QVector<R> rows;
    for (const Recordset& found : datAbsence.Select(SelectFrom(kTable<R>, conditions), values...))
        rows.append(RowOf(kTable<R>, found));
    return rows;
}

/// The first of them, if there is one.
template <typename R, typename... V>
std::optional<R> First(DataControl& datAbsence, const QString& conditions, const V&... values)
{
    const QVector<R> rows = Where<R>(datAbsence, conditions + " LIMIT 1", values...);
    return rows.isEmpty() ? std::optional<R>() : rows.first();
}

/// The row with that RecordID, if there is one. Throws.
template <typename R>
std::optional<R> Find(DataControl& datAbsence, int recordID, const Table<R>& table = kTable<R>)
{
    const Recordset found = datAbsence.Select(SelectFrom(table, "RecordID = ?"), recordID);
    return found.AtEnd() ? std::optional<R>() : RowOf(table, found);
}

/// The row that is about to change; on the server an empty one. Throws, 3021 when it is gone.
template <typename R>
R Standing(DataControl& datAbsence, int recordID, const Table<R>& table = kTable<R>)
{
    Recordset found = datAbsence.Open(SelectFrom(table, "RecordID = ?"), recordID);
    if (IsServerChosen())
        return {};
    found.MoveFirst();
    return RowOf(table, found);
}

/// Adds a row and returns its RecordID; 0 on the server and for tables without that key. Throws.
template <typename R>
int Add(DataControl& datAbsence, const R& row, const Table<R>& table = kTable<R>)
{
    return AddRow(datAbsence, table, ValuesOf(table, row));
}

/// The new value of a column.
template <typename R>
struct Setting
{
    typename Column<R>::Place Member;
    QVariant Value;
};
template <typename R>
using Settings = std::vector<Setting<R>>;

/// Some columns as a row has them.
template <typename R>
Settings<R> Picked(const R& row, std::span<const typename Column<R>::Place> members)
{
    Settings<R> settings;
    for (const auto& member : members)
        Column<R>{nullptr, member}.In(row, [&](const auto& value) { settings.push_back({member, BoundValue(value)}); });
    return settings;
}

/// Throws 3265 for a member that is no column of the table.
template <typename R>
RowValues ValuesOf(const Table<R>& table, const Settings<R>& settings)
{
    RowValues values;
    for (const Setting<R>& setting : settings) {
        const auto is = [&](const Column<R>& column) { return column.Member == setting.Member; };
        const auto column = std::find_if(table.List.begin(), table.List.end(), is);
        if (column == table.List.end())
            throw RuntimeError(EngineError::NoSuchField, "A value was set that is no column of " + table.Name + ".");
        values.push_back({column->Name, setting.Value});
    }
    return values;
}

/// Writes some columns of a row and nothing else. Throws, 3021 when it is gone.
template <typename R>
void Set(DataControl& datAbsence, int recordID, const Settings<R>& settings, const Table<R>& table = kTable<R>)
{
    WriteRow(datAbsence, table, recordID, ValuesOf(table, settings));
}

/// Keeps the row as it stands in its audit twin, writes some columns, and who changed it when, as far as the table has
/// that. Throws, 3021 when the row is gone.
template <typename R>
void Change(DataControl& datAbsence, int recordID, const Settings<R>& settings, const Table<R>& table = kTable<R>)
{
    ChangeRow(datAbsence, table, recordID, ValuesOf(table, settings));
}

/// The same with the columns in which two rows differ.
template <typename R>
void Change(DataControl& datAbsence, const R& before, const R& after, const Table<R>& table = kTable<R>)
{
    ChangeRow(datAbsence, table, after.RecordID, Differing(ValuesOf(table, before), ValuesOf(table, after)));
}

/// A row is no longer what the user saw when he chose it; `more` is said behind that. Throws 3197.
[[noreturn]] void RefuseChangedRow(const QString& more = {});

/// Runs `work` connected and in one transaction. Nothing is written when it throws, or with KeepOnFailure what was
/// written before the failure. The server back end has no transactions.
void InTransaction(DataControl& datAbsence, const std::function<void()>& work,
                   Transaction::OnFailure onFailure = Transaction::Undo);
