#include "platform/dao/engine_errors.h"

#include <sqlite3.h>

Batch::Batch(Database& database) : database_(database.self_), nested_(sqlite3_get_autocommit(database.handle_) == 0)
{
    Run(nested_ ? "SAVEPOINT batch" : "BEGIN IMMEDIATE");
}

Batch::~Batch()
{
    if (!open_)
        return;
    try {
        Commit();
    } catch (const RuntimeError&) {
        // Nobody can be told here; Commit has undone the batch.
    }
}

void Batch::Run(const char* sql)
{
    // A database that was closed in between has undone what was not committed.
    const auto database = database_.lock();
    if (!database)
        throw RuntimeError(EngineError::ConnectionLost, "The database of this batch is no longer open.");
    if (sqlite3_exec((*database)->Handle(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        ThrowEngineError((*database)->Handle(), FileAccess::Writing);
}

void Batch::Commit()
{
    if (!open_)
        return;
    try {
        Run(nested_ ? "RELEASE batch" : "COMMIT");
        open_ = false;
    } catch (const RuntimeError&) {
        const std::exception_ptr failure = std::current_exception();
        try {
            Rollback();
        } catch (const RuntimeError&) {
            open_ = false;
        }
        std::rethrow_exception(failure);
    }
}

void Batch::Rollback()
{
    if (!open_)
        return;
    open_ = false;
    Run(nested_ ? "ROLLBACK TO batch; RELEASE batch" : "ROLLBACK");
}
