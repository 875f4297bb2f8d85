#include "platform/clock.h"
#include "setup/database_relocation.h"
#include "setup/wizard_house.h"

class DatabasePlace : public Wizard
{
protected:
    User& Chooses(const QString& path) { return user.WillChooseFile(path).Clicks("cmdRelocateDatabase"); }
};

TEST_F(DatabasePlace, ANewDatabaseMovesToAnotherFolder)
{
    const QString share = Folder("Réseau");
    QFile::setPermissions(house.DatabaseFile(), QFile::ReadOwner);
    constexpr auto colleagues = QFile::ReadGroup | QFile::WriteGroup;
    QFile::setPermissions(share, QFile::permissions(share) | colleagues);
    Open("optEnglish", "optNewAccessDatabase");
    user.WillAnswer("OPERATION SUCCESSFUL:", "OK", "Your database was moved to the specified directory.");
    Chooses(share + "/tarvell.mdb");
    EXPECT_EQ(user.Reads("lblDatabasePath"), share + "/Tarvell.mdb");
    EXPECT_TRUE(QFile::permissions(share + "/Tarvell.mdb").testFlags(QFile::WriteOwner | colleagues))
        << "not as delivered, but as its new folder";

    user.Clicks("cmdNext");
    EntersTheRest("2026", "January");
    WillFinish().Clicks("cmdNext");
    EXPECT_EQ(RowsIn(share + "/Tarvell.mdb", "Categories"), 8);
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "FiscalYears"), 0) << "the delivered one stays empty";
    EXPECT_TRUE(Configuration().contains("\\RÉSEAU||0|333")) << qPrintable(Configuration());
}

TEST_F(DatabasePlace, APlaceThatWouldHurtIsRefused)
{
    const QString taken = Folder("taken");
    QFile::copy(house.DatabaseFile(), taken + "/Tarvell.mdb");
    Open("optEnglish", "optNewAccessDatabase");
    user.WillAnswer("OPERATION DENIED:", "OK", "do not change the name of the database itself.");
    Chooses(taken + "/xtarvell.mdb");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "You must specify a different directory");
    Chooses(house.Folder() + "/TARVELL.mdb");
    user.WillAnswer("OPERATION DENIED:", "OK", "«" + taken + "/Tarvell.mdb» IS NOT an active database");
    Chooses(taken + "\\Tarvell.mdb");
    Chooses(QString());
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "network administrator");
    Chooses(house.Folder() + "/nowhere/Tarvell.mdb");
    EXPECT_EQ(user.Reads("lblDatabasePath"), house.DatabaseFile());
}

TEST_F(DatabasePlace, ASlowNetworkIsGivenHalfAMinute)
{
    const QString share = Folder("share");
    const QString copy = share + "/Tarvell.mdb";
    int waited = 0;
    const auto unreadableFor = [&](int seconds) {
        waited = 0;
        SetClockSource({[] { return QDateTime(QDate(2026, 3, 2), QTime(9, 0)); },
                        [&, seconds](int more) {
                            if ((waited += more) == seconds && QFile::remove(copy))
                                QFile::copy(House::DeliveredFolder() + "/Tarvell.mdb", copy);
                        }});
    };
    WriteFile(house.DatabaseFile(), "not yet");
    Open("optEnglish", "optNewAccessDatabase");
    unreadableFor(1000);
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3343: ");
    Chooses(copy);
    EXPECT_EQ(waited, 29) << "thirty attempts";
    EXPECT_FALSE(QFile::exists(copy)) << "a copy that does not work would bar the next attempt";
    unreadableFor(12);
    user.WillAnswer("OPERATION SUCCESSFUL:", "OK");
    Chooses(copy);
    EXPECT_EQ(waited, 12);
}

TEST_F(DatabasePlace, AnExistingDatabaseIsConnectedToAndNothingElseIsAsked)
{
    Open("optEnglish", "optExistingAccessDatabase");
    user.WillAnswer("ERROR:", "OK", "(" + house.DatabaseFile() + ") is currently empty!").Clicks("cmdNext");
    user.WillAnswer("OPERATION DENIED:", "OK", "Unable to connect to the selected database!\r\n\r\n3021: ");
    Chooses(house.DatabaseFile());
    const QString path = CompanyDatabase("share");
    user.WillAnswer("OPERATION DENIED:", "OK", "3024: ");
    Chooses(house.DatabaseFile());
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3024: ").Clicks("cmdNext");
    user.WillAnswer("OPERATION DENIED:", "OK", "The database used by Tarvell is called «Tarvell.mdb».");
    Chooses(path + ".mdb");
    EXPECT_EQ(Configuration(), "");
    EXPECT_EQ(started, 0);

    QFile::copy(House::DeliveredFolder() + "/Tarvell.mdb", house.DatabaseFile());
    Chooses(path);
    user.Clicks("cmdPrevious").Clicks("optNewAccessDatabase").Clicks("cmdNext");
    EXPECT_EQ(user.Reads("lblDatabasePath"), house.DatabaseFile()) << "one in use never turns into the new one";
    user.Clicks("cmdPrevious").Clicks("optExistingAccessDatabase").Clicks("cmdNext");
    Chooses(path).Clicks("cmdNext");
    EXPECT_EQ(started, 1);
    EXPECT_TRUE(Configuration().startsWith("1|0||||") && Configuration().endsWith("\\SHARE||0|333"));
    EXPECT_EQ(RowsIn(path, "FiscalYears"), 1);
}

TEST_F(DatabasePlace, AnExistingServerIsConfiguredWithoutATest)
{
    Open("optEnglish", "optExistingSQLDatabase");
    user.Enters({{"txtIPAddress", "srv"}, {"txtUserName", "u"}, {"txtPassword", "p"}, {"txtDatabaseName", "db"}});
    EXPECT_EQ(user.Reads("cmdNext"), "FINISH");
    user.Clicks("cmdNext");
    EXPECT_EQ(Configuration(), "1|1|srv|u|p||db|0|333");
    EXPECT_EQ(started, 1);
}
