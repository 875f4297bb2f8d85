#pragma once

#include "employees/approver_list.h"
#include "employees/frm_right_boxes.h"

#include <array>

/// The tab "Security profile": rights by level and kind of access, single rights, log-in and approvers. An approver is
/// picked, never typed. It works on the approvers of the form's record and is silent while the form is loading.
class EmployeeProfilePage : public QWidget
{
public:
    /// `employeeName`: whose approvers are chosen, as the form shows him at that moment.
    EmployeeProfilePage(RightBoxes& boxes, EmployeeRecord& record, bool& loading,
                        std::function<QString()> employeeName);

    /// Shows the log-in; the password of the row is not shown.
    void Show(const EmployeeRecord& record);
    void Read(EmployeeRecord& record) const;
    /// `whyNot` is empty while the page takes entries.
    void EnableEntry(const Text& whyNot);

    /// Both lists offer those who may approve for the record's unit, and show its approvers. One whom the unit does not
    /// offer is shown only when he is looked for `wherever` he works.
    void LoadApprovers(DataControl& datAbsence, bool wherever);
    void ClearApprovers() { OfferApprovers({}); }
    bool HasApprovers() const { return approvers_[0].List->count() > 0; }

private:
    /// A level of approval.
    struct ApproverField
    {
        int EmployeeRecord::*Approver;
        QComboBox* List = nullptr;
        QPushButton* FromList = nullptr;
    };

    QWidget* LogInCard();
    QWidget* Approvers(ApproverField& field, const QString& list, const QString& button);
    QWidget* MatrixCard(RightBoxes& boxes);
    QWidget* SingleRightsCard(RightBoxes& boxes);
    void OfferApprovers(const QVector<ListEntry>& approvers);
    void cboApprovedBy_Click(const ApproverField& field);
    void CheckSecondLevel();
    void RefuseSecondLevel(const Text& reason);
    void Approver_Change(const ApproverField& field);
    void GetApproverFromList(const ApproverField& field);

    EmployeeRecord& record_;
    bool& Loading;
    const std::function<QString()> employeeName_;
    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
    std::array<ApproverField, 2> approvers_{{{&EmployeeRecord::ApprovedByMain}, {&EmployeeRecord::ApprovedByBackup}}};
};
