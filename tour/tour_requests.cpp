#include "attendance/frm_approval.h"
#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "foundation/texts.h"
#include "platform/controls/flex_grid.h"
#include "tour.h"

#include <QFile>
#include <QTest>

void Tour::ChooseMailProgram()
{
    Say("Notices go by mail: the program's own mail program is chosen");
    mail_ = std::make_unique<MailDesk>();
    mail_->InstallMailServer();
    user_.WillAnswer(T("SENDING E-MAIL USING TARVELL:", "ENVOI DE COURRIELS AVEC TARVELL:"),
                     "Outlook 98 / 2000 / 2002");
    Choose("mnuSpecialSpecifyMailerProgram");
}

void Tour::GiveTheApproverADayOff()
{
    Say("Luc is away on Christmas Eve");
    ChooseEmployee(T("Production", "Fabrication"), "Côté, Luc");
    user_.Clicks("imgCreateSingle");
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", T("Vacation", "Vacances")).Checks("chkWholeDay");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
    });
    ClickDays(12, {24});
}

void Tour::ChooseLanguages()
{
    if (english_)
        return;
    Say("Each employee turns to French, and stays with it");
    for (const char* loginID : {"mbouchard", "proy", "lcote"}) {
        LogInAs(loginID, "pass");
        Choose("mnuSpecialSwitchLanguage");
    }
}

void Tour::Request(std::initializer_list<int> daysOfDecember, const QString& comment)
{
    user_.Clicks("imgSubmit");
    ClickDays(12, daysOfDecember);
    user_.WhenOpens<frmAttendance>([this, comment](frmAttendance&) {
        user_.Picks("cboCategories", T("Vacation", "Vacances")).Checks("chkWholeDay");
        Photo("attendance_request");
        user_.Types("txtComment", comment);
        user_.WillAnswer(T("REQUEST FOR APPROVAL:", "DEMANDE DE CONGÉ:"), T("Yes", "Oui"));
        user_.WillAnswer(T("REQUEST SUBMITTED SUCCESSFULLY:", "DEMANDE DE CONGÉ ENREGISTRÉE:"), "OK");
        user_.Clicks("cmdAddOrUpdate");
    });
    user_.Clicks("imgSubmit");
}

void Tour::RequestLeave()
{
    Say("Marie logs in herself and asks for the days before Christmas");
    LogInAs("mbouchard", "pass");
    ExpectHidden(true);
    Photo("main_window_hidden_unseen");
    Request({23, 24}, T("My sister comes to visit", "Ma soeur vient nous voir"));
    Choose("mnuSpecialDisplayPending");
    Photo("main_window_pending");
}

void Tour::WithdrawRequest()
{
    Say("Pierre asks for two days of two approvers, and withdraws one of them");
    LogInAs("proy", "pass");
    Request({28, 29}, {});
    Choose("mnuSpecialDisplayPending");
    user_.Picks("cboCategories", T("Vacation", "Vacances")).Clicks("imgRemove");
    ClickDays(12, {29});
    Photo("main_window_withdrawing");
    user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("imgRemove");
}

void Tour::SettleRequest()
{
    Say("Luc is asked at log-in, approves one of Marie's days and denies the other");
    WillLogInAs("lcote", "pass");
    user_.WillAnswer(T("REQUEST(S) FOR LEAVE RECEIVED:", "DEMANDE(S) DE CONGÉ REÇUE(S):"), T("Yes", "Oui"));
    user_.WhenOpens<frmApproval>([this](frmApproval& form) {
        user_.Picks("cboRecords", user_.Entries("cboRecords").filter("Bouchard").value(0));
        const auto* grid = form.findChild<FlexGrid*>("flxRecordsToApprove");
        for (const auto& [row, column] : {std::pair(0, 0), std::pair(1, 1)})
            QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(1 + row, column).center());
        user_.Types("txtReasonForRefusal",
                    T("Both of us cannot be away", "Nous ne pouvons être absents tous les deux"));
        Photo("approval");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"));
        user_.WillAnswer(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), "OK");
        user_.Clicks("cmdProcess").Clicks("cmdQuit");
    });
    Start();
    Photo("main_window_approver");
}

void Tour::HearOutcome()
{
    Say("Marie learns what came of it");
    user_.WillAnswer(T("REQUEST(S) FOR LEAVE STATUS REPORT:", "STATU DE VOS DEMANDES DE CONGÉ:"), "OK");
    LogInAs("mbouchard", "pass");
    user_.WillAnswer(T("DENIED REQUESTS FOR LEAVE:", "DEMANDES DE CONGÉ REFUSÉES:"), "OK");
    Choose("mnuSpecialDeniedRequests");
}

/// The messages as the mail server has received them.
void Tour::KeepMail()
{
    constexpr int kMessages = 5;
    const QStringList arrived = mail_->Arrived();
    if (arrived.size() != kMessages)
        Complain(QStringLiteral("%1 messages have arrived").arg(arrived.size()));
    for (qsizetype i = 0; i < arrived.size(); ++i)
        QFile::copy(arrived[i],
                    QStringLiteral("%1/mail_%2_%3.eml").arg(folder_).arg(i + 1).arg(english_ ? "en" : "fr"));
    for (const ParsedMail& mail : ParseMail(arrived)) {
        Say("mail to " + mail.Recipients.join(' ') + ": " + mail.Headers["Subject"]);
        if (!mail.Sound)
            Complain("a message is not sound");
    }
}
