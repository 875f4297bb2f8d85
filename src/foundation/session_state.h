#pragma once

#include "foundation/employee_rights.h"
#include "foundation/work_schedule.h"

#include <QString>
#include <QVector>

#include <array>

/// A list of serial dates, ended by the first 0: a leap year and its end mark.
using DateList = std::array<int, 367>;

/// Whose attendance the calendar shows: an employee, or a whole unit where EmployeeID is 0.
struct CalendarSelection
{
    int EmployeeID = 0;
    int EmployeeOrganizationID = 0;
    int EmployeeDepartmentID = 0;
    int EmployeeGroupID = 0;
    QString CurrentSelection; ///< the shown name: an employee's, a unit's, or the log-in name
};

/// The application-wide record that all forms read and write. It carries the rights of the user and the schedule of
/// the employee shown. Dates are serial days (0 none), ids are RecordIDs (0 none), durations decimal hours.
struct Session : SecurityProfile, WorkSchedule, CalendarSelection
{
    // The workstation's configuration.
    bool English = true; ///< false: French
    bool SQL_Server = false;
    QString IP_Address;
    QString Username;
    QString Password;
    QString DatabasePath; ///< folder of Tarvell.mdb, no separator at its end
    QString DatabaseName; ///< empty until a database is configured
    bool MailConfigured = false;
    int LastUpgradeDate = 0; ///< stage of the mail component: 333 next step pending, 666 done
    QString AdminName;
    QString AdminEMail;
    bool RestartNeeded = false;
    QString VersionText;

    // The user.
    QString UserName; ///< first and family name; empty for ADMIN
    QString LoginID;
    QString UserPassword;
    int UserID = 0;
    int UserApprovedBy = 0;
    int UserOrganizationID = 0;
    int UserDepartmentID = 0;
    int UserGroupID = 0;
    int TimeOutSeconds = 840;
    bool ShowSelectHint = true;

    // The fiscal year.
    int FiscalYearID = 0;
    QString FiscalYearName;
    int CommencingDate = 0;
    int EndingDate = 0;
    int ClosedDate = 0; ///< 0 while the year is open
    int PreviousFYID = 0;
    QString PreviousFYName;
    int NextFYID = 0;
    QString NextFYName;

    // What the calendar shows.
    bool ShowApproved = true; ///< false: pending requests
    int SelectedDate = 0;
    int SelectedCategoryID = 0; ///< 0 all categories
    QString VacationName, SickName, PersonalName, DoctorName;
    int VacationID = 0, SickID = 0, PersonalID = 0, DoctorID = 0;
    bool ReloadCalendar = false; ///< set by the forms that change what the calendar shows

    // The tool in use.
    bool CreatingMultiple = false;
    bool CreatingConsecutive = false;
    bool ModifyingRecord = false;
    bool CancellingRecords = false;
    bool SubmittingRequest = false;
    bool EmployeeLocked = false; ///< the calendar has fixed the employee of the entry form
    DateList AttendanceDates{};
    DateList MarkedDates{};
    std::array<int, 7> SelectedWeekdays{}; ///< 1 for each chosen weekday, Sunday first

    // The category chosen in the entry form.
    int TimeBankRelated = 0;
    QString TimeClaimedName; ///< nothing fills it: the offer to convert borrowed time shows an empty name, as required

    // Messages.
    QString MessageText;
    QString MessageTitle;
    int MessageResult = 0;
    bool MessageScrollBar = false;
    int MessageDefaultButton = 0;
    bool MessageShowStopAsking = false;
    bool MessageStopAsking = false;

    // Durations and text helpers.
    float DurationHours = 0;
    float DurationMinutes = 0;
    float DurationDecimal = 0;
    QString DurationText;
    int DurationDays = 0;
    bool DurationInDays = false;
    QString HtmlEscaped;
    QString ProperCased;
};

extern Session SessionState;
