#pragma once

#include "foundation/fault.h"
#include "foundation/session_state.h"
#include "platform/dao/dao.h"

#include <optional>

/// A statutory holiday; `Date` is a serial day.
struct Holiday
{
    int Date = 0;
    QString Name;
};

/// A holiday to be added, on each of its dates.
struct HolidayEntry
{
    QString Name;
    DateList Dates;
};

/// The valid holidays of the session's fiscal year in order of date.
QVector<Holiday> LoadHolidays(DataControl& datAbsence);
/// The name of the holiday on a date, empty for none.
QString HolidayName(const QVector<Holiday>& holidays, int date);

/// Their dates, in their order.
DateList DatesOf(const QVector<Holiday>& holidays);

/// What a year without holidays can take over: those of the year before, each on the same day of the same month, as far
/// as that lies in the session's year. The 28th and the 29th of February give one date, named by the first. None when
/// there is no year before.
QVector<Holiday> HolidaysOfYearBefore(DataControl& datAbsence);

/// Why a date cannot become a holiday: it is one.
Fault HolidayTaken();
/// Trims the name and checks the entry; holidays that another workstation has added meanwhile count.
std::optional<Fault> ValidateRecord(DataControl& datAbsence, HolidayEntry& entry);
/// The live records of attendance of the whole company on these dates, pending ones included.
int CountRecordsOn(DataControl& datAbsence, const DateList& dates);

// What follows writes all or nothing, and throws RuntimeError.

/// False, and nothing is written, when one of the dates has become a holiday since they were checked.
bool AddHolidays(DataControl& datAbsence, const QVector<Holiday>& holidays);
/// The holiday of one date is no longer valid; other dates of the same name stay.
void RemoveHoliday(DataControl& datAbsence, int date);
