#pragma once

#include <QString>

#include <functional>

/// Opens a page in the user's browser; false when that cannot be done.
bool OpenInBrowser(const QString& address);
/// Tests put their own in; an empty function brings the user's browser back.
void SetBrowser(std::function<bool(const QString& address)> browser);
