#pragma once

#include "platform/dao/dao.h"

/// The passwords of the two files.
inline const QString kDatabasePassword = QStringLiteral("k7Vq2Zt9mXe");
inline const QString kConfigPassword = QStringLiteral("p3n8Rw62jq0d");

/// Opens Tarvell.mdb in SessionState.DatabasePath and writes a line to Connections.log; on the server back end it only
/// writes the line. Throws ConnectionFailed, or 3260 as it is while another user holds the file. Calls may be nested:
/// the file stays open, and what is read is read together, until the last disconnection; only while a person is asked
/// something others may write.
void ConnectToDatabase(DataControl& datAbsence);
void DisconnectFromDatabase(DataControl& datAbsence);

/// What a message says of a connection that failed, up to the question or the announcement that follows.
QString ConnectionFailure(const RuntimeError& error);
/// Tells a failure of either file in the message "FATAL ERROR:" and ends the program.
[[noreturn]] void EndOnFailedConnection(const RuntimeError& error);

/// Opens the file like ConnectToDatabase but throws the failure as it is, which does not end the program.
void TryToConnect(DataControl& datAbsence);

/// Connected while it lives. It leaves no lock behind that it did not find: while a person is asked in the midst of one
/// unit of work, the minute's tick and the form that asks do theirs.
class Connection
{
public:
    explicit Connection(DataControl& datAbsence);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

private:
    DataControl& datAbsence_;
    const bool foundReading_;
};
