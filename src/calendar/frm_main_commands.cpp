#include "attendance/frm_approval.h"
#include "attendance/frm_attendance.h"
#include "attendance/leave_requests.h"
#include "attendance/record_cancellation.h"
#include "attendance/request_notice.h"
#include "attendance/request_reports.h"
#include "calendar/frm_main.h"
#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_grid.h"
#include "calendar/frm_main_header.h"
#include "calendar/frm_main_legend.h"
#include "calendar/frm_main_tool_bar.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/forms.h"
#include "foundation/frm_update_admin_info.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "foundation/user_profile.h"
#include "platform/controls/form_kit.h"
#include "platform/mail/mail_programs.h"
#include "platform/program.h"
#include "platform/user_settings.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"

#include <QApplication>
#include <QTimer>

namespace
{
constexpr int kMinute = 60'000;
constexpr int kShutDownSeconds = 60;
const QString kCodesSetting = "CategoryCodes";
} // namespace

void frmMain::Run(const Command& command)
{
    if (command.Opens)
        command.Opens(*this);
    else
        TellNotYet();
}

void frmMain::ReloadAfterEditing()
{
    if (!SessionState.ReloadCalendar)
        return;
    const LoadingGuard busy(Busy);
    ReloadSelection(Category::KeepIfListed);
}

void frmMain::mnuFileDatabaseLocation_Click()
{
    Tell(T("DATABASE PATH:", "LOCALISATION DE LA BANQUE DE DONNÉES:"),
         T("The database currently used by Tarvell is located in the following folder:",
           "La banque de données exploitée par Tarvell se trouve présentement dans le répertoire suivant:") +
             "\r\n\r\n" + SessionState.DatabasePath);
}

void frmMain::mnuSpecialSwitchLanguage_Click()
{
    const LoadingGuard busy(Busy);
    SessionState.English = !SessionState.English;
    LoadCaptions();
    try {
        SetUserLanguage(datAbsence);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
    ReloadSelection(Category::KeepIfListed);
}

void frmMain::mnuSpecialDeniedRequests_Click()
{
    TellDeniedRequests(datAbsence);
}

void frmMain::mnuSpecialCategoryCodes_Click()
{
    SetUserSetting(SessionState.LoginID, kCodesSetting, !ShowsCodes());
    pane_->Days().ShowCodes(ShowsCodes());
    ActivateAllowedControls();
}

bool frmMain::ShowsCodes()
{
    return UserSetting(SessionState.LoginID, kCodesSetting).toBool();
}

void frmMain::mnuHelpKeys_Click()
{
    Tell(
        T("KEYBOARD:", "CLAVIER:"),
        T("Arrows\tday by day, week by week\r\nHome, End\tfirst and last day of the month (with Ctrl: of the "
          "year)\r\nPage Up, Page Down\tmonth by month\r\nEnter or Space\tas a click on the day\r\nShift + "
          "arrows\tmark a range, for «Several dates» and «Request»\r\nEscape\tclose the list of a day, give a tool "
          "up\r\nCtrl+1 to Ctrl+8\tthe tools, from left to right\r\nCtrl+E\temployees\r\nCtrl+P\tprint the "
          "calendar\r\nCtrl+L\tthe other language (français)\r\nCtrl+Q\texit\r\nAlt or F10\tthe menus\r\nF1\tthis list",
          "Flèches\tjour par jour, semaine par semaine\r\nDébut, Fin\tpremier et dernier jour du mois (avec Ctrl : "
          "de l'année)\r\nPage préc., Page suiv.\tmois par mois\r\nEntrée ou Espace\tcomme un clic sur le "
          "jour\r\nMaj + flèches\tmarquer une suite de jours,\r\n\tpour «Plusieurs dates» et "
          "«Demande»\r\nÉchap\tfermer la "
          "liste d'un jour, abandonner un outil\r\nCtrl+1 à Ctrl+8\tles outils, de gauche à droite\r\nCtrl+E\temployés"
          "\r\nCtrl+P\timprimer le calendrier\r\nCtrl+L\tl'autre langue (English)\r\nCtrl+Q\tquitter\r\nAlt ou "
          "F10\tles menus\r\nF1"
          "\tcette liste"));
}

void frmMain::mnuSpecialUpdateAdminInfo_Click()
{
    frmUpdateAdminInfo form(this);
    ShowModal(form);
    LoadAdministratorInfo(datAbsence);
}

void frmMain::UseTool(const QString& tool)
{
    tools_.imgZoom_Click(tool);
}

void frmMain::ShowHint(const QString& hint)
{
    pane_->ShowHint(hint);
}

void frmMain::BeginTool(const QString& tool, bool usable)
{
    Busy = true;
    setCursor(Qt::CrossCursor);
    pane_->Days().ForgetRange();
    pane_->setFocus(); // dates can be taken with the keyboard at once
    DeactivateAllControls(tool, usable);
}

void frmMain::EndTool()
{
    Busy = false;
    IdleSeconds = 0;
    pane_->Days().ForgetRange();
    unsetCursor();
    ActivateAllowedControls();
}

void frmMain::RefreshDate(int date)
{
    pane_->Days().RefreshDate(date);
}

/// The calendar keeps what it shows, and follows to another employee only when records were written for him.
void frmMain::ShowAttendance(const AttendanceJob& job)
{
    const int category = SessionState.SelectedCategoryID;
    const auto written = EnterAttendance(job, this);
    if (SessionState.SelectedCategoryID != category)
        header_->BlankCategory(); // borrowed time became claimed time, whose name nothing knows, as required
    if (written) {
        const bool another = written->EmployeeID != SessionState.EmployeeID;
        static_cast<CalendarSelection&>(SessionState) = *written;
        if (another)
            ReloadSelection();
    }
    ReloadIfAsked();
}

DateList frmMain::ShowSelectDates()
{
    frmSelectDates form(EntireYear(), SessionState, this);
    ShowModal(form);
    return form.Dates();
}

int frmMain::SelectAttendanceRecord(const QVector<ListEntry>& lines)
{
    frmSelectAttendanceRecord form(lines, this);
    ShowModal(form);
    return form.SelectedRecordID();
}

/// What was cancelled before a failure is no longer shown, and its approver is told, whatever fails behind it.
void frmMain::CancelRecords(const QVector<int>& records)
{
    const LoadingGuard busy(Busy);
    CancelledRecords cancelled = ::CancelRecords(datAbsence, records);
    try {
        ReloadIfAsked();
    } catch (const RuntimeError&) {
        if (!cancelled.Failure)
            cancelled.Failure = std::current_exception();
    }
    EMailRequestCancellation(datAbsence, cancelled);
    ActivateAllowedControls();
    if (cancelled.Failure)
        TellFailure(cancelled);
}

void frmMain::DisplayDailyAttendance(int date)
{
    QStringList lines;
    {
        const Connection connection(datAbsence);
        lines = DailyAttendance(datAbsence, date);
    }
    const QString holiday = HolidayName(holidays_, date);
    const QString title = FormatDate(date, "ddd dd-mmm-yyyy");
    pane_->ShowRecords(holiday.isEmpty() ? title : title + "   " + holiday,
                       lines.isEmpty() ? T("No records", "Aucune absence") : lines.join("\r\n"));
}

void frmMain::AreThereRequestsToApprove()
{
    newRequests_ = false;
    if (OfferApproval(TakeNewRequests(datAbsence)))
        imgApprove_Click();
}

void frmMain::imgApprove_Click()
{
    frmApproval form(this);
    ShowModal(form);
    ReloadAfterEditing();
    LookWhatOthersDid();
    ActivateAllowedControls();
}

void frmMain::timAbsence_Timer()
{
    if (Busy || TimerBusy || MailOnItsWay::IsAny())
        return;
    if (!CalendarLoaded) {
        CalendarLoaded = true;
        timAbsence->setInterval(kMinute); // first: a calendar that fails must not come again each second
        ReloadCalendar();
        pane_->ResizeScreen();
    }
    LookWhatOthersDid();
    RunMinuteWork();
    ActivateAllowedControls();
}

/// All of it is read together.
void frmMain::LookWhatOthersDid()
{
    newRequests_ = false;
    try {
        const Connection connection(datAbsence);
        RereadClosing(datAbsence);
        const bool approves = SessionState.IsAuthorizedToApprove != 0;
        newRequests_ = approves && SessionState.ClosedDate == 0 && !UntoldRequests(datAbsence).isEmpty();
        toolBar_->ShowWaiting("imgApprove", approves ? WaitingRequests(datAbsence) : 0);
    } catch (const RuntimeError&) {
        // The next minute looks again; who does nothing must not lose what he has typed because a share was away.
    }
}

/// A step that fails is told; it must not keep the window locked. Locking closes a list that is open: it waits until
/// there is something to do, and the list is shut. What the locked steps tell does not come over an open form.
void frmMain::RunMinuteWork()
{
    const LoadingGuard running(TimerBusy);
    try {
        minuteWork_.Run(MinuteWork::Phase::Open);
        if (!minuteWork_.IsDue(MinuteWork::Phase::Locked) || QApplication::activePopupWidget() ||
            QApplication::activeModalWidget())
            return;
        DeactivateAllControls();
        minuteWork_.Run(MinuteWork::Phase::Locked);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}

void frmMain::timTimeOut_Timer()
{
    IdleSeconds = Busy || MailOnItsWay::IsAny() ? 0 : IdleSeconds + 1;
    const int left = SessionState.TimeOutSeconds - IdleSeconds;
    if (left > 0)
        return header_->ShowTimeOut({});
    header_->ShowTimeOut(Fill(
        T("Tarvell will be shut down in {seconds} seconds...", "Tarvell sera interrompu dans {seconds} secondes..."),
        {{"seconds", QString::number(left)}}));
    if (left > -kShutDownSeconds)
        return;
    KeepPlace();
    EndProgram();
}
