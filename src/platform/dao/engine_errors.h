#pragma once

#include "platform/dao/dao.h"

/// What the engine was doing when it failed: a lost file is a lost connection to a reader and a disk error to a writer.
enum class FileAccess
{
    Reading,
    Writing
};

/// Throws the RuntimeError for the last failure of `handle`. `sql`: the statement that failed, may be empty.
[[noreturn]] void ThrowEngineError(sqlite3* handle, FileAccess access, const QString& sql = {});
