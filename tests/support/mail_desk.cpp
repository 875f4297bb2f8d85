#include "support/mail_desk.h"

#include "platform/mail/mail_programs.h"
#include "support/house.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace
{
constexpr int kMostPatience = 20'000;
const QString kPython = QStringLiteral("/usr/bin/python3"); // the one whose packages the system installs

QString Script(const QString& name)
{
    return QStringLiteral(TARVELL_DATA_FOLDER "/../tests/support/") + name;
}

ParsedMail Parsed(const QJsonObject& json)
{
    ParsedMail mail;
    for (const auto& header : json["headers"].toArray()) {
        mail.HeaderNames << header[0].toString();
        mail.Headers[header[0].toString()] = header[1].toString();
    }
    for (const auto& recipient : json["recipients"].toArray())
        mail.Recipients << recipient.toString();
    mail.SenderName = json["sender"][0][0].toString();
    mail.SenderAddress = json["sender"][0][1].toString();
    mail.Body = json["body"].toString();
    for (const auto& file : json["attachments"].toArray())
        mail.Attachments[file[0].toString()] = QByteArray::fromHex(file[1].toString().toLatin1());
    mail.Sound = json["defects"].toArray().isEmpty();
    return mail;
}
} // namespace

MailDesk::MailDesk() : path_(qgetenv("PATH")), patience_(MailPatience)
{
    qputenv("PATH", folder_.path().toUtf8());
    SetMailRoutes({});
}

MailDesk::~MailDesk()
{
    qputenv("PATH", path_);
    MailPatience = patience_;
    if (server_.state() == QProcess::NotRunning)
        return;
    server_.closeWriteChannel();
    server_.waitForFinished(kMostPatience);
}

void MailDesk::Install(const QString& program, const QString& script)
{
    const QString path = Folder() + "/" + program;
    WriteFile(path, ("#!/bin/sh\n" + script + "\n").toUtf8());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void MailDesk::InstallMailServer()
{
    QDir(Folder()).mkdir("arrived");
    server_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server_.start(kPython, {Script("mail_server.py"), Folder() + "/arrived"});
    if (!server_.waitForReadyRead(kMostPatience))
        Complain("the mail server does not start");
    const QByteArray port = server_.readLine().trimmed();
    const QString configuration = Folder() + "/msmtprc";
    WriteFile(configuration,
              "account default\nhost 127.0.0.1\nport " + port + "\nfrom tarvell@example.org\nauth off\ntls off\n");
    Install("sendmail", "exec /usr/bin/msmtp -C " + configuration + " \"$@\"");
}

QStringList MailDesk::Arrived() const
{
    QStringList files;
    for (int number = 1; QFile::exists(QStringLiteral("%1/arrived/%2.eml").arg(Folder()).arg(number)); ++number)
        files << QStringLiteral("%1/arrived/%2.eml").arg(Folder()).arg(number);
    return files;
}

QList<ParsedMail> ParseMail(const QStringList& files)
{
    QProcess parser;
    parser.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    parser.start(kPython, QStringList(Script("read_mail.py")) + files);
    if (!parser.waitForFinished(kMostPatience))
        Complain("the parser does not end");
    QList<ParsedMail> mails;
    for (const auto& mail : QJsonDocument::fromJson(parser.readAllStandardOutput()).array())
        mails << Parsed(mail.toObject());
    return mails;
}
