#include "foundation/frm_toolkit_texts.h"
#include "platform/controls/form_kit.h"
#include "support/screen.h"
#include "tour.h"

#include <QApplication>
#include <QDir>
#include <QTextStream>

#include <cstdlib>

/// Walks through the program in English and in French: tour FOLDER.
int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", kScreen);
    QApplication application(argc, argv);
    ApplyStyle();
    InstallToolkitTexts();
    const QString folder = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("tour");
    QDir().mkpath(folder);
    SetComplaintHandler([](const QString& text) {
        QTextStream(stderr) << "The tour broke off: " << text << "\n";
        std::_Exit(1);
    });
    Tour(folder, true).Walk();
    Tour(folder, false).Walk();
    QTextStream(stdout) << "The tour is done: " << QDir(folder).absolutePath() << "\n";
    return 0;
}
