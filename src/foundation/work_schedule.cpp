#include "foundation/work_schedule.h"

#define DAY(name, weekday)                                                                                             \
    ScheduleColumn{name "_FirstHalfStart", &WorkSchedule::FirstHalfStart, weekday},                                    \
        ScheduleColumn{name "_FirstHalfEnd", &WorkSchedule::FirstHalfEnd, weekday},                                    \
        ScheduleColumn{name "_SecondHalfStart", &WorkSchedule::SecondHalfStart, weekday}, ScheduleColumn               \
    {                                                                                                                  \
        name "_SecondHalfEnd", &WorkSchedule::SecondHalfEnd, weekday                                                   \
    }

const std::array<ScheduleColumn, 28> kClockTimes = {
    DAY("MONDAY", 1), DAY("TUESDAY", 2),  DAY("WEDNESDAY", 3), DAY("THURSDAY", 4),
    DAY("FRIDAY", 5), DAY("SATURDAY", 6), DAY("SUNDAY", 0),
};

#undef DAY

const std::array<ScheduleColumn, 7> kDayLengths = {
    ScheduleColumn{"HoursWorkedSunday", &WorkSchedule::HoursWorked, 0},
    ScheduleColumn{"HoursWorkedMonday", &WorkSchedule::HoursWorked, 1},
    ScheduleColumn{"HoursWorkedTuesday", &WorkSchedule::HoursWorked, 2},
    ScheduleColumn{"HoursWorkedWednesday", &WorkSchedule::HoursWorked, 3},
    ScheduleColumn{"HoursWorkedThursday", &WorkSchedule::HoursWorked, 4},
    ScheduleColumn{"HoursWorkedFriday", &WorkSchedule::HoursWorked, 5},
    ScheduleColumn{"HoursWorkedSaturday", &WorkSchedule::HoursWorked, 6},
};
