#pragma once

#include <QByteArray>
#include <QString>

/// A message to one person.
struct MailMessage
{
    QString Address; ///< may bear the type of the address in front: "smtp:anna@example.org"
    QString Subject;
    QString Body;
    QString Attachment = {};    ///< path of a file; empty for none
    QString SenderName = {};    ///< may be empty
    QString SenderAddress = {}; ///< empty: the mail program puts its own
};

/// Number 0 when the mail program has taken the message, otherwise number and text of the failure.
struct MailResult
{
    int Number = 0;
    QString Description = {};
};

/// The numbers of failures that no mail program gives. A mail program that fails gives its exit code.
namespace MailError
{
constexpr int BadAddress = 5;
constexpr int NoAttachment = 53; ///< no such file
constexpr int NoProgram = 429;
constexpr int NoAnswer = 462;
constexpr int Cancelled = 32057; ///< by the user: no failure
} // namespace MailError

/// The address without its type and the blanks around it.
QString BareAddress(const QString& address);
/// One address that a header can bear as it stands: no second recipient, no blank, no letter with a meaning of its own.
bool IsMailAddress(const QString& bareAddress);
/// Why the message cannot be given to any mail program; number 0 when it can.
MailResult FaultIn(const MailMessage& message);

/// The message as a mail program reads it: headers that nothing in its fields can change or add to, UTF-8, lines that
/// end with "\n". The message must be without fault.
QByteArray MimeText(const MailMessage& message);
