#pragma once

#include "platform/dao/dao.h"

#include <functional>
#include <vector>

struct ColumnValue
{
    const char* Column;
    QVariant Value;
};

/// What is to be written, as one list of column and value: the file's twin writes it through a recordset, the
/// server's twin renders it as a statement.
using RowValues = std::vector<ColumnValue>;

/// Adds a record and returns its RecordID; 0 on the server back end and for tables without that key. Throws.
int AddRow(DataControl& datAbsence, const char* table, const RowValues& values);
/// Changes the record with that RecordID. Throws; 3021 when it is gone.
void WriteRow(DataControl& datAbsence, const char* table, int recordID, const RowValues& values);

/// Copies a record, unchanged, into the audit twin of its table. Cost columns of attendance are not audited.
void CopyToAuditTwin(DataControl& datAbsence, const char* table, int recordID);

/// The statements of the server back end. Texts stand in single quotes.
QString InsertStatement(const char* table, const RowValues& values);
QString UpdateStatement(const char* table, int recordID, const RowValues& values);

/// The server back end has no client: a statement goes to the sink that tests install, and otherwise nowhere.
void SendToServer(const QString& statement);
void SetServerSink(std::function<void(const QString&)> sink);
