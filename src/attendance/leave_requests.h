#pragma once

#include "platform/dao/dao.h"

/// What an employee asked for on one day in one category: an approver looks at it together and settles it date by date.
struct RequestGroup
{
    int EnteredDate = 0; ///< serial day
    int EmployeeID = 0;
    int CategoryID = 0;
    QString FamilyName;
    QString FirstName;
    QString Category; ///< in the session's language
};

/// How an approver has marked a date.
enum class RequestMark
{
    None, ///< it goes on waiting
    Approved,
    Denied
};

/// One date of a group. Times are decimal hours.
struct RequestedDate
{
    int RecordID = 0; ///< of its record of attendance
    int RecordDate = 0;
    float StartTime = 0; ///< 0 none
    float EndTime = 0;
    float TotalDuration = 0;
    QString Category;
    QStringList AlsoAbsent = {}; ///< colleagues who are away then or have asked to be: "FirstName FamilyName"
    RequestMark Mark = RequestMark::None;
};

/// The dates of a group that wait, whoever they are addressed to, and where its employee is written to.
struct RequestedDates
{
    QVector<RequestedDate> Dates;
    QString EMailAddress; ///< may be empty
};

/// The groups that wait for the user as first or second approver, the oldest first.
QVector<RequestGroup> LoadRequestGroups(DataControl& datAbsence);
/// How many they are.
int WaitingRequests(DataControl& datAbsence);
/// Those of them that are new to the user, who is their first approver.
QVector<RequestGroup> UntoldRequests(DataControl& datAbsence);

/// The dates of a group in their order. A colleague is absent whose record of the day, waiting or not, names the same
/// department and a category of absence; whoever puts time into a bank is at work.
RequestedDates LoadRequestedDates(DataControl& datAbsence, const RequestGroup& group);
