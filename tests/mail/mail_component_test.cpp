#include "foundation/connection.h"
#include "mail/leave_notices.h"
#include "platform/clock.h"
#include "platform/mail/mail_programs.h"
#include "support/house_test.h"

#include <QDir>

class MailComponent : public HouseTest
{
protected:
    MailComponent()
    {
        house.Configured().Company();
        dan = house.Hire({"DAN", "Dan", "Dube", "Sales"});
        house.LogIn("DAN");
    }
    QString Log() const { return house.ReadFile("EMailErrors.log"); }
    QString Kept()
    {
        return RowsOf(*Database::Open(house.Folder() + "/Config.mdb", kConfigPassword),
                      "SELECT Configured, LastUpgradeDate FROM Configuration");
    }

    int dan = 0;
    const Notice notice{" anna@example.org ", "TARVELL  -  Hello", "Text"};
};

TEST_F(MailComponent, EachRouteCarriesAMessageInItsOwnWay)
{
    EXPECT_EQ(SendNotice(notice).Number, 0);
    EXPECT_EQ(SessionState.MAPISessionID, 1) << "signed on at the first use";
    SessionState.MailConfigured = true;
    EXPECT_EQ(SendNotice(notice).Number, 0);
    EXPECT_EQ(house.Mail, QStringList({"MAPI|smtp:anna@example.org|TARVELL  -  Hello|Text",
                                       "automation|anna@example.org|TARVELL  -  Hello|Text"}));
    EXPECT_NE(SendNotice({" ", "Hello", "Text"}).Number, 0);
    EXPECT_EQ(house.Mail.size(), 2) << "an address of blanks is none";
    EXPECT_EQ(Log(), "");
}

TEST_F(MailComponent, TheUsersCancellingIsNoFailure)
{
    house.MailEnds["MAPI"] = {MailError::Cancelled, "cancelled"};
    EXPECT_EQ(SendNotice(notice).Number, MailError::Cancelled);
    EXPECT_EQ(house.Mail.size(), 1);
    EXPECT_EQ(Log(), "");
    EXPECT_FALSE(SessionState.MailConfigured);
    EXPECT_TRUE(UnsentNotices().isEmpty());
}

TEST_F(MailComponent, WhatMapiCannotSendGoesByAutomationForTheRestOfTheSession)
{
    house.MailEnds["MAPI"] = {3, "no mail\r\nprogram"};
    EXPECT_EQ(SendNotice(notice).Number, 0);
    EXPECT_EQ(Log(), "TARVELL  -  Hello\tFalse\t3: no mail program\r\n");
    EXPECT_EQ(SendNotice(notice).Number, 0);
    EXPECT_EQ(house.Mail.size(), 3) << "the second one does not try MAPI again";
    EXPECT_TRUE(house.Mail[2].startsWith("automation|anna@example.org"));
    EXPECT_EQ(Kept(), "0|666") << "only the menu changes the route for good";
}

TEST_F(MailComponent, AMessageThatFailsOnBothRoutesIsOneLineAndCanBeSentAgain)
{
    house.MailEnds = {{"MAPI", {3, "none"}}, {"automation", {75, "no server"}}};
    SendNotices({notice, notice});
    EXPECT_EQ(Log(), "TARVELL  -  Hello\tFalse\t3: none; 75: no server\r\nTARVELL  -  Hello\tTrue\t75: no server\r\n");
    SendUnsentNotices(datAbsence);
    EXPECT_EQ(UnsentNotices().size(), 2);
    house.MailEnds.clear();
    SendUnsentNotices(datAbsence);
    EXPECT_TRUE(UnsentNotices().isEmpty());

    QDir(house.Folder()).remove("EMailErrors.log");
    QDir(house.Folder()).mkdir("EMailErrors.log");
    house.MailEnds["automation"] = {75, "no server"};
    EXPECT_EQ(SendNotice(notice).Number, 75) << "a log that cannot be written stops nobody";
}

TEST_F(MailComponent, AMessageThatNoRouteCanSendLeavesTheRouteAlone)
{
    for (const Notice& faulty : {Notice{"a@b.org, c@d.org", "Two", ""}, {"a@b.org", "File", "", house.Folder()}})
        EXPECT_NE(SendNotice(faulty).Number, 0);
    EXPECT_EQ(Log(), "Two\tFalse\t5: This is not one e-mail address: a@b.org, c@d.org\r\nFile\tFalse\t53: File not "
                     "found: " +
                         house.Folder() + "\r\n");
    EXPECT_TRUE(house.Mail.isEmpty() && !SessionState.MailConfigured);
}

TEST_F(MailComponent, AMailProgramThatDoesNotAnswerIsNotAskedAgainForTheRest)
{
    SessionState.MailConfigured = true;
    house.MailEnds["automation"] = {MailError::NoAnswer, "no answer"};
    QVector<int> begun;
    SendNotices({notice, notice, notice}, 0, [&begun](int number) { begun << number; });
    EXPECT_EQ(begun, QVector<int>{0});
    EXPECT_EQ(house.Mail.size(), 1);
    EXPECT_EQ(Log().count('\n'), 3);
    ASSERT_EQ(UnsentNotices().size(), 3);
    EXPECT_EQ(UnsentNotices().last().Reason, "no answer") << "the cause, for those that were not tried, too";
}

TEST_F(MailComponent, AWorkstationThatIsSignedOnAndComesAgainNeedsTheOtherRouteForGood)
{
    PrepareMailComponent();
    EXPECT_FALSE(SessionState.MailConfigured);
    PrepareMailComponent();
    EXPECT_TRUE(SessionState.MailConfigured);
    EXPECT_EQ(Kept(), "1|666");
}

TEST_F(MailComponent, MessagesComeFromTheUser)
{
    QStringList senders;
    const auto send = [&senders](const MailMessage& message) {
        senders << message.SenderName + " " + message.SenderAddress;
        return MailResult();
    };
    SetMailRoutes({{[] { return true; }, send}, {[] { return true; }, send}});
    SendNotice(notice);
    house.Sql("UPDATE Employees SET EMailAddress = 'dan@example.org' WHERE LoginID = 'DAN'");
    house.LogIn("DAN");
    SendNotice(notice);
    house.LogIn("ADMIN");
    SendNotice(notice);
    EXPECT_EQ(senders, QStringList({"Dan Dube ", "Dan Dube dan@example.org", "Alice Tremblay alice@example.org"}));
}

TEST_F(MailComponent, BothApproversAreToldTwoSecondsApartEvenWhenTheyAreOnePerson)
{
    QStringList waits;
    SetClockSource({[] { return QDateTime(QDate(2026, 3, 9), QTime(14, 5)); },
                    [&](int seconds) {
                        waits << QStringLiteral("%1 after %2").arg(seconds).arg(house.Mail.size());
                        EXPECT_TRUE(MailOnItsWay::IsAny()) << "the minute's work waits meanwhile";
                    }});
    const Approver eve{dan, "Eve Roy", "eve@example.org"};
    LeaveRequest request{"Dan Dube", "Vacation", "Mon 02\r\nTue 03", " ", eve, eve};
    SendNotices(RequestNotices(request));
    EXPECT_EQ(waits, QStringList{"2 after 1"});
    ASSERT_EQ(house.Mail.size(), 2);
    EXPECT_EQ(
        house.Mail[0],
        "MAPI|smtp:eve@example.org|TARVELL  -  Request for leave|Dan Dube is submitting the following request for "
        "leave for your approval:\r\n\r\nCategory: Vacation\r\n\r\nDate(s) requested:\r\n\r\nMon 02\r\nTue "
        "03\r\n\r\nTo process this request for leave, all you need to do is open «TARVELL» and click on the "
        "«Approve requests for leave» icon from the toolbar.")
        << "a comment of blanks is none";
    EXPECT_TRUE(house.Mail[1].contains("has been submitted to Eve Roy for approval.\r\n\r\nEmployee: Dan Dube\r\n"));

    SessionState.English = false;
    request.Comment = " {list} merci ";
    request.SecondApprover.EMailAddress = " ";
    const QVector<Notice> french = RequestNotices(request);
    ASSERT_EQ(french.size(), 1) << "nobody writes to an address of blanks";
    EXPECT_EQ(french[0].Subject, "TARVELL  -  Demande de congé");
    EXPECT_TRUE(french[0].Body.contains("Tue 03\r\n\r\nCOMMENTAIRE: {list} merci\r\n\r\nPour traiter"));
}

TEST_F(MailComponent, TheOutcomeSaysWhoAndWhen)
{
    house.Today(2026, 3, 9, 14, 5);
    EXPECT_EQ(OutcomeNotice(dan, "a@b", "Mon 02 APPROVED", " ").Body,
              "The following requests for leave you recently submitted have been processed by DAN on Mon 09-March at "
              "14:05:\r\n\r\nMon 02 APPROVED");
}
