#include "employees/work_schedule_rules.h"
#include "foundation/values.h"
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
    /// "control: text" of what keeps the week from being saved, empty when nothing does.
    QString Refused()
    {
        const auto fault = CheckSchedule(record);
        return fault ? fault->Control + ": " + fault->Text : QString();
    }
    QString Total(int day) const { return record.TotalHours[day] + ":" + record.TotalMinutes[day]; }
    /// The four times of a day as they are shown.
    QString Times(int day) const
    {
        QStringList times;
        for (const ClockTimeInfo& info : kDayTimes)
            times << ClockText((record.*info.Member)[day]);
        return times.join(' ');
    }

    House house;
    User user;
    EmployeeRecord record;
};

TEST_F(WorkScheduleTest, ADayIsAsLongAsItsCompleteHalves)
{
    const std::pair<QStringList, QString> days[] = {{{"08:20", "12:00"}, "3:40"},
                                                    {{"08:20", "12:00", "12:00", "16:20"}, "8:0"},
                                                    {{"", "", "13:05", "17:00"}, "3:55"},
                                                    {{"08:00", "", "13:00", "17:00"}, "4:0"},
                                                    {{"00:00", "06:00"}, "6:0"}};
    int day = 0;
    for (const auto& [times, total] : days) {
        Pick(day, times);
        EXPECT_EQ(Total(day++), total) << times.join(' ').toStdString();
    }
    EXPECT_FLOAT_EQ(record.HoursWorked[0], 12 - 8.33333F);
    EXPECT_EQ(Times(4), "00:00 06:00  ") << "midnight is a time";
}

TEST_F(WorkScheduleTest, ATimeThatDoesNotFitIsRefused)
{
    const QString end = "The end time cannot be prior or equal to the start time!";
    user.WillBeRefused(end).WillBeRefused(end).WillBeRefused(end).WillBeRefused(end);
    Pick(kTuesday, {"22:00", "06:00"});
    Pick(kTuesday, {"", "22:00", "", "23:00"});
    Pick(kTuesday, {"", "00:00"});
    PickTime(record, SecondStart, kTuesday, "23:00");
    EXPECT_EQ(Times(kTuesday), "22:00   23:00") << "no half crosses midnight";

    Pick(kMonday, {"08:00", "12:00", "12:00", "16:00"});
    user.WillBeRefused("The START TIME of the second half of the working day");
    PickTime(record, SecondStart, kMonday, "11:55");
    EXPECT_EQ(Times(kMonday) + Total(kMonday), "08:00 12:00  16:008:0") << "nothing is calculated";
    PickTime(record, FirstEnd, kMonday, "17:00");
    EXPECT_EQ(Times(kMonday), "08:00 17:00  16:00") << "looked at from the other side it passes";
}

TEST_F(WorkScheduleTest, AnEnteredListRepeatsTheDayBeforeOrTheTimeJustChosen)
{
    Pick(kMonday, {"08:30", "12:00", "13:00", "16:30"});
    for (const ClockTime time : {FirstStart, FirstEnd, SecondStart, SecondEnd}) {
        OfferTime(record, time, kTuesday);
        EXPECT_TRUE(record.RecalculationPending);
        LeaveTime(record, time, kTuesday);
        EXPECT_EQ(record.RecalculationPending, time == FirstStart || time == SecondStart) << "until a half is complete";
    }
    EXPECT_EQ(Total(kTuesday), "7:0");
    PickTime(record, FirstStart, kMonday, "09:00");
    OfferTime(record, FirstStart, kTuesday);
    LeaveTime(record, FirstStart, kTuesday);
    EXPECT_EQ(Times(kTuesday) + Total(kTuesday), "08:30 12:00 13:00 16:307:0") << "what stands there stays";

    PickTime(record, FirstStart, 4, "14:00");
    OfferTime(record, FirstEnd, 4);
    OfferTime(record, SecondEnd, 4);
    EXPECT_EQ(Times(4), "14:00 14:00  ") << "without a day before, the start opens the list";
    Pick(5, {"15:00"});
    OfferTime(record, FirstEnd, 5);
    EXPECT_EQ(Times(5), "15:00 15:00  ") << "an end before the start is no offer";
}

TEST_F(WorkScheduleTest, ATypedTotalWinsUntilItIsClearedUnlessNoDayHoldsIt)
{
    TypeHours(kMonday, "7", "20");
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 7.33333F);
    Pick(kMonday, {"08:00", "12:00", "13:00", "17:00"});
    EXPECT_EQ(Total(kMonday), "7:20");
    TypeHours(kMonday, "", "");
    EXPECT_FALSE(record.HoursSpecified[kMonday]);
    PickTime(record, SecondEnd, kMonday, "16:00");
    EXPECT_EQ(Total(kMonday), "7:0");
    ClearTime(record, SecondEnd, kMonday);
    EXPECT_EQ(Total(kMonday), ":");

    TypeTotal(record, kMonday, "24", "0");
    EXPECT_EQ(LeaveTotal(record, kMonday), TotalBox::Hours);
    EXPECT_FALSE(LeaveTotal(record, kMonday));
    LeaveTime(record, FirstEnd, kMonday);
    EXPECT_EQ(Total(kMonday), ":0");
    EXPECT_FALSE(record.HoursSpecified[kMonday]) << "a refused total counts for nothing";
    TypeTotal(record, kMonday, "23", "60");
    EXPECT_EQ(LeaveTotal(record, kMonday), TotalBox::Minutes);
    TypeHours(kMonday, "23", "59");
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 23.98333F);
}

TEST_F(WorkScheduleTest, TheRegularDayKeepsItsLoadedLengthAsAStartingPoint)
{
    for (int day = 1; day <= 5; ++day)
        Pick(day, {"08:00", "12:00", "13:00", "16:30"});
    record.HoursWorkedDaily = 8;
    for (const float length : {0.0F, 7.5F}) { // an even change ends with none, and is there when saved once more
        EXPECT_EQ(Refused(), "");
        EXPECT_EQ(record.HoursWorkedDaily, length);
    }
    PickTime(record, SecondEnd, kTuesday, "16:00");
    EXPECT_EQ(Refused(), "");
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
    EXPECT_EQ(Refused(), QString(kScheduleTab) + ": ");
    user.WillAnswer("WARNING:", "Yes", list);
    EXPECT_EQ(Refused() + Refused(), "") << "not again in this operation";
    TypeHours(kTuesday, "6");
    SessionState.English = false;
    user.SeesMessage = [](const Message& message) { EXPECT_TRUE(message.ScrollBar); };
    user.WillAnswer("MISE EN GARDE:", "Oui", "Mardi\t\t06:00\t\t00:00\r\n");
    EXPECT_EQ(Refused(), "");
}

TEST_F(WorkScheduleTest, AWeekWithHalfAHalfOrWithoutHoursIsNotSavedUnlessItIsIrregular)
{
    Pick(kMonday, {"08:00", "12:00", "", "16:00"});
    Pick(kTuesday, {"08:00"});
    EXPECT_EQ(Refused(), "cboSecondHalfStartTime(1): Monday's schedule (second half of the day) is incomplete!");
    PickTime(record, SecondStart, kMonday, "13:00");
    SessionState.English = false;
    EXPECT_EQ(Refused(), "cboFirstHalfEndTime(2): L'horaire de travail de Mardi (première moitié de la journée) est "
                         "incomplet!");
    PickTime(record, FirstEnd, kTuesday, "15:00");
    EXPECT_EQ(Refused(), "");

    SessionState.English = true;
    user.WillAnswer("CONFIRM:", "No");
    EXPECT_FALSE(ConfirmIrregularHours(record));
    TypeHours(kMonday, "7");
    user.WillConfirm("working hours will vary from one week to the next");
    EXPECT_TRUE(ConfirmIrregularHours(record));
    EXPECT_EQ(Times(kMonday) + Total(kMonday), "   :");
    EXPECT_EQ(record.HoursWorked[kMonday] + record.HoursWorkedDaily, 0);
    EXPECT_EQ(Refused(), "");

    record.IrregularHours = false;
    EXPECT_EQ(Refused(), QString(kScheduleTab) +
                             ": You must specify the employee's weekly schedule! If the employee works irregular "
                             "hours, check the box reserved to that effect.");
    Pick(kMonday, {"08:00", "12:00"});
    record.IrregularHours = true;
    EXPECT_EQ(Refused(), "") << "the box is no lock: a time picked afterwards counts";
    EXPECT_EQ(record.HoursWorked[kMonday], 4);
}
} // namespace
