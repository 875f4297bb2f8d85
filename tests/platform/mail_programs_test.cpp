#include "platform/mail/mail_programs.h"
#include "support/house.h"
#include "support/mail_desk.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{
class MailPrograms : public testing::Test
{
protected:
    static MailResult Sendmail(const MailMessage& message) { return MailRoutesHere().Automation.Send(message); }
    static MailResult Compose(const MailMessage& message) { return MailRoutesHere().Desktop.Send(message); }

    House house;
    MailDesk desk;
    MailMessage message{"smtp:anna@example.org", "Hello", "Text"};
};

TEST_F(MailPrograms, AMessageArrivesLetterForLetter)
{
    desk.InstallMailServer();
    const QString attachment = desk.Folder() + "/Rapport d'été.pdf";
    WriteFile(attachment, QByteArray("%PDF\0\r\n.\r\n\xff", 12));
    message = {"smtp:anna@example.org",
               "TARVELL  -  Annulation d'une demande de congé   pour les fêtes de fin d'année,  et bien plus  encore",
               "Zoé  viens de soumettre:\r\n.\r\nFrom here\r\n" + QString(1000, QChar(0xe9)) + "\r\n" +
                   QString(1000, 'x') + "\r\n..\r\n\r\nfin ",
               attachment,
               "Zoé \"la\" Roy,\nBcc: eve@example.org",
               "zoe@example.org"};
    const MailResult result = Sendmail(message);
    ASSERT_EQ(result.Number, 0) << qPrintable(result.Description);
    message.SenderAddress = message.Attachment = "";
    EXPECT_EQ(Sendmail(message).Number, 0);

    const QList<ParsedMail> mails = ParseMail(desk.Arrived());
    ASSERT_EQ(mails.size(), 2);
    EXPECT_EQ(ReadFile(desk.Folder() + "/arrived/1.to"), "anna@example.org");
    EXPECT_EQ(mails[0].Recipients, QStringList{"anna@example.org"});
    EXPECT_EQ(mails[0].Headers["Subject"], message.Subject) << "every blank of it";
    EXPECT_EQ(mails[0].Body, QString(message.Body).replace("\r\n", "\n") + "\n");
    EXPECT_EQ(mails[0].SenderAddress, "zoe@example.org");
    EXPECT_EQ(mails[0].SenderName, "Zoé \"la\" Roy, Bcc: eve@example.org") << "is a name, not a header";
    EXPECT_EQ(mails[0].Attachments["Rapport d'été.pdf"], QByteArray("%PDF\0\r\n.\r\n\xff", 12));
    EXPECT_EQ(mails[1].SenderAddress, "tarvell@example.org") << "the mail program's own";
}

/// Text with all that has a meaning somewhere on a message's way.
QString Mischief(QRandomGenerator& random)
{
    static const QStringList pieces = {"\r\n",
                                       "\n",
                                       "\r",
                                       "\nBcc: eve@example.org\n",
                                       "  ",
                                       "é",
                                       "=?UTF-8?Q?=0A?=",
                                       ",",
                                       ";",
                                       "<",
                                       ">",
                                       "\"",
                                       "(",
                                       "\t",
                                       ":",
                                       "\\",
                                       "@",
                                       "\n\n",
                                       "=0A",
                                       "\u2028",
                                       "x@y",
                                       "words",
                                       "To: ",
                                       "\n.\n",
                                       "=",
                                       "?=",
                                       "😀",
                                       "-f",
                                       "%0A",
                                       "\u0085"};
    QString text;
    for (int piece = random.bounded(12); piece > 0; --piece)
        text += pieces[random.bounded(static_cast<int>(pieces.size()))];
    return text;
}

TEST_F(MailPrograms, NoFieldCanChangeAnotherHeader)
{
    QRandomGenerator random(20261123);
    QStringList files;
    QList<MailMessage> sent;
    for (int number = 0; number < 300; ++number) {
        const MailMessage mail{"anna@example.org", Mischief(random), Mischief(random), {},
                               Mischief(random),   "zoe@example.org"};
        EXPECT_EQ(FaultIn(mail).Number, 0);
        files << QStringLiteral("%1/%2.eml").arg(desk.Folder()).arg(number);
        WriteFile(files.last(), MimeText(mail));
        sent << mail;
        const QString address = "anna@example.org" + Mischief(random).trimmed();
        const bool harmless = IsMailAddress(address);
        EXPECT_TRUE(!harmless || !address.contains(QRegularExpression("[\\s,;<>:()\"\\\\]"))) << qPrintable(address);
    }
    const QList<ParsedMail> mails = ParseMail(files);
    ASSERT_EQ(mails.size(), sent.size());
    const QStringList headers = {
        "Content-Transfer-Encoding", "Content-Type", "Date", "From", "MIME-Version", "Message-Id", "Subject", "To"};
    const QRegularExpression controls("[\\x00-\\x1f\\x85\\x{2028}]");
    for (int number = 0; number < sent.size(); ++number) {
        SCOPED_TRACE(number);
        QStringList names = mails[number].HeaderNames;
        names.sort();
        EXPECT_EQ(names, headers);
        EXPECT_EQ(mails[number].Recipients, QStringList{"anna@example.org"});
        EXPECT_EQ(mails[number].SenderAddress, "zoe@example.org");
        EXPECT_TRUE(mails[number].Sound);
        QString subject = sent[number].Subject;
        subject.replace(controls, " ");
        EXPECT_EQ(mails[number].Headers["Subject"].trimmed(), subject.trimmed());
        QString name = sent[number].SenderName;
        name.replace(controls, " ").remove(' '); // the parser puts blanks of its own between the parts of a name
        EXPECT_EQ(QString(mails[number].SenderName).remove(' '), name);
    }
}

TEST_F(MailPrograms, OnlyOneAddressIsTaken)
{
    for (const char* good : {"anna@example.org", "a.b+c_d'e-f@mail.example.org", "0@x"})
        EXPECT_TRUE(IsMailAddress(good)) << good;
    for (const char* bad : {"", " ", "anna", "anna@", "@x", "a@b,c@d", "a@b;c@d", "a@b c@d", "a@b\nBcc: c@d", "-f@b",
                            "Anna <a@b>", "a@b\n", "\"a\"@b", "a@b@c", "a@-b", "=?UTF-8?Q?=0A?=@b", "é@b", "a(x)@b"})
        EXPECT_FALSE(IsMailAddress(bad)) << bad;
    desk.Install("sendmail", ": > " + desk.Folder() + "/started");
    message.Address = "smtp:anna@example.org\r\nBcc: eve@example.org";
    EXPECT_EQ(Sendmail(message).Number, MailError::BadAddress);
    message.Address = "anna@example.org";
    message.Attachment = desk.Folder() + "/none.pdf";
    EXPECT_EQ(Compose(message).Number, MailError::NoAttachment);
    EXPECT_FALSE(QFile::exists(desk.Folder() + "/started"));
}

TEST_F(MailPrograms, AMailProgramThatFailsIsToldByNumberAndText)
{
    EXPECT_TRUE(MailRoutesHere().Desktop.IsThere() == false);
    EXPECT_EQ(Compose(message).Number, MailError::NoProgram);

    desk.Install("sendmail", "echo 'sendmail: no\n\tserver' >&2; exit 75"); // without a look at what it is given
    message.Body = QString(1'000'000, 'x');
    const MailResult result = Sendmail(message);
    EXPECT_EQ(result.Number, 75);
    EXPECT_EQ(result.Description, "sendmail: no server");
    desk.Install("sendmail", "i=0; while [ $i -lt 20000 ]; do echo babble babble babble; i=$((i+1)); done; kill -9 $$");
    EXPECT_EQ(Sendmail(message).Number, 137) << "what it says is read while it is still being told";
    desk.Install("sendmail", "exec /nowhere/mta");
    EXPECT_EQ(Sendmail(message).Number, 127);
}

TEST_F(MailPrograms, AMailProgramThatHangsIsEndedWhileWindowsPaint)
{
    MailPatience = 300;
    desk.Install("sendmail", "/bin/sleep 60 & echo $! > " + desk.Folder() + "/child; wait");
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&ticks] { ticks += MailOnItsWay::IsAny(); });
    timer.start(20);
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(Sendmail(message).Number, MailError::NoAnswer);
    EXPECT_LT(clock.elapsed(), 5000);
    EXPECT_GT(ticks, 2);
    EXPECT_FALSE(MailOnItsWay::IsAny());
    const QString child = "/proc/" + ReadFile(desk.Folder() + "/child").trimmed();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !QFile::exists(child) || ReadFile(child + "/stat").contains(") Z"); }))
        << "nor does what it started live on";
}

TEST_F(MailPrograms, TheUsersOwnMailProgramGetsAllFilledIn)
{
    const QString arguments = desk.Folder() + "/arguments";
    desk.Install("xdg-email", "printf '%s\\n' \"$@\" > " + arguments);
    message = {"SMTP:anna@example.org", "Congé  & -f", "à demain?\r\n--attach", desk.Folder() + "/arguments"};
    WriteFile(arguments);
    EXPECT_EQ(Compose(message).Number, 0);
    EXPECT_EQ(ReadFile(arguments),
              "mailto:anna@example.org?subject=Cong%C3%A9%20%20%26%20-f&body=%C3%A0%20demain%3F%0D%"
              "0A--attach\n--attach\n" +
                  arguments + "\n");
    desk.Install("xdg-email", "echo 'no mail program' >&2; exit 3");
    EXPECT_EQ(Compose(message).Number, 3);
    EXPECT_EQ(Compose(message).Description, "no mail program");

    MailPatience = 200;
    desk.Install("xdg-email", "/bin/sleep 1; : > " + desk.Folder() + "/written");
    const MailResult open = Compose(message);
    EXPECT_EQ(open.Number, 0) << "the user still writes";
    EXPECT_FALSE(open.Description.isEmpty());
    EXPECT_TRUE(QTest::qWaitFor([this] { return QFile::exists(desk.Folder() + "/written"); }, 10000))
        << "his window is left alone";
}
} // namespace
