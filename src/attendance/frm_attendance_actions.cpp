#include "attendance/attendance_guards.h"
#include "attendance/attendance_messages.h"
#include "attendance/attendance_records.h"
#include "attendance/frm_attendance.h"
#include "attendance/frm_attendance_pages.h"
#include "foundation/common_services.h"
#include "foundation/forms.h"
#include "selection/frm_get_approved_by.h"

#include <QComboBox>
#include <QPushButton>
#include <QTabWidget>

void frmAttendance::cmdAddOrUpdate_Click()
{
    if (!LeaveDurationBoxes())
        return;
    ReadForm();
    RecalculateTotalTime(entry_);
    ShowMissing(this);
    SetButtonsEnabled(false);
    bool updated = false;
    if (!Attempt([&] { updated = PassesGuards() && FindApprovers() && Dispatch(); })) {
        SessionState.ReloadCalendar = true; // the records written before the failure stay
        entry_.ConflictsAccepted = false;   // another press finds them
    }
    sstAttendance->setEnabled(true);
    SetButtonsEnabled(true);
    if (!updated) {
        TakeUpCategory();
        return FocusFieldInError();
    }
    entry_.CurrentSelection = entry_.EmployeeName;
    SessionState.ReloadCalendar = true;
    accept();
}

/// A click that ends with nothing written may have turned borrowed time into claimed time: what the category says is
/// read anew, and its name stays empty.
void frmAttendance::TakeUpCategory()
{
    if (entry_.SelectedCategoryID == 0 || entry_.SelectedCategoryID == general_->cboCategories->currentData().toInt())
        return;
    Attempt([this] { ReadCategory(datAbsence, entry_); });
    ShowEntry();
}

/// Some guards change what the form shows: the comment, the category.
bool frmAttendance::PassesGuards()
{
    ValidateRecords(entry_);
    ShowEntry();
    if (entry_.Validated && entry_.RequiresMonitoring == 1)
        WillEntitlBeExceeded(datAbsence, entry_);
    if (entry_.Validated && DrawsOnTimeBank(entry_)) {
        IsTimeBankedEnough(entry_);
        ShowCategory();
    }
    if (entry_.Validated && !entry_.ConflictsAccepted)
        AreThereOtherAttendanceRecords(datAbsence, entry_);
    return entry_.Validated;
}

bool frmAttendance::FindApprovers()
{
    if (entry_.Kind != AttendanceKind::Submit)
        return true;
    if (entry_.FirstApprover.RecordID == 0)
        GetApprovedBy();
    return entry_.FirstApprover.RecordID != 0;
}

/// For this request only: the employee's file stays as it is.
void frmAttendance::GetApprovedBy()
{
    frmGetApprovedBy form(entry_, this);
    ShowModal(form);
    entry_.FirstApprover.RecordID = form.ApproverID();
    LookUpApprovers();
}

/// True when the records are written.
bool frmAttendance::Dispatch()
{
    if (IsModifying())
        return ModifyAttendance();
    return entry_.Kind == AttendanceKind::Submit ? SubmitAttendance() : NewAttendance();
}

bool frmAttendance::NewAttendance()
{
    if (!ConfirmNewAttendance(entry_))
        return false;
    ::NewAttendance(datAbsence, entry_);
    return true;
}

bool frmAttendance::SubmitAttendance()
{
    if (!ConfirmSubmission(entry_))
        return false;
    ::SubmitAttendance(datAbsence, entry_);
    if (FormsAbove.SendRequestNotice)
        FormsAbove.SendRequestNotice(entry_);
    TellSubmitted(entry_);
    return true;
}

bool frmAttendance::ModifyAttendance()
{
    if (!ConfirmModification(entry_))
        return false;
    sstAttendance->setEnabled(false);
    ::ModifyAttendance(datAbsence, entry_);
    TellModified();
    return true;
}

void frmAttendance::FocusFieldInError()
{
    if (entry_.FieldInError.isEmpty())
        cmdAddOrUpdate->setFocus();
    else
        GoTo(entry_.FieldInError);
}

void frmAttendance::SetButtonsEnabled(bool enabled)
{
    EnableOrExplain(cmdAddOrUpdate, mayAdd_,
                    {"You may not enter records for this employee",
                     "Vous ne pouvez faire d'enregistrements pour cet(te) employé(e)"});
    if (!enabled)
        cmdAddOrUpdate->setEnabled(false);
    cmdQuit->setEnabled(enabled);
}

std::optional<CalendarSelection> EnterAttendance(const AttendanceJob& job, QWidget* parent)
{
    frmAttendance form(job, parent);
    if (ShowModal(form) != QDialog::Accepted)
        return std::nullopt;
    return form.Entry();
}
