#pragma once

#include "employees/employee_record.h"
#include "foundation/fault.h"

#include <optional>
#include <utility>

/// The four clock times of a day, in the order of the day.
enum class ClockTime
{
    FirstHalfStart,
    FirstHalfEnd,
    SecondHalfStart,
    SecondHalfEnd
};

struct ClockTimeInfo
{
    ClockTime Time;
    WeekdayHours Member;
    const char* Control; ///< name of the array of lists
    ClockTime OtherEnd;  ///< of the same half
    bool IsStart;
};
/// In the order of ClockTime.
extern const std::array<ClockTimeInfo, 4> kDayTimes;

/// A clock time as its list shows it, "hh:mm"; empty for 0.
QString ClockText(float time);

/// A time was picked from its list. A time that contradicts the other ones is refused with a message and blanked; an
/// empty text only empties the day's total.
void PickTime(EmployeeRecord& record, ClockTime time, int day, const QString& text);
/// Somebody typed in a list of times: a time can be picked or cleared but not typed.
void ClearTime(EmployeeRecord& record, ClockTime time, int day);
/// An empty list takes the focus: it offers the time of the day before, or the time just chosen to the left of it.
void OfferTime(EmployeeRecord& record, ClockTime time, int day);
/// A list of times loses the focus.
void LeaveTime(EmployeeRecord& record, ClockTime time, int day);

/// Empties a day: no times, no total.
void ClearDay(EmployeeRecord& record, int day);
/// The days after `from` up to `to` take over its times and its total.
void CopyDay(EmployeeRecord& record, int from, int to);

enum class TotalBox
{
    Hours,
    Minutes
};
/// The boxes of a day's total were changed.
void TypeTotal(EmployeeRecord& record, int day, const QString& hours, const QString& minutes);
/// A box of a day's total loses the focus. Returns the box that held what no day holds: it is emptied and must take
/// the focus again.
std::optional<TotalBox> LeaveTotal(EmployeeRecord& record, int day);

/// Shows the day lengths that were read from a row in their boxes.
void ShowDayLengths(EmployeeRecord& record);

/// The box of irregular hours was checked: asks, and on Yes empties the whole week. False for No.
bool ConfirmIrregularHours(EmployeeRecord& record);

/// The tab of the schedule: where a fault is mended that no single control has.
inline constexpr const char* kScheduleTab = "tabSchedule";

/// The checks of the schedule when a record is saved. Brings the days' lengths and HoursWorkedDaily up to date. The
/// first fault ends them.
std::optional<Fault> CheckSchedule(EmployeeRecord& record);

/// "7" as "07": the digits of a total's box as texts show them.
QString TwoDigits(const QString& digits);
