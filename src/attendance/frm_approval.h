#pragma once

#include "attendance/request_approval.h"
#include "foundation/frm_base.h"

class ApprovalGrid;
class RequestBalancePane;
class RequestList;

/// Settles the requests for leave that wait for the user, group by group and date by date. Once something is written,
/// the session is asked for a reload of the calendar.
class frmApproval : public FormBase
{
public:
    explicit frmApproval(QWidget* parent = nullptr);

protected:
    bool MayBeLeft() override;

private:
    void BuildList();
    void BuildDates();
    void BuildReason();
    void BuildButtons();
    void Form_Activate() override;

    void ReloadRequests();
    void ShowWhatIsThere();
    void cboRecords_Click(int index);
    void LoadGroup(int index);
    void ResetVariables();
    void ShowDates();
    void Mark(int date, Verdict verdict);
    void MarkAll(Verdict verdict);
    void cmdProcess_Click();
    void Process(const QVector<RequestedDate>& judged);
    void LeaveOut(const QVector<RequestedDate>& settled);
    void cmdCancelOperation_Click();

    QVector<RequestGroup> groups_; ///< in the order of the list
    int shown_ = -1;               ///< the group shown, -1 none
    RequestedDates requested_;     ///< what it asks for

    QWidget* fraNone = nullptr;
    std::vector<QWidget*> whileSomeWait_; ///< what is seen only then
    RequestList* cboRecords = nullptr;
    ApprovalGrid* flxRecordsToApprove = nullptr;
    QRadioButton* optApproveAll = nullptr;
    QRadioButton* optDenyAll = nullptr;
    RequestBalancePane* fraBalance = nullptr;
    QPlainTextEdit* txtReasonForRefusal = nullptr;
    QPushButton* cmdProcess = nullptr;
    QPushButton* cmdCancelOperation = nullptr;
};
