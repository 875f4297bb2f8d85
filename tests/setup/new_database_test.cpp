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
    /// What the rows of a table hold besides zeros, empty texts and their keys.
    QString Filled(const QString& table)
    {
        const auto database = Database::Open(house.DatabaseFile(), kDatabasePassword);
        QStringList lines;
        for (const Recordset& row : database->OpenRecordset("SELECT * FROM " + table + " ORDER BY RecordID")) {
            QStringList cells;
            for (const QString& column : row.Columns())
                if (column != "RecordID" && row.Text(column) != "0" && !row.Text(column).isEmpty())
                    cells << column + "=" + row.Text(column);
            lines << cells.join(' ');
        }
        return lines.join('\n');
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
    EXPECT_EQ(Configuration(), "1|0||||" + house.Folder() + "||0|0");
    EXPECT_EQ(Filled("FiscalYears"), "FiscalYearName=The year 2026 of the North` CommencingDate=46082 EndingDate=46446 "
                                     "EnteredDate=46083 EnteredBy=ADMIN");
    QString administrator = "FamilyName=L`Heureux FirstName=Zoé PhoneOffice=555-0100 DateEntered=46083 "
                            "EnteredBy=SYSTEM DeactivatedBy=  ReasonForDeactivation=  EMailAddress=  "
                            "Password=BLUEMOON LoginID=ADMIN";
    for (const auto& [column, member] : kRights)
        administrator += QStringLiteral(" %1=1").arg(column);
    QStringList expected = administrator.split(' ');
    QStringList row = Filled("Employees").split(' ');
    expected.sort();
    row.sort();
    EXPECT_EQ(row, expected) << "he may do everything and belongs nowhere";
    DataControl datAbsence("test");
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

    const std::pair<const char*, const char*> expected[] = {
        {"Vacances|Vacances|Vacation", "1|112.5|1|0|1|12632064"},
        {"Maladie|Maladie|Sick", "1|0|0|0|1|16761024"},
        {"Temps personnel|Temps personnel|Personal time", "1|7|0|0|1|16777152"},
        {"Rendez-vous médical|Rendez-vous médical|Doctor appointments", "1|0|0|0|0|8421376"},
        {"Temps accumulé|Time accumulated|Time accumulated", "0|0|0|1|0|12632256"},
        {"Temps réclamé|Time claimed|Time claimed", "1|0|0|1|0|12632256"},
        {"Temps payé|Time paid|Time paid", "0|0|0|1|0|12632256"},
        {"Temps emprunté|Time borrowed|Time borrowed", "1|0|0|1|0|12632256"}};
    QStringList rows;
    for (const auto& [names, values] : expected)
        rows << QStringLiteral("%1|%2|1|1|1|ADMIN|46083").arg(names, values);
    EXPECT_EQ(house.Rows("SELECT CategoryFrenchName, CategoryEnglishName, SystemName, ConstitutesAnAbsence, "
                         "StandardEntitlement, CarryOverAtYearEnd, TimeBankRelated, RequiresMonitoring, "
                         "CategoryColorCode, FiscalYear, Active, IsPublic, CreatedBy, CreatedDate FROM Categories"),
              rows.join('\n'));
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

class NewServer : public NewDatabase
{
protected:
    void Listens()
    {
        SetServerSink([this](const QString& statement) { sent << statement; });
    }

    QStringList sent;
};

TEST_F(NewServer, TheConnectionIsTestedTheRowsAreComposedAndTheWorkstationIsSetToTheServer)
{
    Listens();
    Open("optEnglish", "optNewSQLDatabase");
    EXPECT_FALSE(user.CanUse("cmdTestConnection"));
    user.Types("txtIPAddress", "10.0.0.7").Types("txtUserName", "tarvell").Types("txtPassword", "s3cret");
    EXPECT_FALSE(user.CanUse("cmdNext"));
    user.Types("txtDatabaseName", "Absence").Types("txtPassword", "");
    EXPECT_FALSE(user.CanUse("cmdNext"));
    user.Types("txtPassword", "s3cret");
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
    Listens();
    user.Clicks("cmdNext");
    EntersTheRest("2026", "January");
    user.WillAnswer("CONFIRM:", "Yes", "Microsoft SQL Server");
    user.WillAnswer("CONFIGURATION COMPLETED SUCCESSFULLY:", "OK").Clicks("cmdNext");
    EXPECT_EQ(Configuration(), "1|1|10.0.0.7|tarvell|s3cret||Absence|0|0");
    ASSERT_EQ(sent.size(), 10);
    EXPECT_TRUE(sent[0].startsWith("INSERT INTO FiscalYears (FiscalYearName, ")) << qPrintable(sent[0]);
    EXPECT_TRUE(sent[1].contains("Username") && !sent[1].contains("LoginID")) << qPrintable(sent[1]);
    EXPECT_TRUE(sent[9].contains("'Temps emprunté', 'Time borrowed', 'Time borrowed'")) << qPrintable(sent[9]);
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "FiscalYears"), 0);
    EXPECT_EQ(started, 1);
}
