#pragma once

#include "foundation/employee_rights.h"
#include "foundation/work_schedule.h"

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

/// The employee on the screen: rights, weekly schedule and all that is typed, as one operation of the employee file
/// works on it. A new record is that of an employee who sees his own attendance and nothing else. Texts stand as typed;
/// ids are RecordIDs and dates serial days, 0 none. The schedule is a copy of its own: the one of the calendar in
/// SessionState stays as it is.
struct EmployeeRecord : SecurityProfile, WorkSchedule
{
    EmployeeRecord() { SelfLevelRead = 1; }

    int RecordID = 0; ///< 0 for a new employee
    int OrganizationID = 0;
    int DepartmentID = 0;
    int GroupID = 0;
    int ApprovedByMain = 0;
    int ApprovedByBackup = 0;

    // General information.
    QString FamilyName;
    QString FirstName;
    QString EmployeeID; ///< the employer's own number
    QString AddressLine1;
    QString PostalCode; ///< stands in the column AddressLine2
    QString City;
    QString ProvinceState;
    QString Country;
    QString PhoneHome;
    QString PhoneOffice;
    QString EMailAddress;
    QString Comment;
    QString HourlyRate; ///< money per hour, the point as decimal sign
    DateEntry Birth;
    DateEntry Hire;
    int DateOfBirth = 0; ///< the last complete and valid entry
    int DateOfHire = 0;
    int DeactivatedDate = 0; ///< 0 active
    QString DeactivatedBy;
    float PreviousHourlyRate = 0; ///< as it stands in the row

    // Log-in.
    QString LoginID;
    QString Password;     ///< empty keeps the one of the row
    QString KeptPassword; ///< of the row

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
