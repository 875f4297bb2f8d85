#include "support/file_calls.h"

#include "platform/dao/dao.h"

#include <cstring>
#include <new>
#include <sqlite3.h>

namespace
{
struct
{
    std::array<int, kFileCalls> Calls{};
    FileCall Kind{};
    int Nth = 0; ///< 0: nothing is to fail
    int Code = SQLITE_OK;
    bool ForGood = false;
    bool Failed = false;
    int Lost = 0; ///< files opened up to this one answer no more
    int Opened = 0;
} state;

/// The file that the engine sees; the real one lies behind it in memory.
struct WatchedFile
{
    sqlite3_file Base;
    int Number;
    sqlite3_file* Real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    const sqlite3_io_methods& Does() { return *Real()->pMethods; }
};

sqlite3_vfs* realVfs = nullptr;
sqlite3_vfs watching;

int Noted(FileCall kind, int file)
{
    const int count = ++state.Calls[static_cast<std::size_t>(kind)];
    if (file != 0 && file <= state.Lost)
        return state.Code;
    if (state.Nth == 0 || kind != state.Kind || count != state.Nth)
        return SQLITE_OK;
    state.Failed = true;
    if (state.ForGood)
        state.Lost = state.Opened;
    return state.Code;
}

/// Notes a call on a file and makes it, unless it is to fail.
template <FileCall Kind, auto Method, typename... Arguments>
int On(sqlite3_file* file, Arguments... arguments)
{
    auto* watched = reinterpret_cast<WatchedFile*>(file);
    const int failure = Noted(Kind, watched->Number);
    return failure != SQLITE_OK ? failure : (watched->Does().*Method)(watched->Real(), arguments...);
}

/// What can neither fail nor costs a way to the server.
template <auto Method, typename... Arguments>
int Through(sqlite3_file* file, Arguments... arguments)
{
    auto* watched = reinterpret_cast<WatchedFile*>(file);
    return (watched->Does().*Method)(watched->Real(), arguments...);
}

int Unlock(sqlite3_file* file, int level)
{
    Noted(FileCall::Lock, 0);
    return Through<&sqlite3_io_methods::xUnlock>(file, level);
}

int Control(sqlite3_file* file, int operation, void* argument)
{
    auto* watched = reinterpret_cast<WatchedFile*>(file);
    if (operation == SQLITE_FCNTL_HAS_MOVED)
        Noted(FileCall::Look, 0);
    return watched->Does().xFileControl(watched->Real(), operation, argument);
}

const sqlite3_io_methods kMethods = {1,
                                     Through<&sqlite3_io_methods::xClose>,
                                     On<FileCall::Read, &sqlite3_io_methods::xRead, void*, int, sqlite3_int64>,
                                     On<FileCall::Write, &sqlite3_io_methods::xWrite, const void*, int, sqlite3_int64>,
                                     On<FileCall::Write, &sqlite3_io_methods::xTruncate, sqlite3_int64>,
                                     On<FileCall::Sync, &sqlite3_io_methods::xSync, int>,
                                     On<FileCall::Size, &sqlite3_io_methods::xFileSize, sqlite3_int64*>,
                                     On<FileCall::Lock, &sqlite3_io_methods::xLock, int>,
                                     Unlock,
                                     On<FileCall::Lock, &sqlite3_io_methods::xCheckReservedLock, int*>,
                                     Control,
                                     Through<&sqlite3_io_methods::xSectorSize>,
                                     Through<&sqlite3_io_methods::xDeviceCharacteristics>,
                                     nullptr,
                                     nullptr,
                                     nullptr,
                                     nullptr,
                                     nullptr,
                                     nullptr};

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* watched = new (file) WatchedFile{};
    if (const int failure = Noted(FileCall::Open, 0))
        return failure;
    watched->Number = ++state.Opened;
    const int result = realVfs->xOpen(realVfs, name, watched->Real(), flags, outFlags);
    watched->Base.pMethods = watched->Real()->pMethods ? &kMethods : nullptr;
    return result;
}

int Remove(sqlite3_vfs*, const char* name, int sync)
{
    const int failure = Noted(FileCall::Remove, 0);
    return failure != SQLITE_OK ? failure : realVfs->xDelete(realVfs, name, sync);
}

int Look(sqlite3_vfs*, const char* name, int flags, int* found)
{
    const int failure = Noted(FileCall::Look, 0);
    return failure != SQLITE_OK ? failure : realVfs->xAccess(realVfs, name, flags, found);
}
} // namespace

FileCalls::FileCalls()
{
    DefaultWorkspace().Forget();
    state = {};
    realVfs = sqlite3_vfs_find(nullptr);
    watching = *realVfs;
    watching.zName = "watching";
    watching.szOsFile = static_cast<int>(sizeof(WatchedFile)) + realVfs->szOsFile;
    watching.xOpen = Open;
    watching.xDelete = Remove;
    watching.xAccess = Look;
    sqlite3_vfs_register(&watching, 1);
}

FileCalls::~FileCalls()
{
    Recover();
    DefaultWorkspace().Forget();
    sqlite3_vfs_unregister(&watching);
}

void FileCalls::StartCounting()
{
    state.Calls = {};
}

int FileCalls::Of(FileCall kind) const
{
    return state.Calls[static_cast<std::size_t>(kind)];
}

int FileCalls::All() const
{
    int all = 0;
    for (const int calls : state.Calls)
        all += calls;
    return all;
}

void FileCalls::Fail(FileCall kind, int nth, int code, bool forGood)
{
    Recover();
    StartCounting();
    state.Kind = kind;
    state.Nth = nth;
    state.Code = code;
    state.ForGood = forGood;
}

void FileCalls::Recover()
{
    state.Nth = 0;
    state.Lost = 0;
    state.Failed = false;
}

bool FileCalls::HasFailed() const
{
    return state.Failed;
}
