#pragma once

#include "employees/transfer_employee.h"

#include <QDialog>

#include <functional>

class QLabel;
class QListWidget;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

/// Moves employees of the session's year to another organization, department or group, one after the other: the form
/// stays open for the next transfer.
class frmTransferEmployees : public QDialog
{
public:
    explicit frmTransferEmployees(QWidget* parent = nullptr);

    /// Somebody was transferred while the form was open.
    bool Transferred() const { return transferred_; }

private:
    /// One side of the screen: its data and its lists of units.
    struct UnitLists
    {
        TransferSide Data;
        std::array<QListWidget*, 3> Lists{}; ///< lstFromOrganization, lstFromDepartment, ...
        std::array<QLabel*, 3> Captions{};
    };

    void BuildControls();
    void BuildSide(UnitLists& side, const QString& name);
    QVBoxLayout* LayFromSide();
    QVBoxLayout* LayToSide();
    void ConnectControls();
    void ConnectSide(UnitLists& side, const std::function<void()>& chosen);
    void LoadCaptions();
    void LoadListBoxes();
    void ShowSide(UnitLists& side);
    void FillList(UnitLists& side, UnitList list);
    void HighlightChoice(const UnitLists& side);
    void ChooseInSide(UnitLists& side, UnitList list);
    void LoadEmployees();
    void lstFromEmployee_Click();
    void ShowEverybody();
    EmployeeTransfer Transfer() const;
    void cmdProcess_Click();
    void CarryOut(const EmployeeTransfer& transfer);

    DataControl datAbsence{"frmTransferEmployees"};
    UnitLists from_;
    UnitLists to_;
    int RecordID = 0; ///< of the employee selected, 0 none
    bool transferred_ = false;
    bool Loading = false;
    QLabel* lblStep1 = nullptr;
    QLabel* lblStep2 = nullptr;
    QLabel* lblFromEmployee = nullptr;
    QListWidget* lstFromEmployee = nullptr;
    QRadioButton* optMoveWithAccruals = nullptr; ///< neither option has an effect: what was accrued always moves along
    QRadioButton* optMoveWithoutAccruals = nullptr;
    QPushButton* cmdProcess = nullptr;
    QPushButton* cmdQuit = nullptr;
};
