#pragma once

#include "foundation/frm_base.h"

/// A form in which one approver of a list is chosen, by its main button or by a double click.
class ApproverChoice : public FormBase
{
public:
    /// Employees.RecordID of the approver selected; 0 when the form was left.
    int ApproverID() const { return result() == Accepted ? ChosenID(lstApprovers) : 0; }
    /// "FamilyName, FirstName" as listed; empty when the form was left.
    QString ApproverName() const { return result() == Accepted ? ChosenText(lstApprovers) : QString(); }

protected:
    /// Lays out the instructions above an empty list. `select` is the caption of the main button.
    ApproverChoice(const char* name, const Text& title, QLabel* instructions, const Text& select, QWidget* parent);
    QListWidget* List() const { return lstApprovers; }

private:
    void lstApprovers_Click();
    void cmdSelect_Click();

    QListWidget* lstApprovers;
    QPushButton* cmdSelect;
};
