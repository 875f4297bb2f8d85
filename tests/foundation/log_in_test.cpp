#include "foundation/connection.h"
#include "foundation/deployment.h"
#include "foundation/forms.h"
#include "foundation/frm_login.h"
#include "foundation/frm_splash_screen.h"
#include "foundation/log_in.h"
#include "foundation/start_up.h"
#include "platform/clock.h"
#include "support/house_test.h"

#include <QDir>
#include <QFile>

namespace
{
class LogIn : public HouseTest
{
protected:
    void Start()
    {
        FormsAbove.ShowSetUpWizard = [this] { shown << "wizard"; };
        FormsAbove.ShowServerConnection = [this] { shown << "server"; };
        FormsAbove.ShowMain = [this] { shown << "main"; };
        frmSplashScreen().Form_Activate();
    }
    void Types(const QString& name, const QString& password)
    {
        user.Types("txtUserName", name).Types("txtPassword", password).Clicks("cmdOK");
    }
    int Hired(const QString& loginID, const QStringList& rights = {})
    {
        return house.Hire({loginID, "Marie", "Bouchard", "Production", "Assembly", rights});
    }

    QStringList shown; // what the start came to
};

TEST_F(LogIn, TheStartReadsTheConfigurationCleansUpAndLogsTheUserIn)
{
    house.Configured().Company();
    const int marie = Hired("MBOUCHARD", {"SelfLevelRead", "GroupLevelRead"});
    house.Sql("UPDATE Employees SET Language = 1, AttendanceApprovedBy_Main = 1, DepartmentID = 2 WHERE RecordID = ?",
              {marie});
    for (const char* name : {"/Initiate.bat", "/version.dat", "/Connections.log", "/Restart.bat", "/Errors.log"})
        WriteFile(house.Folder() + name);
    user.WhenOpens<frmLogin>([this](frmLogin& login) {
        user.WillAnswer("Access denied!...", "OK", "The username and password you specified are invalid!");
        Types("mbouchard", "wrong");
        Types("m=bou(chard", "pa ss");
        EXPECT_FALSE(login.isVisible());
    });
    Start();

    EXPECT_EQ(shown, QStringList{"main"});
    const Session& s = SessionState;
    EXPECT_EQ(s.LoginID + " " + s.UserName + " " + s.CurrentSelection, "MBOUCHARD Marie Bouchard Marie Bouchard");
    EXPECT_EQ((QList<int>{s.UserID, s.EmployeeID, s.UserApprovedBy, s.TimeOutSeconds}),
              (QList<int>{marie, marie, 1, 840}));
    EXPECT_EQ((QList<int>{s.UserOrganizationID, s.UserDepartmentID, s.UserGroupID}), (QList<int>{1, 2, 1}));
    EXPECT_EQ((QList<int>{s.EmployeeOrganizationID, s.EmployeeDepartmentID, s.EmployeeGroupID}), (QList<int>{1, 2, 1}));
    EXPECT_EQ(s.GroupLevelRead, 1);
    EXPECT_EQ(s.GlobalLevelRead, 0);
    EXPECT_FALSE(s.English);
    EXPECT_EQ(s.VersionText, "120");
    EXPECT_NEAR(house.Cell("SELECT LoggedIn FROM Employees WHERE RecordID = ?", {marie}).toDouble(), Now(), 1e-6);
    const QStringList left = QDir(house.Folder()).entryList(QDir::Files);
    EXPECT_EQ(left, (QStringList{"Config.mdb", "Connections.log", "Errors.log", "Tarvell.mdb"}));
    EXPECT_TRUE(house.ReadFile("Connections.log").startsWith("frmSplashScreen\tTrue\t2026-03-02 09:00:00\t\t"));

    LogOutUser(datAbsence);
    EXPECT_EQ(house.Number("SELECT LoggedIn FROM Employees WHERE RecordID = ?", {marie}), 0);
}

TEST_F(LogIn, AdminEntersAnyYearAndIsToldWhenItIsClosed)
{
    house.Configured().Company();
    house.Sql("UPDATE FiscalYears SET ClosedDate = ?", {SerialOfDate({2026, 2, 27})});
    house.Hire({"ADMIN", "Im", "Postor", "Production"});
    user.WhenOpens<frmLogin>([this](frmLogin&) {
        user.WillAnswer("Access denied!...", "OK");
        Types("admin", "pass");
        EXPECT_TRUE(user.HasFocus("txtPassword"));
        user.WillAnswer("FISCAL YEAR CLOSED:", "OK",
                        "Fiscal year 2026 was closed on Fri 27-Feb-2026.\r\n\r\nYou can no longer");
        Types("admin", "secret");
    });
    Start();
    EXPECT_EQ(SessionState.UserName + SessionState.CurrentSelection, "ADMIN");
    EXPECT_EQ(SessionState.TimeOutSeconds, 3540);
}

TEST_F(LogIn, OnlyActiveEmployeesOfTheYearEnter)
{
    house.Configured().Company();
    house.FiscalYear("2027", 2027);
    house.Hire({"NEXTYEAR", "Luc", "Roy", "Production", "", {}}, 2);
    Hired("GONE");
    Dismiss("GONE");
    user.Opens<frmLogin>(1);
    for (const char* name : {"NEXTYEAR", "GONE", "NOBODY"}) {
        user.WillAnswer("Access denied!...", "OK");
        Types(name, "PASS");
    }
    EXPECT_EQ(SessionState.UserID, 0);
    EXPECT_EQ(SessionState.LoginID, "");
    EXPECT_THROW(user.Clicks("cmdCancel"), ProgramEnded);
}

TEST_F(LogIn, ALogInThatFailsLeavesTheSessionToTheUserBefore)
{
    house.Configured().Company();
    const int marie = Hired("MBOUCHARD");
    house.LogIn("ADMIN");
    house.Sql("UPDATE Employees SET Language = 1, FiscalYear = 2 WHERE RecordID = ?", {marie});
    house.Refuses("UPDATE ON Employees");
    user.Opens<frmLogin>(2, "2027");
    EXPECT_EQ(user.Reads("lblInstructions"), "Your current user identification (ADMIN) does not give you access to "
                                             "fiscal year 2027. Please login under a different user identification.");
    const std::pair<const char*, const char*> attempts[] = {{"PASS", "AN ERROR HAS OCCURRED:"},
                                                            {"WRONG", "Access denied!..."}};
    for (const auto& [password, title] : attempts) {
        user.WillAnswer(title, "OK");
        Types("MBOUCHARD", password);
        EXPECT_EQ(SessionState.LoginID + SessionState.UserPassword + SessionState.CurrentSelection, "ADMINSECRETADMIN");
        EXPECT_EQ((QList<int>{SessionState.UserID, SessionState.GlobalLevelRead, SessionState.English}),
                  (QList<int>{1, 1, 1}));
    }
    user.Clicks("cmdCancel");
    EXPECT_FALSE(user.The<frmLogin>().isVisible()) << "he stays where he was";
}

TEST_F(LogIn, TheCurrentYearHoldsTodayOrIsTheNextOrTheNewestPastOne)
{
    house.FiscalYear("2024", 2024);
    house.FiscalYear("2023", 2023);
    house.FiscalYear("2027", 2027, 4);
    house.FiscalYear("2026", 2026, 4);
    const Connection connection(datAbsence);
    const auto chosen = [&](int year, int month, int day) {
        house.Today(year, month, day);
        ChooseCurrentFiscalYear(datAbsence);
        FindNeighbouringYears(datAbsence);
        const Session& s = SessionState;
        return QStringLiteral("%1 after %2 %3 before %4 %5")
            .arg(s.FiscalYearName, QString::number(s.PreviousFYID), s.PreviousFYName, QString::number(s.NextFYID),
                 s.NextFYName);
    };
    EXPECT_EQ(chosen(2026, 4, 1), "2026 after 0  before 3 2027");
    EXPECT_EQ(chosen(2025, 6, 1), "2026 after 0  before 3 2027");
    EXPECT_EQ(chosen(2024, 12, 31), "2024 after 2 2023 before 0 ");
    EXPECT_EQ(chosen(2028, 3, 31), "2027 after 4 2026 before 0 ");
    EXPECT_EQ(chosen(2030, 1, 1), "2026 after 0  before 3 2027"); // the highest key among the past ones
    house.Sql("DELETE FROM FiscalYears");
    EXPECT_FALSE(ChooseCurrentFiscalYear(datAbsence));
}

TEST_F(LogIn, AnExperiencedUserNeedsNoHint)
{
    house.Configured().Company();
    const int marie = Hired("MBOUCHARD", {"SelfLevelCreate"});
    for (int day = 1; day <= 27; ++day)
        house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    house.Sql("UPDATE Attendance SET EnteredBy = 'MBOUCHARD' WHERE RecordID < 27");
    const auto hint = [this](const char* enteredDate) {
        house.Sql(QStringLiteral("UPDATE Attendance SET EnteredDate = %1").arg(enteredDate));
        house.LogIn("MBOUCHARD");
        return SessionState.ShowSelectHint;
    };
    EXPECT_TRUE(hint("MAX(RecordID, 2)")) << "25 batches";
    EXPECT_FALSE(hint("RecordID"));
    house.Hire({"LUC", "Luc", "Roy", "Production"});
    house.LogIn("LUC");
    EXPECT_TRUE(SessionState.ShowSelectHint) << "whoever may enter nothing is not counted";
    house.Sql("UPDATE Attendance SET EnteredBy = 'mbouchard'");
    EXPECT_TRUE(hint("RecordID")) << "another user's, to the letter";
}

TEST_F(LogIn, AnUnconfiguredWorkstationGoesToTheWizardAndWhatCannotBeReadEndsTheProgram)
{
    Start();
    EXPECT_EQ(shown, QStringList{"wizard"});
    house.Configured();
    user.WillAnswer("A FATAL ERROR HAS OCCURRED:", "OK", Deployment::SupportAddress);
    EXPECT_THROW(Start(), ProgramEnded);

    {
        const Connection connection(datAbsence);
        DefaultWorkspace().PauseReading();
        QFile::remove(house.DatabaseFile());
        EXPECT_THROW(datAbsence.Read("SELECT * FROM FiscalYears"), ConnectionFailed) << "it cannot be restored";
    }
    user.WillAnswer("FATAL ERROR:", "No", "3024: ").WillAnswer("A FATAL ERROR HAS OCCURRED:", "OK");
    EXPECT_THROW(Start(), ProgramEnded);

    WriteFile(house.Folder() + "/Config.mdb", "this is no database at all, and long enough to be looked at twice");
    user.WillAnswer("FATAL ERROR:", "OK", "3343: ");
    EXPECT_THROW(Start(), ProgramEnded);
}

TEST_F(LogIn, ALostDatabaseCanBeLookedForElsewhereAndServesTheRunThatCannotKeepIt)
{
    House other;
    other.Company();
    House workstation;
    workstation.Configured();
    QFile::remove(workstation.DatabaseFile());
    const auto config = Database::Open(workstation.Folder() + "/Config.mdb", kConfigPassword);
    config->Execute("CREATE TRIGGER Refusing BEFORE UPDATE ON Configuration BEGIN SELECT RAISE(ABORT, 'refused'); END");
    user.WillAnswer("FATAL ERROR:", "Yes", "Do you wish to specify a new/different location for your database?");
    const std::pair<const char*, const char*> refused[] = {
        {"/xtarvell.mdb", "«Tarvell.mdb»"}, {"/tarvell.mdb", "Unable to connect to the selected database!"}};
    for (const auto& [file, reason] : refused)
        user.WillAnswer("SPECIFYING DATABASE TYPE:", "Microsoft Access")
            .WillChooseFile(workstation.Folder() + file)
            .WillAnswer("OPERATION DENIED:", "OK", reason);
    const auto finds = [&]() -> User& {
        return user.WillAnswer("SPECIFYING DATABASE TYPE:", "Microsoft Access")
            .WillChooseFile(other.DatabaseFile())
            .WillAnswer("CONNECTION TO DATABASE SUCCESSFUL:", "Yes")
            .WhenOpens<frmLogin>([this](frmLogin&) { Types("ADMIN", "SECRET"); });
    };
    finds().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused");
    Start();
    config->Execute("DROP TRIGGER Refusing");
    user.WillAnswer("FATAL ERROR:", "Yes");
    finds();
    Start();
    EXPECT_EQ(shown, QStringList({"main", "main"}));
    EXPECT_EQ(RowsOf(*config, "SELECT DatabasePath, DatabaseName, SQL_Server FROM Configuration"),
              other.Folder().replace('/', '\\').toUpper() + "|Tarvell.mdb|0");
    SetMessagePresenter([](const Message&) { return MessageCode::Cancel; });
    EXPECT_THROW(LocateDatabase(datAbsence, [] { SessionState.DatabaseName = "never"; }), ProgramEnded)
        << "the question was closed without an answer";
}
} // namespace
