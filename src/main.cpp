#include "calendar/frm_main.h"
#include "foundation/common_services.h"
#include "foundation/frm_message_box.h"
#include "foundation/frm_splash_screen.h"
#include "foundation/not_yet.h"
#include "platform/controls/file_dialog.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"
#include "setup/frm_set_up_wizard.h"

#include <QApplication>
#include <QTimer>

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

/// Runs the start in a window of its own; the wizard comes back to it when it is done.
class Program
{
public:
    void Start()
    {
        splash_ = std::make_unique<frmSplashScreen>(
            StartUpSteps{[this] { ShowSetUpWizard(); }, [] { TellNotYet("frmConnect"); }, [this] { ShowMain(); }});
        splash_->show();
        QTimer::singleShot(0, splash_.get(), [this] { Activate(); });
    }

private:
    /// A start that fails half-way would leave nothing on the screen to work in or to close.
    void Activate()
    {
        try {
            splash_->Form_Activate();
        } catch (const RuntimeError& error) {
            TellError(error);
            EndProgram();
        }
    }

    void ShowSetUpWizard()
    {
        frmSetUpWizard wizard([this] { configured_ = true; });
        ShowModal(wizard);
        if (configured_)
            QTimer::singleShot(0, qApp, [this] { Start(); });
    }

    void ShowMain()
    {
        main_ = std::make_unique<frmMain>();
        main_->show();
        main_->Form_Load();
    }

    std::unique_ptr<frmSplashScreen> splash_;
    std::unique_ptr<frmMain> main_;
    bool configured_ = false;
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
    InstallMessageBox();
    InstallFileDialog();
    PrepareProgramFolder(QApplication::applicationDirPath() + "/delivered");
    Program program;
    program.Start();
    return QApplication::exec();
}
