#include "calendar/frm_main.h"
#include "foundation/connection.h"
#include "foundation/start_up.h"
#include "mail/mail_component.h"
#include "mail/mail_set_up.h"
#include "platform/browser.h"
#include "support/main_window.h"

#include <QFile>

#include <gtest/gtest.h>

namespace
{
class MailSetUp : public testing::Test
{
protected:
    MailSetUp() { house.Configured().Company().LogIn("ADMIN"); }
    ~MailSetUp() override { SetEarlierComponent({}); }

    QString Kept()
    {
        return RowsOf(*Database::Open(house.Folder() + "/Config.mdb", kConfigPassword),
                      "SELECT Configured, LastUpgradeDate FROM Configuration");
    }
    QString Marker() const { return house.ReadFile("rdwrwnd.upg"); }

    House house;
    MainUser user;
};

TEST_F(MailSetUp, TheUserChoosesHisMailProgramForGood)
{
    SessionState.LastUpgradeDate = 333;
    user.WillAnswer("SENDING E-MAIL USING TARVELL:", "Do not specify at this time", "Submit requests for leave");
    SpecifyMailerComponent();
    EXPECT_EQ(SessionState.LastUpgradeDate, 333);
    SessionState.MAPISessionID = 1;
    user.WillAnswer("SENDING E-MAIL USING TARVELL:", "Outlook 98 / 2000 / 2002");
    SpecifyMailerComponent();
    EXPECT_EQ(Kept(), "1|666");
    EXPECT_EQ(SessionState.MAPISessionID, 0) << "signed off";
    SessionState.English = false;
    user.WillAnswer("ENVOI DE COURRIELS AVEC TARVELL:", "Outlook Express ou autres", "gestionnaire de courrier");
    SpecifyMailerComponent();
    EXPECT_EQ(Kept(), "0|666");
}

TEST_F(MailSetUp, TheComponentIsOfferedAndItsInstallationDecidesWhatComesNext)
{
    QString page;
    SetBrowser([&page](const QString& address) {
        page = address;
        return true;
    });
    const QString welcome = "WELCOME TO VERSION 1.2 OF TARVELL!";
    user.WillAnswer(welcome, "No", "called «Redemption»");
    DownloadRedemption();
    EXPECT_EQ(page, "");
    user.WillAnswer(welcome, "Yes").WillAnswer("CONFIRM:", "No", "DOWNLOAD");
    DownloadRedemption();
    EXPECT_EQ(Kept(), "0|666");

    user.WillAnswer(welcome, "Yes").WillAnswer("CONFIRM:", "Yes", "DOWNLOAD").WillAnswer("CONFIRM:", "No", "INSTALL");
    user.WillAnswer("REMINDER!...", "OK", "«Redemption.exe»");
    DownloadRedemption();
    EXPECT_TRUE(page.endsWith("/clients/upgrades/Redemption.exe")) << qPrintable(page);
    EXPECT_EQ(Kept(), "0|666");

    SessionState.English = false;
    user.WillAnswer("BIENVENUE À LA VERSION 1.2 DE TARVELL!", "Oui");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui").WillAnswer("VEUILLEZ CONFIRMER:", "Oui");
    DownloadRedemption();
    EXPECT_EQ(Kept(), "0|333");
}

/// The route of the workstation is asked for once; the marker is written, and the menu can ask again.
TEST_F(MailSetUp, TheFirstTicksOfASessionSetTheMailUp)
{
    SaveMailConfiguration(333);
    user.WillAnswer("SENDING E-MAIL USING TARVELL:", "Do not specify at this time");
    frmMain& main = user.OpensMain("ADMIN");
    EXPECT_TRUE(Marker().contains("never installed"));
    main.timAbsence_Timer();
    EXPECT_EQ(Kept(), "0|333") << "until the next session";
    user.WillAnswer("SENDING E-MAIL USING TARVELL:", "Outlook 98 / 2000 / 2002");
    user.ChoosesMenu("mnuSpecialSpecifyMailerProgram");
    EXPECT_EQ(Kept(), "1|666");
    SessionState.MAPISessionID = 1;
    EXPECT_THROW(main.cmdQuit_Click(), ProgramEnded);
    EXPECT_EQ(SessionState.MAPISessionID, 0);
}

TEST_F(MailSetUp, TheEarlierComponentIsTakenAwayOnce)
{
    QStringList files;
    bool registered = false;
    SetEarlierComponent({[&files](const QString& path) { return files.removeOne(path); }, [&] { return registered; }});
    for (const QByteArray installed : {"\"D:\\Apps\\Redemption.dll\"", "D:\\Apps\\Redemption.dll"}) {
        QFile::remove(house.Folder() + "/rdwrwnd.upg");
        WriteFile(house.Folder() + "/ST6UNST.LOG", "ACTION: SharedFile: \"D:\\Other.dll\"\r\n"
                                                   "ACTION: PrivateFile: " +
                                                       installed + "\r\n");
        files = {"C:\\WINNT\\SYSTEM32\\REDEMPTION.DLL", "D:\\Apps\\Redemption.dll", "E:\\Redemption.dll"};
        UpgradeMailerDLL();
        EXPECT_EQ(files, QStringList{"E:\\Redemption.dll"});
        EXPECT_EQ(Marker(), "DLL successfully deleted from its location: C:\\WINNT\\SYSTEM32\\REDEMPTION.DLL\r\n"
                            "DLL successfully deleted from its location: D:\\Apps\\Redemption.dll\r\n"
                            "Redemption DLL was never installed or was successfully removed from this workstation\r\n");
    }
    registered = true;
    UpgradeMailerDLL(); // and says nothing

    QFile::remove(house.Folder() + "/rdwrwnd.upg");
    user.WillAnswer("IMPORTANT!", "OK", "by hand");
    UpgradeMailerDLL();
    EXPECT_FALSE(QFile::exists(house.Folder() + "/rdwrwnd.upg")) << "it is tried again by the next session";
}
} // namespace
