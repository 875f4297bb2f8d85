#pragma once

/// What a period is chosen for.
enum class PeriodMode
{
    Range,      ///< a report: any part of the fiscal year
    SingleDate, ///< the day from which a change counts
    Schedule    ///< a who-is-away chart: 31 days at most
};

/// Serial days, both included; 0 none.
struct Period
{
    int Start = 0;
    int End = 0;

    bool operator==(const Period&) const = default;
};

/// The session's fiscal year.
Period EntireYear();
/// The days of the fiscal year that lie in a month, 0 January to 11 December. Of a year that begins within a month,
/// that month is the first one. 0 to 0 when the year has no such month.
Period MonthOfYear(int month);
/// What a form shows first: the whole year, its first day, or for a schedule the month of today.
Period FirstPeriod(PeriodMode mode);
/// A schedule has a column for each day.
bool FitsSchedule(const Period& period);
