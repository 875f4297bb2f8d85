#pragma once

#include "foundation/session_state.h"
#include "mail/approver.h"

#include <array>

/// The boxes by which an entry takes its times from the employee's schedule. At most one is checked.
enum class DayPart
{
    None,
    WholeDay,
    FirstHalf,
    SecondHalf
};

enum class AttendanceKind
{
    Add,
    Submit,
    Modify
};

/// What the entry form is opened for: the employee and the category to begin with, and the dates of the records.
struct AttendanceJob : CalendarSelection
{
    AttendanceKind Kind = AttendanceKind::Add;
    DateList Dates;
    int SelectedCategoryID = 0; ///< 0 none
    int RecordToModify = 0;
    bool EmployeeLocked = false;    ///< another employee cannot be chosen
    bool ConflictsAccepted = false; ///< the user has been asked about other records of the date
};

/// What the category of an entry says, and where the employee stands in it. Decimal hours.
struct CategoryFacts
{
    QString SystemName; ///< empty for a user category
    int TimeBankRelated = 0;
    int RequiresMonitoring = 0;
    float Entitlement = 0; ///< carried over and annual; 0 no limit
    float TimeUsed = 0;    ///< of the entitlement, approved
    float TimePending = 0; ///< of the entitlement, waiting for approval
    float TimeBanked = 0;  ///< balance of the bank when the category was chosen
};

/// The working values of a job: one record that is added on every date, submitted or modified, for an employee with his
/// schedule. Times and durations are single-precision decimal hours; ids are RecordIDs, 0 none.
struct AttendanceEntry : AttendanceJob, WorkSchedule, CategoryFacts
{
    AttendanceEntry() = default;
    explicit AttendanceEntry(const AttendanceJob& job) : AttendanceJob(job) {}

    // What is entered. A clock time of 0 means none; midnight is 1e-7.
    float TimeMultiplicator = 1;
    float StartTime = 0;
    float EndTime = 0;       ///< above 24 when the period crosses midnight
    float UnpaidBreak = 0;   ///< gap between the halves of a whole day
    float Duration = 0;      ///< one record before the multiplicator; 0 not known yet
    float TotalDuration = 0; ///< one record
    float TotalTime = 0;     ///< all selected dates
    DayPart Part = DayPart::None;
    QString Comment;
    bool Justified = false;
    QString HourlyRateText; ///< empty for a user who may not see rates

    // What the form shows of it.
    QString StartTimeText;
    QString EndTimeText;
    QString HoursText;
    QString MinutesText;
    QString TotalTimeText;
    bool FirstHalfEnabled = false;
    bool SecondHalfEnabled = false;
    bool WholeDayEnabled() const { return FirstHalfEnabled && SecondHalfEnabled; }

    // The employee.
    QString EmployeeName;   ///< "FirstName FamilyName"
    float EmployeeRate = 0; ///< money per hour, or a hidden rate of the record; holds when HourlyRateText is empty
    Approver FirstApprover;
    Approver SecondApprover;

    // The category, SelectedCategoryID.
    QString CategoryName;          ///< as shown
    int TimeClaimedCategoryID = 0; ///< of the list of categories, whatever is chosen

    // What has been found out.
    bool Validated = false; ///< verdict of the guard that ran last
    QString FieldInError;   ///< name of the control that a refused entry should be mended in
    QString RequestedDates; ///< the list of a submitted request, one line per date
};

/// The factors on offer.
struct Multiplicator
{
    const char* Text;
    float Value;
};
extern const std::array<Multiplicator, 18> kMultiplicators;
/// Place of a factor in the list, -1 when it is not on offer.
int MultiplicatorIndex(float value);

/// Time comes off the bank in this category: its durations are negative.
bool DrawsOnTimeBank(const AttendanceEntry& entry);

/// Brings the duration, the totals and the text of the total up to date, and then gives the durations the sign that the
/// category asks for. The text shows the total as it was before.
void RecalculateTotalTime(AttendanceEntry& entry);

/// Enables the halves of the day whose hours are the same on all selected dates.
void FindDayParts(AttendanceEntry& entry);

/// A box was checked or cleared. Times come from the schedule of the first date.
void ChooseDayPart(AttendanceEntry& entry, DayPart part, bool checked);

/// A clock time was chosen. A start without an end takes the start as end; an end before the start is on the next day.
void ChooseStartTime(AttendanceEntry& entry, const QString& text);
void ChooseEndTime(AttendanceEntry& entry, const QString& text);

/// A duration box was changed: the texts stand, and all that was known of times and durations is forgotten.
void TypeDuration(AttendanceEntry& entry, const QString& hours, const QString& minutes);
/// A changed duration box was left: the texts become the duration. The text that no day holds, above 23 hours or 59
/// minutes, is emptied instead and told; null when there is none.
QString AttendanceEntry::*TakeDuration(AttendanceEntry& entry);

/// Hours and minutes boxes show a number of decimal hours.
void ShowDuration(AttendanceEntry& entry, float hours);

/// Another employee was chosen: times, durations and boxes are forgotten.
void ClearEntryFields(AttendanceEntry& entry);
