#pragma once

#include "selection/frm_approver_choice.h"

/// Lets the user choose the approver of an employee among all approvers of the fiscal year, listed under their units.
class frmGetApproverFromList : public ApproverChoice
{
public:
    /// `employeeName`: whose requests will be approved.
    explicit frmGetApproverFromList(const QString& employeeName, QWidget* parent = nullptr);

private:
    void LoadRecords();
    void AddHead(const QString& place);
};
