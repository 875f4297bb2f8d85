#pragma once

#include <QHash>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A workstation whose only mail programs are those installed here, as scripts, and that mail really leaves.
class MailDesk
{
public:
    MailDesk();
    ~MailDesk();
    MailDesk(const MailDesk&) = delete;
    MailDesk& operator=(const MailDesk&) = delete;

    QString Folder() const { return folder_.path(); }
    /// A program of that name with these lines of shell script.
    void Install(const QString& program, const QString& script);
    /// A mail server, and msmtp as the sendmail that hands messages to it.
    void InstallMailServer();
    /// The files of the messages that have reached the server.
    QStringList Arrived() const;

private:
    QTemporaryDir folder_;
    QByteArray path_;
    int patience_;
    QProcess server_;
};

/// A message as an independent parser reads it.
struct ParsedMail
{
    QStringList HeaderNames;
    QHash<QString, QString> Headers;
    QStringList Recipients;
    QString SenderName, SenderAddress;
    QString Body;
    QHash<QString, QByteArray> Attachments;
    bool Sound = false; ///< without defects
};
QList<ParsedMail> ParseMail(const QStringList& files);
