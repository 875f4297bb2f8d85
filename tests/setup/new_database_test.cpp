#include "foundation/employee_rights.h"
#include "foundation/log_in.h"
#include "platform/dao/server.h"
#include "setup/wizard_house.h"

class NewDatabase : public Wizard
{
protected:
    void FillsIn(const QString& language, const QString& month)
    {
        Open(language, "optNewAccessDatabase");
        user.Clicks("cmdNext");
        EntersTheRest("The year 2026 of the North'", month);
    }
};

TEST_F(NewDatabase, TheWizardLeadsFromAnEmptyFolderToTheFirstRows)
{
    FillsIn("optEnglish", "March");
    user.WillAnswer("CONFIRM:", "No", "The year 2026 of the  Start: ").Clicks("cmdNext");
    EXPECT_EQ(Configuration(), "");
    EXPECT_EQ(house.Rows("SELECT * FROM FiscalYears"), "");
    user.WillAnswer("CONFIRM:", "Yes", "ADMIN    Password: BLUEMOON");
    user.WillAnswer("CONFIGURATION COMPLETED SUCCESSFULLY:", "OK", " - Identify your employees").Clicks("cmdNext");

    EXPECT_EQ(started, 1) << "the normal start follows";
    EXPECT_FALSE(user.The<frmSetUpWizard>().isVisible());
    EXPECT_EQ(Configuration(), "1|0||||" + house.Folder() + "||0|333");
    EXPECT_EQ(house.Filled("FiscalYears", 1),
              "RecordID=1|FiscalYearName=The year 2026 of the North`|CommencingDate=46082|"
              "EndingDate=46446|EnteredDate=46083|EnteredBy=ADMIN");
    QStringList administrator = house.Filled("Employees", 1).split('|');
    for (const auto& [column, member] : kRights)
        EXPECT_EQ(administrator.removeAll(QString(column) + "=1"), 1) << column;
    EXPECT_EQ(administrator.join('|'),
              "RecordID=1|FamilyName=L`Heureux|FirstName=Zoé|PhoneOffice=555-0100|DateEntered=46083|EnteredBy=SYSTEM|"
              "DeactivatedBy= |ReasonForDeactivation= |EMailAddress= |Password=BLUEMOON|LoginID=ADMIN")
        << "he may do everything and belongs nowhere";
    const Connection connection(datAbsence);
    SessionState.LoginID = "ADMIN";
    SessionState.UserPassword = "BLUEMOON";
    EXPECT_TRUE(LogInUser(datAbsence, 1)) << "he can log in at once";
}

TEST_F(NewDatabase, TheEightCategoriesFollowTheAnswers)
{
    FillsIn("optFrench", "janvier");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui", "Zoé L`Heureux");
    user.WillAnswer("CONFIGURATION INITIALE COMPLÉTÉE:", "OK", " - Identifier vos employés").Clicks("cmdNext");

    EXPECT_EQ(house.Rows("SELECT CategoryFrenchName, CategoryEnglishName, SystemName, ConstitutesAnAbsence, "
                         "StandardEntitlement, CarryOverAtYearEnd, TimeBankRelated, RequiresMonitoring, "
                         "CategoryColorCode FROM Categories WHERE FiscalYear = 1 AND Active = 1 AND IsPublic = 1 AND "
                         "CreatedBy = 'ADMIN' AND CreatedDate = 46083"),
              "Vacances|Vacances|Vacation|1|112.5|1|0|1|12632064\n"
              "Maladie|Maladie|Sick|1|0|0|0|1|16761024\n"
              "Temps personnel|Temps personnel|Personal time|1|7|0|0|1|16777152\n"
              "Rendez-vous médical|Rendez-vous médical|Doctor appointments|1|0|0|0|0|8421376\n"
              "Temps accumulé|Time accumulated|Time accumulated|0|0|0|1|0|12632256\n"
              "Temps réclamé|Time claimed|Time claimed|1|0|0|1|0|12632256\n"
              "Temps payé|Time paid|Time paid|0|0|0|1|0|12632256\n"
              "Temps emprunté|Time borrowed|Time borrowed|1|0|0|1|0|12632256");
    EXPECT_EQ(house.Cell("SELECT Language FROM Employees"), "1") << "the administrator goes on in French";
    EXPECT_TRUE(Configuration().startsWith("0|0|"));
}

TEST_F(NewDatabase, AFailureLeavesNothingBehindAndTheUserMayTryAgain)
{
    FillsIn("optEnglish", "January");
    const QString config = house.Folder() + "/Config.mdb";
    QFile::rename(config, config + "-away");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3024").Clicks("cmdNext");
    EXPECT_EQ(house.Rows("SELECT * FROM FiscalYears"), "");
    QFile::rename(config + "-away", config);
    house.Refuses("INSERT ON Categories WHEN NEW.SystemName = 'Time paid'");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdNext");
    EXPECT_EQ(Configuration(), "");
    for (const char* table : {"FiscalYears", "Employees", "Categories"})
        EXPECT_EQ(RowsIn(house.DatabaseFile(), table), 0) << table;
    EXPECT_EQ(started, 0);

    house.Sql("DROP TRIGGER Refusing");
    WillFinish().Clicks("cmdNext");
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "Categories"), 8);
    EXPECT_EQ(started, 1);
}

TEST_F(NewDatabase, ADatabaseThatIsInUseIsLeftAlone)
{
    FillsIn("optEnglish", "January");
    house.Company(); // somebody else set it up meanwhile
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "already holds a fiscal year");
    user.Clicks("cmdNext");
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "FiscalYears"), 1);
    EXPECT_EQ(house.Rows("SELECT Password FROM Employees"), "SECRET");
    EXPECT_EQ(Configuration(), "");
    Open("optEnglish", "optNewAccessDatabase");
    user.WillAnswer("DATABASE NOT EMPTY:", "OK", "go back one step").Clicks("cmdNext");
    EXPECT_TRUE(user.CanUse("cmdRelocateDatabase"));
}

TEST_F(NewDatabase, TheServersConnectionIsTestedTheRowsAreComposedAndTheWorkstationIsSetToTheServer)
{
    QStringList sent;
    const auto listen = [&sent](const QString& statement) { sent << statement; };
    SetServerSink(listen);
    Open("optEnglish", "optNewSQLDatabase");
    EXPECT_FALSE(user.CanUse("cmdTestConnection"));
    const QList<std::pair<QString, QString>> fields = {{"txtIPAddress", "10.0.0.7"},
                                                       {"txtUserName", "tarvell"},
                                                       {"txtPassword", "s3cret"},
                                                       {"txtDatabaseName", "Absence"}};
    user.Enters(fields);
    for (const auto& [field, text] : fields) {
        EXPECT_FALSE(user.Types(field, "").CanUse("cmdNext"));
        EXPECT_TRUE(user.Types(field, text).CanUse("cmdNext"));
    }
    for (int time = 0; time < 2; ++time)
        user.WillAnswer("DATABASE NOT EMPTY:", "OK", "EXISTING SQL Server database").Clicks("cmdTestConnection");
    EXPECT_EQ(house.ReadFile("Absence.dsn"),
              "[ODBC]\r\nDRIVER=SQL Server\r\nUID = tarvell\r\nAddress=10.0.0.7\r\nDatabase = Absence\r\n"
              "WSID = COMPUTER\r\nSERVER=10.0.0.7\r\nDescription = Tarvell\r\n");
    EXPECT_EQ(sent, QStringList({"SELECT * FROM FiscalYears", "SELECT * FROM FiscalYears"}));
    SetServerSink([](const QString&) { throw RuntimeError(EngineError::NoSuchTable, "no such table"); });
    user.WillAnswer("INVALID DATABASE STRUCTURE:", "OK", "IP address and database name").Clicks("cmdTestConnection");
    QDir(house.Folder()).remove("Absence.dsn");
    QDir(house.Folder()).mkdir("Absence.dsn");
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK").Clicks("cmdTestConnection");

    sent.clear();
    SetServerSink(listen);
    user.Clicks("cmdNext");
    EntersTheRest("2026", "January");
    user.WillAnswer("CONFIRM:", "Yes", "Microsoft SQL Server");
    user.WillAnswer("CONFIGURATION COMPLETED SUCCESSFULLY:", "OK").Clicks("cmdNext");
    EXPECT_EQ(Configuration(), "1|1|10.0.0.7|tarvell|s3cret||Absence|0|333");
    ASSERT_EQ(sent.size(), 10);
    EXPECT_TRUE(sent[0].startsWith("INSERT INTO FiscalYears (FiscalYearName, ")) << qPrintable(sent[0]);
    EXPECT_TRUE(sent[1].contains("Username") && !sent[1].contains("LoginID")) << qPrintable(sent[1]);
    EXPECT_TRUE(sent[9].contains("'Temps emprunté', 'Time borrowed', 'Time borrowed'")) << qPrintable(sent[9]);
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "FiscalYears"), 0);
    EXPECT_EQ(started, 1);
}
