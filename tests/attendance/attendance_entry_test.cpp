#include "attendance/attendance_entry.h"
#include "platform/clock.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{
const QDate kMonday(2026, 3, 2);
const QDate kTuesday(2026, 3, 3);
const QDate kSaturday(2026, 3, 7);

/// Monday to Friday 8:30 to 12:00 and 13:00 to 16:30; a test changes a day.
class AttendanceEntryRules : public testing::Test
{
protected:
    AttendanceEntryRules()
    {
        for (int day = 1; day <= 5; ++day) {
            entry.FirstHalfStart[day] = 8.5F;
            entry.FirstHalfEnd[day] = 12;
            entry.SecondHalfStart[day] = 13;
            entry.SecondHalfEnd[day] = 16.5F;
        }
        Select({kMonday});
    }

    void Select(std::initializer_list<QDate> dates)
    {
        entry.Dates.clear();
        std::transform(dates.begin(), dates.end(), std::back_inserter(entry.Dates), SerialOfDate);
    }

    void Category(const char* systemName, int bankRelated)
    {
        entry.SystemName = systemName;
        entry.TimeBankRelated = bankRelated;
    }

    void Enter(const char* hours, const char* minutes)
    {
        TypeDuration(entry, hours, minutes);
        TakeDuration(entry);
    }

    QString Shown() const
    {
        return QStringList{entry.StartTimeText, entry.EndTimeText, entry.HoursText, entry.MinutesText,
                           entry.TotalTimeText}
            .join('|');
    }

    AttendanceEntry entry;
};

TEST_F(AttendanceEntryRules, TheCategoryDecidesTheSignWhileThePositiveTotalIsShown)
{
    Select({kMonday, kTuesday});
    entry.TimeMultiplicator = 1.5F;
    const std::tuple<const char*, int, float> cases[] = {{"Time claimed", 1, -1},
                                                         {"Time borrowed", 1, -1},
                                                         {"Time paid", 1, -1},
                                                         {"Time accumulated", 1, 1},
                                                         {"Vacation", 0, 1},
                                                         {"", 0, 1},
                                                         {"", 1, 1},
                                                         {"Time claimed", 0, 1}};
    for (const auto& [name, bankRelated, sign] : cases) {
        Category(name, bankRelated);
        Enter("2", "");
        EXPECT_EQ(entry.Duration, sign * 2) << name;
        EXPECT_EQ(entry.TotalDuration, sign * 3) << name;
        EXPECT_EQ(entry.TotalTime, sign * 6) << name;
        EXPECT_EQ(entry.TotalTimeText, "06:00") << name;
        RecalculateTotalTime(entry);
        EXPECT_EQ(entry.TotalTime, sign * 6) << "a second run must not turn the sign: " << name;
    }
}

TEST_F(AttendanceEntryRules, LeavingTheBankTurnsTheTotalsOnlyWithTheNextRun)
{
    Category("Time claimed", 1);
    Enter("2", "0");
    Category("Vacation", 0);
    RecalculateTotalTime(entry);
    EXPECT_EQ(entry.Duration, 2);
    EXPECT_EQ(entry.TotalDuration, -2);
    EXPECT_EQ(entry.TotalTime, -2);
    RecalculateTotalTime(entry);
    EXPECT_EQ(entry.TotalDuration, 2);

    Category("Time accumulated", 1);
    entry.Duration = -2;
    RecalculateTotalTime(entry);
    EXPECT_EQ(entry.TotalTime, 2);
}

TEST_F(AttendanceEntryRules, TotalsAreSingleFloatsAndNotRounded)
{
    Select({kMonday, kTuesday, kSaturday});
    entry.TimeMultiplicator = 1.5F;
    Enter("2", "30");
    EXPECT_EQ(entry.TotalDuration, 3.75F);
    EXPECT_EQ(entry.TotalTime, 11.25F);
    EXPECT_EQ(entry.TotalTimeText, "11:15");

    entry.TimeMultiplicator = kMultiplicators[static_cast<size_t>(MultiplicatorIndex(1.33F))].Value;
    Enter("", "20");
    EXPECT_EQ(entry.Duration, 0.33333F);
    EXPECT_EQ(entry.TotalDuration, 1.33F * 0.33333F);
    EXPECT_EQ(entry.TotalTime, 3 * (1.33F * 0.33333F));
    EXPECT_EQ(MultiplicatorIndex(1.4F), -1);
}

TEST_F(AttendanceEntryRules, AStartWithoutAnEndTakesTheStartAndTheEndMayLieBeyondMidnight)
{
    ChooseStartTime(entry, "23:00");
    EXPECT_EQ(Shown(), "23:00|23:00|00|00|00:00");
    ChooseEndTime(entry, "01:00");
    EXPECT_EQ(entry.EndTime, 25);
    EXPECT_EQ(Shown(), "23:00|01:00|02|00|02:00");
    ChooseStartTime(entry, "22:30");
    EXPECT_EQ(entry.EndTime, 25);
    EXPECT_EQ(entry.Duration, 2.5F);
    ChooseStartTime(entry, "00:15");
    EXPECT_EQ(entry.EndTime, 1) << "midnight no longer lies between";
    EXPECT_EQ(entry.TotalTimeText, "00:45");
}

TEST_F(AttendanceEntryRules, MidnightIsATimeAndNotNone)
{
    ChooseStartTime(entry, "00:00");
    EXPECT_EQ(entry.StartTime, 1e-7F);
    EXPECT_EQ(entry.EndTime, 1e-7F);
    ChooseEndTime(entry, "08:00");
    EXPECT_EQ(entry.Duration, 8);

    ChooseStartTime(entry, "22:00");
    ChooseEndTime(entry, "00:00");
    EXPECT_EQ(entry.EndTime, 24);
    EXPECT_EQ(entry.Duration, 2);
    ChooseStartTime(entry, "00:00");
    EXPECT_EQ(entry.EndTime, entry.StartTime) << "the same moment, which the guard refuses";
}

TEST_F(AttendanceEntryRules, AHalfIsOfferedWhenItsHoursAreTheSameOnAllDates)
{
    const auto offered = [this] {
        FindDayParts(entry);
        return QStringLiteral("%1%2%3")
            .arg(entry.WholeDayEnabled)
            .arg(entry.FirstHalfEnabled)
            .arg(entry.SecondHalfEnabled);
    };
    Select({kMonday, kTuesday});
    EXPECT_EQ(offered(), "111");
    entry.FirstHalfEnd[2] = 11.5F;
    EXPECT_EQ(offered(), "001");
    entry.SecondHalfStart[2] = 13.5F;
    EXPECT_EQ(offered(), "000");
    Select({kMonday});
    EXPECT_EQ(offered(), "111") << "only the dates selected count";
    entry.FirstHalfStart[1] = 0;
    EXPECT_EQ(offered(), "001");
    Select({kMonday, kSaturday});
    EXPECT_EQ(offered(), "000") << "a day off has no halves";
    Select({kSaturday, kMonday});
    EXPECT_EQ(offered(), "000");
}

TEST_F(AttendanceEntryRules, DayPartsTakeTheirTimesFromTheFirstDateAndTheBreakOff)
{
    entry.FirstHalfStart[2] = 9;
    Select({kMonday, kTuesday});
    entry.FirstHalfEnabled = true;
    entry.SecondHalfEnabled = true;
    ChooseDayPart(entry, DayPart::WholeDay, true);
    EXPECT_EQ(Shown(), "08:30|16:30|07|00|14:00");
    EXPECT_EQ(entry.UnpaidBreak, 1);
    ChooseDayPart(entry, DayPart::SecondHalf, true);
    EXPECT_EQ(Shown(), "13:00|16:30|03|30|07:00");
    ChooseDayPart(entry, DayPart::FirstHalf, true);
    EXPECT_EQ(Shown(), "08:30|12:00|03|30|07:00");
    ChooseDayPart(entry, DayPart::FirstHalf, false);
    EXPECT_EQ(Shown(), "||||");
    EXPECT_EQ(entry.StartTime + entry.EndTime + entry.Duration + entry.TotalTime, 0);

    ChooseDayPart(entry, DayPart::WholeDay, true);
    ChooseEndTime(entry, "17:00");
    EXPECT_EQ(entry.Part, DayPart::None);
    EXPECT_EQ(Shown(), "08:30|17:00|08|30|17:00") << "the break belonged to the whole day";
}

TEST_F(AttendanceEntryRules, ATypedDurationForgetsTheTimes)
{
    ChooseDayPart(entry, DayPart::FirstHalf, true);
    TypeDuration(entry, "1", "30");
    EXPECT_EQ(Shown(), "||1|30|");
    EXPECT_EQ(entry.Part, DayPart::None);
    EXPECT_EQ(entry.StartTime + entry.EndTime + entry.Duration, 0);
    TakeDuration(entry);
    EXPECT_EQ(Shown(), "||1|30|01:30");

    EXPECT_TRUE(AreHoursAccepted("23") && AreHoursAccepted("") && AreMinutesAccepted("59"));
    EXPECT_FALSE(AreHoursAccepted("24") || AreMinutesAccepted("60"));
}
} // namespace
