#include "platform/clock.h"
#include "selection/consecutive_dates.h"
#include "selection/frm_select_attendance_record.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_weekdays.h"
#include "support/user.h"

#include <gmock/gmock.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

class ChoosingDates : public testing::Test
{
protected:
    ChoosingDates() { house.Company().LogIn("ADMIN"); }

    static int Day(int month, int day) { return SerialOfDate({2026, month, day}); }
    DateList Dates()
    {
        EXPECT_EQ(SessionState.AttendanceDates, user.The<frmSelectDates>().Dates());
        return user.The<frmSelectDates>().Dates();
    }
    void WorksMondayToThursday()
    {
        SessionState.HasSchedule = true;
        SessionState.HoursWorked = {0, 8, 8, 8, 8, 0, 0};
    }
    User& PicksPeriod(int from, int to) { return user.Picks("cboFrom", Shown(from)).Picks("cboTo", Shown(to)); }
    static QString Shown(int day) { return QLocale().toString(DateOfSerial(day), "ddd dd-MMM-yyyy"); }

    House house;
    User user;
};

TEST_F(ChoosingDates, HolidaysAndDaysOffFallOut)
{
    WorksMondayToThursday();
    user.Opens<frmSelectDates>(EntireYear(), SessionState);
    EXPECT_EQ(user.Reads("cboFrom"), Shown(Day(3, 2))) << "today, a Monday";
    EXPECT_EQ(user.Reads("chkWeekday(5)"), "0") << "Friday is a day off";
    PicksPeriod(Day(6, 30), Day(7, 6)).Checks("chkWeekday(5)");
    EXPECT_EQ(user.Entries("cboTo").first(), Shown(Day(6, 30))) << "the end cannot precede the start";
    EXPECT_EQ(user.Reads("lblCount"), "3 dates");
    user.Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre(Day(6, 30), Day(7, 2), Day(7, 6)));
}

TEST_F(ChoosingDates, ClearingABoxWarnsAndThenLetsThemIn)
{
    WorksMondayToThursday();
    user.Opens<frmSelectDates>(EntireYear(), SessionState);
    PicksPeriod(Day(6, 30), Day(7, 3));
    user.WillAnswer("WARNING:", "No", "even on statutory holidays!").Clicks("chkIgnoreHolidays");
    EXPECT_EQ(user.Reads("chkIgnoreHolidays"), "1");
    user.WillAnswer("WARNING:", "Yes", "even on statutory holidays!").Clicks("chkIgnoreHolidays");
    user.WillAnswer("WARNING:", "Yes", "not be scheduled to work!").Clicks("chkIgnoreDaysOff");
    user.Checks("chkWeekday(5)").Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre(Day(6, 30), Day(7, 1), Day(7, 2), Day(7, 3)));
}

TEST_F(ChoosingDates, WithoutAScheduleEveryDayCountsAndAWeekdayIsNeeded)
{
    SessionState.English = false;
    SessionState.AttendanceDates = {1};
    user.Opens<frmSelectDates>(EntireYear(), SessionState);
    PicksPeriod(Day(3, 6), Day(3, 9));
    for (int day = 0; day < 7; ++day)
        user.Checks(QString("chkWeekday(%1)").arg(day), false);
    user.WillAnswer("ERREUR!", "OK", "au moins une journée").Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre());
    user.Checks("chkWeekday(0)").Checks("chkWeekday(6)").Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre(Day(3, 7), Day(3, 8)));
}

TEST_F(ChoosingDates, LeavingTheFormGivesNoDates)
{
    SessionState.AttendanceDates = {1};
    user.Opens<frmSelectDates>(EntireYear(), SessionState).Clicks("cmdCancel");
    EXPECT_THAT(Dates(), ElementsAre());
}

TEST(ConsecutiveDatesRule, TheListEndsWithALeapYear)
{
    ConsecutiveDates choice;
    choice.From = SerialOfDate({2028, 1, 1});
    choice.To = SerialOfDate({2029, 1, 31});
    choice.Weekdays.fill(true);
    const DateList dates = ChosenDates(choice, WorkSchedule(), {});
    EXPECT_EQ(dates.size(), 366);
    EXPECT_EQ(dates[365], SerialOfDate({2028, 12, 31}));
}

TEST_F(ChoosingDates, WeekdaysAreMondayToFridayUnlessChanged)
{
    user.Opens<frmSelectWeekdays>().Checks("chkWeekday(5)", false).Checks("chkWeekday(0)").Clicks("cmdOK");
    EXPECT_THAT(SessionState.SelectedWeekdays, ElementsAre(1, 1, 1, 1, 1, 0, 0));
    EXPECT_EQ(user.The<frmSelectWeekdays>().Weekdays(), SessionState.SelectedWeekdays);
    user.Opens<frmSelectWeekdays>();
    for (int day = 1; day < 6; ++day)
        user.Checks(QString("chkWeekday(%1)").arg(day), false);
    user.WillAnswer("ERROR!", "OK", "at least one day of the week!").Clicks("cmdOK");
    EXPECT_TRUE(user.The<frmSelectWeekdays>().isVisible());
    user.Clicks("cmdCancel");
    EXPECT_THAT(SessionState.SelectedWeekdays, Not(Contains(1)));
}

TEST_F(ChoosingDates, ARecordOfTheDayIsChosenByItsLine)
{
    const std::vector<std::pair<QString, int>> lines = {{"From: 08:30  To: 10:00  Duration: 01:30", 41},
                                                        {"From: 13:00  To: 15:00  Duration: 02:00", 57}};
    user.Opens<frmSelectAttendanceRecord>(lines).Picks("lstRecords", "From: 13:00").Clicks("cmdSelect");
    EXPECT_EQ(user.The<frmSelectAttendanceRecord>().SelectedRecordID(), 57);
    user.Opens<frmSelectAttendanceRecord>(lines).Clicks("cmdCancel");
    EXPECT_EQ(user.The<frmSelectAttendanceRecord>().SelectedRecordID(), 0);
}
