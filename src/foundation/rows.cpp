#include "foundation/rows.h"

#include "foundation/connection.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
Values BoundTo(const RowValues& values)
{
    Values bound;
    for (const ColumnValue& value : values)
        bound << value.Value;
    return bound;
}

/// What goes into a statement about `table`: not its key, and to the server no column that is kept in the file alone.
RowValues Written(const TableShape& table, const RowValues& values)
{
    const QStringList here = table.Columns.mid(table.Columns.size() - (IsServerChosen() ? table.FileOnly : 0));
    RowValues written;
    for (const ColumnValue& value : values)
        if (value.Column != "RecordID" && !here.contains(value.Column))
            written.push_back(value);
    return written;
}

QString InsertText(const QString& table, const RowValues& values)
{
    QStringList columns;
    for (const ColumnValue& value : values)
        columns << value.Column;
    const QStringList marks(columns.size(), QStringLiteral("?"));
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns.join(", "), marks.join(", "));
}

QString UpdateText(const QString& table, const RowValues& values, const QString& key = "RecordID")
{
    QStringList settings;
    for (const ColumnValue& value : values)
        settings << value.Column + " = ?";
    return QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?").arg(table, settings.join(", "), key);
}
} // namespace

int AddRow(DataControl& datAbsence, const TableShape& table, const RowValues& values)
{
    const RowValues written = Written(table, values);
    datAbsence.Run(InsertText(table.Name, written), BoundTo(written));
    return table.HasRecordID ? datAbsence.LastKey() : 0;
}

void WriteRow(DataControl& datAbsence, const TableShape& table, int recordID, const RowValues& values)
{
    const RowValues written = Written(table, values);
    if (!written.empty() && datAbsence.Run(UpdateText(table.Name, written), BoundTo(written) << recordID) == 0)
        throw RuntimeError(EngineError::NoCurrentRecord, "The record has been removed by another user.");
}

void WriteRowsOf(DataControl& datAbsence, const char* table, const char* key, int id, const RowValues& values)
{
    datAbsence.Run(UpdateText(table, values, key), BoundTo(values) << id);
}

void ChangeRow(DataControl& datAbsence, const TableShape& table, int recordID, const RowValues& values)
{
    CopyToAuditTwin(datAbsence, table, recordID);
    RowValues stamped = values;
    if (table.Columns.contains("ModifiedBy"))
        stamped.insert(stamped.end(), {{"ModifiedBy", UserStamp()}, {"ModifiedDate", Today()}});
    WriteRow(datAbsence, table, recordID, stamped);
}

void CopyToAuditTwin(DataControl& datAbsence, const TableShape& table, int recordID)
{
    CopyToAuditTwin(datAbsence, table, "RecordID = ?", {recordID});
}

void CopyToAuditTwin(DataControl& datAbsence, const TableShape& table, const QString& conditions, const Values& values)
{
    if (table.Audit == Twin::None)
        return;
    const QStringList columns = QStringList("RecordID") + table.Columns.mid(0, table.Columns.size() - table.FileOnly);
    const QString all = columns.join(", ");
    try {
        datAbsence.Run(QStringLiteral("INSERT INTO %1_Modifications (%2) SELECT %3 FROM %1 WHERE %4")
                           .arg(table.Name, all, IsServerChosen() ? "*" : all, conditions),
                       values);
    } catch (const RuntimeError&) {
        if (table.Audit != Twin::Tried)
            throw;
    }
}

QString SelectFrom(const TableShape& table, const QString& conditions)
{
    return QStringLiteral("SELECT %1%2 FROM %3 WHERE %4")
        .arg(table.HasRecordID ? "RecordID, " : "", table.Columns.join(", "), table.Name, conditions);
}

RowValues Differing(const RowValues& before, const RowValues& now)
{
    RowValues differing;
    for (std::size_t i = 0; i < now.size(); ++i)
        if (now[i].Value != before[i].Value)
            differing.push_back(now[i]);
    return differing;
}

void RefuseChangedRow(const QString& more)
{
    throw RuntimeError(EngineError::RowChanged, "The record has been changed by another user." + more);
}

void InTransaction(DataControl& datAbsence, const std::function<void()>& work, Transaction::OnFailure onFailure)
{
    const Connection connection(datAbsence);
    if (IsServerChosen())
        return work();
    Transaction transaction(datAbsence.Engine(), onFailure);
    work();
    transaction.Commit();
}
