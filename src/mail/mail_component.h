#pragma once

#include "platform/dao/dao.h"
#include "platform/mail/mail_message.h"

#include <QStringList>
#include <QVector>

#include <functional>

/// A message that the program writes in the user's name.
struct Notice
{
    QString Address;
    QString Subject;
    QString Body;
    QString Attachment = {};           ///< path of a file; empty for none
    const char* AddressType = "smtp:"; ///< which the MAPI route puts in front of the address
    int EmployeeID = 0;                ///< RecordID of the employee whose address it is; 0 none
};

/// Finds out by which route this workstation can send: signs on to MAPI, unless it uses the automation route. A
/// workstation that is signed on and comes here again needs the automation route; that is kept for good. Throws
/// nothing.
void PrepareMailComponent();

/// Keeps the session's route for good, and with it the stage of the mail component's set-up. Throws RuntimeError.
void SaveMailConfiguration(int stage = 666);

/// Ends the MAPI session, if there is one.
void SignOffMail();

/// Who the messages come from: the user's name; the administrator's for ADMIN.
QString SenderName();

/// Sends one message by the workstation's route. What MAPI cannot send goes by automation, from then on for the whole
/// session. A message that fails is one line in EMailErrors.log, and is told to nobody; the user's cancelling (32057)
/// is no failure. An empty address is passed over. Throws nothing.
MailResult SendNotice(const Notice& notice);

/// Sends them one after the other, so many seconds apart, so that the mail program can finish; windows keep painting.
/// Those behind a message to which the mail program gave no answer are not tried. `progress` hears which one comes
/// next.
void SendNotices(const QVector<Notice>& notices, int pause = 2, const std::function<void(int)>& progress = {});

struct UnsentNotice
{
    Notice Message;
    QString Reason; ///< in the words of the mail program that failed; may be empty
};
/// The messages of this session that could not be sent.
const QVector<UnsentNotice>& UnsentNotices();
/// Tries those again; what fails once more stays among them. An employee is written to at the address that is on file
/// by then, and not at all without one. Throws, and tries nothing, when the addresses cannot be read.
void SendUnsentNotices(DataControl& datAbsence);
/// Forgets them.
void ForgetUnsentNotices();

/// The address on file, read connected; empty for none. Throws.
QString MailAddressOf(DataControl& datAbsence, int employee);
