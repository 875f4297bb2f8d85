#include "selection/period_choice.h"

#include "foundation/session_state.h"
#include "platform/clock.h"

#include <algorithm>

namespace
{
constexpr int kScheduleDays = 31;

bool IsInYear(int date)
{
    return date >= SessionState.CommencingDate && date <= SessionState.EndingDate;
}
} // namespace

Period EntireYear()
{
    return {SessionState.CommencingDate, SessionState.EndingDate};
}

Period MonthOfYear(int month)
{
    const QDate commencing = DateOfSerial(SessionState.CommencingDate);
    const int year = commencing.year() + (month + 1 < commencing.month() ? 1 : 0);
    const QDate first(year, month + 1, 1);
    const Period period{std::max(SerialOfDate(first), SessionState.CommencingDate),
                        std::min(SerialOfDate(first) + first.daysInMonth() - 1, SessionState.EndingDate)};
    return period.Start <= period.End ? period : Period();
}

Period FirstPeriod(PeriodMode mode)
{
    if (mode == PeriodMode::SingleDate)
        return {SessionState.CommencingDate, SessionState.CommencingDate};
    if (mode == PeriodMode::Range)
        return EntireYear();
    return MonthOfYear(DateOfSerial(IsInYear(Today()) ? Today() : SessionState.CommencingDate).month() - 1);
}

bool FitsSchedule(const Period& period)
{
    return period.End - period.Start < kScheduleDays;
}
