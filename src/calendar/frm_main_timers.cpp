#include "attendance/leave_requests.h"
#include "attendance/request_reports.h"
#include "calendar/frm_main.h"
#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_header.h"
#include "calendar/frm_main_tool_bar.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "platform/controls/form_kit.h"
#include "platform/mail/mail_programs.h"
#include "platform/program.h"

#include <QApplication>
#include <QTimer>

namespace
{
constexpr int kMinute = 60'000;
constexpr int kShutDownSeconds = 60;
} // namespace

void frmMain::AreThereRequestsToApprove()
{
    newRequests_ = false;
    if (OfferApproval(TakeNewRequests(datAbsence)))
        imgApprove_Click();
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
