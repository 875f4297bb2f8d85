#include "platform/system_information.h"

#include <QProcess>
#include <QStandardPaths>

bool StartSystemInformation()
{
    const QStringList tools[] = {
        {"kinfocenter"}, {"hardinfo2"}, {"hardinfo"}, {"gnome-control-center", "info-overview"}};
    for (const QStringList& tool : tools) {
        const QString path = QStandardPaths::findExecutable(tool.first());
        if (!path.isEmpty() && QProcess::startDetached(path, tool.mid(1)))
            return true;
    }
    return false;
}
