#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "foundation/frm_login.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"
#include "reference/frm_unit.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_employee.h"
#include "support/user.h"

#include <QAction>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>
#include <memory>

namespace
{
const int kVacationColor = 0xC0C000;

class MainWindow : public testing::Test
{
protected:
    House house;
    User user;
    std::unique_ptr<frmMain> main;
    int marie = 0;

    void SetUp() override
    {
        house.Configured().Company().Today(2026, 11, 23);
        marie = house.Hire({"MBOUCHARD", "Marie", "Bouchard", "Production", "Assembly", {"SelfLevelRead"}, 1});
    }
    /// The main window as it stands after its first tick.
    void Opens(const QString& loginID)
    {
        house.LogIn(loginID);
        main = std::make_unique<frmMain>();
        main->show();
        main->Form_Load();
        main->timAbsence_Timer();
        user.Works(*main);
    }
    void OpensOn(int employee, const QString& name)
    {
        Opens("ADMIN");
        ChoosesEmployee(employee, name);
    }
    void ChoosesEmployee(int employee, const QString& name)
    {
        user.WhenOpens<frmSelectEmployee>([employee, name](frmSelectEmployee& form) {
            SessionState.EmployeeID = employee;
            SessionState.CurrentSelection = name;
            form.accept();
        });
        user.Clicks("imgUpdateSelection");
    }
    FlexGrid& Grid() { return *main->findChild<FlexGrid*>("flxCalendar"); }
    QPoint Place(int year, int month, int day) { return main->Calendar().PlaceOf(SerialOfDate({year, month, day})); }
    QString Day(int month, int day, int year = 2026)
    {
        const QPoint place = Place(year, month, day);
        return Grid().TextMatrix(place.y(), place.x());
    }
    int Back(int month, int day)
    {
        const QPoint place = Place(2026, month, day);
        return Grid().CellBackColor(place.y(), place.x());
    }
    void ClicksDay(int month, int day)
    {
        const QPoint place = Place(2026, month, day);
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Grid().CellRect(place.y(), place.x()).center());
    }
    void Chooses(const char* menu) { main->findChild<QAction*>(menu)->trigger(); }
    bool Enabled(const char* menu) { return main->findChild<QAction*>(menu)->isEnabled(); }
    bool Visible(const char* control) { return main->findChild<QWidget*>(control)->isVisible(); }
    void PressesEscape() { QTest::keyClick(main.get(), Qt::Key_Escape); }
};

TEST_F(MainWindow, TheYearIsPaintedWithColoursTotalsHolidaysAndToday)
{
    house.Record(marie, "Vacation", {2026, 7, 13}, 7);
    house.Record(marie, "Vacation", {2026, 7, 14}, 7);
    house.Record(marie, "Sick", {2026, 7, 14}, 1.75F);
    house.Record(marie, "Time accumulated", {2026, 5, 6}, 3);
    house.Record(marie, "Time accumulated", {2026, 5, 7}, 2, true); // pending: in the bank, not on the calendar
    const int cancelled = house.Record(marie, "Sick", {2026, 8, 3}, 7);
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?", {cancelled});
    house.Sql("UPDATE Categories SET CategoryColorCode = '' WHERE SystemName = 'Time accumulated'");
    OpensOn(marie, "Marie Bouchard");

    EXPECT_EQ(Grid().TextMatrix(0, 0), "JANUARY 2026");
    EXPECT_EQ(Grid().TextMatrix(19, 30), "Sa");
    EXPECT_EQ(Place(2026, 1, 1), QPoint(4, 2));
    EXPECT_EQ(Place(2026, 8, 31), QPoint(25, 16));
    EXPECT_EQ(Back(7, 13), kVacationColor);
    EXPECT_EQ(Back(7, 14), 0x80C0FF);
    EXPECT_EQ(Back(5, 6), 65535);
    EXPECT_EQ(Back(5, 7), 0xFFFFFF);
    EXPECT_EQ(Back(8, 3), 0xFFFFFF);
    const QPoint christmas = Place(2026, 12, 25), today = Place(2026, 11, 23);
    EXPECT_EQ(Grid().CellForeColor(christmas.y(), christmas.x()), 0xFF0000);
    EXPECT_TRUE(Grid().CellFontBold(christmas.y(), christmas.x()));
    EXPECT_EQ(Grid().CellForeColor(today.y(), today.x()), 255);
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "2 days 04:45");
    EXPECT_EQ(user.Reads("txtTimeBanked"), "05:00");

    user.Picks("cboCategories", "Sick");
    EXPECT_EQ(Back(7, 13), 0xFFFFFF);
    EXPECT_EQ(Back(7, 14), 0xFFC0C0);
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "0 days 01:45");
    user.Clicks("lblLegend(0)");
    EXPECT_EQ(user.Reads("cboCategories"), "Vacation");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "2 days 00:00");
    user.Picks("cboCategories", "(All categories)");
    Chooses("mnuSpecialDisplayPending");
    EXPECT_EQ(Back(5, 7), 65535);
    EXPECT_EQ(Back(7, 13), 0xFFFFFF);
    EXPECT_FALSE(Visible("imgCreateSingle") || Visible("imgModify") || Visible("imgRemove"));
    Chooses("mnuSpecialDisplayApproved");
    EXPECT_TRUE(Visible("imgCreateSingle"));
}

TEST_F(MainWindow, AUnitShowsTheHoursOfAllItsPeopleAndHiddenCategoriesStayHidden)
{
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Production", "", {"DepartmentLevelRead"}});
    house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    house.Record(luc, "Sick", {2026, 3, 3}, 7.5F);
    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Sick'");
    Opens("LROY");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "00:00");
    user.WhenOpens<frmSelectEmployee>([](frmSelectEmployee& form) {
        SessionState.EmployeeID = 0;
        SessionState.EmployeeGroupID = 0;
        SessionState.CurrentSelection = "Production";
        form.accept();
    });
    user.Clicks("imgUpdateSelection");
    EXPECT_EQ(user.Reads("lblCurrentSelection_DISPLAY"), "Production");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "07:00");
    EXPECT_EQ(Back(3, 2), kVacationColor);
    EXPECT_EQ(Back(3, 3), 0xFFFFFF);
    EXPECT_FALSE(user.Entries("cboCategories").contains("Sick"));
    ClicksDay(3, 2);
    EXPECT_EQ(user.Reads("txtAttendanceRecords"), "Marie Bouchard   Vacation   Duration: 07:00");
    EXPECT_EQ(user.Reads("lblRecordsDate"), "Mon 02-Mar-2026");
    ClicksDay(7, 1);
    EXPECT_EQ(user.Reads("lblRecordsDate"), "Wed 01-Jul-2026   Canada Day");
}

TEST_F(MainWindow, AYearThatBeginsInAprilOfALeapYearRunsToMarch)
{
    house.FiscalYear("27-28", 2027, 4);
    house.Today(2027, 5, 1);
    house.LogIn("ADMIN");
    YearCalendar calendar;
    calendar.LoadDates(SessionState, {}, {});
    EXPECT_EQ(calendar.Cell(0, 0).Text, "APRIL 2027");
    EXPECT_EQ(calendar.Cell(18, 24).Text, "MARCH 2028");
    EXPECT_EQ(calendar.PlaceOf(SerialOfDate({2028, 2, 29})), QPoint(18, 24));
    int days = 0;
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col)
            days += calendar.StoredDate(row, col) != 0;
    EXPECT_EQ(days, 366);
    EXPECT_EQ(calendar.PlaceOf(SerialOfDate({2028, 4, 1})).x(), -1);
    SessionState.English = false;
    calendar.LoadDates(SessionState, {}, {});
    EXPECT_EQ(calendar.Cell(9, 8).Text, "SEPTEMBRE 2027");
    EXPECT_EQ(calendar.Cell(10, 8).Text, "Di");
}

TEST_F(MainWindow, EachUsersRightsDecideWhatIsEnabled)
{
    Opens("MBOUCHARD");
    EXPECT_TRUE(Visible("imgSubmit"));
    EXPECT_TRUE(Visible("imgCreateSingle_DISABLED") && Visible("imgUpdateSelection_DISABLED"));
    EXPECT_FALSE(Visible("imgCreateSingle") || Enabled("mnuFileEmployees"));
    EXPECT_FALSE(main->findChild<QAction*>("mnuSpecialExportEmployee")->isVisible());
    EXPECT_TRUE(Enabled("mnuReportsYTD_Individual"));

    Opens("ADMIN");
    EXPECT_TRUE(Visible("imgCreateSingle") && Enabled("mnuFileHolidays"));
    SessionState.ClosedDate = 46000;
    main->timAbsence_Timer();
    EXPECT_FALSE(Visible("imgCreateSingle") || Enabled("mnuFileHolidays"));
    EXPECT_TRUE(Visible("imgUpdateSelection") && Enabled("mnuSpecialFiscalYearClose"));
}

TEST_F(MainWindow, CreatingNeedsAnEmployeeOtherThanTheAdministrator)
{
    Opens("ADMIN");
    user.WillAnswer("ERROR:", "OK", "The system administrator is not considered as an employee!")
        .Clicks("imgCreateSingle");
    SessionState.EmployeeID = 0;
    user.WillAnswer("ERROR:", "OK", "You must first select an employee!").Clicks("imgCreateMultiple");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "Before you can modify attendance records").Clicks("imgModify");
    ChoosesEmployee(marie, "Marie Bouchard");
    user.Picks("cboCategories", "Vacation");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "There are no attendance records to be removed!").Clicks("imgRemove");
    EXPECT_FALSE(main->Busy);
}

TEST_F(MainWindow, OneDateIsAskedAboutHolidaysDaysOffAndOtherRecords)
{
    house.Record(marie, "Sick", {2026, 12, 7}, 3, true);
    OpensOn(marie, "Marie Bouchard");
    user.Clicks("imgCreateSingle");
    EXPECT_TRUE(main->Busy);
    EXPECT_TRUE(Visible("txtSelect"));
    EXPECT_FALSE(user.CanUse("cboCategories") || Enabled("mnuFile"));
    user.WillAnswer("WARNING!", "No", "This is a statutory holiday!");
    ClicksDay(12, 25);
    user.WillAnswer("WARNING:", "No", "According to your database, Marie Bouchard doesn't work on Saturdays!");
    ClicksDay(12, 5);
    user.WillAnswer("WARNING:", "No", "Sick\tDuration: 03:00  (TO BE APPROVED)");
    ClicksDay(12, 7);
    EXPECT_TRUE(main->Busy);
    user.WillAnswer("WARNING:", "Yes").WhenOpens<frmAttendance>([](frmAttendance& form) {
        EXPECT_EQ(SessionState.AttendanceDates, DateList{SerialOfDate({2026, 12, 7})});
        EXPECT_TRUE(form.Entry().ConflictsAccepted);
        form.reject();
    });
    ClicksDay(12, 7);
    EXPECT_FALSE(main->Busy);
    EXPECT_FALSE(Visible("txtSelect"));
    EXPECT_TRUE(user.CanUse("cboCategories"));
}

TEST_F(MainWindow, MarkedDatesBecomeRecordsAndTheCalendarFollows)
{
    OpensOn(marie, "Marie Bouchard");
    user.Clicks("imgCreateMultiple");
    user.WillAnswer("ERROR:", "OK", "You must first select date(s) from the calendar!").Clicks("imgCreateMultiple");
    for (const int day : {16, 14, 15, 14})
        ClicksDay(12, day);
    EXPECT_EQ(Day(12, 14), "14");
    EXPECT_EQ(Day(12, 15), " X");
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        EXPECT_EQ(SessionState.AttendanceDates, (DateList{SerialOfDate({2026, 12, 15}), SerialOfDate({2026, 12, 16})}));
        user.Picks("cboCategories", "Vacation")
            .Checks("chkWholeDay")
            .WillAnswer("CONFIRM:", "Yes")
            .Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgCreateMultiple");
    EXPECT_EQ(Back(12, 15), kVacationColor);
    EXPECT_EQ(Day(12, 15), "15");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "2 days 00:00");
    EXPECT_EQ(user.Reads("cboCategories"), "(All categories)");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance WHERE EmployeeID = ?", {marie}), 2);

    user.Clicks("imgCreateMultiple");
    ClicksDay(12, 17);
    PressesEscape();
    EXPECT_EQ(Day(12, 17), "17");
    EXPECT_TRUE(SessionState.MarkedDates.isEmpty());
    EXPECT_FALSE(main->Busy);
    PressesEscape();
}

TEST_F(MainWindow, AnotherEmployeeOfTheEntryFormIsFollowedOnlyWhenRecordsWereWritten)
{
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Sales", "", {}, 0, 20, false});
    OpensOn(marie, "Marie Bouchard");
    for (const bool writing : {false, true}) {
        user.Clicks("imgCreateSingle");
        user.WhenOpens<frmAttendance>([this, writing](frmAttendance&) {
            user.Picks("lstWho", "Roy, Luc").Picks("cboCategories", "Sick");
            if (!writing)
                return void(user.Clicks("cmdQuit"));
            user.Types("txtDurationInHours", "2").LeavesField("txtDurationInHours");
            user.WillAnswer("CONFIRM:", "Yes").Clicks("cmdAddOrUpdate");
        });
        ClicksDay(4, 14);
        EXPECT_EQ(SessionState.EmployeeID, writing ? luc : marie);
        EXPECT_EQ(user.Reads("lblCurrentSelection_DISPLAY"), writing ? "Luc Roy" : "Marie Bouchard");
        EXPECT_EQ(SessionState.HasSchedule, !writing);
    }
    EXPECT_EQ(Back(4, 14), 0xFFC0C0);
}

TEST_F(MainWindow, APeriodGoesThroughTheDatesForm)
{
    OpensOn(marie, "Marie Bouchard");
    user.WhenOpens<frmSelectDates>([this](frmSelectDates&) {
        user.Picks("cboFrom", "Mon 29-Jun-2026").Picks("cboTo", "Fri 03-Jul-2026").Clicks("cmdOK");
    });
    user.WhenOpens<frmAttendance>([this](frmAttendance& form) {
        EXPECT_EQ(user.Reads("txtWhen").count('\n'), 3); // the first of July is a holiday
        EXPECT_FALSE(user.CanUse("lstWho"));
        form.reject();
    });
    user.Clicks("imgCreateConsecutive");
    EXPECT_FALSE(SessionState.CreatingConsecutive || SessionState.CreatingMultiple || main->Busy);
}

TEST_F(MainWindow, ARequestIsForOneselfAndNeedsAnApprover)
{
    house.Sql("UPDATE Employees SET GroupLevelRead = 1 WHERE RecordID = ?", {marie});
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Production", "Assembly"});
    Opens("MBOUCHARD");
    ChoosesEmployee(luc, "Luc Roy");
    SessionState.UserApprovedBy = 0;
    user.WillAnswer("OPERATION DENIED:", "OK", "See your system administrator (Alice Tremblay) for more details.")
        .Clicks("imgSubmit");
    SessionState.UserApprovedBy = 1;
    user.Clicks("imgSubmit");
    EXPECT_EQ(user.Reads("lblCurrentSelection_DISPLAY"), "Marie Bouchard");
    EXPECT_EQ(SessionState.EmployeeID, marie);
    ClicksDay(12, 21);
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user.Picks("cboCategories", "Vacation").Checks("chkWholeDay");
        user.WillAnswer("REQUEST FOR APPROVAL:", "Yes").WillAnswer("REQUEST SUBMITTED SUCCESSFULLY:", "OK");
        user.Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgSubmit");
    EXPECT_EQ(Back(12, 21), 0xFFFFFF);
    Chooses("mnuSpecialDisplayPending");
    EXPECT_EQ(Back(12, 21), kVacationColor);
    EXPECT_TRUE(Visible("imgRemove_DISABLED"));
    EXPECT_EQ(house.Cell("SELECT Submitted + SubmittedTo_First FROM Attendance"), "2");
}

TEST_F(MainWindow, OneOfSeveralRecordsOfADayIsModified)
{
    house.Record(marie, "Sick", {2026, 4, 14}, 2);
    const int second = house.Record(marie, "Sick", {2026, 4, 14}, 3.5F);
    OpensOn(marie, "Marie Bouchard");
    user.Picks("cboCategories", "Sick").Clicks("imgModify");
    ClicksDay(4, 15); // nothing there
    user.WhenOpens<frmSelectAttendanceRecord>([this](frmSelectAttendanceRecord&) {
        user.Picks("lstRecords", "From: 00:00  To: 00:00  Duration: 03:30").Clicks("cmdSelect");
    });
    user.WhenOpens<frmAttendance>([this, second](frmAttendance& form) {
        EXPECT_EQ(form.Entry().RecordToModify, second);
        EXPECT_EQ(user.Reads("txtDurationInMinutes"), "30");
        user.Types("txtDurationInHours", "4").LeavesField("txtDurationInHours");
        user.WillAnswer("WARNING:", "Yes").WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK");
        user.Clicks("cmdAddOrUpdate");
    });
    ClicksDay(4, 14);
    EXPECT_EQ(house.Cell("SELECT Duration FROM Attendance WHERE RecordID = ?", {second}), "4.5");
    EXPECT_EQ(house.Cell("SELECT Duration FROM Attendance_Modifications WHERE RecordID = ?", {second}), "3.5");
    EXPECT_EQ(user.Reads("lblTotalForTheYear_DISPLAY"), "0 days 06:30");
}

TEST_F(MainWindow, OnesOwnRecordsNeedTheRightToBeChangedAndRemovalMarksRecords)
{
    house.Sql("UPDATE Employees SET GroupLevelModify = 1 WHERE RecordID = ?", {marie});
    house.Record(marie, "Sick", {2026, 4, 14}, 2);
    Opens("MBOUCHARD");
    user.Picks("cboCategories", "Sick").Clicks("imgModify");
    user.WillAnswer("ERROR!", "OK", "You are not authorized to modify your own attendance records!");
    ClicksDay(4, 14);
    PressesEscape();
    SessionState.SelfLevelModify = 1;
    user.Clicks("imgRemove");
    ClicksDay(4, 13);
    ClicksDay(4, 14);
    EXPECT_EQ(Day(4, 13), "13");
    EXPECT_EQ(Day(4, 14), " X     ");
    ClicksDay(4, 14);
    EXPECT_EQ(Day(4, 14), "14");
    user.WillAnswer("ERROR:", "OK", "You must first select record(s) to be cancelled").Clicks("imgRemove");
    PressesEscape();
}

TEST_F(MainWindow, ANeighbouringYearBringsItsOwnUserAndRights)
{
    house.FiscalYear("2027", 2027);
    const int next = house.Hire({"MBOUCHARD", "Marie", "Bouchard", "Production", "Assembly", {"GlobalLevelRead"}}, 2);
    house.Sql("UPDATE FiscalYears SET ClosedDate = 47000 WHERE RecordID = 2");
    Opens("MBOUCHARD");
    EXPECT_FALSE(user.CanUse("cmdPreviousYear"));
    user.Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear"), "2027");
    EXPECT_EQ(SessionState.UserID, next);
    EXPECT_EQ(SessionState.GlobalLevelRead, 1);
    EXPECT_EQ(Grid().TextMatrix(0, 0), "JANUARY 2027");
    EXPECT_FALSE(user.CanUse("cmdNextYear") || Visible("imgSubmit"));
    user.Clicks("cmdPreviousYear");
    EXPECT_EQ(SessionState.UserID, marie);
    EXPECT_EQ(SessionState.GlobalLevelRead, 0);
    EXPECT_EQ(SessionState.ClosedDate, 0);
    EXPECT_TRUE(user.CanUse("cmdNextYear"));

    house.Sql("UPDATE Employees SET DeactivatedDate = 46900 WHERE RecordID = ?", {next});
    user.WhenOpens<frmLogin>([this](frmLogin&) { user.Clicks("cmdCancel"); });
    user.Clicks("cmdNextYear");
    EXPECT_EQ(SessionState.FiscalYearName, "2026");
    house.Hire({"LROY", "Luc", "Roy", "Production", ""}, 2);
    user.WhenOpens<frmLogin>(
        [this](frmLogin&) { user.Types("txtUserName", "lroy").Types("txtPassword", "pass").Clicks("cmdOK"); });
    user.Clicks("cmdNextYear");
    EXPECT_EQ(SessionState.FiscalYearName, "2027");
    EXPECT_EQ(user.Reads("lblCurrentSelection_DISPLAY"), "Luc Roy");
    EXPECT_EQ(main->windowTitle(), "Tarvell   Session ID [LROY]");
}

TEST_F(MainWindow, TheLanguageSwitchesAtOnceAndIsKept)
{
    house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    OpensOn(marie, "Marie Bouchard");
    user.Picks("cboCategories", "Sick");
    Chooses("mnuSpecialSwitchLanguage");
    EXPECT_EQ(main->windowTitle(), "Tarvell   Identification: [ADMIN]");
    EXPECT_EQ(user.Reads("cboCategories"), "Maladie");
    EXPECT_EQ(Back(3, 2), 0xFFFFFF); // the calendar still shows that category alone
    EXPECT_EQ(Grid().TextMatrix(0, 8), "FÉVRIER 2026");
    EXPECT_TRUE(user.Entries("cboCategories").contains("Rendez-vous médical"));
    EXPECT_EQ(house.Number("SELECT Language FROM Employees WHERE LoginID = 'ADMIN'"), 1);
}

TEST_F(MainWindow, EachLetterOpensOneEntryOfAMenu)
{
    Opens("ADMIN");
    for (const char* language : {"English", "French"}) {
        QList<QWidget*> menus{main->menuBar()};
        for (QMenu* menu : main->findChildren<QMenu*>())
            menus << menu;
        ASSERT_GT(menus.size(), 10);
        for (const QWidget* menu : menus) {
            QStringList letters;
            for (const QAction* entry : menu->actions())
                if (!entry->isSeparator())
                    letters << QKeySequence::mnemonic(entry->text()).toString();
            EXPECT_EQ(QSet<QString>(letters.begin(), letters.end()).size(), letters.size())
                << language << ": " << letters.join(' ').toStdString();
        }
        Chooses("mnuSpecialSwitchLanguage");
    }
}

TEST_F(MainWindow, AnIdleProgramCountsDownPastZeroAndEnds)
{
    Opens("MBOUCHARD");
    for (int second = 1; second < 840; ++second)
        main->timTimeOut_Timer();
    EXPECT_FALSE(Visible("txtTimeOut"));
    main->timTimeOut_Timer();
    EXPECT_EQ(user.Reads("txtTimeOut"), "Tarvell will be shut down in 0 seconds...");
    for (int second = 1; second < 60; ++second)
        main->timTimeOut_Timer();
    EXPECT_EQ(user.Reads("txtTimeOut"), "Tarvell will be shut down in -59 seconds...");
    QTest::mouseMove(&Grid(), QPoint(40, 40));
    main->IdleSeconds = main->IdleSeconds < 840 ? main->IdleSeconds : 899;
    main->Busy = true;
    main->timTimeOut_Timer();
    EXPECT_EQ(main->IdleSeconds, 0);
    EXPECT_FALSE(Visible("txtTimeOut"));
    main->Busy = false;
    main->IdleSeconds = 899;
    EXPECT_THROW(main->timTimeOut_Timer(), ProgramEnded);
    EXPECT_NE(house.Cell("SELECT LoggedIn FROM Employees WHERE RecordID = ?", {marie}), "0");
}

TEST_F(MainWindow, AFormLeftOpenDoesNotKeepAnIdleProgramAlive)
{
    Opens("ADMIN");
    const auto isLeftOpen = [this](QDialog& form) {
        main->IdleSeconds = SessionState.TimeOutSeconds + 59;
        EXPECT_THROW(main->timTimeOut_Timer(), ProgramEnded);
        form.reject();
    };
    user.WhenOpens<frmSelectEmployee>(isLeftOpen).Clicks("imgUpdateSelection");
    user.WhenOpens<frmOrganizations>(isLeftOpen);
    Chooses("mnuFileOrganizations");
}

TEST_F(MainWindow, TheTimersStepsRunInOrderAndOnce)
{
    Opens("ADMIN");
    QStringList ran;
    for (const char* step : {"AreThereRequestsToApprove", "WereRequestsApproved", "IsFYClosingScheduled",
                             "DoesUserNeedTraining", "DownloadRedemption", "SpecifyMailerComponent"})
        main->BackgroundWork().SetWork(step, [&ran, step, this] {
            EXPECT_TRUE(main->TimerBusy);
            main->timAbsence_Timer(); // a tick under a modal form does nothing
            ran << step;
        });
    main->timAbsence_Timer();
    EXPECT_EQ(ran, (QStringList{"DownloadRedemption", "DoesUserNeedTraining", "IsFYClosingScheduled",
                                "AreThereRequestsToApprove"}));
    ran.clear();
    SessionState.LastUpgradeDate = 333;
    SessionState.SelfLevelCreate = 0;
    main->timAbsence_Timer();
    EXPECT_EQ(ran, (QStringList{"SpecifyMailerComponent", "WereRequestsApproved", "AreThereRequestsToApprove"}));
    user.WillAnswer("REQUEST(S) FOR LEAVE RECEIVED:", "Yes", "\r\n\r\nMarie");
    EXPECT_TRUE(OfferApproval("Marie"));
    EXPECT_FALSE(OfferApproval({}));
}

TEST_F(MainWindow, AStepThatFailsIsToldAndLocksNothing)
{
    Opens("ADMIN");
    main->BackgroundWork().SetWork("IsFYClosingScheduled", [] { throw RuntimeError(3043, "network"); });
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3043: network");
    main->timAbsence_Timer();
    EXPECT_FALSE(main->TimerBusy);
    EXPECT_TRUE(Enabled("mnuFile"));
    EXPECT_TRUE(user.CanUse("imgCreateSingle"));
}

TEST_F(MainWindow, EveryMenuEntryDoesWhatItSaysOrSaysThatItCannotYet)
{
    Opens("ADMIN");
    user.WillAnswer("DATABASE PATH:", "OK", house.Folder());
    Chooses("mnuFileDatabaseLocation");
    for (const char* entry :
         {"mnuFileCategories", "mnuReportsYTD_Global", "mnuSchedule_Dept", "mnuFilePrintCalendar"}) {
        user.WillAnswer("NOT AVAILABLE YET:", "OK");
        Chooses(entry);
    }
    Chooses("mnuBlocked_Global");
    Chooses("mnuSpecialFiscalYearArchive");
    EXPECT_THROW(Chooses("mnuFileExit"), ProgramEnded);
    EXPECT_EQ(house.Number("SELECT LoggedIn FROM Employees WHERE LoginID = 'ADMIN'"), 0);
}
} // namespace
