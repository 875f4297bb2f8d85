#pragma once

#include "employees/employee_summary.h"
#include "employees/field_in_error.h"
#include "employees/frm_right_boxes.h"
#include "platform/dao/dao.h"
#include "selection/unit_lists.h"

#include <QDialog>

#include <functional>
#include <optional>

class EmployeeGeneralPage;
class EmployeeModulesPage;
class EmployeeProfilePage;
class EmployeeSchedulePage;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

/// The employee file of the session's fiscal year: adds, changes and deactivates employees, one at a time, and opens
/// transfers. The first press of a command opens its mode, the second one checks, asks and writes. Which mode it is can
/// be read from the buttons: all are enabled when nothing is under way.
class frmEmployees : public QDialog
{
public:
    explicit frmEmployees(QWidget* parent = nullptr);
    ~frmEmployees() override;

    /// Shows the printable list of employees; set once by the program.
    static std::function<void(QWidget*)> ShowEmployeesList;

    /// Ends what is under way, or closes the form when nothing is.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void BuildControls();
    void BuildButtons();
    void LayControls();
    void ConnectControls();
    void ConnectUnitLists();
    void ConnectApprovers();
    void LoadCaptions();
    void LoadComboBoxes();
    void Form_Load();
    void Form_Activate();
    void LoadRecords();
    void SelectStartingUnits();

    // Choices.
    void UnitList_Click(UnitList list);
    void Right_Click(Right box, bool granted);
    void LoadApprovers(bool wherever);
    void ShowApprover(QComboBox* combo, int approver, bool wherever);
    void cboApprovedBy_FirstLevel_Click();
    void cboApprovedBy_SecondLevel_Click();
    void Approver_Change(QComboBox* combo, int EmployeeRecord::*approver);
    void GetApproverFromList(QComboBox* combo, int EmployeeRecord::*approver);
    void sstEmployees_Click(int tab);

    // Modes.
    void SetButtons(bool idle, QPushButton* usable);
    void SetEntryEnabled(bool enabled);
    void ShowRecord();
    void ReadForm();
    bool LeavesFieldsFor(QPushButton* button);
    bool SelectEmployee();
    bool LoadEmployeeRecord();
    void StartEntry();
    void BeginAdd();
    void OfferTemplate();
    void BeginModify();
    void BeginDeactivate();
    bool IsRecordAccepted();
    UnitNames SelectedUnits() const;
    void ShowFieldInError(const FieldInError& field);
    void SaveNew();
    void SaveModified();
    void ApplyNewRate();
    void ConfirmDeactivation();
    void ResetVariables();

    void cmdAdd_Click();
    void cmdModify_Click();
    void cmdTransfer_Click();
    void cmdDeactivate_Click();
    void cmdListRecords_Click();
    void cmdCancelOperation_Click();
    void cmdQuit_Click();

    DataControl datAbsence{"frmEmployees"};
    EmployeeRecord record_;
    std::array<QVector<Unit>, 3> units_;
    bool Loading = false;
    bool ModifyMode = false;
    bool DeactivateMode = false;
    bool MustClose = false;
    bool activated_ = false;
    int EmployeeCount = 0; ///< active employees of the year when the form was opened

    RightBoxes boxes_{[this](Right box, bool granted) { Right_Click(box, granted); }};
    QTabWidget* sstEmployees = nullptr;
    EmployeeGeneralPage* general_ = nullptr;
    EmployeeSchedulePage* schedule_ = nullptr;
    EmployeeProfilePage* profile_ = nullptr;
    EmployeeModulesPage* modules_ = nullptr;
    QLabel* lblFiscalYear = nullptr;
    QLineEdit* txtFiscalYear = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdModify = nullptr;
    QPushButton* cmdTransfer = nullptr;
    QPushButton* cmdDeactivate = nullptr;
    QPushButton* cmdListRecords = nullptr;
    QPushButton* cmdCancelOperation = nullptr;
    QPushButton* cmdQuit = nullptr;
};
