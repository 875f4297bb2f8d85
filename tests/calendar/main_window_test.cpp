#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "foundation/frm_login.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"
#include "reference/frm_unit.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_employee.h"
#include "support/main_window.h"

#include <QAction>
#include <QMenuBar>
#include <QTest>

#include <gtest/gtest.h>

namespace
{
class MainWindow : public testing::Test
{
protected:
    House house;
    MainUser user;
    frmMain* main = nullptr;
    int marie = 0;

    void SetUp() override
    {
        house.Configured().Company().Today(2026, 11, 23);
        marie = house.Hire({"MBOUCHARD", "Marie", "Bouchard", "Production", "Assembly", {"SelfLevelRead"}, 1});
    }
    void Opens(const QString& loginID) { main = &user.OpensMain(loginID); }
    void OpensOnMarie()
    {
        Opens("ADMIN");
        Selects("lstEmployees", "Bouchard, Marie");
    }
    void Selects(const QString& list, const QString& entry)
    {
        user.WhenOpens<frmSelectEmployee>(
            [this, list, entry](frmSelectEmployee&) { user.Picks(list, entry).Clicks("cmdSelect"); });
        user.Clicks("imgUpdateSelection");
    }
    void Grants(const QString& right)
    {
        house.Sql("UPDATE Employees SET " + right + " = 1 WHERE RecordID = ?", {marie});
    }
    FlexGrid& Grid() { return *main->findChild<FlexGrid*>("flxCalendar"); }
    /// Days of 2026 as they stand on the calendar: text, colour, colour of the text if it is not black, "bold".
    QString Days(std::initializer_list<std::pair<int, int>> days)
    {
        QStringList shown;
        for (const auto& [month, day] : days) {
            const QPoint place = main->Calendar().PlaceOf(SerialOfDate({2026, month, day}));
            const int color = Grid().CellForeColor(place.y(), place.x());
            shown << Grid().TextMatrix(place.y(), place.x()) + " " +
                         QString::number(Grid().CellBackColor(place.y(), place.x()), 16) +
                         (color != 0 ? " " + QString::number(color, 16) : "") +
                         (Grid().CellFontBold(place.y(), place.x()) ? " bold" : "");
        }
        return shown.join(", ");
    }
    void ClicksDay(int month, int day)
    {
        const QPoint place = main->Calendar().PlaceOf(SerialOfDate({2026, month, day}));
        QTest::mouseClick(Grid().viewport(), Qt::LeftButton, Qt::NoModifier,
                          Grid().CellRect(place.y(), place.x()).center());
    }
    QString Figures()
    {
        return QStringList{user.Reads("lblCurrentSelection_DISPLAY"), user.Reads("lblTotalForTheYear_DISPLAY"),
                           Visible("fraTimeBank") ? user.Reads("txtTimeBanked") : "no bank"}
            .join('|');
    }
    bool Enabled(const char* menu) { return main->findChild<QAction*>(menu)->isEnabled(); }
    bool Visible(const QString& control) { return main->findChild<QWidget*>(control)->isVisible(); }
    QString Legend()
    {
        QStringList labels;
        for (int index = 0; Visible(ArrayName("lblLegend", index)); ++index)
            labels << user.Reads(ArrayName("lblLegend", index));
        return labels.join(", ");
    }
};

TEST_F(MainWindow, TheYearIsPaintedWithColoursTotalsHolidaysAndToday)
{
    house.Record(marie, "Vacation", {2026, 7, 13}, 7);
    house.Record(marie, "Vacation", {2026, 7, 14}, 7);
    house.Record(marie, "Sick", {2026, 7, 14}, 1.75F);
    house.Record(marie, "Time accumulated", {2026, 5, 6}, 3);
    house.Record(marie, "Time accumulated", {2026, 5, 7}, 2, true); // pending: in the bank, not on the calendar
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?",
              {house.Record(marie, "Sick", {2026, 8, 3}, 7)});
    house.Sql("UPDATE Categories SET CategoryColorCode = '' WHERE SystemName = 'Time accumulated'");
    OpensOnMarie();
    EXPECT_EQ(Grid().TextMatrix(0, 0) + Grid().TextMatrix(19, 30), "JANUARY 2026Sa");
    EXPECT_EQ(main->Calendar().PlaceOf(SerialOfDate({2026, 1, 1})), QPoint(4, 2));
    EXPECT_EQ(main->Calendar().PlaceOf(SerialOfDate({2026, 8, 1})), QPoint(30, 11)); // a Saturday
    EXPECT_EQ(main->Calendar().PlaceOf(SerialOfDate({2026, 8, 31})), QPoint(25, 16));
    EXPECT_EQ(Days({{5, 6}, {5, 7}, {7, 13}, {7, 14}, {8, 3}, {11, 23}, {12, 25}}),
              "6 ffff, 7 ffffff, 13 c0c000, 14 80c0ff, 3 ffffff, 23 ffffff ff, 25 ffffff ff0000 bold");
    EXPECT_EQ(Figures(), "Marie Bouchard|2 days 04:45|05:00");
    EXPECT_FALSE(Visible("fraHideCalendar"));

    user.Picks("cboCategories", "Sick");
    EXPECT_EQ(Days({{7, 13}, {7, 14}}) + Figures(), "13 ffffff, 14 ffc0c0Marie Bouchard|0 days 01:45|05:00");
    user.Clicks("lblLegend(0)");
    EXPECT_EQ(user.Reads("cboCategories") + Figures(), "VacationMarie Bouchard|2 days 00:00|05:00");
    user.Picks("cboCategories", "(All categories)");
    user.ChoosesMenu("mnuSpecialDisplayPending");
    EXPECT_EQ(Days({{5, 7}, {7, 13}}), "7 ffff, 13 ffffff");
    EXPECT_FALSE(Visible("imgCreateSingle") || Visible("imgModify") || Visible("imgRemove"));
    user.ChoosesMenu("mnuSpecialDisplayApproved");
    EXPECT_TRUE(Visible("imgCreateSingle"));
    EXPECT_EQ(Days({{5, 7}, {7, 13}}), "7 ffffff, 13 c0c000");
}

TEST_F(MainWindow, AUnitShowsTheHoursOfAllItsPeopleAndHiddenCategoriesStayHidden)
{
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Production", "", {"DepartmentLevelRead"}});
    const int zoe = house.Hire({"ZABEL", "Zoe", "Abel", "Production", ""});
    house.Record(luc, "Sick", {2026, 3, 3}, 7.5F);
    house.Sql("UPDATE Attendance SET StartTime = 9, EndTime = 11 WHERE RecordID = ?",
              {house.Record(zoe, "Vacation", {2026, 3, 2}, 2)});
    house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Sick'");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Doctor appointments'");
    Opens("LROY");
    EXPECT_EQ(Figures(), "Luc Roy|00:00|00:00");
    Selects("lstDepartments", "Production");
    EXPECT_EQ(Figures(), "Production|09:00|no bank");
    EXPECT_EQ(Days({{3, 2}, {3, 3}}), "2 c0c000, 3 ffffff");
    EXPECT_FALSE(user.Entries("cboCategories").contains("Sick"));
    EXPECT_EQ(Legend(), "V  Vacation, P  Personal time");
    ClicksDay(3, 2);
    EXPECT_EQ(user.Reads("lblRecordsDate") + "\n" + user.Reads("txtAttendanceRecords"),
              "Mon 02-Mar-2026\nZoe Abel   Vacation   From: 09:00 To: 11:00   Duration: 02:00\n"
              "Marie Bouchard   Vacation   Duration: 07:00");
    ASSERT_TRUE(Visible("fraShowRecords"));
    user.MovesMouseOver("lblFiscalYear");
    EXPECT_FALSE(Visible("fraShowRecords")) << "the list goes when the mouse moves";
    ClicksDay(7, 1);
    EXPECT_EQ(user.Reads("lblRecordsDate"), "Wed 01-Jul-2026   Canada Day");
    emit Grid().CellEntered(2, 4);
    EXPECT_FALSE(Visible("fraShowRecords")) << "also when it comes over another day";
}

TEST_F(MainWindow, AYearThatBeginsInAprilOfALeapYearRunsToMarch)
{
    YearCalendar calendar;
    house.FiscalYear("27-28", 2027, 4);
    house.LogIn("ADMIN");
    calendar.LoadDates(SessionState, {}, {});
    house.Today(2027, 5, 1).LogIn("ADMIN");
    calendar.LoadDates(SessionState, {}, {}); // in the place of 2026
    EXPECT_EQ(calendar.Cell(0, 0).Text + calendar.Cell(18, 24).Text, "APRIL 2027MARCH 2028");
    EXPECT_EQ(calendar.PlaceOf(SerialOfDate({2028, 2, 29})), QPoint(18, 24));
    int days = 0;
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col)
            days += calendar.StoredDate(row, col) != 0;
    EXPECT_EQ(days, 366);
    EXPECT_EQ(calendar.PlaceOf(SerialOfDate({2028, 4, 1})).x(), -1);
    EXPECT_EQ(calendar.PlaceOf(SerialOfDate({2027, 3, 31})).x(), -1);
    SessionState.English = false;
    calendar.LoadDates(SessionState, {}, {});
    EXPECT_EQ(calendar.Cell(9, 8).Text + calendar.Cell(10, 8).Text, "SEPTEMBRE 2027Di");
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
    house.Sql("UPDATE FiscalYears SET ClosedDate = 46000");
    user.WillAnswer("FISCAL YEAR CLOSED:", "OK");
    Opens("ADMIN");
    EXPECT_FALSE(Visible("imgCreateSingle") || Enabled("mnuFileHolidays"));
    EXPECT_TRUE(Visible("imgUpdateSelection") && Enabled("mnuSpecialFiscalYearClose"));
}

TEST_F(MainWindow, CreatingNeedsAnEmployeeOtherThanTheAdministrator)
{
    Opens("ADMIN");
    user.WillAnswer("ERROR:", "OK", "The system administrator is not considered as an employee!")
        .Clicks("imgCreateSingle");
    Selects("lstDepartments", "Production");
    user.WillAnswer("ERROR:", "OK", "You must first select an employee!").Clicks("imgCreateMultiple");
    user.Picks("cboCategories", "Vacation");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "Before you can modify attendance records").Clicks("imgModify");
    Selects("lstEmployees", "Bouchard, Marie");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "Before you can remove attendance records").Clicks("imgRemove");
    user.Picks("cboCategories", "Vacation");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "There are no attendance records to be removed!").Clicks("imgRemove");
    EXPECT_FALSE(main->Busy);
}

TEST_F(MainWindow, OneDateIsAskedAboutHolidaysDaysOffAndOtherRecords)
{
    house.Sql("UPDATE Attendance SET StartTime = 1e-7, EndTime = 3 WHERE RecordID = ?",
              {house.Record(marie, "Sick", {2026, 12, 7}, 3, true)});
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?",
              {house.Record(marie, "Sick", {2026, 12, 8}, 7)});
    house.Record(house.Hire({"LROY", "Luc", "Roy", "Production", ""}), "Sick", {2026, 12, 8}, 7);
    OpensOnMarie();
    user.Clicks("imgCreateSingle");
    EXPECT_TRUE(main->Busy && Visible("txtSelect"));
    main->timAbsence_Timer();
    EXPECT_FALSE(user.CanUse("cboCategories") || Enabled("mnuFile"));
    user.WillAnswer("WARNING!", "No", "This is a statutory holiday!");
    ClicksDay(12, 25);
    user.WillAnswer("WARNING:", "No", "According to your database, Marie Bouchard doesn't work on Saturdays!");
    ClicksDay(12, 5);
    user.WillAnswer("WARNING:", "No",
                    "\r\n\r\nSick\tFrom: 00:00\tTo: 03:00\tDuration: 03:00  (TO BE APPROVED)\r\n\r\nProceed");
    ClicksDay(12, 7);
    EXPECT_TRUE(main->Busy);
    const auto isLeft = [this](const QString& date, bool accepted) {
        user.WhenOpens<frmAttendance>([this, date, accepted](frmAttendance& form) {
            EXPECT_EQ(user.Reads("txtWhen"), date);
            EXPECT_FALSE(Visible("txtSelect"));
            EXPECT_EQ(form.Entry().ConflictsAccepted, accepted);
            form.reject();
        });
    };
    isLeft("Mon   07-Dec-2026", true);
    user.WillAnswer("WARNING:", "Yes");
    ClicksDay(12, 7);
    EXPECT_FALSE(main->Busy);
    EXPECT_TRUE(user.CanUse("cboCategories"));
    isLeft("Tue   08-Dec-2026", false);
    user.Clicks("imgCreateSingle");
    ClicksDay(12, 8);
}

TEST_F(MainWindow, MarkedDatesBecomeRecordsAndTheCalendarFollows)
{
    OpensOnMarie();
    user.Clicks("imgCreateMultiple");
    user.WillAnswer("ERROR:", "OK", "You must first select date(s) from the calendar!").Clicks("imgCreateMultiple");
    for (const int day : {16, 14, 15, 14})
        ClicksDay(12, day);
    EXPECT_EQ(Days({{12, 14}, {12, 15}, {12, 16}}), "14 ffffff,  X ffffff,  X ffffff");
    EXPECT_TRUE(user.CanUse("imgCreateMultiple"));
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        EXPECT_EQ(user.Reads("txtWhen"), "Tue   15-Dec-2026\nWed   16-Dec-2026");
        user.Picks("cboCategories", "Vacation").Checks("chkWholeDay");
        user.WillAnswer("CONFIRM:", "Yes").Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgCreateMultiple");
    EXPECT_EQ(Days({{12, 14}, {12, 15}, {12, 16}}), "14 ffffff, 15 c0c000, 16 c0c000");
    EXPECT_EQ(Figures() + user.Reads("cboCategories"), "Marie Bouchard|2 days 00:00|00:00(All categories)");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance WHERE EmployeeID = ?", {marie}), 2);

    user.Clicks("imgCreateMultiple");
    ClicksDay(12, 17);
    user.Presses("", Qt::Key_Escape);
    EXPECT_EQ(Days({{12, 17}}), "17 ffffff");
    EXPECT_FALSE(main->Busy || Visible("txtSelect"));
    user.Clicks("imgCreateMultiple").WillAnswer("WARNING!", "Yes", "This is a statutory holiday!");
    ClicksDay(12, 25);
    ClicksDay(12, 25);
    user.WillAnswer("ERROR:", "OK", "You must first select date(s)").Clicks("imgCreateMultiple");
    user.Presses("", Qt::Key_Escape).Presses("", Qt::Key_Escape);
}

TEST_F(MainWindow, AnotherEmployeeOfTheEntryFormIsFollowedOnlyWhenRecordsWereWritten)
{
    house.Hire({"LROY", "Luc", "Roy", "Sales", "", {}, 0, 20, false});
    OpensOnMarie();
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
        EXPECT_EQ(Figures(), writing ? "Luc Roy|02:00|00:00" : "Marie Bouchard|00:00|00:00");
    }
    EXPECT_EQ(Days({{4, 14}}), "14 ffc0c0");
    user.Clicks("imgCreateSingle").WhenOpens<frmAttendance>([](frmAttendance& form) { form.reject(); });
    ClicksDay(12, 5); // a Saturday, but Luc has no schedule
}

TEST_F(MainWindow, APeriodGoesThroughTheDatesForm)
{
    OpensOnMarie();
    user.WhenOpens<frmSelectDates>([](frmSelectDates& form) { form.reject(); }).Clicks("imgCreateConsecutive");
    EXPECT_FALSE(main->Busy);
    user.WhenOpens<frmSelectDates>([this](frmSelectDates&) {
        user.Picks("cboFrom", "Mon 29-Jun-2026").Picks("cboTo", "Fri 03-Jul-2026").Clicks("cmdOK");
    });
    user.WhenOpens<frmAttendance>([this](frmAttendance& form) {
        EXPECT_EQ(user.Reads("txtWhen").count('\n'), 3); // the first of July is a holiday
        EXPECT_FALSE(user.CanUse("lstWho"));
        form.reject();
    });
    user.Clicks("imgCreateConsecutive");
    EXPECT_FALSE(SessionState.CreatingConsecutive || main->Busy);
}

TEST_F(MainWindow, ARequestIsForOneselfAndNeedsAnApprover)
{
    Grants("GroupLevelRead");
    house.Hire({"LROY", "Luc", "Roy", "Production", "Assembly"});
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 0 WHERE RecordID = ?", {marie});
    Opens("MBOUCHARD");
    user.WillAnswer("OPERATION DENIED:", "OK", "See your system administrator (Alice Tremblay) for more details.")
        .Clicks("imgSubmit");
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 1 WHERE RecordID = ?", {marie});
    Opens("MBOUCHARD");
    Selects("lstGroups", "Assembly");
    user.WillAnswer("ERROR:", "OK", "You must first select an employee!").Clicks("imgSubmit");
    Selects("lstEmployees", "Roy, Luc");
    EXPECT_EQ(Figures(), "Luc Roy|00:00|00:00");
    user.Clicks("imgSubmit");
    EXPECT_EQ(Figures(), "Marie Bouchard|00:00|00:00");
    ClicksDay(12, 21);
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user.Picks("cboCategories", "Vacation").Checks("chkWholeDay");
        user.WillAnswer("REQUEST FOR APPROVAL:", "Yes").WillAnswer("REQUEST SUBMITTED SUCCESSFULLY:", "OK");
        user.Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgSubmit");
    EXPECT_EQ(Days({{12, 21}}), "21 ffffff");
    user.ChoosesMenu("mnuSpecialDisplayPending");
    EXPECT_EQ(Days({{12, 21}}), "21 c0c000");
    EXPECT_TRUE(Visible("imgRemove_DISABLED"));
    EXPECT_EQ(house.Rows("SELECT EmployeeID, Submitted, SubmittedTo_First FROM Attendance"),
              QString::number(marie) + "|1|1");
}

TEST_F(MainWindow, OneOfSeveralRecordsOfADayIsModified)
{
    house.Record(marie, "Sick", {2026, 4, 14}, 2);
    const int second = house.Record(marie, "Sick", {2026, 4, 14}, 3.5F);
    house.Record(marie, "Sick", {2026, 4, 14}, 1, true);
    house.Record(marie, "Vacation", {2026, 4, 14}, 1);
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?",
              {house.Record(marie, "Sick", {2026, 4, 14}, 4)});
    OpensOnMarie();
    user.Picks("cboCategories", "Sick").Clicks("imgModify");
    ClicksDay(4, 15); // nothing there
    user.WhenOpens<frmSelectAttendanceRecord>([this](frmSelectAttendanceRecord&) {
        EXPECT_EQ(user.Entries("lstRecords").size(), 2);
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
    EXPECT_EQ(house.Rows("SELECT RecordID, Duration FROM Attendance_Modifications"), QString::number(second) + "|3.5");
    EXPECT_EQ(Figures(), "Marie Bouchard|0 days 06:30|00:00");
}

TEST_F(MainWindow, OnesOwnRecordsNeedTheRightToBeChangedAndRemovalMarksRecords)
{
    Grants("GroupLevelModify");
    house.Record(marie, "Sick", {2026, 4, 14}, 2);
    house.Record(marie, "Sick", {2026, 4, 15}, 2, true);
    Opens("MBOUCHARD");
    user.Picks("cboCategories", "Sick");
    for (const auto& [tool, refused] : {std::pair("imgModify", "modify"), std::pair("imgRemove", "remove")}) {
        user.Clicks(tool).WillAnswer(
            "ERROR!", "OK", QStringLiteral("You are not authorized to %1 your own attendance records!").arg(refused));
        ClicksDay(4, 14);
        user.Presses("", Qt::Key_Escape);
    }
    user.ChoosesMenu("mnuSpecialDisplayPending").Clicks("imgRemove");
    ClicksDay(4, 14);
    ClicksDay(4, 15);
    EXPECT_EQ(Days({{4, 14}, {4, 15}}), "14 ffffff,  X      ffc0c0") << "one's own request may be withdrawn";
    user.Presses("", Qt::Key_Escape);

    Grants("SelfLevelModify");
    Opens("MBOUCHARD");
    user.Picks("cboCategories", "Sick").Clicks("imgRemove");
    ClicksDay(4, 13);
    ClicksDay(4, 14);
    EXPECT_EQ(Days({{4, 13}, {4, 14}}), "13 ffffff,  X      ffc0c0");
    ClicksDay(4, 14);
    EXPECT_EQ(Days({{4, 14}}), "14 ffc0c0");
    user.WillAnswer("ERROR:", "OK", "You must first select record(s) to be cancelled").Clicks("imgRemove");
    ClicksDay(4, 14);
    user.WillAnswer("NOT AVAILABLE YET:", "OK").Clicks("imgRemove");
    EXPECT_FALSE(main->Busy);
}

TEST_F(MainWindow, ANeighbouringYearBringsItsOwnUserAndRights)
{
    house.FiscalYear("2027", 2027);
    const int next = house.Hire({"MBOUCHARD", "Marie", "Bouchard", "Production", "", {"GlobalLevelRead"}}, 2);
    house.Sql("UPDATE FiscalYears SET ClosedDate = 47000 WHERE RecordID = 2");
    Opens("MBOUCHARD");
    EXPECT_FALSE(user.CanUse("cmdPreviousYear"));
    user.Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear") + Grid().TextMatrix(0, 0), "2027JANUARY 2027");
    EXPECT_EQ(SessionState.UserID, next);
    EXPECT_TRUE(user.CanUse("imgUpdateSelection"));
    EXPECT_FALSE(user.CanUse("cmdNextYear") || Visible("imgSubmit"));
    user.Clicks("cmdPreviousYear");
    EXPECT_EQ(user.Reads("lblFiscalYear") + Grid().TextMatrix(0, 0), "2026JANUARY 2026");
    EXPECT_EQ(SessionState.UserID, marie);
    EXPECT_TRUE(user.CanUse("cmdNextYear") && Visible("imgSubmit"));
    EXPECT_FALSE(user.CanUse("cmdPreviousYear") || Visible("imgUpdateSelection"));

    house.Sql("UPDATE Employees SET DeactivatedDate = 46900 WHERE RecordID = ?", {next});
    user.WhenOpens<frmLogin>([this](frmLogin&) { user.Clicks("cmdCancel"); }).Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear"), "2026");
    house.Hire({"LROY", "Luc", "Roy", "Production", ""}, 2);
    user.WhenOpens<frmLogin>(
        [this](frmLogin&) { user.Types("txtUserName", "lroy").Types("txtPassword", "pass").Clicks("cmdOK"); });
    user.Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear") + Figures(), "2027Luc Roy|00:00|00:00");
    EXPECT_EQ(main->windowTitle(), "Tarvell   Session ID [LROY]");
    user.WhenOpens<frmLogin>([this](frmLogin&) {
        EXPECT_TRUE(user.Reads("lblInstructions").contains("access to fiscal year 2026."));
        user.Clicks("cmdCancel");
    });
    user.Clicks("cmdPreviousYear");
}

TEST_F(MainWindow, TheAdministratorEntersANeighbouringYearWithoutARecordThere)
{
    house.FiscalYear("2027", 2027);
    OpensOnMarie();
    user.Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear") + Figures(), "2027ADMIN|00:00|no bank");
    EXPECT_TRUE(user.Entries("cboCategories").contains("Vacation"));
}

TEST_F(MainWindow, TheLanguageSwitchesAtOnceAndIsKept)
{
    house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    OpensOnMarie();
    user.Picks("cboCategories", "Sick").Clicks("lblLegend(1)");
    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    EXPECT_EQ(main->windowTitle(), "Tarvell   Identification: [ADMIN]");
    EXPECT_EQ(user.Reads("cboCategories"), "Maladie");
    EXPECT_EQ(Days({{3, 2}}), "2 ffffff") << "the calendar still shows that category alone";
    EXPECT_EQ(Grid().TextMatrix(0, 8), "FÉVRIER 2026");
    EXPECT_TRUE(user.Entries("cboCategories").contains("Rendez-vous médical"));
    EXPECT_EQ(Legend(), "V  Vacances, S  Maladie, P  Temps personnel, D  Rendez-vous médical");
    EXPECT_EQ(house.Number("SELECT Language FROM Employees WHERE LoginID = 'ADMIN'"), 1);
}

TEST_F(MainWindow, EachLetterOpensOneEntryOfAMenu)
{
    Opens("ADMIN");
    for (int language = 0; language < 2; ++language) {
        QList<QWidget*> menus{main->menuBar()};
        for (QMenu* menu : main->findChildren<QMenu*>())
            menus << menu;
        for (const QWidget* menu : menus) {
            QStringList letters;
            for (const QAction* entry : menu->actions())
                if (!entry->isSeparator())
                    letters << QKeySequence::mnemonic(entry->text()).toString();
            EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(' ').toStdString();
        }
        user.ChoosesMenu("mnuSpecialSwitchLanguage");
    }
}

TEST_F(MainWindow, AnIdleProgramCountsDownPastZeroAndEnds)
{
    Opens("MBOUCHARD");
    const auto idles = [this](int seconds) {
        while (seconds-- > 0)
            main->timTimeOut_Timer();
        return Visible("txtTimeOut") ? user.Reads("txtTimeOut") : QString();
    };
    EXPECT_EQ(idles(839), "");
    EXPECT_EQ(idles(1), "Tarvell will be shut down in 0 seconds...");
    EXPECT_EQ(idles(59), "Tarvell will be shut down in -59 seconds...");
    user.MovesMouseOver("lblFiscalYear");
    ASSERT_EQ(idles(839), "");
    QEvent activated(QEvent::WindowActivate);
    QCoreApplication::sendEvent(main, &activated);
    ASSERT_EQ(idles(839), "");
    user.Clicks("imgSubmit");
    EXPECT_TRUE(main->Busy);
    EXPECT_EQ(idles(900), "") << "a tool in use is work, even without the mouse";
    user.Presses("", Qt::Key_Escape);
    EXPECT_EQ(idles(839), "");
    EXPECT_THROW(idles(61), ProgramEnded);
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
    user.ChoosesMenu("mnuFileOrganizations");
}

TEST_F(MainWindow, TheTimersStepsRunInOrderAndOnce)
{
    QStringList ran;
    const auto opens = [&](int createsForGroup, int createsForSelf, int approves) {
        house.Sql("UPDATE Employees SET GroupLevelCreate = ?, SelfLevelCreate = ?, IsAuthorizedToApprove = ?",
                  {createsForGroup, createsForSelf, approves});
        Opens("MBOUCHARD");
        for (const char* step : {"AreThereRequestsToApprove", "WereRequestsApproved", "IsFYClosingScheduled",
                                 "DoesUserNeedTraining", "DownloadRedemption", "SpecifyMailerComponent"})
            main->BackgroundWork().SetWork(step, [&ran, step, this] {
                EXPECT_TRUE(main->TimerBusy);
                main->timAbsence_Timer(); // a tick under a modal form does nothing
                ran << step + QString(Enabled("mnuFile") ? "" : "!");
            });
    };
    const auto ticks = [&] {
        ran.clear();
        main->timAbsence_Timer();
        return ran.join(' ');
    };
    // The steps of a locked window are marked.
    opens(0, 0, 0);
    EXPECT_EQ(ticks(), "DownloadRedemption DoesUserNeedTraining WereRequestsApproved!");
    opens(0, 1, 0);
    EXPECT_EQ(ticks(), "DownloadRedemption DoesUserNeedTraining IsFYClosingScheduled!");
    opens(1, 0, 1);
    EXPECT_EQ(ticks(), "DownloadRedemption DoesUserNeedTraining WereRequestsApproved! IsFYClosingScheduled! "
                       "AreThereRequestsToApprove!");
    SessionState.LastUpgradeDate = 333; // what the last upgrade left behind
    EXPECT_EQ(ticks(), "SpecifyMailerComponent AreThereRequestsToApprove!");
    main->BackgroundWork().SetWork("AreThereRequestsToApprove", [] { throw RuntimeError(3043, "network"); });
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3043: network");
    EXPECT_EQ(ticks(), "SpecifyMailerComponent");
    EXPECT_TRUE(!main->TimerBusy && Enabled("mnuFile") && user.CanUse("imgSubmit")) << "a failure locks nothing";
    user.WillAnswer("REQUEST(S) FOR LEAVE RECEIVED:", "Yes", "\r\n\r\nMarie");
    EXPECT_TRUE(OfferApproval("Marie"));
    EXPECT_FALSE(OfferApproval({}));
}

TEST_F(MainWindow, AnEntryDoesWhatItSaysOrSaysThatItCannotYet)
{
    Opens("ADMIN");
    user.WillAnswer("DATABASE PATH:", "OK", house.Folder());
    user.ChoosesMenu("mnuFileDatabaseLocation");
    user.WillAnswer("NOT AVAILABLE YET:", "OK");
    user.ChoosesMenu("mnuFilePrintCalendar");
    user.ChoosesMenu("mnuBlocked_Global").ChoosesMenu("mnuSpecialFiscalYearArchive");
    EXPECT_NE(house.Cell("SELECT LoggedIn FROM Employees WHERE LoginID = 'ADMIN'"), "0");
    EXPECT_THROW(user.ChoosesMenu("mnuFileExit"), ProgramEnded);
    EXPECT_EQ(house.Number("SELECT LoggedIn FROM Employees WHERE LoginID = 'ADMIN'"), 0);
}
} // namespace
