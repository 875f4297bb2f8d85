#pragma once

#include <QString>

/// What changes from one distribution of the program to the next.
namespace Deployment
{
inline const QString SupportAddress = QStringLiteral("support@tarvell.example");
inline const QString WebHost = QStringLiteral("www.tarvell.example");
constexpr int Major = TARVELL_VERSION_MAJOR;
constexpr int Minor = TARVELL_VERSION_MINOR;
constexpr int Revision = TARVELL_VERSION_REVISION;

/// "1.2.0"
inline QString Version()
{
    return QStringLiteral("%1.%2.%3").arg(Major).arg(Minor).arg(Revision);
}
/// "120"
inline QString VersionText()
{
    return Version().remove('.');
}
} // namespace Deployment
