#pragma once

#include "foundation/employee_rights.h"
#include "foundation/work_schedule.h"

#include <QString>
#include <QVector>

#include <array>
#include <utility>

/// Serial days in the order of their selection; at most kMostDates.
using DateList = QVector<int>;
/// The days of a leap year.
constexpr int kMostDates = 366;

/// The configuration of the workstation.
struct Workstation
{
    bool English = true; ///< false: French
    bool SQL_Server = false;
    QString IP_Address;
    QString Username;
    QString Password;
    QString DatabasePath;        ///< folder of Tarvell.mdb, no separator at its end
    QString DatabaseName;        ///< empty until a database is configured
    bool MailConfigured = false; ///< true: the automation route; false: MAPI
    int LastUpgradeDate = 0;     ///< stage of the mail component: 333 next step pending, 666 done
    int MAPISessionID = 0;       ///< 0 while not signed on
    QString AdminName;
    QString AdminEMail;
    QString VersionText;
};

/// Who is logged in, with the units of his record in the fiscal year.
struct LoggedUser
{
    QString UserName; ///< first and family name; empty for ADMIN
    QString LoginID;
    QString UserPassword;
    QString UserEMail; ///< may be empty
    int UserID = 0;
    int UserApprovedBy = 0;
    int UserOrganizationID = 0;
    int UserDepartmentID = 0;
    int UserGroupID = 0;
    int TimeOutSeconds = 840;
    bool ShowSelectHint = true;
};

/// The fiscal year in which the session works, and its neighbours.
struct FiscalYear
{
    int FiscalYearID = 0;
    QString FiscalYearName;
    int CommencingDate = 0;
    int EndingDate = 0;
    int ClosedDate = 0; ///< 0 while the year is open
    int PreviousFYID = 0;
    QString PreviousFYName;
    int NextFYID = 0;
    QString NextFYName;
};

/// Whose attendance the calendar shows: an employee, or a whole unit where EmployeeID is 0.
struct CalendarSelection
{
    int EmployeeID = 0;
    int EmployeeOrganizationID = 0;
    int EmployeeDepartmentID = 0;
    int EmployeeGroupID = 0;
    QString CurrentSelection; ///< the shown name: an employee's, a unit's, or the log-in name

    /// The column in which records of attendance name the employee or else the deepest unit, and his RecordID; null and
    /// 0 for the whole company.
    std::pair<const char*, int> Narrowest() const;
};

/// What the calendar shows.
struct CalendarView : CalendarSelection
{
    bool ShowApproved = true; ///< false: pending requests
    int SelectedDate = 0;
    int SelectedCategoryID = 0; ///< 0 all categories
    QString VacationName, SickName, PersonalName, DoctorName;
    int VacationID = 0, SickID = 0, PersonalID = 0, DoctorID = 0;
    bool ReloadCalendar = false; ///< set by the forms that change what the calendar shows
    QString TimeClaimedName; ///< nothing fills it: the offer to convert borrowed time shows an empty name, as required
};

/// What the calendar's tool in use is about.
struct ToolFlags
{
    bool CreatingMultiple = false;    ///< the entry form opens for a list of dates
    bool CreatingConsecutive = false; ///< the list is a period's
    bool ModifyingRecord = false;
    bool CancellingRecords = false;
    bool SubmittingRequest = false;
    bool EmployeeLocked = false; ///< the calendar has fixed the employee of the entry form
};

/// The dates and weekdays that were chosen last.
struct ChosenDays
{
    DateList AttendanceDates;              ///< those the entry form was last opened for
    DateList MarkedDates;                  ///< those now marked on the calendar
    std::array<int, 7> SelectedWeekdays{}; ///< 1 for each chosen weekday, Sunday first
};

/// What the last message was and how it ended.
struct LastMessage
{
    QString MessageText;
    QString MessageTitle;
    int MessageResult = 0;
    bool MessageStopAsking = false; ///< the check box of the last message that had one
};

/// The input box of the messages.
struct MessageInput
{
    bool InputBoxShown = false; ///< a message has asked for it: each later one has it too
    QString InputBoxContents;
};

/// A duration on its way between decimal hours and hours and minutes.
struct DurationFields
{
    float DurationHours = 0;
    float DurationMinutes = 0;
    float DurationDecimal = 0;
    QString DurationText = {};
    int DurationDays = 0;
    bool DurationInDays = false;
};

/// The application-wide record that all forms read and write. It carries the rights of the user and the schedule of
/// the employee shown. Dates are serial days (0 none), ids are RecordIDs (0 none), durations decimal hours.
struct Session : Workstation,
                 LoggedUser,
                 SecurityProfile,
                 FiscalYear,
                 CalendarView,
                 WorkSchedule,
                 ToolFlags,
                 ChosenDays,
                 LastMessage,
                 MessageInput,
                 DurationFields
{};

extern Session SessionState;
