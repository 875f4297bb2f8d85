#include "foundation/deployment.h"
#include "foundation/frm_about.h"
#include "foundation/frm_change_password.h"
#include "foundation/frm_update_admin_info.h"
#include "support/user.h"

#include <QFile>
#include <QTest>

#include <gtest/gtest.h>

class SmallForms : public testing::Test
{
protected:
    SmallForms()
    {
        house.Company();
        dan = house.Hire({"DAN", "Dan", "Dube", "Sales", "", {}});
    }

    House house;
    User user;
    int dan = 0;
};

TEST_F(SmallForms, TheUserChangesHisPassword)
{
    house.LogIn("DAN");
    user.Opens<frmChangePassword>();
    EXPECT_EQ(user.Reads("txtUserID"), "DAN");
    EXPECT_FALSE(user.CanUse("cmdAccept")) << "an empty password is none";
    user.Types("txtOldPassword", "wrong").Types("txtNewPassword", "blue moon").Types("txtRepeatedPassword", "bluemoon");
    user.WillAnswer("UNABLE TO PROCEED!", "OK", "you may get that information from your system administrator.");
    user.Clicks("cmdAccept");
    user.Types("txtOldPassword", "pass").Types("txtRepeatedPassword", "bluesun");
    user.WillAnswer("UNABLE TO PROCEED!", "OK", "re-enter your new password and click on «Accept» again.");
    user.Clicks("cmdAccept");
    EXPECT_EQ(house.Cell("SELECT Password FROM Employees WHERE RecordID = ?", {dan}), "PASS");

    user.Types("txtRepeatedPassword", "BLUEMOON").WillAnswer("OPERATION SUCCESSFUL:", "OK").Clicks("cmdAccept");
    EXPECT_EQ(house.Cell("SELECT Password FROM Employees WHERE RecordID = ?", {dan}), "BLUEMOON")
        << "blanks are dropped";
    EXPECT_EQ(house.Cell("SELECT Password FROM Employees WHERE LoginID = 'ADMIN'"), "SECRET");
    EXPECT_FALSE(user.The<frmChangePassword>().isVisible());
}

TEST_F(SmallForms, APasswordThatCannotBeWrittenIsToldInFrench)
{
    house.LogIn("DAN");
    SessionState.English = false;
    user.Opens<frmChangePassword>();
    user.Types("txtOldPassword", "PASS").Types("txtNewPassword", "X").Types("txtRepeatedPassword", "X");
    house.Sql("CREATE TRIGGER guard BEFORE UPDATE ON Employees BEGIN SELECT RAISE(ABORT, 'guarded'); END");
    user.WillAnswer("UNE ERREUR EST SURVENUE:", "OK").Clicks("cmdAccept");
    EXPECT_TRUE(user.The<frmChangePassword>().isVisible());
}

TEST_F(SmallForms, TheAdministratorKeepsHisProfile)
{
    house.LogIn("ADMIN");
    user.Opens<frmUpdateAdminInfo>();
    EXPECT_EQ(user.Reads("txtFamilyName"), "Tremblay");
    user.Types("txtFirstName", "").WillAnswer("ERROR!", "OK", "First name missing!").Clicks("cmdSave");
    user.Types("txtFirstName", "Zoé").Types("txtFamilyName", " ");
    user.WillAnswer("ERROR!", "OK", "Last name missing!").Clicks("cmdSave");
    user.Types("txtFamilyName", "O'Neil").Types("txtEMailAddress", "");
    user.WillAnswer("ERROR!", "OK", "e-mail").Clicks("cmdSave");
    user.Types("txtEMailAddress", "zoe@example.org").Types("txtPhoneOffice", "555-ab0199");
    user.WillAnswer("CONFIRM:", "No", "Record changes to administrator profile?").Clicks("cmdSave");
    EXPECT_EQ(SessionState.AdminName, "Alice Tremblay");

    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK", "have been saved!").Clicks("cmdSave");
    EXPECT_EQ(
        house.Rows("SELECT FirstName, FamilyName, PhoneOffice, EMailAddress FROM Employees WHERE LoginID = 'ADMIN'"),
        "Zoé|O`Neil|555-0199|zoe@example.org");
    EXPECT_EQ(SessionState.AdminName, "Zoé O`Neil") << "messages quote it from now on";
    EXPECT_EQ(SessionState.AdminEMail, "zoe@example.org");
}

/// A desktop whose only programs lie in one folder.
class Desktop
{
public:
    Desktop() : path_(qgetenv("PATH")) { qputenv("PATH", folder_.path().toUtf8()); }
    ~Desktop() { qputenv("PATH", path_); }
    QString Folder() const { return folder_.path(); }
    void Install(const QString& tool)
    {
        QFile script(Folder() + "/" + tool);
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\n: > " + (Folder() + "/started").toUtf8() + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

private:
    QTemporaryDir folder_;
    QByteArray path_;
};

TEST_F(SmallForms, AboutStartsTheSystemInformationThatThereIs)
{
    Desktop desktop;
    user.Opens<frmAbout>();
    EXPECT_EQ(user.Reads("lblVersion"), "Version " + Deployment::Version());
    user.WillAnswer("SYSTEM INFORMATION:", "OK", "System Information Is Unavailable At This Time").Clicks("cmdSysInfo");
    desktop.Install("hardinfo");
    user.Clicks("cmdSysInfo");
    EXPECT_TRUE(QTest::qWaitFor([&desktop] { return QFile::exists(desktop.Folder() + "/started"); }, 5000));
}
