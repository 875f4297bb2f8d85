#include "platform/controls/file_dialog.h"

#include "platform/program.h"

#include <QApplication>
#include <QFileDialog>

namespace
{
/// "Access(*.mdb)|*.mdb" as this toolkit writes it: "Access (*.mdb)".
QString QtFilter(const QString& filter)
{
    const QStringList parts = filter.split('|');
    return parts.size() == 2 ? parts[0].section('(', 0, 0) + " (" + parts[1] + ")" : filter;
}

/// Whether a file may be replaced is the caller's to tell: nobody is asked about what is then refused.
QString Choose(const FileChoice& choice)
{
    const QString start = NativePath(choice.Folder) + "/" + choice.FileName;
    QWidget* parent = QApplication::activeWindow();
    return choice.Saving ? QFileDialog::getSaveFileName(parent, choice.Title, start, QtFilter(choice.Filter), nullptr,
                                                        QFileDialog::DontConfirmOverwrite)
                         : QFileDialog::getOpenFileName(parent, choice.Title, start, QtFilter(choice.Filter));
}
} // namespace

void InstallFileDialog()
{
    SetFileChooser(Choose);
}
