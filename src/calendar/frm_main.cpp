#include "calendar/frm_main.h"

#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_header.h"
#include "calendar/frm_main_legend.h"
#include "calendar/frm_main_tool_bar.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/frm_captions.h"
#include "foundation/frm_login.h"
#include "foundation/log_in.h"
#include "foundation/rows.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "ledger/time_banks.h"
#include "platform/clock.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>
#include <QVBoxLayout>

namespace
{
constexpr QSize kSize(1280, 860);
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
    resize(FittingScreen(this, kSize));
    menus_ = std::make_unique<MainMenus>(menuBar(), [this](const Command& command) { Run(command); });
    toolBar_ = new ToolBar;
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
}

void frmMain::ConnectControls()
{
    toolBar_->Chosen = header_->YearChosen = [this](const Command& command) { Run(command); };
    header_->CategoryChosen = [this](int category) { SelectCategory(category); };
    legend_->CategoryClicked = [this](int category) {
        header_->SelectCategory(category);
        SelectCategory(category);
    };
    pane_->DateClicked = [this](int date) { tools_.DateClicked(date); };
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
    header_->LoadCategories(datAbsence);
    LoadEmployeeInfo(datAbsence);
    legend_->LoadLegend(datAbsence);
    Busy = false;
    ActivateAllowedControls();
    header_->ShowNames();
    header_->ShowTotal(DurationText(0));
    pane_->Cover();
    timAbsence->start(1000);
    timTimeOut->start(1000);
}

void frmMain::LoadCaptions()
{
    setWindowTitle(Fill(T("Tarvell   Session ID [{LoginID}]", "Tarvell   Identification: [{LoginID}]"),
                        {{"LoginID", SessionState.LoginID}}));
    Retranslate(this);
}

/// One query for the total and one for the records, however many days the year has.
void frmMain::LoadDates()
{
    const Connection connection(datAbsence);
    total_ = TotalForTheYear(datAbsence);
    const QVector<CalendarRecord> records = RecordsOfTheYear(datAbsence);
    holidays_ = LoadHolidays(datAbsence);
    const bool inDays = SessionState.EmployeeID != 0 && total_ != 0;
    header_->ShowTotal(DurationText(total_, inDays ? SessionState.HoursWorkedDaily : 0));
    SessionState.SelectedDate = Today();
    calendar_.LoadDates(SessionState, records, holidays_,
                        [this](int done, int all) { pane_->ShowProgress(done, all); });
    pane_->Show(calendar_);
}

void frmMain::RecalculateTimeBank()
{
    if (SessionState.EmployeeOrganizationID == 0)
        return header_->ShowTimeBank({});
    const Connection connection(datAbsence);
    header_->ShowTimeBank(DurationText(TimeBankOf(datAbsence, SessionState)));
}

void frmMain::ReloadCalendar()
{
    const BusyPointer hourglass;
    const Connection connection(datAbsence);
    pane_->Cover();
    RecalculateTimeBank();
    LoadDates();
    pane_->Uncover();
}

void frmMain::ReloadIfAsked()
{
    if (!SessionState.ReloadCalendar)
        return;
    SessionState.ReloadCalendar = false;
    header_->ShowNames();
    ReloadCalendar();
}

void frmMain::SelectCategory(int categoryID)
{
    SessionState.SelectedCategoryID = categoryID;
    ReloadCalendar();
}

void frmMain::ReloadSelection()
{
    const Connection connection(datAbsence);
    header_->LoadCategories(datAbsence);
    legend_->LoadLegend(datAbsence);
    LoadEmployeeInfo(datAbsence);
    header_->ShowNames();
    SessionState.ReloadCalendar = false;
    ReloadCalendar();
    ActivateAllowedControls();
}

void frmMain::ActivateAllowedControls()
{
    menus_->ActivateBar();
    if (tools_.IsSelecting())
        return;
    menus_->ActivateAllowed();
    header_->Activate(true);
    legend_->SetUsable(true);
    toolBar_->ActivateAllowed();
}

void frmMain::DeactivateAllControls(const QString& usableTool)
{
    toolBar_->Deactivate(usableTool);
    menus_->Deactivate();
    header_->Activate(false);
    legend_->SetUsable(false);
}

void frmMain::ChangeToYear(Neighbour direction)
{
    const LoadingGuard busy(Busy);
    const Connection connection(datAbsence);
    if (ChangeYear(datAbsence, direction, [this](int year, const QString& name) { return LogIn(year, name); })) {
        LoadCaptions();
        ReloadSelection();
    }
}

bool frmMain::LogIn(int year, const QString& name)
{
    const int user = SessionState.UserID;
    frmLogin login(year, name, this);
    ShowModal(login);
    return SessionState.UserID != user;
}

void frmMain::cmdQuit_Click()
{
    Busy = true;
    LogOutUser(datAbsence);
    EndProgram();
}

void frmMain::closeEvent(QCloseEvent*)
{
    cmdQuit_Click();
}

void frmMain::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        tools_.Abort();
    QMainWindow::keyPressEvent(event);
}

bool frmMain::eventFilter(QObject* target, QEvent* event)
{
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
