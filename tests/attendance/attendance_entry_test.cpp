#include "attendance/attendance_entry.h"
#include "platform/clock.h"
#include "support/house.h"

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
    /// The durations: of one record, with its factor, of all dates.
    QString Durations() const
    {
        return QStringLiteral("%1 %2 %3").arg(entry.Duration).arg(entry.TotalDuration).arg(entry.TotalTime);
    }

    AttendanceEntry entry;
};

TEST_F(AttendanceEntryRules, TheCategoryDecidesTheSignWhileThePositiveTotalIsShown)
{
    Select({kMonday, kTuesday});
    entry.TimeMultiplicator = 1.5F;
    const std::tuple<const char*, int, const char*> cases[] = {
        {"Time claimed", 1, "-2 -3 -6"},  {"Time borrowed", 1, "-2 -3 -6"}, {"Time paid", 1, "-2 -3 -6"},
        {"Time accumulated", 1, "2 3 6"}, {"Vacation", 0, "2 3 6"},         {"Time claimed", 0, "2 3 6"}};
    for (const auto& [name, bankRelated, durations] : cases) {
        Category(name, bankRelated);
        Enter("2", "");
        EXPECT_EQ(Durations() + " " + entry.TotalTimeText, QString(durations) + " 06:00") << name;
        RecalculateTotalTime(entry);
        EXPECT_EQ(Durations(), durations) << "a second run must not turn the sign: " << name;
    }
    Category("Time claimed", 1);
    Enter("2", "0");
    const std::tuple<const char*, int, const char*> next[] = {
        {"", 1, "-2 -3 -6"},        // a bank of the user's own
        {"Vacation", 0, "2 -3 -6"}, // only the next run turns them
        {"Vacation", 0, "2 3 6"},
        {"Time paid", 1, "-2 -3 -6"},
        {"Time accumulated", 1, "2 3 6"}};
    for (const auto& [name, bankRelated, durations] : next) {
        Category(name, bankRelated);
        RecalculateTotalTime(entry);
        EXPECT_EQ(Durations(), durations);
    }
}

TEST_F(AttendanceEntryRules, TotalsAreSingleFloatsAndNotRounded)
{
    Select({kMonday, kTuesday, kSaturday});
    entry.TimeMultiplicator = 1.5F;
    Enter("2", "30");
    EXPECT_EQ(Durations() + " " + entry.TotalTimeText, "2.5 3.75 11.25 11:15");
    entry.TimeMultiplicator = kMultiplicators[static_cast<size_t>(MultiplicatorIndex(1.33F))].Value;
    Enter("", "20");
    EXPECT_EQ(entry.Duration, 0.33333F);
    EXPECT_EQ(entry.TotalDuration, 1.33F * 0.33333F);
    EXPECT_EQ(entry.TotalTime, 3 * (1.33F * 0.33333F));
    EXPECT_EQ(MultiplicatorIndex(1.4F), -1);
}

TEST_F(AttendanceEntryRules, AStartWithoutAnEndTakesTheStartAndTheEndMayLieBeyondMidnight)
{
    struct Choice
    {
        void (*Choose)(AttendanceEntry&, const QString&);
        const char* Time;
        float End;
        const char* Shown;
    };
    const Choice choices[] = {
        {ChooseStartTime, "23:00", 23, "23:00|23:00|00|00|00:00"},
        {ChooseEndTime, "01:00", 25, "23:00|01:00|02|00|02:00"},
        {ChooseStartTime, "22:30", 25, "22:30|01:00|02|30|02:30"},
        {ChooseStartTime, "00:15", 1, "00:15|01:00|00|45|00:45"}, // midnight no longer lies between
        {ChooseStartTime, "22:00", 25, "22:00|01:00|03|00|03:00"},
        {ChooseEndTime, "00:00", 24, "22:00|00:00|02|00|02:00"},
        {ChooseStartTime, "00:00", 1e-7F, "00:00|00:00|00|00|00:00"}, // midnight is a time and not none
        {ChooseEndTime, "08:00", 8, "00:00|08:00|08|00|08:00"},
    };
    for (const Choice& choice : choices) {
        choice.Choose(entry, choice.Time);
        EXPECT_EQ(entry.EndTime, choice.End) << choice.Time;
        EXPECT_EQ(Shown(), choice.Shown);
    }
    EXPECT_EQ(entry.StartTime, 1e-7F);
    // A stored record shows the hours of its end beyond midnight.
    for (const auto& [end, text, onItsDay] : {std::tuple(25.0F, "25:00", 1.0F), std::tuple(24.0F, "24:00", 1e-7F)}) {
        entry.EndTime = end;
        entry.EndTimeText = text;
        ChooseStartTime(entry, "00:00");
        EXPECT_EQ(entry.EndTime, onItsDay);
    }
}

TEST_F(AttendanceEntryRules, AHalfIsOfferedWhenItsHoursAreTheSameOnAllDates)
{
    const auto offered = [this](std::initializer_list<QDate> dates) {
        Select(dates);
        FindDayParts(entry);
        return QStringLiteral("%1%2%3")
            .arg(entry.WholeDayEnabled)
            .arg(entry.FirstHalfEnabled)
            .arg(entry.SecondHalfEnabled);
    };
    EXPECT_EQ(offered({}), "000");
    EXPECT_EQ(offered({kMonday, kTuesday}), "111");
    entry.FirstHalfEnd[2] = 11.5F;
    EXPECT_EQ(offered({kMonday, kTuesday}), "001");
    entry.SecondHalfStart[2] = 13.5F;
    EXPECT_EQ(offered({kMonday, kTuesday}), "000");
    EXPECT_EQ(offered({kMonday}), "111") << "only the dates selected count";
    entry.FirstHalfStart[1] = 0;
    EXPECT_EQ(offered({kMonday}), "001");
    EXPECT_EQ(offered({kMonday, kSaturday}), "000") << "a day off has no halves";
    EXPECT_EQ(offered({kSaturday, kMonday}), "000");
}

TEST_F(AttendanceEntryRules, DayPartsTakeTheirTimesFromTheFirstDateAndTheBreakOff)
{
    entry.FirstHalfStart[2] = 9;
    Select({kMonday, kTuesday});
    entry.FirstHalfEnabled = true;
    entry.SecondHalfEnabled = true;
    const auto chosen = [this](DayPart part, bool checked = true) {
        ChooseDayPart(entry, part, checked);
        return Shown();
    };
    EXPECT_EQ(chosen(DayPart::WholeDay), "08:30|16:30|07|00|14:00");
    EXPECT_EQ(entry.UnpaidBreak, 1);
    EXPECT_EQ(chosen(DayPart::SecondHalf), "13:00|16:30|03|30|07:00");
    EXPECT_EQ(chosen(DayPart::FirstHalf), "08:30|12:00|03|30|07:00");
    EXPECT_EQ(chosen(DayPart::FirstHalf, false), "||||");
    EXPECT_EQ(entry.Part, DayPart::None);
    EXPECT_EQ(QString::number(entry.StartTime + entry.EndTime) + " " + Durations(), "0 0 0 0");
    chosen(DayPart::WholeDay);
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
    EXPECT_EQ(QString::number(entry.StartTime + entry.EndTime) + " " + Durations(), "0 0 0 0");
    TakeDuration(entry);
    EXPECT_EQ(Shown(), "||1|30|01:30");
}
} // namespace
