#pragma once

#include "foundation/session_state.h"
#include "reference/holidays.h"

#include <array>

/// What is asked for: every chosen weekday from one serial day to another, both included.
struct ConsecutiveDates
{
    int From = 0;
    int To = 0;
    std::array<bool, 7> Weekdays{}; ///< Sunday first
    bool IgnoreDaysOff = true;      ///< leave out the weekdays on which the employee does not work
    bool IgnoreHolidays = true;
};

/// The weekdays of the schedule that have hours; all seven without a schedule.
std::array<bool, 7> WorkingDays(const WorkSchedule& schedule);

/// The serial days that the choice comes to, in order; at most kMostDates.
DateList ChosenDates(const ConsecutiveDates& choice, const WorkSchedule& schedule, const QVector<Holiday>& holidays);
