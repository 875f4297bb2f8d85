#include "foundation/rows.h"

#include "foundation/session_state.h"

namespace
{
std::function<void(const QString&)>& ServerSink()
{
    static std::function<void(const QString&)> sink;
    return sink;
}

QString Literal(const QVariant& value)
{
    if (value.typeId() == QMetaType::QString)
        return "'" + value.toString() + "'";
    if (value.typeId() == QMetaType::Float)
        return QString::number(value.toFloat(), 'g', 7);
    return value.toString();
}

void SetFields(Recordset& record, const RowValues& values)
{
    for (const auto& [column, value] : values)
        record[column] = value;
    record.Update();
}

QStringList AuditedColumns(Database& database, const QString& table)
{
    const QStringList columns = database.Columns(table);
    return table == "Attendance" ? columns.mid(0, columns.indexOf("CancelledDate") + 1) : columns;
}
} // namespace

int AddRow(DataControl& datAbsence, const char* table, const RowValues& values)
{
    if (SessionState.SQL_Server) {
        SendToServer(InsertStatement(table, values));
        return 0;
    }
    Recordset record = datAbsence.Open(QStringLiteral("SELECT * FROM %1 WHERE 1 = 0").arg(table));
    record.AddNew();
    SetFields(record, values);
    return datAbsence.Engine().LastKey();
}

void WriteRow(DataControl& datAbsence, const char* table, int recordID, const RowValues& values)
{
    if (SessionState.SQL_Server)
        return SendToServer(UpdateStatement(table, recordID, values));
    Recordset record = datAbsence.Open(QStringLiteral("SELECT * FROM %1 WHERE RecordID = ?").arg(table), recordID);
    record.Edit();
    SetFields(record, values);
}

void CopyToAuditTwin(DataControl& datAbsence, const char* table, int recordID)
{
    if (SessionState.SQL_Server)
        return SendToServer(QStringLiteral("INSERT INTO %1_Modifications SELECT * FROM %1 WHERE RecordID = %2")
                                .arg(table)
                                .arg(recordID));
    const QString columns = AuditedColumns(datAbsence.Engine(), table).join(", ");
    datAbsence.Execute(
        QStringLiteral("INSERT INTO %1_Modifications (%2) SELECT %2 FROM %1 WHERE RecordID = ?").arg(table, columns),
        recordID);
}

QString InsertStatement(const char* table, const RowValues& values)
{
    QStringList columns;
    QStringList literals;
    for (const auto& [column, value] : values) {
        columns << column;
        literals << Literal(value);
    }
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns.join(", "), literals.join(", "));
}

QString UpdateStatement(const char* table, int recordID, const RowValues& values)
{
    QStringList settings;
    for (const auto& [column, value] : values)
        settings << QStringLiteral("%1 = %2").arg(column, Literal(value));
    return QStringLiteral("UPDATE %1 SET %2 WHERE RecordID = %3")
        .arg(QLatin1String(table), settings.join(", "), QString::number(recordID));
}

void SendToServer(const QString& statement)
{
    if (ServerSink())
        ServerSink()(statement);
}

void SetServerSink(std::function<void(const QString&)> sink)
{
    ServerSink() = std::move(sink);
}
