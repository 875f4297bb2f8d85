#pragma once

#include "employees/clone_source.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

/// Offers a colleague's record as a template for a new one. Leaving the form without a template changes nothing.
class frmCloneEmployee : public QDialog
{
public:
    /// `record`: the new employee, filled from the source chosen.
    explicit frmCloneEmployee(EmployeeRecord& record, QWidget* parent = nullptr);

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions();
    void LoadEmployees();
    void lstCloneEmployees_Click();
    void cmdCloneEmployee_Click();

    DataControl datAbsence{"frmCloneEmployee"};
    EmployeeRecord& record_;
    int SourceEmployeeID = 0; ///< 0 none
    QLabel* lblInstructions = nullptr;
    QListWidget* lstCloneEmployees = nullptr;
    QPushButton* cmdCloneEmployee = nullptr;
    QPushButton* cmdNewEmployee = nullptr;
};
