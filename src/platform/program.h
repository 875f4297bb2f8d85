#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// The folder of the databases and logs, without a separator at its end: the executable's own when it can be written,
/// otherwise a per-user data folder, which receives the delivered empty databases at the first start.
QString ProgramFolder();
/// Sets another folder; tests and the tour own theirs.
void SetProgramFolder(const QString& folder);
/// Finds the folder and puts the delivered databases there when neither lies in it yet.
void PrepareProgramFolder(const QString& deliveredFolder);

/// A path with either separator, as this machine writes it; each part is found whatever its letter case. A part that
/// does not exist is kept as given.
QString NativePath(const QString& path);
/// Folder and file name joined by the program's own separator, "\\".
QString JoinPath(const QString& folder, const QString& name);

/// Ends the program at once, with nothing else run. Tests and the tour install a handler, which must not return.
[[noreturn]] void EndProgram();
void SetEndHandler(std::function<void()> handler);

/// What the file chooser is asked for. `Filter` is written "Access(*.mdb)|*.mdb".
struct FileChoice
{
    QString Title;
    QString Filter;
    QString FileName;
    QString Folder;
    bool Saving = false;
};
/// The chosen path, empty when cancelled.
QString ChooseFile(const FileChoice& choice);
void SetFileChooser(std::function<QString(const FileChoice&)> chooser);
