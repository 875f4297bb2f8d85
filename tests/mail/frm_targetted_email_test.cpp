#include "mail/frm_mail.h"
#include "mail/frm_targetted_email.h"
#include "platform/clock.h"
#include "reference/employees_list.h"
#include "support/company_test.h"

class TargettedMail : public CompanyTest
{
protected:
    TargettedMail()
    {
        for (const char* person : {"ANNA", "BRUNO", "DAN", "EVA"})
            house.Sql("UPDATE Employees SET EMailAddress = LOWER(LoginID) || '@x.org' WHERE LoginID = ?", {person});
        house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
        house.Sql("INSERT INTO AddressBook VALUES (?, 'Zed', 'zed@y.org'), (0, 'Not mine', 'no@y.org'), (?, 'Amy', "
                  "'amy@y.org')",
                  {SessionState.UserID, SessionState.UserID});
    }
    /// Recipients of the messages that went out.
    QString Told()
    {
        QStringList told;
        for (const QString& mail : std::exchange(house.Mail, {}))
            told << mail.section('|', 1, 1);
        return told.join(' ');
    }
    QString AddressBook()
    {
        return house.Rows("SELECT Name, EMailAddress FROM AddressBook WHERE EmployeeID = ?", {SessionState.UserID});
    }

    const TargettedEMail closing{.FiscalYearClosingDate = SerialOfDate({2027, 1, 15}), .FiscalYearToClose = "2026"};
};

TEST_F(TargettedMail, TheClosingOfAYearIsToldToAllWhoHaveAnAddressAndHaveNotLeft)
{
    Dismiss("BRUNO");
    house.Sql("UPDATE Employees SET FamilyName = 'Dube' WHERE LoginID = 'ANNA'");
    house.Sql("UPDATE Employees SET FamilyName = 'Abel' WHERE LoginID = 'EVA'");
    user.Opens<frmTargettedEMail>(closing);
    EXPECT_EQ(user.Entries("lstEmailAddresses"),
              QStringList({"Abel, Eva ...... eva@x.org", "Dube, Anna ...... anna@x.org", "Dube, Dan ...... dan@x.org",
                           "Amy ...... amy@y.org", "Zed ...... zed@y.org"}));
    EXPECT_EQ(user.Reads("txtSubject"), "TARVELL VERSION 1.2  -  Notice of fiscal year closing");
    user.WillAnswer("CONFIRM:", "No", "to the selected people?").Clicks("cmdSend");
    user.Picks("lstEmailAddresses", "Dube, Dan").Picks("lstEmailAddresses", "Zed");
    user.Types("txtSubject", "Closing  soon").WillAnswer("CONFIRM:", "Yes");
    house.MailEnds["MAPI"] = {3, "none"};
    user.Clicks("cmdSend");
    ASSERT_EQ(house.Mail.size(), 4);
    EXPECT_TRUE(house.Mail[0].startsWith("MAPI|SMTP:eva@x.org|Closing  soon|This message is from your TARVELL system "
                                         "administrator, Alice Tremblay, and is intented to all"));
    EXPECT_TRUE(house.Mail[0].contains("effective Fri 15-Jan-2027, fiscal year «2026» will be closed.\n\nPlease"))
        << qPrintable(house.Mail[0]);
    EXPECT_EQ(Told(), "SMTP:eva@x.org eva@x.org anna@x.org zed@y.org") << "one each, by the route that works";
    EXPECT_FALSE(user.The<frmTargettedEMail>().isVisible());
    EXPECT_EQ(ListFlag(), 0);
}

TEST_F(TargettedMail, NobodyIsLeftUntoldUnawares)
{
    SessionState.English = false;
    user.Opens<frmTargettedEMail>(closing);
    EXPECT_TRUE(user.Reads("txtMessage").endsWith("Merci de votre coopération."));
    user.Clicks("optDeselectAll").WillAnswer("VEUILLEZ CONFIRMER:", "Oui").Clicks("cmdSend");
    EXPECT_EQ(Told(), "") << "and nobody is told so";
    user.WillAnswer("ATTENTION:", "Non", "l'année fiscale 2026").Clicks("cmdCancel");
    EXPECT_TRUE(user.The<frmTargettedEMail>().isVisible());
    user.WillAnswer("ATTENTION:", "Oui").Presses("", Qt::Key_Escape);
    EXPECT_FALSE(user.The<frmTargettedEMail>().isVisible());
}

TEST_F(TargettedMail, AScheduleGoesToItsUnitAndToNewPeopleWhoMayEnterTheAddressBook)
{
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::All);
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    const auto opens = [&](TargettedEMail job) {
        job.WebAddress = "http://x.org/s";
        user.Opens<frmTargettedEMail>(job);
        return user.Entries("lstEmailAddresses")
            .filter("x.org")
            .replaceInStrings(QRegularExpression(",.*"), {})
            .join(' ');
    };
    EXPECT_EQ(opens({.ScopeGroupID = 1}), "Abel Bell");
    EXPECT_EQ(opens({.ScopeDepartmentID = 2}), "Dube");
    EXPECT_EQ(opens({.ScopeOrganizationID = 1}), "Abel Bell Dube");
    EXPECT_EQ(opens({}), "Abel Bell Dube Ellis");
    EXPECT_EQ(opens({.ScopeEmployeeID = eva}), "Ellis");
    EXPECT_EQ(ListFlag(), 1) << "a schedule has its own people: nothing is rebuilt for it";

    EXPECT_FALSE(user.CanUse("cmdAdd"));
    user.Types("txtNewName", "Li").WillAnswer("CONFIRM:", "No", "not been saved").Presses("", Qt::Key_Escape);
    EXPECT_TRUE(user.The<frmTargettedEMail>().isVisible());
    for (const char* name : {" Li O'Neil ", "Li O'Neil"}) {
        user.Types("txtNewName", name);
        EXPECT_FALSE(user.CanUse("cmdAdd"));
        user.Types("txtNewEMail", "li@y.org").Presses("txtNewEMail", Qt::Key_Return);
    }
    EXPECT_EQ(user.Reads("txtNewName"), "");
    house.Refuses("INSERT ON AddressBook");
    house.MailEnds = {{"MAPI", {3, "none"}}, {"automation", {75, "no server"}}};
    user.WillAnswer("CONFIRM:", "Yes")
        .WillAnswer("TARVELL", "Yes")
        .WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused");
    user.Clicks("cmdSend");
    EXPECT_EQ(Told(), "SMTP:eva@x.org eva@x.org li@y.org li@y.org") << "who is added twice is told twice";
    ASSERT_EQ(UnsentNotices().size(), 3);
    EXPECT_EQ(UnsentNotices()[0].Message.EmployeeID, eva) << "whose address may be mended before it is sent again";
    EXPECT_EQ(UnsentNotices()[1].Message.EmployeeID, 0);
    house.Sql("DROP TRIGGER Refusing");

    opens({.ScopeEmployeeID = eva});
    for (int person = 0; person <= kMostNewRecipients; ++person)
        user.Types("txtNewName", "O'N" + QString::number(person)).Types("txtNewEMail", "n@y.org").Clicks("cmdAdd");
    user.Clicks("optDeselectAll").WillAnswer("CONFIRM:", "Yes").WillAnswer("TARVELL", "Yes", "to your address book?");
    user.Clicks("cmdSend");
    EXPECT_TRUE(user.The<frmTargettedEMail>().isVisible()) << "nobody was chosen";
    EXPECT_TRUE(AddressBook().endsWith("O`N99|n@y.org")) << "the 101st is not kept";
    EXPECT_EQ(AddressBook().count('\n') + 1, 2 + kMostNewRecipients);
}

TEST_F(TargettedMail, AReportIsSentWithAText)
{
    user.Opens<frmMail>("report.pdf");
    EXPECT_TRUE(user.Reads("txtContents").contains("sent to you by «Alice Tremblay»."));
    user.Types("txtContents", "");
    EXPECT_FALSE(user.CanUse("cmdOK"));
    user.Types("txtContents", "See page 2").Clicks("cmdOK");
    EXPECT_EQ(user.The<frmMail>().result(), QDialog::Accepted);
    EXPECT_EQ(user.The<frmMail>().Contents(), "See page 2");
    EXPECT_EQ(user.Opens<frmMail>("").Reads("txtContents"), "");
}
