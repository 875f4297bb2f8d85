#pragma once

#include "calendar/year_calendar.h"

/// What is to be said of a date of the calendar, a line each: the full date, whether it is today or marked, the
/// holiday, and each category with its hours where these are known.
QStringList DayDescription(const YearCalendar& calendar, int date);

/// The letters by which a date tells its categories: their codes, or else first letters, with "+" between them. Empty
/// without records.
QString DayCode(const YearCalendar& calendar, int date);

/// The employee shown has less on the date than his working day is long. False where that is not known.
bool IsPartOfDay(const YearCalendar& calendar, int date);

/// How many dates, and what they come to by the schedule of the employee shown: "5 days, 35:00". Empty without dates.
QString CountOfDays(const DateList& dates);
