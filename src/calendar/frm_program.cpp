#include "calendar/frm_program.h"

#include "attendance/request_notice.h"
#include "calendar/frm_main.h"
#include "foundation/common_services.h"
#include "foundation/forms.h"
#include "foundation/frm_splash_screen.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"
#include "reports/frm_lists.h"
#include "setup/frm_set_up_wizard.h"

#include <QApplication>
#include <QTimer>

void WireForms()
{
    FormsAbove = {};
    FormsAbove.ShowEmployeesList = [](QWidget* parent) {
        frmLists list(ListKind::Employees, parent);
        ShowModal(list);
    };
    FormsAbove.ShowCategoriesList = [](QWidget* parent) {
        frmLists list(ListKind::Categories, parent);
        ShowModal(list);
    };
    FormsAbove.SendRequestNotice = EMailRequest;
}

Program::Program()
{
    WireForms();
    FormsAbove.ShowSetUpWizard = [this] { ShowSetUpWizard(); };
    FormsAbove.ShowMain = [this] { ShowMain(); };
}

Program::~Program() = default;

void Program::Start()
{
    splash_ = std::make_unique<frmSplashScreen>();
    splash_->show();
    QTimer::singleShot(0, splash_.get(), [this] { Activate(); });
}

/// A start that fails half-way would leave nothing on the screen to work in or to close.
void Program::Activate()
{
    try {
        splash_->Form_Activate();
    } catch (const RuntimeError& error) {
        TellError(error);
        EndProgram();
    }
}

void Program::ShowSetUpWizard()
{
    frmSetUpWizard wizard;
    if (ShowModal(wizard) == QDialog::Accepted)
        QTimer::singleShot(0, qApp, [this] { Start(); });
}

void Program::ShowMain()
{
    main_ = std::make_unique<frmMain>();
    main_->show();
    main_->Form_Load();
}
