#include "platform/dao/dao.h"
#include "platform/dao/engine_thread.h"

#include <sqlite3.h>

Transaction::Transaction(Database& database, OnFailure onFailure)
    : database_(database.self_), onFailure_(onFailure), nested_(database.IsInTransaction())
{
    database.PauseReading();
    Run(nested_ ? "SAVEPOINT inner_transaction" : "BEGIN IMMEDIATE");
    ++database.transactions_;
}

Transaction::~Transaction()
{
    try {
        if (open_ && onFailure_ == KeepOnFailure)
            Commit();
    } catch (const RuntimeError&) {
        // Nobody can be told here, and what is on its way must not be hidden. Commit has undone everything.
    }
    if (open_)
        Rollback();
}

void Transaction::Run(const char* sql)
{
    // A database that was closed in between has undone what was not committed.
    const auto database = database_.lock();
    if (!database)
        throw RuntimeError(EngineError::ConnectionLost, "The database of this transaction is no longer open.");
    (*database)->ExecuteScript(QString::fromLatin1(sql));
}

void Transaction::Commit()
{
    try {
        if (const auto database = database_.lock(); database && !nested_)
            OnEngineThread([file = *database] { file->RequireInPlace(EngineError::DiskError); });
        Run(nested_ ? "RELEASE inner_transaction" : "COMMIT");
    } catch (const RuntimeError&) {
        Rollback();
        throw;
    }
    Close();
}

void Transaction::Rollback()
{
    try {
        if (const auto database = database_.lock(); database && sqlite3_get_autocommit((*database)->Handle()) == 0)
            Run(nested_ ? "ROLLBACK TO inner_transaction; RELEASE inner_transaction" : "ROLLBACK");
    } catch (const RuntimeError&) {
        // The engine undoes at the latest when the file is closed; the failure that led here is the one to tell.
    }
    Close();
}

void Transaction::Close()
{
    open_ = false;
    const auto database = database_.lock();
    if (database && --(*database)->transactions_ == 0)
        (*database)->ended_ = nullptr;
}
