#include "platform/dao/file_system.h"

#include "platform/dao/dao.h"

#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
int AskSystem(int file, int command, void* lock)
{
    return fcntl(file, command, lock);
}

LockCall lockCall = AskSystem;
std::atomic<bool> locksRefused = false;

/// Stands in the place of the engine's "fcntl".
int NotingControl(int file, int command, ...)
{
    va_list arguments;
    va_start(arguments, command);
    void* argument = va_arg(arguments, void*);
    va_end(arguments);
    if (command != F_SETLK || static_cast<const struct flock*>(argument)->l_type == F_UNLCK)
        return AskSystem(file, command, argument);
    const int result = lockCall(file, command, argument);
    locksRefused = result != 0 && errno == ENOLCK;
    return result;
}
} // namespace

void RequireFile(const QString& file)
{
    struct stat found = {};
    const QByteArray path = file.toLocal8Bit();
    const int failure = stat(path.constData(), &found) == 0 ? 0 : errno;
    const bool tooLong = path.size() > sqlite3_vfs_find(nullptr)->mxPathname - static_cast<int>(sizeof "-journal");
    if (tooLong || failure == ENAMETOOLONG)
        throw RuntimeError(EngineError::CannotOpen, "The path of the file is longer than the system allows: " + file);
    if (failure == ENOENT || failure == ENOTDIR || (failure == 0 && !S_ISREG(found.st_mode)))
        throw RuntimeError(EngineError::FileNotFound, "Could not find the file '" + file + "'.");
    if (failure != 0)
        throw RuntimeError(failure == EACCES ? EngineError::CannotOpen : EngineError::DiskError,
                           QStringLiteral("The file '%1' cannot be reached (%2).").arg(file, std::strerror(failure)));
}

void ShareAsFolder(const QString& file)
{
    constexpr mode_t kReadAndWrite = 0666;
    struct stat folder;
    if (stat(QFileInfo(file).path().toLocal8Bit().constData(), &folder) != 0)
        return;
    const QByteArray path = file.toLocal8Bit();
    mode_t mode = (folder.st_mode & kReadAndWrite) | S_IRUSR | S_IWUSR;
    if (chown(path.constData(), static_cast<uid_t>(-1), folder.st_gid) != 0)
        mode &= ~static_cast<mode_t>(S_IRWXG); // it would open the file to another group than the folder's
    chmod(path.constData(), mode);
}

void NoteRefusedLocks()
{
    sqlite3_vfs* system = sqlite3_vfs_find("unix");
    system->xSetSystemCall(system, "fcntl", reinterpret_cast<sqlite3_syscall_ptr>(NotingControl));
}

bool AreLocksRefused()
{
    return locksRefused;
}

void SetLockCall(LockCall call)
{
    lockCall = call ? call : AskSystem;
}
