#pragma once

#include "foundation/frm_base.h"
#include "selection/approvers_of_year.h"

/// Lets the user choose the approver of an employee among all approvers of the fiscal year, listed under their units.
class frmGetApproverFromList : public FormBase
{
public:
    /// `employeeName`: whose requests will be approved.
    explicit frmGetApproverFromList(const QString& employeeName, QWidget* parent = nullptr);

    /// Employees.RecordID of the approver selected; 0 when the form was left.
    int ApproverID() const { return result() == Accepted ? ChosenID(lstApprovers) : 0; }
    /// "FamilyName, FirstName"; empty when the form was left.
    QString ApproverName() const { return result() == Accepted ? ChosenText(lstApprovers) : QString(); }

private:
    void LoadRecords();
    void AddHead(const QString& place);
    void lstApprovers_Click();
    void cmdSelect_Click();

    QListWidget* lstApprovers;
    QPushButton* cmdSelect;
};
