#include "attendance/attendance_fixture.h"

namespace
{
constexpr int kMonday = 2;
constexpr int kTuesday = 3;
constexpr int kSaturday = 7;

/// Monday to Friday 8:30 to 12:00 and 13:00 to 16:30; a test changes a day.
class AttendanceEntryRules : public AttendanceTest
{
protected:
    AttendanceEntryRules()
    {
        Begin({kMonday}, chris, "");
        LoadEmployeeInfo(datAbsence, entry);
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
};

TEST_F(AttendanceEntryRules, TheCategoryDecidesTheSignWhileThePositiveTotalIsShown)
{
    Select({kMonday, kTuesday});
    entry.TimeMultiplicator = 1.5F;
    const std::tuple<const char*, int, bool, const char*> steps[] = {
        // entered, or only calculated again
        {"Time claimed", 0, true, "2 3 6 06:00"},
        {"Time paid", 1, true, "-2 -3 -6 06:00"},
        {"Time borrowed", 1, true, "-2 -3 -6 06:00"},
        {"Time claimed", 1, true, "-2 -3 -6 06:00"},
        {"Time claimed", 1, false, "-2 -3 -6 -(06:00)"}, // a second run must not turn the sign
        {"", 1, false, "-2 -3 -6 -(06:00)"},             // a bank of the user's own
        {"Vacation", 0, false, "2 -3 -6 -(06:00)"},      // only the next run turns them
        {"Vacation", 0, false, "2 3 6 06:00"},
        {"Time paid", 1, false, "-2 -3 -6 06:00"},
        {"Time accumulated", 1, false, "2 3 6 -(06:00)"}};
    for (const auto& [systemName, bankRelated, entered, durations] : steps) {
        entry.SystemName = systemName;
        entry.TimeBankRelated = bankRelated;
        entered ? Enter("2", "") : RecalculateTotalTime(entry);
        EXPECT_EQ(Durations() + " " + entry.TotalTimeText, durations) << systemName;
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
    const auto starts = [this](const char* time) {
        ChooseStartTime(entry, time);
        return Shown() + QStringLiteral(" %1").arg(entry.EndTime);
    };
    const auto ends = [this](const char* time) {
        ChooseEndTime(entry, time);
        return Shown() + QStringLiteral(" %1").arg(entry.EndTime);
    };
    EXPECT_EQ(starts("23:00"), "23:00|23:00|00|00|00:00 23");
    EXPECT_EQ(ends("01:00"), "23:00|01:00|02|00|02:00 25");
    EXPECT_EQ(starts("22:30"), "22:30|01:00|02|30|02:30 25");
    EXPECT_EQ(starts("00:15"), "00:15|01:00|00|45|00:45 1") << "midnight no longer lies between";
    EXPECT_EQ(starts("22:00"), "22:00|01:00|03|00|03:00 25");
    EXPECT_EQ(ends("00:00"), "22:00|00:00|02|00|02:00 24");
    EXPECT_EQ(starts("00:00"), "00:00|00:00|00|00|00:00 1e-07") << "midnight is a time and not none";
    EXPECT_EQ(ends("08:00"), "00:00|08:00|08|00|08:00 8");
    for (const auto& [end, text, shown] :
         {std::tuple(25.0F, "25:00", "00:00|25:00|01|00|01:00 1"), {24.0F, "24:00", "00:00|24:00|00|00|00:00 1e-07"}}) {
        entry.EndTime = end; // a stored record shows the hours of its end beyond midnight
        entry.EndTimeText = text;
        EXPECT_EQ(starts("00:00"), shown);
    }
}

TEST_F(AttendanceEntryRules, AHalfIsOfferedWhenItsHoursAreTheSameOnAllDates)
{
    const auto offered = [this](const QVector<int>& days) {
        Select(days);
        FindDayParts(entry);
        return QStringLiteral("%1%2%3")
            .arg(entry.WholeDayEnabled())
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

TEST_F(AttendanceEntryRules, DayPartsTakeTheirTimesFromTheFirstDateAndATypedDurationForgetsThem)
{
    entry.FirstHalfStart[2] = 9;
    Select({kMonday, kTuesday});
    const auto chosen = [this](DayPart part, bool checked = true) {
        ChooseDayPart(entry, part, checked);
        return Shown();
    };
    const auto known = [this] {
        return QStringLiteral("%1 %2 ").arg(int(entry.Part)).arg(entry.StartTime + entry.EndTime) + Durations();
    };
    EXPECT_EQ(chosen(DayPart::WholeDay), "08:30|16:30|07|00|14:00");
    EXPECT_EQ(chosen(DayPart::SecondHalf), "13:00|16:30|03|30|07:00");
    EXPECT_EQ(chosen(DayPart::FirstHalf), "08:30|12:00|03|30|07:00");
    EXPECT_EQ(known(), "2 20.5 3.5 3.5 7");
    chosen(DayPart::FirstHalf, false);
    EXPECT_EQ(Shown() + known(), "||||0 0 0 0 0");
    chosen(DayPart::WholeDay);
    ChooseEndTime(entry, "17:00");
    EXPECT_EQ(Shown() + known(), "08:30|17:00|08|30|17:000 25.5 8.5 8.5 17") << "the break belonged to the whole day";
    chosen(DayPart::FirstHalf);
    TypeDuration(entry, "1", "30");
    EXPECT_EQ(Shown() + known(), "||1|30|0 0 0 0 0");
    TakeDuration(entry);
    EXPECT_EQ(Shown(), "||1|30|03:00");
}
} // namespace
