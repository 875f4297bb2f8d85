#include "platform/controls/file_dialog.h"

#include "platform/controls/form_kit.h"
#include "platform/program.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

namespace
{
constexpr QSize kFileDialogSize(900, 520);

/// "Access(*.mdb)|*.mdb" as this toolkit writes it: "Access (*.mdb)".
QString QtFilter(const QString& filter)
{
    const QStringList parts = filter.split('|');
    return parts.size() == 2 ? parts[0].section('(', 0, 0) + " (" + parts[1] + ")" : filter;
}

/// The toolkit's own dialog, where the desktop has none: dates and kinds stand whole, names take the rest.
void FitColumns(const QFileDialog& dialog)
{
    const auto* files = dialog.findChild<QTreeView*>("treeView");
    if (!files)
        return;
    files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    files->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// Whether a file may be replaced is the caller's to tell: nobody is asked about what is then refused.
QString Choose(const FileChoice& choice)
{
    QFileDialog dialog(QApplication::activeWindow(), choice.Title, NativePath(choice.Folder), QtFilter(choice.Filter));
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setAcceptMode(choice.Saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(choice.Saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    dialog.selectFile(choice.FileName);
    FitColumns(dialog);
    dialog.resize(FittingScreen(&dialog, dialog.size().expandedTo(kFileDialogSize)));
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}
} // namespace

void InstallFileDialog()
{
    SetFileChooser(Choose);
}
