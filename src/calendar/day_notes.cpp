#include "calendar/day_notes.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/clock.h"

#include <QLocale>

#include <cmath>

namespace
{
/// In the language of the program, whatever that of the system.
QString FullDate(int date)
{
    const QLocale locale(SessionState.English ? QLocale::English : QLocale::French, QLocale::Canada);
    return locale.toString(DateOfSerial(date), QLocale::LongFormat);
}

float ScheduledHours(int date)
{
    return SessionState.HasSchedule ? SessionState.HoursWorked[WeekdayIndex(date)] : SessionState.HoursWorkedDaily;
}

QString Letters(const CalendarRecord& record)
{
    return record.Code.isEmpty() ? record.Name.left(1).toUpper() : record.Code;
}
} // namespace

QStringList DayDescription(const YearCalendar& calendar, int date)
{
    QStringList lines = {FullDate(date)};
    if (date == Today())
        lines << T("Today", "Aujourd'hui");
    if (calendar.IsMarked(date))
        lines << T("Selected", "Sélectionnée");
    if (const QString holiday = calendar.HolidayOn(date); !holiday.isEmpty())
        lines << holiday;
    for (const CalendarRecord& record : calendar.RecordsOn(date))
        lines << (record.Hours == 0 ? record.Name : record.Name + " " + DurationText(record.Hours));
    return lines;
}

QString DayCode(const YearCalendar& calendar, int date)
{
    QStringList letters;
    for (const CalendarRecord& record : calendar.RecordsOn(date))
        letters << Letters(record);
    return letters.join('+');
}

bool IsPartOfDay(const YearCalendar& calendar, int date)
{
    float hours = 0;
    for (const CalendarRecord& record : calendar.RecordsOn(date))
        hours += std::abs(record.Hours);
    return SessionState.EmployeeID != 0 && hours > 0 && hours < ScheduledHours(date);
}

QString CountOfDays(const DateList& dates)
{
    if (dates.isEmpty())
        return {};
    float hours = 0;
    for (const int date : dates)
        hours += ScheduledHours(date);
    const QString days =
        QString::number(dates.size()) + (dates.size() == 1 ? T(" day", " jour") : T(" days", " jours"));
    return hours == 0 ? days : days + ", " + DurationText(hours);
}
