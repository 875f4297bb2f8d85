#include "platform/clock.h"
#include "selection/consecutive_dates.h"
#include "selection/frm_select_dates.h"
#include "selection/frm_select_period.h"
#include "selection/frm_select_weekdays.h"
#include "support/company_test.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QTest>

using testing::ElementsAre;

namespace
{
class ChoosingDates : public CompanyTest
{
protected:
    static int Day(int month, int day, int year = 2026) { return SerialOfDate({year, month, day}); }
    static QString Shown(int month, int day) { return QLocale().toString(QDate(2026, month, day), "ddd dd-MMM-yyyy"); }
    DateList Dates()
    {
        EXPECT_EQ(SessionState.AttendanceDates, user.The<frmSelectDates>().Dates());
        return user.The<frmSelectDates>().Dates();
    }
    User& Opens()
    {
        SessionState.AttendanceDates = {1};
        user.Opens<frmSelectDates>(EntireYear(), SessionState);
        EXPECT_THAT(Dates(), ElementsAre()) << "leaving the form gives no dates";
        return user;
    }
    void Chooses(const Period& period)
    {
        const auto& form = user.Clicks("cmdOK").The<frmSelectPeriod>();
        EXPECT_EQ((Period{form.PeriodStart(), form.PeriodEnd()}), period);
    }
};

TEST_F(ChoosingDates, HolidaysAndDaysOffFallOutUntilTheirBoxIsCleared)
{
    SessionState.HasSchedule = true;
    SessionState.HoursWorked = {0, 8, 8, 8, 8, 0, 0};
    Opens();
    EXPECT_EQ(user.ReadsAll({"cboFrom", "chkWeekday(4)", "chkWeekday(5)"}), Shown(3, 2) + "|1|0")
        << "today, and Friday is a day off";
    user.Presses("cboFrom", Qt::Key_2);
    auto* from = user.The<frmSelectDates>().findChild<QComboBox*>("cboFrom");
    QTest::keyClicks(from->view(), "9 jun");
    QTest::keyClick(from->view(), Qt::Key_Return);
    EXPECT_EQ(user.ReadsAll({"cboFrom", "cboTo"}), Shown(6, 29) + "|" + Shown(6, 29)) << "the end follows the start";
    const std::pair<const char*, QString> inFrench[] = {
        {"5 juin", Shown(6, 15)}, {"5 juil", Shown(7, 15)}, {"5 fevr.", Shown(2, 15)}};
    for (const auto& [typed, day] : inFrench) {
        user.Presses("cboFrom", Qt::Key_1);
        QTest::keyClicks(from->view(), typed);
        QTest::keyClick(from->view(), Qt::Key_Tab);
        EXPECT_EQ(user.Reads("cboFrom"), day) << typed;
        EXPECT_TRUE(user.HasFocus("cboTo"));
    }
    user.Picks("cboFrom", Shown(6, 29));
    user.Picks("cboTo", Shown(7, 6)).Picks("cboFrom", Shown(6, 30));
    EXPECT_EQ(user.Reads("cboTo"), Shown(7, 6)) << "an end that still fits is kept";
    EXPECT_EQ(user.Entries("cboTo").first(), Shown(6, 30)) << "the end cannot precede the start";
    user.Checks("chkWeekday(5)");
    EXPECT_EQ(user.Reads("lblCount"), "3 dates");
    user.WillAnswer("CONFIRM:", "No", "not been saved").Presses("", Qt::Key_Escape).Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre(Day(6, 30), Day(7, 2), Day(7, 6)));

    Opens().Picks("cboFrom", Shown(6, 30)).Picks("cboTo", Shown(7, 3));
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
    Opens().Picks("cboFrom", Shown(3, 6)).Picks("cboTo", Shown(3, 9));
    for (int day = 0; day < 7; ++day)
        user.Clicks(QString("chkWeekday(%1)").arg(day));
    user.WillAnswer("ERREUR!", "OK", "au moins une journée").Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre());
    user.Checks("chkWeekday(0)").Checks("chkWeekday(6)").Clicks("cmdOK");
    EXPECT_THAT(Dates(), ElementsAre(Day(3, 7), Day(3, 8)));

    ConsecutiveDates choice;
    choice.From = Day(1, 1, 2028);
    choice.To = Day(1, 31, 2029);
    choice.Weekdays.fill(true);
    const DateList dates = ChosenDates(choice, WorkSchedule(), {});
    EXPECT_EQ(dates.size(), 366) << "the list ends with a leap year";
    EXPECT_EQ(dates.last(), Day(12, 31, 2028));
}

TEST_F(ChoosingDates, WeekdaysAreMondayToFridayUnlessChanged)
{
    user.Opens<frmSelectWeekdays>().Checks("chkWeekday(5)", false).Checks("chkWeekday(0)").Clicks("cmdOK");
    EXPECT_THAT(SessionState.SelectedWeekdays, ElementsAre(1, 1, 1, 1, 1, 0, 0));
    EXPECT_EQ(user.The<frmSelectWeekdays>().Weekdays(), SessionState.SelectedWeekdays);
    user.Opens<frmSelectWeekdays>();
    for (int day = 1; day < 6; ++day)
        user.Checks(QString("chkWeekday(%1)").arg(day), false);
    user.WillAnswer("ERROR!", "OK", "at least one day of the week!").Clicks("cmdOK").Clicks("cmdCancel");
    EXPECT_THAT(SessionState.SelectedWeekdays, testing::Each(0));
}

TEST_F(ChoosingDates, APeriodIsTheYearAMonthOrTwoDatesThatFollowEachOther)
{
    user.Opens<frmSelectPeriod>();
    EXPECT_EQ(user.ReadsAll({"optEntireYear", "cboTo"}), "1|" + Shown(12, 31));
    EXPECT_EQ(user.Entries("cboFrom").size(), 365);
    user.Presses("cboFrom", Qt::Key_M);
    auto* from = user.The<frmSelectPeriod>().findChild<QComboBox*>("cboFrom");
    QTest::keyClicks(from->view(), "on 29-jun");
    QTest::keyClick(from->view(), Qt::Key_Return);
    EXPECT_EQ(user.Reads("cboFrom"), Shown(6, 29)) << "as it reads";
    user.Clicks("optEntireYear");
    Chooses(EntireYear());

    user.Opens<frmSelectPeriod>().Clicks("optMonth(1)");
    EXPECT_EQ(user.ReadsAll({"cboTo", "optEntireYear"}), Shown(2, 28) + "|0");
    user.Clicks("optEntireYear").Clicks("optMonth(3)");
    Chooses({Day(4, 1), Day(4, 30)});

    user.Opens<frmSelectPeriod>().Picks("cboFrom", Shown(6, 15)).Picks("cboTo", Shown(6, 20));
    EXPECT_EQ(user.Reads("optEntireYear"), "0");
    user.Picks("cboFrom", Shown(8, 1));
    EXPECT_EQ(user.Reads("cboTo"), Shown(8, 1));
    user.Picks("cboTo", Shown(5, 4));
    EXPECT_EQ(user.Reads("cboFrom"), Shown(5, 4));
    user.Picks("cboTo", Shown(5, 9));
    Chooses({Day(5, 4), Day(5, 9)});

    user.Opens<frmSelectPeriod>(PeriodMode::SingleDate);
    EXPECT_FALSE(user.CanUse("cboTo") || user.CanUse("optEntireYear"));
    EXPECT_EQ(user.Reads("cboFrom"), Shown(1, 1));
    user.Picks("cboFrom", Shown(9, 7));
    Chooses({Day(9, 7), Day(9, 7)});
    user.Opens<frmSelectPeriod>().Clicks("optMonth(1)");
    user.WillAnswer("CONFIRM:", "No", "not been saved").Presses("cboFrom", Qt::Key_Escape);
    EXPECT_TRUE(user.The<frmSelectPeriod>().isVisible());
    user.Opens<frmSelectPeriod>().Presses("cboFrom", Qt::Key_Escape);
    EXPECT_FALSE(user.The<frmSelectPeriod>().isVisible()) << "nothing is lost";
    EXPECT_EQ(user.The<frmSelectPeriod>().PeriodStart() + user.The<frmSelectPeriod>().PeriodEnd(), 0);
}

TEST_F(ChoosingDates, TheMonthsOfAYearThatBeginsInJulyRunIntoTheNext)
{
    SessionState.CommencingDate = Day(7, 15);
    SessionState.EndingDate = Day(7, 14, 2027);
    EXPECT_EQ(MonthOfYear(0), (Period{Day(1, 1, 2027), Day(1, 31, 2027)}));
    EXPECT_EQ(MonthOfYear(6), (Period{Day(7, 15), Day(7, 31)})) << "the beginning, not the end of the year";
    EXPECT_EQ(MonthOfYear(11), (Period{Day(12, 1), Day(12, 31)}));
    EXPECT_EQ(FirstPeriod(PeriodMode::Schedule), MonthOfYear(6)) << "today is not in that year";
    SessionState.EndingDate = Day(12, 31);
    house.Today(2026, 12, 31);
    EXPECT_EQ(FirstPeriod(PeriodMode::Schedule), MonthOfYear(11)) << "but its last day is";
    user.Opens<frmSelectPeriod>();
    EXPECT_TRUE(!user.CanUse("optMonth(0)") && user.CanUse("optMonth(11)"));
}

TEST_F(ChoosingDates, AScheduleTakesThirtyOneDaysAndNotOneMore)
{
    SessionState.English = false;
    user.Opens<frmSelectPeriod>(PeriodMode::Schedule);
    EXPECT_EQ(user.Reads("optMonth(2)"), "1") << "the month of today";
    EXPECT_FALSE(user.CanUse("optEntireYear"));
    user.Picks("cboTo", Shown(4, 1)).WillBeRefused("ne peut excéder 31 jours!");
    Chooses({});
    user.Picks("cboFrom", Shown(3, 2));
    Chooses({Day(3, 2), Day(4, 1)});
}
} // namespace
