#include "attendance/frm_attendance.h"
#include "attendance/record_cancellation.h"
#include "attendance/request_notice.h"
#include "calendar/frm_main.h"
#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_grid.h"
#include "calendar/frm_main_header.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "platform/controls/form_kit.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"

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
