#include "attendance/frm_attendance.h"
#include "calendar/main_window_fixture.h"
#include "foundation/frm_login.h"
#include "reference/frm_unit.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"

#include <QToolButton>

namespace
{
TEST_F(MainWindow, TheYearIsPaintedWithColoursTotalsHolidaysAndToday)
{
    house.Record(marie, "Vacation", {2026, 7, 13}, 7);
    house.Record(marie, "Vacation", {2026, 7, 14}, 7);
    house.Record(marie, "Sick", {2026, 7, 14}, 1.75F);
    house.Record(marie, "Time accumulated", {2026, 5, 6}, 3);
    house.Record(marie, "Time accumulated", {2026, 5, 7}, 2, true); // pending: in the bank, not on the calendar
    Cancels(house.Record(marie, "Sick", {2026, 8, 3}, 7));
    house.Sql("UPDATE Categories SET CategoryColorCode = '' WHERE SystemName = 'Time accumulated'");
    OpensOnMarie();
    EXPECT_EQ(Grid().TextMatrix(0, 0) + Grid().TextMatrix(19, 30), "JANUARY 2026Sa");
    EXPECT_EQ((QList{Place(1, 1), Place(8, 1), Place(8, 31)}), (QList{QPoint(4, 2), QPoint(30, 11), QPoint(25, 16)}));
    EXPECT_EQ(Days({{5, 6}, {5, 7}, {7, 13}, {7, 14}, {8, 3}, {11, 23}, {12, 25}}),
              "6 ffff, 7 ffffff, 13 c0c000, 14 80c0ff, 3 ffffff, 23 ffffff ff, 25 ffffff ff0000 bold");
    EXPECT_EQ(Figures(), "2026|(All categories)|Marie Bouchard|2 days 04:45|05:00");
    EXPECT_FALSE(Visible("fraHideCalendar"));

    user.ChoosesMenu("mnuSpecialDisplayPending");
    EXPECT_EQ(Days({{5, 7}, {7, 13}}) + Tools(), "7 ffff, 13 ffffffUpdateSelection Categories");
    user.ChoosesMenu("mnuSpecialDisplayApproved");
    EXPECT_TRUE(user.CanUse("imgCreateSingle"));
    user.Picks("cboCategories", "Sick");
    EXPECT_EQ(Days({{5, 7}, {7, 13}, {7, 14}}), "7 ffffff, 13 ffffff, 14 ffc0c0");
    EXPECT_EQ(Figures(), "2026|Sick|Marie Bouchard|0 days 01:45|05:00");
    user.Clicks("lblLegend(0)");
    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    EXPECT_EQ(Figures(), "2026|Vacances|Marie Bouchard|2 jours 00:00|05:00");
    EXPECT_EQ(Days({{7, 13}, {7, 14}}), "13 c0c000, 14 c0c000") << "the calendar still shows that category alone";
    EXPECT_EQ(main->windowTitle(), "Tarvell   Identification: [ADMIN]");
    EXPECT_EQ(Grid().TextMatrix(9, 8) + Grid().TextMatrix(10, 8), "JUIN 2026Di");
    EXPECT_EQ(user.ReadsAll({"lblLegend(0)", "lblLegend(3)"}), "V  Vacances|D  Rendez-vous médical");
    EXPECT_EQ(house.Number("SELECT Language FROM Employees WHERE LoginID = 'ADMIN'"), 1);
}

TEST_F(MainWindow, AUnitShowsTheHoursOfAllItsPeopleAndHiddenCategoriesStayHidden)
{
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Production", "", {"DepartmentLevelRead"}});
    house.Record(luc, "Sick", {2026, 3, 3}, 8);
    house.Record(house.Hire({"ZABEL", "Zoe", "Abel", "Production", ""}), "Vacation", {2026, 3, 2}, 2);
    house.Sql("UPDATE Attendance SET StartTime = 9, EndTime = 11 WHERE Duration = 2");
    house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Sick'");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Doctor appointments'");
    Opens("LROY");
    EXPECT_EQ(Figures(), "2026|(All categories)|Luc Roy|00:00|00:00");
    Selects("lstDepartments", "Production");
    EXPECT_EQ(Figures(), "2026|(All categories)|Production|09:00|00:00");
    EXPECT_EQ(Days({{3, 2}, {3, 3}}), "2 c0c000, 3 ffffff");
    EXPECT_EQ(user.ReadsAll({"lblLegend(0)", "lblLegend(1)"}), "V  Vacation|P  Personal time");
    EXPECT_FALSE(Visible("lblLegend(2)"));
    ClicksDay(3, 2);
    EXPECT_EQ(user.ReadsAll({"lblRecordsDate", "txtAttendanceRecords"}),
              "Mon 02-Mar-2026|Zoe Abel   Vacation   From: 09:00 To: 11:00   Duration: 02:00\n"
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
    for (const int year : {2026, 2027}) { // one in the place of the other
        house.Today(year, 5, 1).LogIn("ADMIN");
        calendar.LoadDates(SessionState, {}, {});
    }
    EXPECT_EQ(calendar.Cell(0, 0).Text + calendar.Cell(18, 24).Text, "APRIL 2027MARCH 2028");
    int days = 0;
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col)
            days += calendar.StoredDate(row, col) != 0;
    EXPECT_EQ(days, 366);
    const auto place = [&](const QDate& date) { return calendar.PlaceOf(SerialOfDate(date)); };
    EXPECT_EQ(place({2028, 2, 29}), QPoint(18, 24));
    EXPECT_EQ(place({2027, 3, 31}).x() + place({2028, 4, 1}).x(), -2) << "neither is in the year";
}

TEST_F(MainWindow, TheAdministratorIsToldWhatIsInTheWay)
{
    Opens("ADMIN");
    user.WillBeRefused("The system administrator is not considered as an employee!").Clicks("imgCreateSingle");
    Selects("lstDepartments", "Production");
    user.WillBeRefused("You must first select an employee!").Clicks("imgCreateMultiple");
    user.Picks("cboCategories", "Vacation");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "Before you can modify attendance records").Clicks("imgModify");
    Selects("lstEmployees", "Bouchard, Marie");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "Before you can remove attendance records").Clicks("imgRemove");
    user.Picks("cboCategories", "Vacation");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "There are no attendance records to be removed!").Clicks("imgRemove");
    EXPECT_FALSE(main->Busy);
    user.WillAnswer("DATABASE PATH:", "OK", house.Folder()).WillAnswer("NOT AVAILABLE YET:", "OK");
    user.ChoosesMenu("mnuFileDatabaseLocation").ChoosesMenu("mnuFilePrintCalendar");
    user.ChoosesMenu("mnuBlocked_Global").ChoosesMenu("mnuSpecialFiscalYearArchive"); // do nothing
    EXPECT_NE(house.Cell("SELECT LoggedIn FROM Employees WHERE LoginID = 'ADMIN'"), "0");
    EXPECT_THROW(user.ChoosesMenu("mnuFileExit"), ProgramEnded);
    EXPECT_EQ(house.Number("SELECT LoggedIn FROM Employees WHERE LoginID = 'ADMIN'"), 0);
}

TEST_F(MainWindow, OneDateIsAskedAboutAndAnotherEmployeeIsFollowedOnlyWhenRecordsWereWritten)
{
    house.Record(marie, "Sick", {2026, 12, 7}, 3, true);
    house.Sql("UPDATE Attendance SET StartTime = 1e-7, EndTime = 3");
    Cancels(house.Record(marie, "Sick", {2026, 12, 8}, 7));
    house.Record(house.Hire({"LROY", "Luc", "Roy", "Sales", "", {}, 0, 20, false}), "Sick", {2026, 12, 8}, 7);
    OpensOnMarie();
    user.Clicks("imgCreateSingle");
    main->timAbsence_Timer();
    EXPECT_TRUE(main->Busy && Visible("txtSelect") && !Enabled("mnuFile"));
    EXPECT_EQ(Tools(), "");
    user.WillAnswer("WARNING!", "No", "This is a statutory holiday!");
    ClicksDay(12, 25);
    user.WillAnswer("WARNING:", "No", "According to your database, Marie Bouchard doesn't work on Saturdays!");
    ClicksDay(12, 5);
    user.WillAnswer("WARNING:", "No",
                    "\r\n\r\nSick\tFrom:00:00\tTo:03:00\tDuration: 03:00  (TO BE APPROVED)\r\n\r\nProceed");
    ClicksDay(12, 7);
    user.WillAnswer("WARNING:", "Yes").WhenOpens<frmAttendance>([this](frmAttendance& form) {
        EXPECT_EQ(user.Reads("txtWhen"), "Mon   07-Dec-2026");
        EXPECT_FALSE(Visible("txtSelect"));
        EXPECT_TRUE(form.Entry().ConflictsAccepted);
        form.reject();
    });
    ClicksDay(12, 7);
    EXPECT_FALSE(main->Busy);
    for (const bool writing : {false, true}) {
        user.Clicks("imgCreateSingle").WhenOpens<frmAttendance>([this, writing](frmAttendance& form) {
            EXPECT_FALSE(form.Entry().ConflictsAccepted);
            user.Picks("lstWho", "Roy, Luc").Picks("cboCategories", "Sick").Types("txtDurationInHours", "2");
            if (!writing)
                return form.reject();
            user.WillAnswer("WARNING:", "Yes").WillConfirm().Clicks("cmdAddOrUpdate");
        });
        ClicksDay(12, 8);
        EXPECT_EQ(Figures(), writing ? "2026|(All categories)|Luc Roy|09:00|00:00"
                                     : "2026|(All categories)|Marie Bouchard|00:00|00:00");
    }
    user.Clicks("imgCreateSingle").WhenOpens<frmAttendance>([](frmAttendance& form) { form.reject(); });
    ClicksDay(12, 5); // a Saturday, but Luc has no schedule
}

TEST_F(MainWindow, MarkedDatesAndPeriodsBecomeRecordsAndTheCalendarFollows)
{
    OpensOnMarie();
    user.Clicks("imgCreateMultiple");
    user.WillBeRefused("You must first select date(s) from the calendar!").Clicks("imgCreateMultiple");
    for (const int day : {16, 14, 15, 14})
        ClicksDay(12, day);
    EXPECT_EQ(Days({{12, 14}, {12, 15}, {12, 16}}), "14 ffffff,  X ffffff,  X ffffff");
    EXPECT_EQ(Tools(), "CreateMultiple");
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        EXPECT_EQ(user.Reads("txtWhen"), "Tue   15-Dec-2026\nWed   16-Dec-2026");
        user.Picks("cboCategories", "Vacation").Checks("chkWholeDay").WillConfirm().Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgCreateMultiple");
    EXPECT_EQ(Days({{12, 14}, {12, 15}, {12, 16}}), "14 ffffff, 15 c0c000, 16 c0c000");
    EXPECT_EQ(Figures(), "2026|(All categories)|Marie Bouchard|2 days 00:00|00:00");
    user.Clicks("imgCreateMultiple");
    ClicksDay(12, 17);
    user.Presses("", Qt::Key_Escape);
    EXPECT_EQ(Days({{12, 17}}), "17 ffffff");
    EXPECT_FALSE(main->Busy || Visible("txtSelect"));
    user.Clicks("imgCreateMultiple").WillAnswer("WARNING!", "Yes", "This is a statutory holiday!");
    ClicksDay(12, 25);
    ClicksDay(12, 25);
    user.WillBeRefused("You must first select date(s)").Clicks("imgCreateMultiple");
    user.Presses("", Qt::Key_Escape).Presses("", Qt::Key_Escape);

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

    user.WhenOpens<frmSelectDates>([this](frmSelectDates&) {
        house.Sql("ALTER TABLE Categories RENAME TO Gone");
        user.Clicks("cmdOK");
    });
    EXPECT_THROW(main->UseTool("imgCreateConsecutive"), RuntimeError);
    house.Sql("ALTER TABLE Gone RENAME TO Categories");
    EXPECT_FALSE(SessionState.CreatingConsecutive || main->Busy) << "an entry that cannot begin is over";
    ClicksDay(6, 30);
    EXPECT_EQ(SessionState.SelectedDate, SerialOfDate({2026, 6, 30}));
}

TEST_F(MainWindow, ARequestIsForOneselfAndNeedsAnApprover)
{
    Sets("AttendanceApprovedBy_Main", 0);
    Opens("MBOUCHARD");
    EXPECT_EQ(Tools(), "Submit Categories");
    EXPECT_TRUE(Visible("imgCreateSingle_DISABLED") && Enabled("mnuReportsYTD_Individual"));
    EXPECT_FALSE(Enabled("mnuFileEmployees") || main->findChild<QAction*>("mnuSpecialExportEmployee")->isVisible());
    user.WillAnswer("OPERATION DENIED:", "OK", "See your system administrator (Alice Tremblay) for more details.")
        .Clicks("imgSubmit");
    EXPECT_TRUE(Enabled("mnuFile")) << "nothing has begun";

    Sets("AttendanceApprovedBy_Main", 1);
    Sets("GroupLevelRead", 1);
    house.Hire({"LROY", "Luc", "Roy", "Production", "Assembly"});
    Opens("MBOUCHARD");
    Selects("lstEmployees", "Roy, Luc");
    user.Clicks("imgSubmit");
    EXPECT_EQ(Figures(), "2026|(All categories)|Marie Bouchard|00:00|00:00");
    ClicksDay(12, 21);
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user.Picks("cboCategories", "Vacation").Checks("chkWholeDay");
        user.WillAnswer("REQUEST FOR APPROVAL:", "Yes");
        user.WillAnswer("REQUEST SUBMITTED SUCCESSFULLY:", "OK", "sent to Alice Tremblay. If you do not receive");
        user.Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgSubmit");
    EXPECT_EQ(Days({{12, 21}}), "21 ffffff");
    user.ChoosesMenu("mnuSpecialDisplayPending");
    EXPECT_EQ(Days({{12, 21}}), "21 c0c000");
    EXPECT_TRUE(Visible("imgRemove_DISABLED"));
}

TEST_F(MainWindow, ASupervisorChangesOthersRecordsAndHisOwnByAFurtherRight)
{
    const int luc = house.Hire({"LROY", "Luc", "Roy", "Production", "Assembly"});
    house.Record(luc, "Sick", {2026, 4, 14}, 2);
    const int second = house.Record(luc, "Sick", {2026, 4, 14}, 3.5F);
    house.Record(luc, "Sick", {2026, 4, 14}, 1, true);
    house.Record(luc, "Vacation", {2026, 4, 14}, 1);
    Cancels(house.Record(luc, "Sick", {2026, 4, 14}, 4));
    house.Record(marie, "Sick", {2026, 4, 14}, 2);
    house.Record(marie, "Sick", {2026, 4, 15}, 2, true);
    for (const char* right : {"GroupLevelRead", "GroupLevelCreate", "GroupLevelModify"})
        Sets(right, 1);
    Opens("MBOUCHARD");
    user.Picks("cboCategories", "Sick");
    for (const QString tool : {"Modify", "Remove"}) {
        const QString refusal = "You are not authorized to " + tool.toLower() + " your own attendance records!";
        user.Clicks("img" + tool).WillAnswer("ERROR!", "OK", refusal);
        ClicksDay(4, 14);
        user.Presses("", Qt::Key_Escape);
    }
    user.ChoosesMenu("mnuSpecialDisplayPending").Clicks("imgRemove");
    ClicksDay(4, 14);
    ClicksDay(4, 15);
    EXPECT_EQ(Days({{4, 14}, {4, 15}}), "14 ffffff,  X      ffc0c0") << "one's own request may be withdrawn";
    user.Presses("", Qt::Key_Escape);
    user.ChoosesMenu("mnuSpecialDisplayApproved");
    Selects("lstEmployees", "Roy, Luc");
    user.Picks("cboCategories", "Sick").Clicks("imgModify");
    ClicksDay(4, 15); // nothing there
    user.WhenOpens<frmSelectAttendanceRecord>([this](frmSelectAttendanceRecord&) {
        EXPECT_EQ(user.Entries("lstRecords").size(), 2);
        user.Picks("lstRecords", "From: 00:00  To: 00:00  Duration: 03:30").Clicks("cmdSelect");
    });
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user.Types("txtDurationInHours", "4").WillAnswer("WARNING:", "Yes").WillConfirm().WillBeDone();
        user.Clicks("cmdAddOrUpdate");
    });
    ClicksDay(4, 14);
    EXPECT_EQ(house.Rows("SELECT RecordID, Duration FROM Attendance_Modifications"), QString::number(second) + "|3.5");
    EXPECT_EQ(Figures(), "2026|Sick|Luc Roy|0 days 06:30|00:00");

    Sets("SelfLevelModify", 1);
    Opens("MBOUCHARD");
    user.Picks("cboCategories", "Sick").Clicks("imgRemove");
    ClicksDay(4, 13);
    ClicksDay(4, 14);
    EXPECT_EQ(Days({{4, 13}, {4, 14}}), "13 ffffff,  X      ffc0c0");
    ClicksDay(4, 14);
    EXPECT_EQ(Days({{4, 14}}), "14 ffc0c0");
    user.WillBeRefused("You must first select record(s) to be cancelled").Clicks("imgRemove");
}

TEST_F(MainWindow, ANeighbouringYearBringsItsOwnUserAndRights)
{
    house.FiscalYear("2027", 2027);
    const int next = house.Hire({"MBOUCHARD", "Marie", "Bouchard", "Production", "", {"GlobalLevelRead"}}, 2);
    house.Sql("UPDATE FiscalYears SET ClosedDate = 47000 WHERE RecordID = 2");
    Opens("MBOUCHARD");
    user.Clicks("cmdNextYear");
    EXPECT_EQ(Figures() + Grid().TextMatrix(0, 0), "2027|(All categories)|Marie Bouchard|00:00|00:00JANUARY 2027");
    EXPECT_EQ(SessionState.UserID, next);
    EXPECT_EQ(Tools(), "PreviousYear UpdateSelection Categories");
    user.Clicks("cmdPreviousYear");
    EXPECT_EQ(Figures() + Grid().TextMatrix(0, 0), "2026|(All categories)|Marie Bouchard|00:00|00:00JANUARY 2026");
    EXPECT_EQ(SessionState.UserID, marie);
    EXPECT_EQ(Tools(), "NextYear Submit Categories");

    house.Sql("UPDATE Employees SET DeactivatedDate = 46900 WHERE RecordID = ?", {next});
    user.WhenOpens<frmLogin>([this](frmLogin&) { user.Clicks("cmdCancel"); }).Clicks("cmdNextYear");
    EXPECT_EQ(user.Reads("lblFiscalYear"), "2026");
    house.Hire({"LROY", "Luc", "Roy", "Production", ""}, 2);
    user.WhenOpens<frmLogin>(
        [this](frmLogin&) { user.Types("txtUserName", "lroy").Types("txtPassword", "pass").Clicks("cmdOK"); });
    user.Clicks("cmdNextYear");
    EXPECT_EQ(Figures(), "2027|(All categories)|Luc Roy|00:00|00:00");
    EXPECT_EQ(main->windowTitle(), "Tarvell   Session ID [LROY]");
    user.WhenOpens<frmLogin>([this](frmLogin&) {
        EXPECT_TRUE(user.Reads("lblInstructions").contains("access to fiscal year 2026."));
        user.Clicks("cmdCancel");
    });
    user.Clicks("cmdPreviousYear");

    OpensOnMarie();
    user.Clicks("cmdNextYear"); // where the administrator has no record
    EXPECT_EQ(Figures(), "2027|(All categories)|ADMIN|00:00|no bank");
    EXPECT_TRUE(user.Entries("cboCategories").contains("Vacation"));
}

TEST_F(MainWindow, TheNameShownIsWholeInANarrowWindowAndALongOneInItsTip)
{
    OpensOnMarie();
    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    main->resize(960, 540);
    QCoreApplication::processEvents();
    auto* name = main->findChild<QLabel*>("lblCurrentSelection_DISPLAY");
    const auto* categories = main->findChild<QComboBox*>("cboCategories");
    EXPECT_GE(name->width(), name->fontMetrics().horizontalAdvance("Marie Bouchard"));
    EXPECT_GE(categories->width(), categories->sizeHint().width()) << "as long as there is room for both";
    name->grab();
    EXPECT_EQ(name->toolTip(), "");
    const QString longest = "Marie-Hélène Bouchard-Tremblay de la Durantaye";
    name->setText(longest);
    QCoreApplication::processEvents();
    name->grab();
    EXPECT_EQ(name->toolTip(), longest);
    EXPECT_LE(main->width(), 960);
}

TEST_F(MainWindow, TheToolUnderThePointerFollowsWhatItIsUsedFor)
{
    OpensOnMarie();
    auto* zoomed = main->findChild<QToolButton*>("imgZoom");
    const auto rests = [&] {
        QEvent enter(QEvent::Enter);
        QApplication::sendEvent(main->findChild<QToolButton*>("imgCreateMultiple"), &enter);
        return zoomed->isVisible() ? zoomed->property("look").toString() : "hidden";
    };
    EXPECT_EQ(rests(), "");
    user.Clicks("imgCreateMultiple");
    ClicksDay(11, 25);
    EXPECT_EQ(rests(), "active");
    user.Presses("flxCalendar", Qt::Key_Escape);
    EXPECT_TRUE(zoomed->isVisible() && zoomed->property("look").toString().isEmpty());
    user.ChoosesMenu("mnuSpecialDisplayPending");
    EXPECT_FALSE(zoomed->isVisible()) << "its tool is gone";
}

TEST_F(MainWindow, AnIdleProgramCountsDownPastZeroAndEndsEvenUnderAForm)
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
    EXPECT_EQ(idles(900), "") << "a tool in use is work, even without the mouse";
    user.Presses("", Qt::Key_Escape);
    EXPECT_EQ(idles(839), "");
    EXPECT_THROW(idles(61), ProgramEnded);
    EXPECT_NE(house.Cell("SELECT LoggedIn FROM Employees WHERE RecordID = ?", {marie}), "0");

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
    const auto ticks = [&] {
        ran.clear();
        main->timAbsence_Timer();
        return ran.join(' ');
    };
    const std::tuple<int, int, int, const char*> kRights[] = {
        // The steps of a locked window are marked. How one's requests stand was looked up when the window opened.
        {0, 0, 0, ""},
        {0, 1, 0, " IsFYClosingScheduled!"},
        {1, 0, 1, " IsFYClosingScheduled! AreThereRequestsToApprove!"}};
    for (const auto& [createsForGroup, createsForSelf, approves, steps] : kRights) {
        house.Sql("UPDATE Employees SET GroupLevelCreate = ?, SelfLevelCreate = ?, IsAuthorizedToApprove = ?",
                  {createsForGroup, createsForSelf, approves});
        Opens("MBOUCHARD");
        for (const char* step : {"AreThereRequestsToApprove", "WereRequestsApproved", "IsFYClosingScheduled",
                                 "DoesUserNeedTraining", "DownloadRedemption", "SpecifyMailerComponent"})
            main->BackgroundWork().SetWork(step, [&ran, step, this] {
                main->timAbsence_Timer(); // a tick under a modal form does nothing
                ran << step + QString(Enabled("mnuFile") ? "" : "!");
            });
        SessionState.LastUpgradeDate = 0;
        EXPECT_EQ(ticks(), QString("DownloadRedemption DoesUserNeedTraining") + steps);
    }
    SessionState.LastUpgradeDate = 333; // what the last upgrade left behind
    EXPECT_EQ(ticks(), "SpecifyMailerComponent AreThereRequestsToApprove!");
    main->BackgroundWork().SetWork("AreThereRequestsToApprove", [] { throw RuntimeError(3043, "network"); });
    user.WillAnswer("AN ERROR HAS OCCURRED:", "OK", "3043: network");
    EXPECT_EQ(ticks(), "") << "nobody is asked for his mail program twice";
    EXPECT_TRUE(!main->TimerBusy && Enabled("mnuFile") && user.CanUse("imgSubmit")) << "a failure locks nothing";
}
} // namespace
