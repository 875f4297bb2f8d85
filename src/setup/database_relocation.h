#pragma once

#include <QString>

/// The empty database that the program is delivered with.
QString OriginalDatabasePath();

/// Whether a new database may be put at `target` (upper case) instead of `current`. A refusal is told: another name
/// than Tarvell.mdb, the place where it lies already, a place where another database lies.
bool MayBeRelocated(const QString& target, const QString& current);

/// Copies a database to another place and waits up to 30 seconds until the copy can be opened, as a network is not
/// always quick. Throws RuntimeError; no copy is left then.
void CopyDatabase(const QString& original, const QString& target);

/// True when the database has no fiscal year. Throws RuntimeError when it cannot be read.
bool IsDatabaseEmpty(const QString& path);
