#include "selection/consecutive_dates.h"

#include "platform/clock.h"

#include <algorithm>

std::array<bool, 7> WorkingDays(const WorkSchedule& schedule)
{
    std::array<bool, 7> works{};
    std::transform(schedule.HoursWorked.begin(), schedule.HoursWorked.end(), works.begin(),
                   [&schedule](float hours) { return !schedule.HasSchedule || hours != 0; });
    return works;
}

DateList ChosenDates(const ConsecutiveDates& choice, const WorkSchedule& schedule, const QVector<Holiday>& holidays)
{
    const std::array<bool, 7> works = WorkingDays(schedule);
    const auto isHoliday = [&holidays](int date) {
        return std::any_of(holidays.begin(), holidays.end(),
                           [date](const Holiday& holiday) { return holiday.Date == date; });
    };
    DateList dates;
    for (int date = choice.From; date <= choice.To && dates.size() < kMostDates; ++date) {
        const auto weekday = static_cast<std::size_t>(WeekdayIndex(date));
        const bool fallsOut = !choice.Weekdays[weekday] || (choice.IgnoreDaysOff && !works[weekday]) ||
                              (choice.IgnoreHolidays && isHoliday(date));
        if (!fallsOut)
            dates << date;
    }
    return dates;
}
