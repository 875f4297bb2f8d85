#pragma once

#include <QString>

/// Every path of a database ends in "\TARVELL.MDB"; what stands before it is the folder.
constexpr int kDatabaseNameLength = 12;

/// Lets the user point at a Tarvell.mdb, beginning in `folder`. Returns the path in upper case with backslashes, empty
/// when cancelled. `saving`: the file is one to be made.
QString ChooseDatabaseFile(const QString& title, const QString& folder, bool saving = false);

/// True for an upper-case path of a file called TARVELL.MDB.
bool HasDatabaseName(const QString& path);
/// Says what the file must be called.
void TellInvalidDatabaseName();

/// Opens the file and reads its first fiscal year. A failure, an empty database among them, is told with its number
/// and description.
bool CanBeConnectedTo(const QString& path);
