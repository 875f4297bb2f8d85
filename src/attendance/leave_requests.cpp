#include "attendance/leave_requests.h"

#include "foundation/attendance_row.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/session_state.h"

namespace
{
const QString kToEither = " AND (Attendance.SubmittedTo_First = ? OR Attendance.SubmittedTo_Second = ?)";
const QString kNewToFirst =
    " AND Attendance.SubmittedTo_First = ? AND Attendance.RequestStatus = ? AND Attendance.CancelledDate = 0";

QString GroupsStatement(const QString& conditions)
{
    return Fill("SELECT DISTINCT Attendance.EnteredDate, Attendance.EmployeeID, Employees.FamilyName, "
                "Employees.FirstName, Categories.{name} AS Catg, Attendance.CategoryID FROM Attendance, Employees, "
                "Categories WHERE Attendance.EmployeeID = Employees.RecordID AND Attendance.CategoryID = "
                "Categories.RecordID AND Attendance.Submitted = 1{conditions}",
                {{"name", NameColumn("Category")}, {"conditions", conditions}});
}

template <typename... V>
QVector<RequestGroup> Groups(DataControl& datAbsence, const QString& conditions, const V&... values)
{
    const Connection connection(datAbsence);
    QVector<RequestGroup> groups;
    for (const Recordset& row : datAbsence.Select(GroupsStatement(conditions) +
                                                      " ORDER BY Attendance.EnteredDate ASC, Employees.FamilyName ASC, "
                                                      "Employees.FirstName ASC, Catg ASC",
                                                  values...))
        groups.append({row.Long("EnteredDate"), row.Long("EmployeeID"), row.Long("CategoryID"),
                       row.Text("FamilyName").trimmed(), row.Text("FirstName").trimmed(), row.Text("Catg").trimmed()});
    return groups;
}

/// The condition that a row, by the name that its table has in the statement, belongs to a group.
QString OfGroup(const QString& row)
{
    return Fill("{row}.Submitted = 1 AND {row}.EmployeeID = ? AND {row}.CategoryID = ? AND {row}.EnteredDate = ?",
                {{"row", row}});
}

/// Who else is away, by the RecordID of each date of a group. One statement serves all dates.
QHash<int, QStringList> AlsoAbsent(DataControl& datAbsence, const RequestGroup& group)
{
    QHash<int, QStringList> absent;
    for (const Recordset& row : datAbsence.Select(
             "SELECT DISTINCT Request.RecordID, Employees.FamilyName, Employees.FirstName FROM Attendance AS Request, "
             "Attendance, Employees, Categories WHERE " +
                 OfGroup("Request") +
                 " AND Attendance.RecordDate = Request.RecordDate AND Attendance.DepartmentID = Request.DepartmentID "
                 "AND Attendance.EmployeeID <> Request.EmployeeID AND Attendance.CancelledDate = 0 AND "
                 "Attendance.CategoryID = Categories.RecordID AND Categories.ConstitutesAnAbsence = 1 AND "
                 "Attendance.EmployeeID = Employees.RecordID ORDER BY Employees.FirstName ASC, Employees.FamilyName "
                 "ASC",
             group.EmployeeID, group.CategoryID, group.EnteredDate))
        absent[row.Long("RecordID")] << FullName(row);
    return absent;
}

RequestedDate DateOf(const Recordset& row)
{
    return {.RecordID = row.Long("RecordID"),
            .RecordDate = row.Long("RecordDate"),
            .StartTime = row.Single("StartTime"),
            .EndTime = row.Single("EndTime"),
            .TotalDuration = row.Single("TotalDuration"),
            .Category = row.Text("Catg").trimmed()};
}
} // namespace

QVector<RequestGroup> LoadRequestGroups(DataControl& datAbsence)
{
    return Groups(datAbsence, kToEither, SessionState.UserID, SessionState.UserID);
}

int WaitingRequests(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    return datAbsence.Scalar<int>("SELECT COUNT(*) FROM (" + GroupsStatement(kToEither) + ")", SessionState.UserID,
                                  SessionState.UserID);
}

QVector<RequestGroup> UntoldRequests(DataControl& datAbsence)
{
    return Groups(datAbsence, kNewToFirst, SessionState.UserID, RequestStatus::OnHold);
}

RequestedDates LoadRequestedDates(DataControl& datAbsence, const RequestGroup& group)
{
    const Connection connection(datAbsence);
    RequestedDates requested;
    for (const Recordset& row : datAbsence.Select(
             "SELECT Attendance.RecordDate, Attendance.StartTime, Attendance.EndTime, Attendance.TotalDuration, "
             "Categories." +
                 NameColumn("Category") +
                 " AS Catg, Attendance.RecordID, Employees.EMailAddress FROM Attendance, Categories, Employees WHERE "
                 "Attendance.CategoryID = Categories.RecordID AND Attendance.EmployeeID = Employees.RecordID AND " +
                 OfGroup("Attendance") + " ORDER BY Attendance.RecordDate ASC",
             group.EmployeeID, group.CategoryID, group.EnteredDate)) {
        requested.Dates.append(DateOf(row));
        row.Take("EMailAddress", requested.EMailAddress);
    }
    const QHash<int, QStringList> absent = AlsoAbsent(datAbsence, group);
    for (RequestedDate& date : requested.Dates)
        date.AlsoAbsent = absent.value(date.RecordID);
    return requested;
}
