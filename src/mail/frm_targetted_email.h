#pragma once

#include "foundation/frm_base.h"
#include "mail/targetted_email.h"

class QTabWidget;

/// Sends one message to people chosen from a list. Accepted once messages have been sent.
class frmTargettedEMail : public FormBase
{
public:
    explicit frmTargettedEMail(TargettedEMail job, QWidget* parent = nullptr);

    void reject() override;

protected:
    bool MayBeLeft() override;

private:
    QWidget* RecipientsPage();
    QWidget* ContentsPage();
    QLayout* NewRecipientRow();
    void LoadRecords();
    void AddRecipient(const Recipient& person);
    QVector<Notice> Messages() const;
    void Send(const QVector<Notice>& messages);
    void OfferAddressBook();
    void SelectAll(bool selected);
    void lstEmailAddresses_Click();
    void txtNew_Change();
    void cmdAdd_Click();
    void cmdSend_Click();

    const TargettedEMail job_;
    QVector<Recipient> newPeople_;
    QTabWidget* sstEMailInfo;
    QListWidget* lstEmailAddresses;
    QRadioButton* optSelectAll;
    QRadioButton* optDeselectAll;
    QLineEdit* txtNewName;
    QLineEdit* txtNewEMail;
    QLineEdit* txtSubject;
    QPlainTextEdit* txtMessage;
    QLabel* lblProgress;
    QPushButton* cmdAdd;
    QPushButton* cmdSend = nullptr;
    QPushButton* cmdCancel;
};
