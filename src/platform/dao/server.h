#pragma once

#include "platform/dao/dao.h"

/// The server back end stands in the place of the file where it is chosen. It has no client: whatever is read is empty,
/// and a statement goes to the sink that tests install, and otherwise nowhere.
bool IsServerChosen();
/// `chosen` is looked at whenever something is read or written. Returns true.
bool FollowServerChoice(const bool& chosen);

void SendToServer(const QString& statement);
void SetServerSink(std::function<void(const QString&)> sink);

/// A statement with its values in the place of the question marks. Texts stand in single quotes.
QString ServerStatement(const QString& sql, const Values& values);
