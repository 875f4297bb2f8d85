#pragma once

#include "attendance/attendance_entry.h"
#include "foundation/frm_base.h"

#include <functional>
#include <optional>

class AttendanceAdditionalPage;
class AttendanceGeneralPage;
class QTabWidget;

/// Adds one record per date, submits a request for them, or modifies one record, as its job says. It is accepted when
/// the records are written; the session is then asked for a reload of the calendar.
class frmAttendance : public FormBase
{
public:
    explicit frmAttendance(const AttendanceJob& job, QWidget* parent = nullptr);
    ~frmAttendance() override;

    /// What has been entered so far, the employee with his name as CurrentSelection once records are written.
    const AttendanceEntry& Entry() const { return entry_; }

private:
    void BuildControls();
    void ConnectControls();
    void ConnectTimesAndDurations();
    void LoadComboBoxes();
    void LoadJob();
    void LookUpApprovers();
    void Form_Activate() override;

    void LoadEmployees();
    void MarkEmployee();
    bool IsModifying() const { return entry_.Kind == AttendanceKind::Modify; }
    bool MayEnterForEmployee();
    void EnterEmployee(int employee);
    void LoadCategoryList();
    void EnterCategory();
    void Change(const std::function<void()>& change);
    void ReadForm();
    void ShowEntry();
    void ShowParts();
    void ShowCategory();
    bool WarnOfMissingEntitlement();
    void BlankCategory();

    void lstWho_Click();
    void cboCategories_Click(int index);
    void DayPart_Click(DayPart part, bool checked);
    void Time_Click(void (*choose)(AttendanceEntry&, const QString&), const QString& text);
    void lstMultiplicator_Click(int index);
    void Duration_Change();
    bool LeaveDurationBoxes();
    void txtHourlyRate_LostFocus();

    void cmdAddOrUpdate_Click();
    bool PassesGuards();
    void TakeUpCategory();
    bool FindApprovers();
    void GetApprovedBy();
    bool Dispatch();
    bool NewAttendance();
    bool SubmitAttendance();
    bool ModifyAttendance();
    void FocusFieldInError();
    void SetButtonsEnabled(bool enabled);

    AttendanceEntry entry_;
    bool durationChanged_ = false; ///< since a duration box was last left
    bool mayAdd_ = true;

    QTabWidget* sstAttendance = nullptr;
    AttendanceGeneralPage* general_ = nullptr;
    AttendanceAdditionalPage* additional_ = nullptr;
    QLabel* lblApprovers = nullptr; ///< a request: who will not hear of it
    QPushButton* cmdAddOrUpdate = nullptr;
    QPushButton* cmdQuit = nullptr;
};

/// Opens the entry form for a job. Returns the employee for whom records were written, nothing when none were.
std::optional<CalendarSelection> EnterAttendance(const AttendanceJob& job, QWidget* parent);
