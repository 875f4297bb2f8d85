#include "foundation/connection.h"
#include "platform/dao/dao.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

/// Makes one of the empty databases that the program is delivered with: make_database SCRIPT TARGET.
int main(int argc, char* argv[])
{
    QTextStream out(stderr);
    if (argc != 3) {
        out << "usage: make_database SCRIPT TARGET\n";
        return 2;
    }
    const QString target = QString::fromLocal8Bit(argv[2]);
    QFile script(QString::fromLocal8Bit(argv[1]));
    if (!script.open(QIODevice::ReadOnly)) {
        out << "cannot read " << script.fileName() << "\n";
        return 1;
    }
    const bool isConfig = QFileInfo(target).fileName().compare("Config.mdb", Qt::CaseInsensitive) == 0;
    QDir().mkpath(QFileInfo(target).absolutePath());
    try {
        Database::Create(target, isConfig ? kConfigPassword : kDatabasePassword, QString::fromUtf8(script.readAll()));
    } catch (const RuntimeError& error) {
        out << error.Number << ": " << error.Description << "\n";
        return 1;
    }
    return 0;
}
