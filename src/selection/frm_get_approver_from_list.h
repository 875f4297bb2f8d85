#pragma once

#include "selection/approvers_of_year.h"

#include <QDialog>

class QLabel;
class QListWidget;
class QPushButton;

/// Lets the user choose the approver of an employee among all approvers of the fiscal year, listed under their units.
class frmGetApproverFromList : public QDialog
{
public:
    /// `employeeName`: whose requests will be approved.
    explicit frmGetApproverFromList(const QString& employeeName, QWidget* parent = nullptr);

    /// Employees.RecordID of the approver selected; 0 when the form was left.
    int ApproverID() const { return chosen_.RecordID; }
    /// "FamilyName, FirstName"; empty when the form was left.
    QString ApproverName() const { return chosen_.Name; }

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions(const QString& employeeName);
    void LoadRecords();
    void AddHead(const QString& place);
    void lstApprovers_Click();
    void cmdSelect_Click();

    DataControl datAbsence{"frmGetApproverFromList"};
    QVector<ListedApprover> approvers_;
    ListedApprover chosen_;
    QLabel* lblInstructions = nullptr;
    QListWidget* lstApprovers = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCancel = nullptr;
};
