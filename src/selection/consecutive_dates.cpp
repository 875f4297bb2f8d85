#include "selection/consecutive_dates.h"

#include "foundation/texts.h"
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
    DateList dates{};
    std::size_t count = 0;
    for (int date = choice.From; date <= choice.To && count + 1 < dates.size(); ++date) {
        const auto weekday = static_cast<std::size_t>(WeekdayIndex(date));
        const bool fallsOut = !choice.Weekdays[weekday] || (choice.IgnoreDaysOff && !works[weekday]) ||
                              (choice.IgnoreHolidays && isHoliday(date));
        if (!fallsOut)
            dates[count++] = date;
    }
    return dates;
}

int CountDates(const DateList& dates)
{
    return static_cast<int>(std::find(dates.begin(), dates.end(), 0) - dates.begin());
}

QString WeekdayName(int weekday)
{
    constexpr const char* names[7][2] = {{"Sunday", "Dimanche"},    {"Monday", "Lundi"},   {"Tuesday", "Mardi"},
                                         {"Wednesday", "Mercredi"}, {"Thursday", "Jeudi"}, {"Friday", "Vendredi"},
                                         {"Saturday", "Samedi"}};
    return T(names[weekday][0], names[weekday][1]);
}
