#include "employees/work_schedule_rules.h"
#include "foundation/values.h"
#include "support/house.h"
#include "support/user.h"

#include <gtest/gtest.h>

namespace
{
constexpr auto FirstStart = ClockTime::FirstHalfStart;
constexpr auto FirstEnd = ClockTime::FirstHalfEnd;
constexpr auto SecondStart = ClockTime::SecondHalfStart;
constexpr auto SecondEnd = ClockTime::SecondHalfEnd;
constexpr int kMonday = 1;
constexpr int kTuesday = 2;

class WorkScheduleTest : public testing::Test
{
protected:
    void Pick(int day, const QStringList& times)
    {
        for (int i = 0; i < times.size(); ++i)
            if (!times[i].isEmpty())
                PickTime(record, static_cast<ClockTime>(i), day, times[i]);
    }

    void TypeHours(int day, const QString& hours, const QString& minutes = {})
    {
        TypeTotal(record, day, hours, minutes);
        EXPECT_FALSE(LeaveTotal(record, day));
    }

    void Refuses(const QString& control, const QString& text)
    {
        const Fault fault = CheckSchedule(record).value_or(Fault{"none", "none"});
        EXPECT_EQ(fault.Control, control);
        EXPECT_EQ(fault.Text, text);
    }

    QString Total(int day) const { return record.TotalHours[day] + ":" + record.TotalMinutes[day]; }

    House house;
    User user;
    EmployeeRecord record;
};

TEST_F(WorkScheduleTest, ADayIsAsLongAsItsCompleteHalves)
{
    Pick(kMonday, {"08:20", "12:00"});
    EXPECT_EQ(Total(kMonday), "3:40");
    Pick(kMonday, {"", "", "12:00", "16:20"});
    EXPECT_EQ(Total(kMonday), "8:0");
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 8);
    Pick(kTuesday, {"", "", "13:05", "17:00"});
    EXPECT_EQ(Total(kTuesday), "3:55");
}

TEST_F(WorkScheduleTest, MidnightIsATimeAndNoHalfCrossesIt)
{
    Pick(kMonday, {"00:00", "06:00"});
    EXPECT_EQ(record.FirstHalfStart[kMonday], kMidnight);
    EXPECT_EQ(ClockText(record, FirstStart, kMonday), "00:00");
    EXPECT_EQ(Total(kMonday), "6:0");

    user.WillAnswer("ERROR:", "OK", "The end time cannot be prior or equal to the start time!");
    Pick(kTuesday, {"22:00", "06:00"});
    EXPECT_EQ(record.FirstHalfEnd[kTuesday], 0);
    EXPECT_EQ(record.FirstHalfStart[kTuesday], 22);
    user.WillAnswer("ERROR:", "OK", "The end time").WillAnswer("ERROR:", "OK", "The end time");
    Pick(kTuesday, {"", "22:00", "", "23:00"});
    PickTime(record, SecondStart, kTuesday, "23:00");
    EXPECT_EQ(record.SecondHalfStart[kTuesday], 0) << "the start is refused as well";
    EXPECT_EQ(record.SecondHalfEnd[kTuesday], 23);
}

TEST_F(WorkScheduleTest, TheSecondHalfBeginsWhenTheFirstEndsAtTheEarliest)
{
    Pick(kMonday, {"08:00", "12:00", "12:00", "16:00"});
    EXPECT_EQ(Total(kMonday), "8:0");
    user.WillAnswer("ERROR:", "OK", "The START TIME of the second half of the working day");
    PickTime(record, SecondStart, kMonday, "11:55");
    EXPECT_EQ(record.SecondHalfStart[kMonday], 0);
    EXPECT_EQ(Total(kMonday), "8:0") << "nothing is calculated";
    PickTime(record, FirstEnd, kMonday, "17:00");
    EXPECT_EQ(record.FirstHalfEnd[kMonday], 17) << "looked at from the other side it passes";
}

TEST_F(WorkScheduleTest, AnEnteredListRepeatsTheDayBeforeOrTheTimeJustChosen)
{
    Pick(kMonday, {"08:30", "12:00", "13:00", "16:30"});
    for (const ClockTime time : {FirstStart, FirstEnd, SecondStart, SecondEnd}) {
        OfferTime(record, time, kTuesday);
        EXPECT_TRUE(record.RecalculationPending);
        LeaveTime(record, time, kTuesday);
    }
    EXPECT_EQ(Total(kTuesday), "7:0");
    EXPECT_FALSE(record.RecalculationPending);

    EmployeeRecord late;
    PickTime(late, FirstStart, 0, "14:00");
    OfferTime(late, FirstEnd, 0);
    EXPECT_EQ(late.FirstHalfEnd[0], 14) << "without a day before, the start opens the list";
    PickTime(late, FirstStart, 3, "07:00");
    OfferTime(late, SecondEnd, 3);
    EXPECT_EQ(late.SecondHalfEnd[3], 0);
    late.FirstHalfEnd[2] = 6;
    OfferTime(late, FirstEnd, 3);
    EXPECT_EQ(late.FirstHalfEnd[3], 7) << "an end before today's start is no offer";
}

TEST_F(WorkScheduleTest, ATypedTotalWinsUntilItIsCleared)
{
    TypeHours(kMonday, "7", "20");
    EXPECT_TRUE(record.HoursSpecified[kMonday]);
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 7.33333F);
    Pick(kMonday, {"08:00", "12:00", "13:00", "17:00"});
    EXPECT_EQ(Total(kMonday), "7:20");
    TypeHours(kMonday, "", "");
    EXPECT_FALSE(record.HoursSpecified[kMonday]);
    PickTime(record, SecondEnd, kMonday, "16:00");
    EXPECT_EQ(Total(kMonday), "7:0");
    ClearTime(record, SecondEnd, kMonday);
    EXPECT_EQ(Total(kMonday), ":");
}

TEST_F(WorkScheduleTest, ATotalThatNoDayHoldsIsRefused)
{
    TypeTotal(record, kMonday, "24", "0");
    EXPECT_EQ(LeaveTotal(record, kMonday), TotalBox::Hours);
    EXPECT_EQ(Total(kMonday), ":0");
    TypeTotal(record, kMonday, "23", "60");
    EXPECT_EQ(LeaveTotal(record, kMonday), TotalBox::Minutes);
    TypeHours(kMonday, "23", "59");
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 23.98333F);
}

TEST_F(WorkScheduleTest, AHalfWithOneTimeIsNotSaved)
{
    Pick(kMonday, {"08:00", "12:00", "", "16:00"});
    Pick(kTuesday, {"08:00"});
    Refuses("cboSecondHalfStartTime(1)", "Monday's schedule (second half of the day) is incomplete!");
    PickTime(record, SecondStart, kMonday, "13:00");
    SessionState.English = false;
    Refuses("cboFirstHalfEndTime(2)", "L'horaire de travail de Mardi (première moitié de la journée) est incomplet!");
}

TEST_F(WorkScheduleTest, TheRegularDayKeepsItsLoadedLengthAsAStartingPoint)
{
    for (int day = 1; day <= 5; ++day)
        Pick(day, {"08:00", "12:00", "13:00", "16:30"});
    record.HoursWorkedDaily = 8;
    EXPECT_FALSE(CheckSchedule(record));
    EXPECT_EQ(record.HoursWorkedDaily, 0) << "an even change ends with none";
    EXPECT_FALSE(CheckSchedule(record));
    EXPECT_EQ(record.HoursWorkedDaily, 7.5F);
    PickTime(record, SecondEnd, kTuesday, "16:00");
    EXPECT_FALSE(CheckSchedule(record));
    EXPECT_EQ(record.HoursWorkedDaily, 0);
}

TEST_F(WorkScheduleTest, TypedTotalsThatDifferAreListedAndAskedAboutOnce)
{
    Pick(kMonday, {"08:00", "12:00", "13:00", "17:00"});
    TypeHours(kMonday, "7", "30");
    TypeHours(kTuesday, "5");
    const QString list = "Weekday\t\tTime entered\t\tTime calculated\r\nMonday\t\t07:30\t\t08:00\r\n"
                         "Tuesday\t\t05:00\t\t00:00\r\n\r\nFor your information";
    user.WillAnswer("WARNING:", "No", list);
    Refuses(kScheduleTab, "");
    user.WillAnswer("WARNING:", "Yes", list);
    EXPECT_FALSE(CheckSchedule(record));
    EXPECT_FALSE(CheckSchedule(record)) << "not again in this operation";
    TypeHours(kTuesday, "6");
    SessionState.English = false;
    user.SeesMessage = [](const Message& message) { EXPECT_TRUE(message.ScrollBar); };
    user.WillAnswer("MISE EN GARDE:", "Oui", "Mardi\t\t06:00\t\t00:00\r\n");
    EXPECT_FALSE(CheckSchedule(record));
}

TEST_F(WorkScheduleTest, AWeekWithoutHoursIsIrregularOrRefused)
{
    Pick(kMonday, {"08:00", "12:00"});
    record.HoursWorkedDaily = 4; // as loaded
    user.WillAnswer("CONFIRM:", "No");
    EXPECT_FALSE(ConfirmIrregularHours(record));
    EXPECT_EQ(Total(kMonday), "4:0");
    user.WillAnswer("CONFIRM:", "Yes", "working hours will vary from one week to the next");
    EXPECT_TRUE(ConfirmIrregularHours(record));
    EXPECT_EQ(record.FirstHalfEnd[kMonday] + record.HoursWorked[kMonday], 0);
    EXPECT_EQ(Total(kMonday), ":");
    EXPECT_FALSE(CheckSchedule(record));
    EXPECT_EQ(record.HoursWorkedDaily, 0);

    record.IrregularHours = false;
    Refuses(kScheduleTab, "You must specify the employee's weekly schedule! If the employee works irregular hours, "
                          "check the box reserved to that effect.");
    Pick(kMonday, {"08:00", "12:00"});
    record.IrregularHours = true;
    EXPECT_FALSE(CheckSchedule(record)) << "the box is no lock: a time picked afterwards counts";
    EXPECT_EQ(record.HoursWorked[kMonday], 4);
}
} // namespace
