#pragma once

#include "foundation/employee_row.h"

#include <QString>

#include <array>

/// A date as three entries of a form; it counts only when all three are filled.
struct DateEntry
{
    QString Year;
    QString Month;
    QString Day;

    bool IsFilled() const { return !Year.isEmpty() && !Month.isEmpty() && !Day.isEmpty(); }
};

/// The employee on the screen: his row, as one operation of the employee file works on it, and all that is typed. A new
/// record is that of an employee who sees his own attendance and nothing else. Texts stand as typed. The schedule is a
/// copy of its own: the one of the calendar in SessionState stays as it is.
struct EmployeeRecord : EmployeeRow
{
    EmployeeRecord() { SelfLevelRead = 1; }
    explicit EmployeeRecord(const EmployeeRow& row) : EmployeeRow(row), Loaded(row) {}

    EmployeeRow Loaded; ///< as the form first showed it: what is still so when it is saved is left as others have it

    QString HourlyRateText; ///< the point as decimal sign; HourlyRate stays that of the row
    QString NewPassword;    ///< empty keeps the one of the row
    DateEntry Birth;        ///< DateOfBirth and DateOfHire are the last complete and valid entries
    DateEntry Hire;

    // What goes with the schedule. Indexed 0 Sunday to 6 Saturday.
    std::array<bool, 7> HoursSpecified{}; ///< the day's total was typed and wins over the calculated one
    std::array<QString, 7> TotalHours;    ///< the two boxes of the day's total
    std::array<QString, 7> TotalMinutes;
    bool RecalculationPending = false; ///< a default or a typed total is to be taken in when its field is left
    bool IrregularHours = false;

    // Warnings that the user has answered with Yes: they are not shown again in the same operation.
    bool NoEMailAccepted = false;
    bool NoDepartmentAccepted = false;
    bool HoursMismatchAccepted = false;
    bool NoApproverAccepted = false;
};
