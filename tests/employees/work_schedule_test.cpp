#include "employees/work_schedule_rules.h"
#include "foundation/values.h"
#include "support/house_test.h"

namespace
{
using enum ClockTime;
constexpr int kMonday = 1;
constexpr int kTuesday = 2;

/// The week of one employee. What a person does in a day's row gives the row as it is shown then: the four times and
/// the total, with a "!" where the total was typed.
class WorkScheduleTest : public HouseTest
{
protected:
    QString Day(int day) const
    {
        QString shown;
        for (const ClockTimeInfo& info : kDayTimes)
            shown += ClockText((record.*info.Member)[day]) + " ";
        return shown + record.TotalHours[day] + ":" + record.TotalMinutes[day] +
               (record.HoursSpecified[day] ? "!" : "");
    }
    QString Pick(int day, const QStringList& times)
    {
        for (int i = 0; i < times.size(); ++i)
            if (!times[i].isEmpty())
                PickTime(record, static_cast<ClockTime>(i), day, times[i]);
        return Day(day);
    }
    QString TypeHours(int day, const QString& hours, const QString& minutes = {}, std::optional<TotalBox> refused = {})
    {
        TypeTotal(record, day, hours, minutes);
        EXPECT_EQ(LeaveTotal(record, day), refused);
        return Day(day);
    }
    QString TabThrough(ClockTime time, int day)
    {
        OfferTime(record, time, day);
        LeaveTime(record, time, day);
        return Day(day);
    }
    /// "control: text" of what keeps the week from being saved, empty when nothing does.
    QString Refused()
    {
        const auto fault = CheckSchedule(record);
        return fault ? fault->Control + ": " + fault->Text : QString();
    }

    EmployeeRecord record;
};

TEST_F(WorkScheduleTest, ADayIsAsLongAsItsCompleteHalves)
{
    EXPECT_EQ(Pick(0, {"08:20", "12:00"}), "08:20 12:00   3:40");
    EXPECT_EQ(Pick(1, {"08:20", "12:00", "12:00", "16:20"}), "08:20 12:00 12:00 16:20 8:0");
    EXPECT_EQ(Pick(2, {"", "", "13:05", "17:00"}), "  13:05 17:00 3:55");
    EXPECT_EQ(Pick(3, {"08:00", "", "13:00", "17:00"}), "08:00  13:00 17:00 4:0");
    EXPECT_EQ(Pick(4, {"00:00", "06:00"}), "00:00 06:00   6:0") << "midnight is a time";
    EXPECT_FLOAT_EQ(record.HoursWorked[0], 12 - 8.33333F);
}

TEST_F(WorkScheduleTest, ATimeThatDoesNotFitIsRefused)
{
    Pick(kTuesday, {"22:00"});
    for (const QStringList& times :
         {QStringList{"", "06:00"}, {"", "22:00"}, {"", "00:00"}, {"", "", "23:00", "23:00"}}) {
        user.WillBeRefused("The end time cannot be prior or equal to the start time!");
        Pick(kTuesday, times);
    }
    EXPECT_EQ(Day(kTuesday), "22:00  23:00  :") << "no half crosses midnight";

    Pick(kMonday, {"08:00", "12:00", "12:00", "16:00"});
    user.WillBeRefused("The START TIME of the second half of the working day");
    EXPECT_EQ(Pick(kMonday, {"", "", "11:55"}), "08:00 12:00  16:00 8:0") << "nothing is calculated";
    EXPECT_EQ(Pick(kMonday, {"", "17:00"}), "08:00 17:00  16:00 9:0") << "from the other side it passes";
}

TEST_F(WorkScheduleTest, AnEnteredListRepeatsTheDayBeforeOrTheTimeJustChosen)
{
    Pick(kMonday, {"08:30", "12:00", "13:00", "16:30"});
    EXPECT_EQ(TabThrough(FirstHalfStart, kTuesday), "08:30    :");
    EXPECT_EQ(TabThrough(FirstHalfEnd, kTuesday), "08:30 12:00   3:30");
    EXPECT_EQ(TabThrough(SecondHalfStart, kTuesday), "08:30 12:00 13:00  3:30");
    EXPECT_EQ(TabThrough(SecondHalfEnd, kTuesday), "08:30 12:00 13:00 16:30 7:0");
    Pick(kMonday, {"09:00"});
    EXPECT_EQ(TabThrough(FirstHalfStart, kTuesday), "08:30 12:00 13:00 16:30 7:0") << "what stands there stays";

    Pick(4, {"14:00"});
    OfferTime(record, SecondHalfEnd, 4);
    EXPECT_EQ(TabThrough(FirstHalfEnd, 4), "14:00 14:00   0:0") << "without a day before, the start opens the list";
    Pick(5, {"15:00"});
    OfferTime(record, FirstHalfEnd, 5);
    EXPECT_EQ(Day(5), "15:00 15:00   :") << "an end before the start is no offer";
}

TEST_F(WorkScheduleTest, ATypedTotalWinsUntilItIsClearedUnlessNoDayHoldsIt)
{
    EXPECT_EQ(TypeHours(kMonday, "7", "20"), "    7:20!");
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 7.33333F);
    EXPECT_EQ(Pick(kMonday, {"08:00", "12:00", "13:00", "17:00"}), "08:00 12:00 13:00 17:00 7:20!");
    EXPECT_EQ(TypeHours(kMonday, "", ""), "08:00 12:00 13:00 17:00 :");
    EXPECT_EQ(Pick(kMonday, {"", "", "", "16:00"}), "08:00 12:00 13:00 16:00 7:0");
    ClearTime(record, SecondHalfEnd, kMonday);
    EXPECT_EQ(Day(kMonday), "08:00 12:00 13:00  :");

    TypeHours(kMonday, "24", "0", TotalBox::Hours);
    EXPECT_FALSE(LeaveTotal(record, kMonday));
    EXPECT_EQ(TabThrough(FirstHalfEnd, kMonday), "08:00 12:00 13:00  :0") << "a refused total counts for nothing";
    EXPECT_EQ(TypeHours(kMonday, "23", "60", TotalBox::Minutes), "08:00 12:00 13:00  23:");
    TypeHours(kMonday, "23", "59");
    EXPECT_FLOAT_EQ(record.HoursWorked[kMonday], 23.98333F);
}

TEST_F(WorkScheduleTest, TheRegularDayKeepsItsLoadedLengthAsAStartingPoint)
{
    const auto savedLength = [this] {
        EXPECT_EQ(Refused(), "");
        return record.HoursWorkedDaily;
    };
    for (int day = 1; day <= 5; ++day)
        Pick(day, {"08:00", "12:00", "13:00", "16:30"});
    record.HoursWorkedDaily = 8;
    EXPECT_EQ(savedLength(), 0) << "an even change ends with none";
    EXPECT_EQ(savedLength(), 7.5F) << "and is there when saved once more";
    Pick(kTuesday, {"", "", "", "16:00"});
    EXPECT_EQ(savedLength(), 0);
}

TEST_F(WorkScheduleTest, TypedTotalsThatDifferAreListedAndAskedAboutOnce)
{
    Pick(kMonday, {"08:00", "12:00", "13:00", "17:00"});
    TypeHours(kMonday, "7", "30");
    TypeHours(kTuesday, "5");
    user.SeesMessage = [](const Message& message) { EXPECT_TRUE(message.ScrollBar); };
    user.WillAnswer("WARNING:", "No",
                    "Weekday\t\tTime entered\t\tTime calculated\r\nMonday\t\t07:30\t\t08:00\r\n"
                    "Tuesday\t\t05:00\t\t00:00\r\n\r\nFor your information");
    EXPECT_EQ(Refused(), QString(kScheduleTab) + ": ");
    user.WillAnswer("WARNING:", "Yes");
    EXPECT_EQ(Refused() + Refused(), "") << "not again in this operation";
    TypeHours(kTuesday, "6");
    SessionState.English = false;
    user.WillAnswer("MISE EN GARDE:", "Oui", "Mardi\t\t06:00\t\t00:00\r\n");
    EXPECT_EQ(Refused(), "");
}

TEST_F(WorkScheduleTest, AWeekWithHalfAHalfOrWithoutHoursIsNotSavedUnlessItIsIrregular)
{
    Pick(kMonday, {"08:00", "12:00", "", "16:00"});
    Pick(kTuesday, {"08:00"});
    EXPECT_EQ(Refused(), "cboSecondHalfStartTime(1): Monday's schedule (second half of the day) is incomplete!");
    Pick(kMonday, {"", "", "13:00"});
    SessionState.English = false;
    EXPECT_EQ(Refused(), "cboFirstHalfEndTime(2): L'horaire de travail de Mardi (première moitié de la journée) est "
                         "incomplet!");
    Pick(kTuesday, {"", "15:00"});
    EXPECT_EQ(Refused(), "");

    TypeHours(kMonday, "7");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non");
    EXPECT_FALSE(ConfirmIrregularHours(record));
    user.WillConfirm("varient d'une semaine à l'autre");
    EXPECT_TRUE(ConfirmIrregularHours(record));
    EXPECT_EQ(Day(kMonday), "    :");
    EXPECT_EQ(record.HoursWorked[kMonday] + record.HoursWorkedDaily, 0);
    EXPECT_EQ(Refused(), "");

    record.IrregularHours = false;
    EXPECT_TRUE(Refused().startsWith(QString(kScheduleTab) + ": Vous devez spécifier l'horaire de travail"));
    Pick(kMonday, {"08:00", "12:00"});
    record.IrregularHours = true;
    EXPECT_EQ(Refused(), "") << "the box is no lock: a time picked afterwards counts";
    EXPECT_EQ(record.HoursWorked[kMonday], 4);
}
} // namespace
