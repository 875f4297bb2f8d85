#pragma once

#include "foundation/connection.h"

#include <QByteArray>
#include <QList>

#include <sqlite3.h>

/// The statements that the program's connection runs while this lives, in order and with their values filled in. It
/// keeps the file open, so that one connection serves all.
class StatementTrace
{
public:
    StatementTrace() { sqlite3_trace_v2(datAbsence_.Engine().Handle(), SQLITE_TRACE_STMT, Add, this); }
    ~StatementTrace() { sqlite3_trace_v2(datAbsence_.Engine().Handle(), 0, nullptr, nullptr); }
    StatementTrace(const StatementTrace&) = delete;
    StatementTrace& operator=(const StatementTrace&) = delete;

    const QList<QByteArray>& Statements() const { return statements_; }

private:
    static int Add(unsigned, void* trace, void* statement, void*)
    {
        char* sql = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
        static_cast<StatementTrace*>(trace)->statements_.append(sql);
        sqlite3_free(sql);
        return 0;
    }

    DataControl datAbsence_{"StatementTrace"};
    Connection connection_{datAbsence_};
    QList<QByteArray> statements_;
};
