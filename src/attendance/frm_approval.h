#pragma once

#include "attendance/leave_requests.h"
#include "foundation/frm_base.h"

class ApprovalGrid;
class RequestBalancePane;
class RequestList;

/// Settles the requests for leave that wait for the user, group by group and date by date. Once something is written,
/// the session is asked for a reload of the calendar.
class frmApproval : public FormBase
{
public:
    /// Throws when the requests cannot be read: none must not look like nothing to do.
    explicit frmApproval(QWidget* parent = nullptr);

protected:
    bool MayBeLeft() override;

private:
    void BuildPage();
    QWidget* MakeList();
    QWidget* MakeDates();
    QWidget* MakeReason();
    void BuildButtons();
    void Form_Activate() override;

    void ReloadRequests();
    void ShowWhatIsThere();
    void cboRecords_Click(int index);
    void LoadGroup(int index);
    void ResetVariables();
    void ShowDates();
    void Mark(int row, RequestMark mark);
    void MarkAll(RequestMark mark);
    void cmdProcess_Click();
    void Process(const QVector<RequestedDate>& marked);
    void RereadDates();
    void cmdCancelOperation_Click();

    QVector<RequestGroup> groups_; ///< in the order of the list
    int shown_ = -1;               ///< the group shown, -1 none
    RequestedDates requested_;     ///< what it asks for

    QWidget* fraRequests = nullptr; ///< seen while some wait
    QWidget* fraNone = nullptr;     ///< seen otherwise
    RequestList* cboRecords = nullptr;
    ApprovalGrid* flxRecordsToApprove = nullptr;
    QRadioButton* optApproveAll = nullptr;
    QRadioButton* optDenyAll = nullptr;
    RequestBalancePane* fraBalance = nullptr;
    QPlainTextEdit* txtReasonForRefusal = nullptr;
    QPushButton* cmdProcess = nullptr;
    QPushButton* cmdCancelOperation = nullptr;
};
