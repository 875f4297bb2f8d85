#pragma once

#include "platform/dao/engine_errors.h"

struct sqlite3_stmt;

/// One prepared statement with its values bound. It lives no longer than the call that runs it.
class Statement
{
public:
    /// Throws when the text cannot be understood or the values do not match its question marks.
    Statement(sqlite3* handle, const QString& sql, const Values& values = {});
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Runs on to the next row; false at the end. Throws.
    bool Step();
    int ColumnCount() const;
    QString ColumnName(int column) const;
    QVariant Value(int column) const;
    qint64 WholeNumber(int column) const;

private:
    void Bind(const Values& values);
    void BindOne(int position, const QVariant& value);
    FileAccess Kind() const;

    sqlite3* handle_;
    sqlite3_stmt* statement_ = nullptr;
};
