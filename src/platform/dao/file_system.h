#pragma once

#include <QString>

/// Throws 3024 when there is no such file, 3051 when its path is longer than the system can open.
void RequireFile(const QString& file);
/// Whoever may read or write in the folder of `file` may do so with the file too.
void ShareAsFolder(const QString& file);

/// From here on it is noted when the system refuses a lock because the folder of the file cannot lock at all; the
/// engine itself takes that for another user's lock.
void NoteRefusedLocks();
/// Whether the last lock that was asked for was refused so.
bool AreLocksRefused();

/// How the system is asked for a lock; tests put their own in.
using LockCall = int (*)(int file, int command, void* lock);
void SetLockCall(LockCall call);
