#include "support/statement_trace.h"

#include <sqlite3.h>

StatementTrace::StatementTrace()
{
    sqlite3_trace_v2(datAbsence_.Engine().Handle(), SQLITE_TRACE_STMT, Add, this);
}

StatementTrace::~StatementTrace()
{
    sqlite3_trace_v2(datAbsence_.Engine().Handle(), 0, nullptr, nullptr);
}

int StatementTrace::Add(unsigned, void* trace, void* statement, void*)
{
    char* sql = sqlite3_expanded_sql(static_cast<sqlite3_stmt*>(statement));
    static_cast<StatementTrace*>(trace)->statements_.append(sql);
    sqlite3_free(sql);
    return 0;
}
