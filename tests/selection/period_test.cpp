#include "platform/clock.h"
#include "selection/frm_select_period.h"
#include "support/user.h"

#include <QLocale>

#include <gmock/gmock.h>

class ChoosingAPeriod : public testing::Test
{
protected:
    ChoosingAPeriod() { house.Company().LogIn("ADMIN"); }

    static int Day(int month, int day, int year = 2026) { return SerialOfDate({year, month, day}); }
    static QString Shown(int day) { return QLocale().toString(DateOfSerial(day), "ddd dd-MMM-yyyy"); }
    void ExpectPeriod(int start, int end)
    {
        EXPECT_EQ(user.The<frmSelectPeriod>().PeriodStart(), start);
        EXPECT_EQ(user.The<frmSelectPeriod>().PeriodEnd(), end);
    }

    House house;
    User user;
};

TEST_F(ChoosingAPeriod, TheEntireYearStandsFirstAndAMonthIsOneClick)
{
    user.Opens<frmSelectPeriod>();
    EXPECT_EQ(user.Reads("optEntireYear"), "1");
    EXPECT_EQ(user.Entries("cboFrom").size(), 365);
    EXPECT_EQ(user.Reads("cboTo"), Shown(Day(12, 31)));
    user.Clicks("cmdOK");
    ExpectPeriod(Day(1, 1), Day(12, 31));

    user.Opens<frmSelectPeriod>().Clicks("optMonth(1)");
    EXPECT_EQ(user.Reads("cboTo"), Shown(Day(2, 28)));
    EXPECT_EQ(user.Reads("optEntireYear"), "0");
    user.Clicks("optEntireYear").Clicks("optMonth(3)").Clicks("cmdOK");
    ExpectPeriod(Day(4, 1), Day(4, 30));
}

TEST_F(ChoosingAPeriod, TheOtherDateFollowsSoThatTheEndNeverPrecedesTheStart)
{
    user.Opens<frmSelectPeriod>().Picks("cboFrom", Shown(Day(6, 15))).Picks("cboTo", Shown(Day(6, 20)));
    EXPECT_EQ(user.Reads("optEntireYear"), "0");
    user.Picks("cboFrom", Shown(Day(8, 1)));
    EXPECT_EQ(user.Reads("cboTo"), Shown(Day(8, 1)));
    user.Picks("cboTo", Shown(Day(5, 4)));
    EXPECT_EQ(user.Reads("cboFrom"), Shown(Day(5, 4)));
    user.Picks("cboTo", Shown(Day(5, 9))).Clicks("cmdOK");
    ExpectPeriod(Day(5, 4), Day(5, 9));

    user.Opens<frmSelectPeriod>().Presses("cboFrom", Qt::Key_Escape);
    ExpectPeriod(0, 0);
}

TEST_F(ChoosingAPeriod, TheMonthsOfAYearThatBeginsInJulyRunIntoTheNext)
{
    SessionState.CommencingDate = Day(7, 15);
    SessionState.EndingDate = Day(7, 14, 2027);
    EXPECT_EQ(MonthOfYear(0), (Period{Day(1, 1, 2027), Day(1, 31, 2027)}));
    EXPECT_EQ(MonthOfYear(6), (Period{Day(7, 15), Day(7, 31)})) << "the beginning, not the end of the year";
    EXPECT_EQ(MonthOfYear(11), (Period{Day(12, 1), Day(12, 31)}));
    SessionState.EndingDate = Day(12, 31);
    user.Opens<frmSelectPeriod>();
    EXPECT_FALSE(user.CanUse("optMonth(0)"));
    EXPECT_TRUE(user.CanUse("optMonth(11)"));
}

TEST_F(ChoosingAPeriod, OneDateIsAskedForAChange)
{
    user.Opens<frmSelectPeriod>(PeriodMode::SingleDate);
    EXPECT_FALSE(user.CanUse("cboTo"));
    EXPECT_FALSE(user.CanUse("optEntireYear"));
    EXPECT_EQ(user.Reads("cboFrom"), Shown(Day(1, 1)));
    user.Picks("cboFrom", Shown(Day(9, 7))).Clicks("cmdOK");
    ExpectPeriod(Day(9, 7), Day(9, 7));
    user.Opens<frmSelectPeriod>(PeriodMode::SingleDate).Clicks("cmdCancel");
    ExpectPeriod(0, 0);
}

TEST_F(ChoosingAPeriod, AScheduleTakesThirtyOneDaysAndNotOneMore)
{
    SessionState.English = false;
    user.Opens<frmSelectPeriod>(PeriodMode::Schedule);
    EXPECT_EQ(user.Reads("optMonth(2)"), "1") << "the month of today";
    EXPECT_FALSE(user.CanUse("optEntireYear"));
    user.Picks("cboTo", Shown(Day(4, 1)));
    user.WillAnswer("ERREUR:", "OK", "ne peut excéder 31 jours!").Clicks("cmdOK");
    ExpectPeriod(0, 0);
    user.Picks("cboFrom", Shown(Day(3, 2))).Clicks("cmdOK");
    ExpectPeriod(Day(3, 2), Day(4, 1));
}
