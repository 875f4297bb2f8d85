#pragma once

#include "attendance/attendance_entry.h"
#include "platform/dao/dao.h"

#include <QDialog>

#include <functional>

class AttendanceAdditionalPage;
class AttendanceGeneralPage;
class QPushButton;
class QTabWidget;

/// Adds one record per selected date, submits a request for them, or modifies one record, as the operation flags of the
/// session say. On success the session holds the employee's name as CurrentSelection and asks for a reload of the
/// calendar, and the form is accepted.
class frmAttendance : public QDialog
{
public:
    explicit frmAttendance(QWidget* parent = nullptr);
    ~frmAttendance() override;

private:
    AttendanceEntry entry_;

public:
    /// Set by the calendar before the form opens: the record of a modification, and whether the user has already
    /// accepted that there are other records on the date.
    int& RecordToModify = entry_.RecordToModify;
    bool& ConflictsAccepted = entry_.ConflictsAccepted;

    /// Finds a FirstApprover for a request; set once by the program.
    static std::function<void(AttendanceEntry&)> ShowGetApprovedBy;
    /// Tells the approvers of a request that has been written; set once by the program, nothing is sent without it.
    static std::function<void(const AttendanceEntry&)> SendRequestNotice;

    void reject() override { cmdQuit_Click(); }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void ConnectControls();
    void ConnectTimesAndDurations();
    void LoadCaptions();
    void LoadComboBoxes();
    void Form_Load();
    void Form_Activate();

    void LoadEmployees();
    void MarkEmployee();
    bool MayEnterForEmployee();
    void LoadCategoryList();
    void EnterCategory();
    void ReadForm();
    void ShowEntry();
    void ShowParts();
    void ShowCategory();
    void WarnOfMissingEntitlement();
    void BlankCategory();

    void lstWho_Click();
    void cboCategories_Click(int index);
    void DayPart_Click(DayPart part, bool checked);
    void Time_Click(void (*choose)(AttendanceEntry&, const QString&), const QString& text);
    void lstMultiplicator_Click(int index);
    void Duration_Change();
    bool LeaveDurationBoxes();
    void RefuseDuration(QWidget* box);
    void txtHourlyRate_LostFocus();
    void LimitComment();

    void cmdAddOrUpdate_Click();
    bool PassesGuards();
    bool FindApprovers();
    bool Dispatch();
    bool NewAttendance();
    bool SubmitAttendance();
    bool ModifyAttendance();
    void FocusFieldInError();
    void SetButtonsEnabled(bool enabled);
    void ResetVariables();
    void cmdQuit_Click();

    DataControl datAbsence{"frmAttendance"};
    bool Loading = false;
    bool activated_ = false;
    bool durationChanged_ = false; ///< since a duration box was last left
    bool updated_ = false;
    bool mayAdd_ = true;

    QTabWidget* sstAttendance = nullptr;
    AttendanceGeneralPage* general_ = nullptr;
    AttendanceAdditionalPage* additional_ = nullptr;
    QPushButton* cmdAddOrUpdate = nullptr;
    QPushButton* cmdQuit = nullptr;
};
