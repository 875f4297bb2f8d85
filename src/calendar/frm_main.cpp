#include "calendar/frm_main.h"

#include "attendance/request_reports.h"
#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_grid.h"
#include "calendar/frm_main_header.h"
#include "calendar/frm_main_legend.h"
#include "calendar/frm_main_tool_bar.h"
#include "calendar/frm_main_unsent.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/frm_captions.h"
#include "foundation/frm_login.h"
#include "foundation/log_in.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "ledger/time_banks.h"
#include "mail/mail_component.h"
#include "mail/mail_set_up.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"
#include "platform/user_settings.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QToolTip>
#include <QVBoxLayout>

#include <algorithm>

namespace
{
constexpr QSize kSize(1280, 860);
const QString kPlaceSetting = "WindowPlace";
} // namespace

frmMain::frmMain(QWidget* parent) : QMainWindow(parent)
{
    BuildControls();
    ConnectControls();
}

void frmMain::BuildControls()
{
    setObjectName("frmMain");
    setWindowIcon(PictureIcon("app"));
    menus_ = std::make_unique<MainMenus>(menuBar(), [this](const Command& command) { Run(command); });
    toolBar_ = new ToolBar;
    unsent_ = new UnsentLine(datAbsence);
    header_ = new MainHeader;
    pane_ = new CalendarPane;
    legend_ = new LegendPane;
    timAbsence = Named<QTimer>("timAbsence", this);
    timTimeOut = Named<QTimer>("timTimeOut", this);

    auto* calendar = new QVBoxLayout;
    calendar->setContentsMargins(12, 12, 12, 12);
    calendar->addWidget(pane_);
    auto* content = new QVBoxLayout;
    content->setContentsMargins(16, 12, 16, 12);
    content->setSpacing(12);
    content->addWidget(unsent_);
    content->addWidget(header_);
    content->addWidget(MakeCard(calendar), 1);
    content->addWidget(legend_);
    auto* page = new QWidget;
    auto* all = new QVBoxLayout(page);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(toolBar_);
    all->addLayout(content, 1);
    setCentralWidget(page);
    RestorePlace();
}

/// Where the user left it, as far as the screen of today has room.
void frmMain::RestorePlace()
{
    resize(FittingScreen(this, kSize));
    if (!restoreGeometry(UserSetting(SessionState.LoginID, kPlaceSetting).toByteArray()) || isMaximized())
        return;
    constexpr int kEdge = 8; // what a window's frame takes at its sides and below
    const QRect room = screen()->availableGeometry().adjusted(0, 0, -kEdge, -kEdge);
    QRect place(geometry().topLeft(), FittingScreen(this, size()));
    place.moveLeft(std::clamp(place.left(), room.left(), std::max(room.left(), room.right() - place.width())));
    place.moveTop(std::clamp(place.top(), room.top(), std::max(room.top(), room.bottom() - place.height())));
    if (place != geometry())
        setGeometry(place);
}

void frmMain::KeepPlace() const
{
    SetUserSetting(SessionState.LoginID, kPlaceSetting, saveGeometry());
}

void frmMain::ConnectControls()
{
    toolBar_->Chosen = header_->YearChosen = [this](const Command& command) { Run(command); };
    header_->CategoryChosen = [this](int category) {
        SelectCategory(category);
        DoesUserKnowAboutTimeBank();
    };
    header_->Explain([this] { return ExplainTotal(datAbsence); },
                     [this] { return ExplainTimeBank(datAbsence, SessionState); });
    unsent_->Emptied = [this] { pane_->setFocus(); };
    legend_->CategoryClicked = [this](int category) { SelectCategory(category); };
    pane_->DateClicked = [this](int date) { tools_.DateClicked(date); };
    pane_->Days().TakesRanges = [this] { return tools_.TakesRanges(); };
    pane_->Days().RangeChosen = [this](int from, int to) { tools_.MarkRange(from, to); };
    minuteWork_.SetWork("DownloadRedemption", DownloadRedemption);
    minuteWork_.SetWork("UpgradeMailerDLL", UpgradeMailerDLL);
    minuteWork_.SetWork("SpecifyMailerComponent", SpecifyMailerComponent);
    minuteWork_.SetWork("WereRequestsApproved", [this] { WereRequestsApproved(datAbsence); });
    minuteWork_.SetWork(
        "AreThereRequestsToApprove", [this] { AreThereRequestsToApprove(); }, [this] { return newRequests_; });
    connect(timAbsence, &QTimer::timeout, this, &frmMain::timAbsence_Timer);
    connect(timTimeOut, &QTimer::timeout, this, &frmMain::timTimeOut_Timer);
    for (QWidget* widget : findChildren<QWidget*>()) {
        widget->setMouseTracking(true);
        widget->installEventFilter(this);
    }
}

void frmMain::Form_Load()
{
    SessionState.ShowApproved = true;
    const Connection connection(datAbsence);
    Busy = true;
    LoadCaptions();
    LoadAdministratorInfo(datAbsence);
    LoadLists(Category::Forget);
    Busy = false;
    ActivateAllowedControls();
    header_->ShowNames();
    header_->ShowTotal(DurationText(0));
    pane_->Days().ShowCodes(ShowsCodes());
    pane_->Cover();
    pane_->setFocus();
    timAbsence->start(1000);
    timTimeOut->start(1000);
}

void frmMain::LoadCaptions()
{
    setWindowTitle(Fill(T("Tarvell   Session ID [{LoginID}]", "Tarvell   Identification: [{LoginID}]"),
                        {{"LoginID", SessionState.LoginID}}));
    QToolTip::hideText();
    Retranslate(this);
}

void frmMain::ActivateAllowedControls()
{
    menus_->ActivateBar();
    unsent_->Refresh();
    if (tools_.IsSelecting())
        return;
    menus_->ActivateAllowed();
    header_->Activate(true);
    legend_->SetUsable(true);
    toolBar_->ActivateAllowed();
}

void frmMain::DeactivateAllControls(const QString& toolInUse, bool usable)
{
    toolBar_->Deactivate(toolInUse, usable);
    menus_->Deactivate();
    header_->Activate(false);
    legend_->SetUsable(false);
}

bool frmMain::LogIn(int year, const QString& name)
{
    const int user = SessionState.UserID;
    const QString loginID = SessionState.LoginID;
    frmLogin login(year, name, this);
    ShowModal(login);
    if (SessionState.LoginID != loginID)
        ForgetUnsentNotices(); // they would go out in the name of somebody else
    return SessionState.UserID != user;
}

/// Who leaves gives up what could not be sent by mail.
bool frmMain::MayLeaveUnsent()
{
    return UnsentNotices().isEmpty() ||
           AskCarefully(
               T("WARNING:", "ATTENTION:"),
               T("Some e-mails could not be sent, and will not be sent once you leave Tarvell. Leave anyway?",
                 "Des courriels n'ont pu être envoyés, et ne le seront plus si vous quittez Tarvell. Souhaitez-vous "
                 "tout-de-même quitter?"),
               Face::Warning);
}

void frmMain::cmdQuit_Click()
{
    if (!MayLeaveUnsent())
        return;
    Busy = true;
    KeepPlace();
    SignOffMail();
    LogOutUser(datAbsence);
    EndProgram();
}

/// The program ends, or the window stays.
void frmMain::closeEvent(QCloseEvent* event)
{
    event->ignore();
    cmdQuit_Click();
}

void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !pane_->HideRecords())
        tools_.Abort();
    QMainWindow::keyPressEvent(event);
}

bool frmMain::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::KeyPress)
        IdleSeconds = 0;
    if (event->type() == QEvent::MouseMove) {
        IdleSeconds = 0;
        if (!pane_->isAncestorOf(qobject_cast<QWidget*>(target)))
            pane_->HideRecords();
    }
    return QMainWindow::eventFilter(target, event);
}

bool frmMain::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::MouseMove)
        IdleSeconds = 0;
    return QMainWindow::event(event);
}
