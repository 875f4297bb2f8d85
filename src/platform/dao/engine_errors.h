#pragma once

#include "platform/dao/dao.h"

/// What the engine was doing when it failed: a lost file is a lost connection to a reader and a disk error to a writer.
enum class Access
{
    Reading,
    Writing
};

/// Throws the RuntimeError for the last failure of `handle`. `sql`: the statement that failed, may be empty.
[[noreturn]] void ThrowEngineError(sqlite3* handle, Access access, const QString& sql = {});
