#include "platform/user_settings.h"

#include <QSettings>
#include <QUrl>

namespace
{
/// A log-in name may hold what parts the names of settings.
QString SettingKey(const QString& loginID, const QString& name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(loginID.toUpper())) + "/" + name;
}

QSettings OpenSettings()
{
    return QSettings(QSettings::IniFormat, QSettings::UserScope, "Tarvell", "Tarvell");
}
} // namespace

QVariant UserSetting(const QString& loginID, const QString& name, const QVariant& otherwise)
{
    return OpenSettings().value(SettingKey(loginID, name), otherwise);
}

void SetUserSetting(const QString& loginID, const QString& name, const QVariant& value)
{
    OpenSettings().setValue(SettingKey(loginID, name), value);
}

void SetUserSettingsFolder(const QString& folder)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}
