#pragma once

#include <QString>
#include <QVariant>

/// What a user of this workstation has set for himself, such as where his window stands; it is nobody else's business
/// and never in the shared database. An unset one gives `otherwise`.
QVariant UserSetting(const QString& loginID, const QString& name, const QVariant& otherwise = {});
/// One that cannot be kept is forgotten with the session.
void SetUserSetting(const QString& loginID, const QString& name, const QVariant& value);

/// Where they are kept, in a file of the program's own; the desktop's place for such files without it. Tests have
/// theirs.
void SetUserSettingsFolder(const QString& folder);
