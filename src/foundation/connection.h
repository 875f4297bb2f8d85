#pragma once

#include "platform/dao/dao.h"

/// The passwords of the two files.
inline const QString kDatabasePassword = QStringLiteral("k7Vq2Zt9mXe");
inline const QString kConfigPassword = QStringLiteral("p3n8Rw62jq0d");

/// Opens Tarvell.mdb in SessionState.DatabasePath and writes a line to Connections.log; on the server back end it only
/// writes the line. A failure is told in the message "FATAL ERROR:" and ends the program. Calls may be nested: the
/// file stays open until the last disconnection.
void ConnectToDatabase(DataControl& datAbsence);
void DisconnectFromDatabase(DataControl& datAbsence);

/// What a message says of a connection that failed, up to the question or the announcement that follows.
QString ConnectionFailure(const RuntimeError& error);
/// Tells a failure of either file in the message "FATAL ERROR:" and ends the program.
[[noreturn]] void EndOnFailedConnection(const RuntimeError& error);

/// Opens the file like ConnectToDatabase but throws RuntimeError instead of ending the program.
void TryToConnect(DataControl& datAbsence);

/// Connected while it lives.
class Connection
{
public:
    explicit Connection(DataControl& datAbsence) : datAbsence_(datAbsence) { ConnectToDatabase(datAbsence_); }
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

private:
    DataControl& datAbsence_;
};
