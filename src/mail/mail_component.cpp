#include "mail/mail_component.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/session_state.h"
#include "platform/clock.h"
#include "platform/mail/mail_programs.h"
#include "platform/program.h"

#include <QRegularExpression>

namespace
{
constexpr int kSession = 1;

QVector<UnsentNotice>& Unsent()
{
    static QVector<UnsentNotice> unsent;
    return unsent;
}

QString SenderAddress()
{
    return SessionState.LoginID == "ADMIN" ? SessionState.AdminEMail.trimmed() : SessionState.UserEMail.trimmed();
}

MailMessage MessageOf(const Notice& notice, const char* addressType)
{
    return {addressType + notice.Address.trimmed(),
            notice.Subject,
            notice.Body,
            notice.Attachment,
            SenderName(),
            SenderAddress()};
}

QString OneLine(QString text)
{
    static const QRegularExpression controls(QStringLiteral("[\\x00-\\x1f\\x7f]+"));
    return text.replace(controls, QStringLiteral(" "));
}

/// A log that cannot be written must not take back what the message is about.
void Log(const Notice& notice, bool configured, const QStringList& failures)
{
    try {
        LogEMailError(OneLine(notice.Subject), configured ? "True" : "False", OneLine(failures.join("; ")));
    } catch (const RuntimeError&) {
    }
}

QString FailureText(const MailResult& result)
{
    return QStringLiteral("%1: %2").arg(result.Number).arg(result.Description);
}

bool HasFailed(const MailResult& result)
{
    return result.Number != 0 && result.Number != MailError::Cancelled;
}

MailResult SendByAutomation(const Notice& notice)
{
    return MailRoutesHere().Automation.Send(MessageOf(notice, ""));
}

MailResult SendByMapi(const Notice& notice, QStringList& failures)
{
    const MailResult result = MailRoutesHere().Desktop.Send(MessageOf(notice, notice.AddressType));
    if (!HasFailed(result))
        return result;
    failures << FailureText(result);
    SessionState.MailConfigured = true;
    return SendByAutomation(notice);
}

/// What no route can send says nothing about the route.
MailResult SendByRoute(const Notice& notice)
{
    const bool configured = SessionState.MailConfigured;
    QStringList failures;
    MailResult result = FaultIn(MessageOf(notice, ""));
    if (result.Number == 0)
        result = configured ? SendByAutomation(notice) : SendByMapi(notice, failures);
    if (HasFailed(result))
        failures << FailureText(result);
    if (!failures.isEmpty())
        Log(notice, configured, failures);
    return result;
}

/// It could not be sent and is worth a line, but the mail program that did not answer is not asked once more.
void GiveUp(const Notice& notice, const QString& cause)
{
    Log(notice, SessionState.MailConfigured,
        {FailureText({MailError::NoAnswer, "Not tried, as the mail program did not answer"})});
    Unsent().append({notice, cause});
}
} // namespace

void PrepareMailComponent()
{
    Session& s = SessionState;
    if (s.MailConfigured)
        return;
    if (s.MAPISessionID == 0) {
        s.MAPISessionID = MailRoutesHere().Desktop.IsThere() ? kSession : 0;
        return;
    }
    s.MailConfigured = true;
    try {
        SaveMailConfiguration();
    } catch (const RuntimeError&) {
        // It holds for the session all the same.
    }
}

void SaveMailConfiguration(int stage)
{
    SessionState.LastUpgradeDate = stage;
    Database::Open(JoinPath(ProgramFolder(), "Config.mdb"), kConfigPassword)
        ->Execute("UPDATE Configuration SET Configured = ?, LastUpgradeDate = ?", {SessionState.MailConfigured, stage});
}

void SignOffMail()
{
    SessionState.MAPISessionID = 0;
}

QString SenderName()
{
    return SessionState.UserName.isEmpty() ? SessionState.AdminName : SessionState.UserName;
}

MailResult SendNotice(const Notice& notice)
{
    if (notice.Address.trimmed().isEmpty())
        return {MailError::BadAddress, "There is no e-mail address"};
    const MailOnItsWay onItsWay;
    DefaultWorkspace().PauseReading();
    if (SessionState.MAPISessionID == 0)
        PrepareMailComponent();
    const MailResult result = SendByRoute(notice);
    if (HasFailed(result))
        Unsent().append({notice, result.Description});
    return result;
}

void SendNotices(const QVector<Notice>& notices, int pause, const std::function<void(int)>& progress)
{
    const MailOnItsWay onItsWay;
    MailResult last;
    for (int i = 0; i < notices.size(); ++i) {
        if (last.Number == MailError::NoAnswer) {
            GiveUp(notices[i], last.Description);
            continue;
        }
        if (i > 0 && pause > 0)
            Wait(pause);
        if (progress)
            progress(i);
        last = SendNotice(notices[i]);
    }
}

const QVector<UnsentNotice>& UnsentNotices()
{
    return Unsent();
}

QString MailAddressOf(DataControl& datAbsence, int employee)
{
    return datAbsence.Scalar<QString>("SELECT EMailAddress FROM Employees WHERE RecordID = ?", employee).trimmed();
}

void SendUnsentNotices(DataControl& datAbsence)
{
    QVector<Notice> again;
    QVector<UnsentNotice> unreachable;
    {
        const Connection connection(datAbsence);
        for (const UnsentNotice& unsent : Unsent()) {
            Notice notice = unsent.Message;
            if (notice.EmployeeID != 0)
                notice.Address = MailAddressOf(datAbsence, notice.EmployeeID);
            if (notice.Address.isEmpty())
                unreachable.append({unsent.Message, "The employee has no e-mail address any more"});
            else
                again << notice;
        }
    }
    Unsent() = unreachable;
    SendNotices(again);
}

void ForgetUnsentNotices()
{
    Unsent().clear();
}
