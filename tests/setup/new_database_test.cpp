#include "foundation/employee_rights.h"
#include "foundation/log_in.h"
#include "foundation/texts.h"
#include "foundation/work_schedule.h"
#include "platform/clock.h"
#include "platform/dao/server.h"
#include "setup/wizard_house.h"

#include <gmock/gmock.h>

using testing::HasSubstr;

class NewDatabase : public Wizard
{
protected:
    void FillsIn(const QString& language, const QString& month)
    {
        Open(language, "optNewAccessDatabase");
        user.Clicks("cmdNext");
        EntersFiscalYear("The year 2026 of the North'", month, "2026");
        EntersCategories();
        EntersAdministrator();
    }
    /// What a row holds besides zeros, empty texts and its key.
    QString Filled(const QString& table, const QString& order = "RecordID")
    {
        const auto database = Database::Open(house.DatabaseFile(), kDatabasePassword);
        QStringList lines;
        for (Recordset row = database->OpenRecordset("SELECT * FROM " + table + " ORDER BY " + order); !row.AtEnd();
             row.MoveNext()) {
            QStringList cells;
            for (const QString& column : database->Columns(table))
                if (column != "RecordID" && !row.IsNull(column) && row.Text(column) != "0" &&
                    !row.Text(column).isEmpty())
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
    const QString today = QString::number(SerialOfDate({2026, 3, 2}));
    EXPECT_EQ(Filled("FiscalYears"), "FiscalYearName=The year 2026 of the North` CommencingDate=" +
                                         QString::number(SerialOfDate({2026, 3, 1})) +
                                         " EndingDate=" + QString::number(SerialOfDate({2027, 2, 28})) +
                                         " EnteredDate=" + today + " EnteredBy=ADMIN");
}

TEST_F(NewDatabase, TheAdministratorMayDoEverythingAndBelongsNowhere)
{
    FillsIn("optEnglish", "January");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("CONFIGURATION COMPLETED SUCCESSFULLY:", "OK").Clicks("cmdNext");

    EXPECT_EQ(
        house.Rows("SELECT FiscalYear, FamilyName, FirstName, PhoneOffice, DateEntered, EnteredBy, LoginID, Password, "
                   "EMailAddress, DeactivatedBy, ReasonForDeactivation, Language FROM Employees"),
        "0|L`Heureux|Zoé|555-0100|" + QString::number(Today()) + "|SYSTEM|ADMIN|BLUEMOON| | | |0");
    const QString row = Filled("Employees");
    for (const auto& [column, member] : kRights)
        EXPECT_THAT(row.toStdString(), HasSubstr(std::string(column) + "=1"));
    EXPECT_EQ(row.count("=1"), static_cast<int>(kRights.size())) << qPrintable(row);
    for (const auto& columns : {kDayLengths[0].Column, kClockTimes[0].Column, "HoursWorkedDaily", "PreviousID"})
        EXPECT_EQ(house.Cell(QString("SELECT %1 FROM Employees").arg(columns)), "0");
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

    const QString common = " CreatedBy=ADMIN CreatedDate=" + QString::number(Today());
    const QString open = " Active=1 IsPublic=1 CategoryColorCode=";
    const auto names = [](const QString& french, const QString& english, const QString& system) {
        return "FiscalYear=1 CategoryFrenchName=" + french + " CategoryEnglishName=" + english +
               " SystemName=" + system;
    };
    const QStringList expected = {
        names("Vacances", "Vacances", "Vacation") +
            " ConstitutesAnAbsence=1 StandardEntitlement=112.5 CarryOverAtYearEnd=1" + common +
            " RequiresMonitoring=1" + open + "12632064",
        names("Maladie", "Maladie", "Sick") + " ConstitutesAnAbsence=1" + common + " RequiresMonitoring=1" + open +
            "16761024",
        names("Temps personnel", "Temps personnel", "Personal time") + " ConstitutesAnAbsence=1 StandardEntitlement=7" +
            common + " RequiresMonitoring=1" + open + "16777152",
        names("Rendez-vous médical", "Rendez-vous médical", "Doctor appointments") + " ConstitutesAnAbsence=1" +
            common + open + "8421376",
        names("Temps accumulé", "Time accumulated", "Time accumulated") + " TimeBankRelated=1" + common + open +
            "12632256",
        names("Temps réclamé", "Time claimed", "Time claimed") + " ConstitutesAnAbsence=1 TimeBankRelated=1" + common +
            open + "12632256",
        names("Temps payé", "Time paid", "Time paid") + " TimeBankRelated=1" + common + open + "12632256",
        names("Temps emprunté", "Time borrowed", "Time borrowed") + " ConstitutesAnAbsence=1 TimeBankRelated=1" +
            common + open + "12632256"};
    EXPECT_EQ(Filled("Categories"), expected.join('\n'));
    EXPECT_EQ(house.Cell("SELECT Language FROM Employees"), "1") << "the administrator goes on in French";
    EXPECT_TRUE(Configuration().startsWith("0|0|"));
}

TEST_F(NewDatabase, AFailureWhileRowsAreWrittenLeavesNothingBehind)
{
    FillsIn("optEnglish", "January");
    house.Sql("CREATE TRIGGER guard BEFORE INSERT ON Categories WHEN NEW.SystemName = 'Time paid' "
              "BEGIN SELECT RAISE(ABORT, 'guarded'); END");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "guarded").Clicks("cmdNext");
    EXPECT_EQ(Configuration(), "");
    for (const char* table : {"FiscalYears", "Employees", "Categories"})
        EXPECT_EQ(RowsIn(house.DatabaseFile(), table), 0) << table;
    EXPECT_EQ(started, 0);

    house.Sql("DROP TRIGGER guard");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("CONFIGURATION COMPLETED SUCCESSFULLY:", "OK").Clicks("cmdNext");
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "Categories"), 8);
    EXPECT_EQ(started, 1);
}

TEST_F(NewDatabase, AConfigurationThatCannotBeWrittenLeavesTheDatabaseEmpty)
{
    FillsIn("optEnglish", "January");
    QFile::remove(house.Folder() + "/Config.mdb");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3024").Clicks("cmdNext");
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "FiscalYears"), 0);
    EXPECT_TRUE(user.CanUse("cmdNext")) << "the user may try again";
}

TEST_F(NewDatabase, ADatabaseThatSomebodyElseSetUpMeanwhileIsLeftAlone)
{
    FillsIn("optEnglish", "January");
    house.Company();
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "already holds a fiscal year");
    user.Clicks("cmdNext");
    EXPECT_EQ(RowsIn(house.DatabaseFile(), "FiscalYears"), 1);
    EXPECT_EQ(house.Cell("SELECT Password FROM Employees WHERE LoginID = 'ADMIN'"), "SECRET");
    EXPECT_EQ(Configuration(), "");
}

TEST_F(NewDatabase, ADatabaseInUseIsNotTakenForANewOne)
{
    house.Company();
    Open("optEnglish", "optNewAccessDatabase");
    user.WillAnswer("DATABASE NOT EMPTY:", "OK", "go back one step").Clicks("cmdNext");
    EXPECT_TRUE(user.CanUse("cmdRelocateDatabase"));
}

class NewServer : public NewDatabase
{
protected:
    NewServer()
    {
        SetServerSink([this](const QString& statement) { sent << statement; });
    }
    void EntersServer()
    {
        user.Types("txtIPAddress", "10.0.0.7").Types("txtUserName", "tarvell").Types("txtPassword", "s3cret");
        EXPECT_FALSE(user.CanUse("cmdNext"));
        user.Types("txtDatabaseName", "Absence");
    }

    QStringList sent;
};

TEST_F(NewServer, TheConnectionTestWritesTheDataSourceAndAdvises)
{
    Open("optEnglish", "optNewSQLDatabase");
    EXPECT_FALSE(user.CanUse("cmdTestConnection"));
    EntersServer();
    for (int time = 0; time < 2; ++time)
        user.WillAnswer("DATABASE NOT EMPTY:", "OK", "EXISTING SQL Server database").Clicks("cmdTestConnection");
    EXPECT_EQ(house.ReadFile("Absence.dsn"),
              "[ODBC]\r\nDRIVER=SQL Server\r\nUID = tarvell\r\nAddress=10.0.0.7\r\nDatabase = Absence\r\n"
              "WSID = COMPUTER\r\nSERVER=10.0.0.7\r\nDescription = Tarvell\r\n");
    EXPECT_EQ(sent, QStringList({"SELECT * FROM FiscalYears", "SELECT * FROM FiscalYears"}));
    EXPECT_TRUE(user.CanUse("cmdTestConnection"));

    SetServerSink([](const QString&) { throw RuntimeError(EngineError::NoSuchTable, "no such table"); });
    user.WillAnswer("INVALID DATABASE STRUCTURE:", "OK", "IP address and database name").Clicks("cmdTestConnection");
    QDir(house.Folder()).remove("Absence.dsn");
    QDir(house.Folder()).mkdir("Absence.dsn");
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK").Clicks("cmdTestConnection");
}

TEST_F(NewServer, TheRowsAreComposedAndTheWorkstationIsSetToTheServer)
{
    Open("optEnglish", "optNewSQLDatabase");
    EntersServer();
    user.Clicks("cmdNext");
    EntersFiscalYear("2026", "January", "2026");
    EntersCategories();
    EntersAdministrator();
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
