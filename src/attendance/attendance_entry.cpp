#include "attendance/attendance_entry.h"

#include "foundation/common_services.h"
#include "foundation/values.h"
#include "platform/clock.h"

#include <algorithm>

namespace
{
constexpr float kHoursOfDay = 24;

void Negate(AttendanceEntry& entry)
{
    entry.Duration = -entry.Duration;
    entry.TotalDuration = -entry.TotalDuration;
    entry.TotalTime = -entry.TotalTime;
}

void ApplySign(AttendanceEntry& entry)
{
    const bool bankRelated = entry.TimeBankRelated == 1;
    if (DrawsOnTimeBank(entry)) {
        if (entry.Duration > 0)
            Negate(entry);
    } else if (bankRelated && entry.SystemName == "Time accumulated") {
        if (entry.Duration < 0)
            Negate(entry);
    } else if (entry.TimeBankRelated == 0 && entry.Duration < 0) {
        // The totals keep their sign until the next run; that is intended.
        entry.Duration = -entry.Duration;
    }
}

/// The end on the day of the start, so that a start chosen anew decides afresh whether midnight lies between.
void TakeEndBackToItsDay(AttendanceEntry& entry)
{
    if (entry.EndTime < kHoursOfDay)
        return;
    const float clock = ClockHours(entry.EndTimeText);
    entry.EndTime = clock > kHoursOfDay ? clock - kHoursOfDay : clock;
    if (entry.EndTime == kHoursOfDay)
        entry.EndTime = kMidnight;
}

void ShowPeriod(AttendanceEntry& entry)
{
    if (entry.EndTime < entry.StartTime)
        entry.EndTime += kHoursOfDay;
    ShowDuration(entry, entry.EndTime - entry.StartTime);
    RecalculateTotalTime(entry);
}

void ForgetDuration(AttendanceEntry& entry)
{
    entry.UnpaidBreak = 0;
    entry.Duration = 0;
    entry.TotalDuration = 0;
    entry.TotalTime = 0;
    entry.HoursText.clear();
    entry.MinutesText.clear();
    entry.TotalTimeText.clear();
    entry.Part = DayPart::None;
}

bool IsHalfTheSameOnAllDates(const AttendanceEntry& entry, WeekdayHours start, WeekdayHours end)
{
    if (entry.Dates.isEmpty())
        return false;
    const auto& starts = entry.*start;
    const auto& ends = entry.*end;
    const int first = WeekdayIndex(entry.Dates.first());
    return starts[first] != 0 && std::all_of(entry.Dates.begin(), entry.Dates.end(), [&](int date) {
               const int weekday = WeekdayIndex(date);
               return starts[weekday] == starts[first] && ends[weekday] == ends[first];
           });
}

/// Start, end and break of a part of the first day.
void TakeScheduledTimes(AttendanceEntry& entry, DayPart part)
{
    const int day = WeekdayIndex(entry.Dates.first());
    const bool first = part == DayPart::FirstHalf || (part == DayPart::WholeDay && entry.FirstHalfEnabled);
    const bool second = part == DayPart::SecondHalf || (part == DayPart::WholeDay && entry.SecondHalfEnabled);
    if (second) {
        entry.StartTime = entry.SecondHalfStart[day];
        entry.EndTime = entry.SecondHalfEnd[day];
    }
    if (first) {
        entry.StartTime = entry.FirstHalfStart[day];
        if (!second)
            entry.EndTime = entry.FirstHalfEnd[day];
    }
    if (first && second)
        entry.UnpaidBreak = entry.SecondHalfStart[day] - entry.FirstHalfEnd[day];
}
} // namespace

const std::array<Multiplicator, 18> kMultiplicators = {{
    {" x 1.00", 1.0F},
    {" x 1.25", 1.25F},
    {" x 1.33", 1.33F},
    {" x 1.50", 1.5F},
    {" x 1.67", 1.67F},
    {" x 1.75", 1.75F},
    {" x 2.00", 2.0F},
    {" x 2.25", 2.25F},
    {" x 2.33", 2.33F},
    {" x 2.50", 2.5F},
    {" x 2.67", 2.67F},
    {" x 2.75", 2.75F},
    {" x 3.00", 3.0F},
    {" x 3.25", 3.25F},
    {" x 3.33", 3.33F},
    {" x 3.50", 3.5F},
    {" x 3.67", 3.67F},
    {" x 3.75", 3.75F},
}};

int MultiplicatorIndex(float value)
{
    const auto found = std::find_if(kMultiplicators.begin(), kMultiplicators.end(),
                                    [value](const Multiplicator& factor) { return factor.Value == value; });
    return found == kMultiplicators.end() ? -1 : static_cast<int>(found - kMultiplicators.begin());
}

bool DrawsOnTimeBank(const AttendanceEntry& entry)
{
    static const QStringList drawing = {"Time claimed", "Time borrowed", "Time paid"};
    return entry.TimeBankRelated == 1 && drawing.contains(entry.SystemName);
}

void RecalculateTotalTime(AttendanceEntry& entry)
{
    if (entry.Duration == 0)
        entry.Duration = entry.EndTime - entry.StartTime - entry.UnpaidBreak;
    entry.TotalDuration = entry.TimeMultiplicator * entry.Duration;
    entry.TotalTime = static_cast<float>(entry.Dates.size()) * entry.TotalDuration;
    entry.TotalTimeText = DurationText(entry.TotalTime);
    ApplySign(entry);
}

void FindDayParts(AttendanceEntry& entry)
{
    entry.FirstHalfEnabled = IsHalfTheSameOnAllDates(entry, &WorkSchedule::FirstHalfStart, &WorkSchedule::FirstHalfEnd);
    entry.SecondHalfEnabled =
        IsHalfTheSameOnAllDates(entry, &WorkSchedule::SecondHalfStart, &WorkSchedule::SecondHalfEnd);
}

void ChooseDayPart(AttendanceEntry& entry, DayPart part, bool checked)
{
    ClearEntryFields(entry);
    if (!checked)
        return;
    entry.Part = part;
    TakeScheduledTimes(entry, part);
    entry.StartTimeText = DurationText(entry.StartTime);
    entry.EndTimeText = DurationText(entry.EndTime);
    ShowDuration(entry, entry.EndTime - entry.StartTime - entry.UnpaidBreak);
    RecalculateTotalTime(entry);
}

void ChooseStartTime(AttendanceEntry& entry, const QString& text)
{
    ForgetDuration(entry);
    entry.StartTimeText = text;
    entry.StartTime = ClockHours(text);
    if (entry.EndTime == 0) {
        entry.EndTimeText = text;
        entry.EndTime = entry.StartTime;
    }
    TakeEndBackToItsDay(entry);
    ShowPeriod(entry);
}

void ChooseEndTime(AttendanceEntry& entry, const QString& text)
{
    ForgetDuration(entry);
    entry.EndTimeText = text;
    entry.EndTime = ClockHours(text);
    ShowPeriod(entry);
}

void TypeDuration(AttendanceEntry& entry, const QString& hours, const QString& minutes)
{
    ClearEntryFields(entry);
    entry.HoursText = hours;
    entry.MinutesText = minutes;
}

QString AttendanceEntry::*TakeDuration(AttendanceEntry& entry)
{
    for (const auto& [text, most] : {std::pair(&AttendanceEntry::HoursText, 23), {&AttendanceEntry::MinutesText, 59}})
        if (Val(entry.*text) > most) {
            (entry.*text).clear();
            return text;
        }
    entry.Duration = DecimalHours(static_cast<float>(Val(entry.HoursText)), static_cast<float>(Val(entry.MinutesText)));
    RecalculateTotalTime(entry);
    return nullptr;
}

void ShowDuration(AttendanceEntry& entry, float hours)
{
    const QString text = DurationText(hours);
    entry.HoursText = text.chopped(3);
    entry.MinutesText = text.right(2);
}

void ClearEntryFields(AttendanceEntry& entry)
{
    ForgetDuration(entry);
    entry.StartTime = 0;
    entry.EndTime = 0;
    entry.StartTimeText.clear();
    entry.EndTimeText.clear();
}
