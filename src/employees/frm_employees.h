#pragma once

#include "employees/employee_summary.h"
#include "employees/frm_right_boxes.h"
#include "foundation/frm_editing.h"
#include "selection/unit_lists.h"

class EmployeeGeneralPage;
class EmployeeProfilePage;
class EmployeeSchedulePage;

/// The employee file of the session's fiscal year: adds, changes and deactivates employees, one at a time, and opens
/// transfers. It closes when the year has no organization or no department.
class frmEmployees : public EditingForm<EmployeeRecord>
{
public:
    explicit frmEmployees(QWidget* parent = nullptr);
    ~frmEmployees() override;

protected:
    void Form_Activate() override;
    bool Begin(EditingMode mode) override;
    void Finish(EditingMode mode) override;
    void ResetVariables() override;
    bool HasRecord() const override { return record_.RecordID != 0; }
    void EnableControls() override;
    void cmdCancelOperation_Click() override;
    /// The record goes on from what is shown: answers given stay with it.
    void Show(const EmployeeRecord& record) override;
    EmployeeRecord Read() const override;
    std::optional<Fault> Validate(EmployeeRecord& record) override;
    bool Confirm(EditingMode mode, const EmployeeRecord& record) override;
    void Write(EditingMode mode, const EmployeeRecord& record) override;
    void TellDone(EditingMode mode, const EmployeeRecord& record) override;

private:
    void AddTabs();
    void LoadRecords();
    void SelectStartingUnits();
    void OfferTemplate();
    bool SelectEmployee();
    bool LoadEmployeeRecord();
    bool LeavesFieldsFor(QPushButton* button);
    bool ConfirmDeactivation(const EmployeeRecord& record);
    void ApplyNewRate(const EmployeeRecord& record);

    void UnitList_Click(UnitList list, int row);
    void Right_Click(Right box, bool granted);
    void sstEmployees_Click(int tab);
    void cmdTransfer_Click();
    void cmdListRecords_Click();

    std::array<QVector<Unit>, 3> units_;
    int EmployeeCount = 0; ///< active employees of the year when the form was opened
    QString reason_;       ///< why the employee is deactivated

    RightBoxes boxes_{[this](Right box, bool granted) { Right_Click(box, granted); }};
    EmployeeGeneralPage* general_;
    EmployeeSchedulePage* schedule_;
    EmployeeProfilePage* profile_;
};
