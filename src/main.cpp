#include "calendar/frm_program.h"
#include "foundation/common_services.h"
#include "foundation/frm_message_box.h"
#include "foundation/frm_toolkit_texts.h"
#include "foundation/frm_waiting_notice.h"
#include "platform/controls/file_dialog.h"
#include "platform/controls/form_kit.h"
#include "platform/dao/dao.h"
#include "platform/program.h"

#include <QApplication>

namespace
{
/// The last guard: a failure of the data engine that no form expected is told, and the program goes on.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receiver, QEvent* event) override
    {
        try {
            return QApplication::notify(receiver, event);
        } catch (const RuntimeError& error) {
            TellError(error);
            return false;
        }
    }
};
} // namespace

int main(int argc, char* argv[])
{
    const Application application(argc, argv);
    QApplication::setApplicationName("Tarvell");
    QApplication::setApplicationVersion(
        QStringLiteral("%1.%2.%3").arg(TARVELL_VERSION_MAJOR).arg(TARVELL_VERSION_MINOR).arg(TARVELL_VERSION_REVISION));
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyStyle();
    InstallToolkitTexts();
    InstallMessageBox();
    InstallWaitingNotice();
    InstallFileDialog();
    PrepareProgramFolder(QApplication::applicationDirPath() + "/delivered");
    Program program;
    program.Start();
    return QApplication::exec();
}
