#include "platform/dao/statement.h"

#include <sqlite3.h>

Statement::Statement(sqlite3* handle, const QString& sql, const Values& values) : handle_(handle)
{
    const QByteArray text = sql.toUtf8();
    const char* rest = nullptr;
    if (sqlite3_prepare_v2(handle, text.constData(), static_cast<int>(text.size()), &statement_, &rest) != SQLITE_OK)
        ThrowEngineError(handle, FileAccess::Reading, sql);
    try {
        if (statement_ == nullptr || !QByteArray(rest).trimmed().isEmpty())
            throw RuntimeError(EngineError::StatementError, "One statement was expected. " + sql);
        Bind(values);
    } catch (...) {
        sqlite3_finalize(statement_);
        throw;
    }
}

Statement::~Statement()
{
    sqlite3_finalize(statement_);
}

bool Statement::Step()
{
    const int result = sqlite3_step(statement_);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        ThrowEngineError(handle_, Kind(), QString::fromUtf8(sqlite3_sql(statement_)));
    return result == SQLITE_ROW;
}

int Statement::ColumnCount() const
{
    return sqlite3_column_count(statement_);
}

QString Statement::ColumnName(int column) const
{
    return QString::fromUtf8(sqlite3_column_name(statement_, column));
}

QVariant Statement::Value(int column) const
{
    switch (sqlite3_column_type(statement_, column)) {
    case SQLITE_INTEGER:
        return static_cast<qlonglong>(sqlite3_column_int64(statement_, column));
    case SQLITE_FLOAT:
        return sqlite3_column_double(statement_, column);
    case SQLITE_NULL:
        return {};
    default:
        break;
    }
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    return QString::fromUtf8(text, sqlite3_column_bytes(statement_, column));
}

qint64 Statement::WholeNumber(int column) const
{
    return sqlite3_column_int64(statement_, column);
}

void Statement::Bind(const Values& values)
{
    const int expected = sqlite3_bind_parameter_count(statement_);
    if (expected != values.size())
        throw RuntimeError(EngineError::UnknownName, QStringLiteral("The statement needs %1 values and got %2. %3")
                                                         .arg(expected)
                                                         .arg(values.size())
                                                         .arg(QString::fromUtf8(sqlite3_sql(statement_))));
    for (int i = 0; i < expected; ++i)
        BindOne(i + 1, values[i]);
}

void Statement::BindOne(int position, const QVariant& value)
{
    int result = SQLITE_OK;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        result = sqlite3_bind_null(statement_, position);
        break;
    case QMetaType::Float:
    case QMetaType::Double:
        result = sqlite3_bind_double(statement_, position, value.toDouble());
        break;
    case QMetaType::QString:
    case QMetaType::QByteArray: {
        const QByteArray text = value.toString().toUtf8();
        result =
            sqlite3_bind_text(statement_, position, text.constData(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
        break;
    }
    default:
        result = sqlite3_bind_int64(statement_, position, value.toLongLong());
        break;
    }
    if (result != SQLITE_OK)
        ThrowEngineError(handle_, Kind());
}

FileAccess Statement::Kind() const
{
    return sqlite3_stmt_readonly(statement_) != 0 ? FileAccess::Reading : FileAccess::Writing;
}
