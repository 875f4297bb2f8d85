#include "raw_engine.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace
{
void LookAt(sqlite3_stmt* statement, int column)
{
    switch (sqlite3_column_type(statement, column)) {
    case SQLITE_INTEGER:
        benchmark::DoNotOptimize(sqlite3_column_int64(statement, column));
        break;
    case SQLITE_FLOAT:
        benchmark::DoNotOptimize(sqlite3_column_double(statement, column));
        break;
    default:
        benchmark::DoNotOptimize(sqlite3_column_text(statement, column));
    }
}
} // namespace

RawEngine::RawEngine(const QString& file)
{
    if (sqlite3_open_v2(file.toUtf8().constData(), &handle_, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        qFatal("cannot open %s", qPrintable(file));
    for (const char* setting :
         {"PRAGMA synchronous = FULL", "PRAGMA cache_size = -32768", "PRAGMA temp_store = MEMORY"})
        Run(setting);
}

RawEngine::~RawEngine()
{
    sqlite3_close(handle_);
}

void RawEngine::Run(const QByteArray& sql)
{
    sqlite3_stmt* statement = nullptr;
    int result = sqlite3_prepare_v2(handle_, sql.constData(), static_cast<int>(sql.size()), &statement, nullptr);
    while (result == SQLITE_OK || result == SQLITE_ROW) {
        result = sqlite3_step(statement);
        for (int column = 0; result == SQLITE_ROW && column < sqlite3_column_count(statement); ++column)
            LookAt(statement, column);
    }
    sqlite3_finalize(statement);
    if (result != SQLITE_DONE)
        qFatal("%s: %s", sqlite3_errmsg(handle_), sql.constData());
}
