#include "platform/program.h"

#include "platform/dao/dao.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <cstdlib>

namespace
{
QString& Folder()
{
    static QString folder = QStringLiteral(".");
    return folder;
}

std::function<void()>& EndHandler()
{
    static std::function<void()> handler;
    return handler;
}

std::function<QString(const FileChoice&)>& FileChooser()
{
    static std::function<QString(const FileChoice&)> chooser;
    return chooser;
}

QString FindPart(const QDir& folder, const QString& part)
{
    if (folder.exists(part))
        return part;
    for (const QString& name : folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        if (name.compare(part, Qt::CaseInsensitive) == 0)
            return name;
    return part;
}

bool Deliver(const QString& file, const QString& target)
{
    return QFile::copy(file, target) && QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
}

bool CanBeWritten(const QString& folder)
{
    QFile probe(folder + "/tarvell.tmp");
    return probe.open(QIODevice::WriteOnly) && probe.remove();
}
} // namespace

QString ProgramFolder()
{
    return Folder();
}

void SetProgramFolder(const QString& folder)
{
    Folder() = QDir::cleanPath(folder);
}

void PrepareProgramFolder(const QString& deliveredFolder)
{
    const QString own = QCoreApplication::applicationDirPath();
    SetProgramFolder(CanBeWritten(own) ? own : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    QDir().mkpath(ProgramFolder());
    const QStringList names{"Config.mdb", "Tarvell.mdb"};
    const auto lies = [](const QString& name) { return QFile::exists(NativePath(JoinPath(ProgramFolder(), name))); };
    if (std::any_of(names.begin(), names.end(), lies))
        return;
    const auto deliver = [&](const QString& name) {
        return Deliver(deliveredFolder + "/" + name, ProgramFolder() + "/" + name);
    };
    if (!std::all_of(names.begin(), names.end(), deliver))
        for (const QString& name : names) // one without the other would never be completed by a later start
            QFile::remove(ProgramFolder() + "/" + name);
}

QString NativePath(const QString& path)
{
    QString native = path;
    native.replace('\\', '/');
    native = QDir::cleanPath(native);
    if (native.isEmpty() || QFileInfo::exists(native))
        return native;
    const bool absolute = native.startsWith('/');
    QString found = absolute ? QStringLiteral("/") : QStringLiteral("./");
    for (const QString& part : native.split('/', Qt::SkipEmptyParts))
        found = QDir(found).filePath(FindPart(QDir(found), part));
    return absolute ? found : found.mid(2);
}

QString JoinPath(const QString& folder, const QString& name)
{
    return folder + "\\" + name;
}

void EndProgram()
{
    if (EndHandler())
        EndHandler()();
    std::_Exit(0);
}

void SetEndHandler(std::function<void()> handler)
{
    EndHandler() = std::move(handler);
}

QString ChooseFile(const FileChoice& choice)
{
    DefaultWorkspace().PauseReading(); // nobody else waits while a person looks for a file
    return FileChooser() ? FileChooser()(choice) : QString();
}

void SetFileChooser(std::function<QString(const FileChoice&)> chooser)
{
    FileChooser() = std::move(chooser);
}
