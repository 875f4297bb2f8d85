#pragma once

#include <array>

/// The weekly schedule of an employee. Arrays are indexed 0 Sunday to 6 Saturday; all values are decimal hours.
/// A clock time of 0 means none; midnight is 1e-7.
struct WorkSchedule
{
    std::array<float, 7> FirstHalfStart{};
    std::array<float, 7> FirstHalfEnd{};
    std::array<float, 7> SecondHalfStart{};
    std::array<float, 7> SecondHalfEnd{};
    std::array<float, 7> HoursWorked{}; ///< length of the day, 0 for a day off
    float HoursWorkedDaily = 0;         ///< hours of a regular day; divides durations into days
    bool HasSchedule = false;           ///< some day has hours
};

using WeekdayHours = std::array<float, 7> WorkSchedule::*;

struct ScheduleColumn
{
    const char* Column;
    WeekdayHours Member;
    int Weekday;
};

/// The 28 clock times with their columns, Monday first, as the table has them.
extern const std::array<ScheduleColumn, 28> kClockTimes;
/// The seven day lengths with their columns, Sunday first.
extern const std::array<ScheduleColumn, 7> kDayLengths;
