#include "calendar/calendar_records.h"

#include "attendance/record_lines.h"
#include "foundation/category_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/texts.h"
#include "ledger/allowances.h"

namespace
{
/// What follows "WHERE ..." in every calendar query: the employee, or else the unit shown; the chosen category; hidden
/// categories; live records only, and of these the ones asked for. Its two values go in the place of its question
/// marks.
struct ScopeFilter
{
    QString Sql;
    int Scope = 0;    ///< id of the employee or unit, 0 the whole company
    int Category = 0; ///< 0 all
};

LiveRecords RecordsShown()
{
    return SessionState.ShowApproved ? LiveRecords::Approved : LiveRecords::Pending;
}

ScopeFilter CalendarScope(LiveRecords records = RecordsShown())
{
    const auto [column, id] = SessionState.Narrowest();
    ScopeFilter filter{{}, id, SessionState.SelectedCategoryID};
    filter.Sql = column ? QStringLiteral(" AND Attendance.%1 = ?1").arg(QLatin1String(column)) : " AND ?1 = 0";
    filter.Sql += filter.Category > 0 ? " AND Attendance.CategoryID = ?2" : " AND ?2 = 0";
    if (SessionState.AccessToRestrictedCategory == 0)
        filter.Sql += " AND Categories.Restricted = 0";
    filter.Sql += " AND Attendance.CancelledDate = 0" + ConditionOf(records);
    return filter;
}

const char* kTimesOfRecord =
    "SELECT Attendance.StartTime, Attendance.EndTime, Attendance.Duration, Attendance.TimeMultiplicator, "
    "Attendance.TotalDuration, Attendance.Submitted, Categories.CategoryFrenchName, Categories.CategoryEnglishName";

float TotalOf(DataControl& datAbsence, LiveRecords records)
{
    const ScopeFilter filter = CalendarScope(records);
    return datAbsence.Scalar<float>("SELECT SUM(Attendance.TotalDuration) FROM Attendance, Categories WHERE "
                                    "Attendance.CategoryID = Categories.RecordID AND Attendance.FiscalYear = ?3" +
                                        filter.Sql,
                                    filter.Scope, filter.Category, SessionState.FiscalYearID);
}

bool IsLimited(DataControl& datAbsence, int categoryID)
{
    const auto category = Find<CategoryRow>(datAbsence, categoryID);
    return category && category->RequiresMonitoring == 1;
}
} // namespace

float TotalForTheYear(DataControl& datAbsence)
{
    return TotalOf(datAbsence, RecordsShown());
}

BalanceLines ExplainTotal(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    const int employee = SessionState.EmployeeID, category = SessionState.SelectedCategoryID;
    if (employee != 0 && category != 0 && IsLimited(datAbsence, category))
        return ExplainEntitlement(datAbsence, employee, category);
    return {{{"Recorded to date", "Inscrit à ce jour"}, TotalOf(datAbsence, LiveRecords::TakenToDate)},
            {kBookedAhead, TotalOf(datAbsence, LiveRecords::BookedAhead)},
            {kPending, TotalOf(datAbsence, LiveRecords::Pending)}};
}

QVector<CalendarRecord> RecordsOfTheYear(DataControl& datAbsence)
{
    const ScopeFilter filter = CalendarScope();
    const QString hours = filter.Scope == 0 ? "0" : "SUM(Attendance.TotalDuration)";
    QVector<CalendarRecord> records;
    for (const Recordset& row : datAbsence.Select(
             "SELECT Days.RecordDate, Days.CategoryID, Days.Hours, Categories.CategoryColorCode, "
             "Categories.CategoryCode, Categories." +
                 NameColumn("Category") + " AS Name FROM Categories, (SELECT Attendance.RecordDate, " +
                 "Attendance.CategoryID, " + hours + " AS Hours FROM Attendance, Categories WHERE " +
                 "Attendance.CategoryID = Categories.RecordID AND Attendance.RecordDate BETWEEN ?3 AND ?4" +
                 filter.Sql + " GROUP BY Attendance.RecordDate, Attendance.CategoryID) AS Days WHERE " +
                 "Days.CategoryID = Categories.RecordID ORDER BY Days.RecordDate ASC",
             filter.Scope, filter.Category, SessionState.CommencingDate, SessionState.EndingDate))
        records.append({row.Long("RecordDate"), row.Long("CategoryID"), row.Long("CategoryColorCode"),
                        row.Text("Name").trimmed(), row.Text("CategoryCode").trimmed(), row.Single("Hours")});
    return records;
}

QStringList DailyAttendance(DataControl& datAbsence, int date)
{
    const ScopeFilter filter = CalendarScope();
    QStringList lines;
    for (const Recordset& row : datAbsence.Select(
             QString(kTimesOfRecord) +
                 ", Employees.FirstName, Employees.FamilyName FROM Attendance, Categories, Employees WHERE "
                 "Attendance.CategoryID = Categories.RecordID AND Attendance.EmployeeID = Employees.RecordID AND "
                 "Attendance.RecordDate = ?3" +
                 filter.Sql + " ORDER BY Employees.FamilyName ASC, Employees.FirstName ASC",
             filter.Scope, filter.Category, date)) {
        QString line = FullName(row) + "   " + CategoryOfRow(row) + "   ";
        if (row.Single("StartTime") != 0)
            line += T("From: ", "De: ") + DurationText(row.Single("StartTime")) + T(" To: ", " À: ") +
                    DurationText(row.Single("EndTime")) + "   ";
        lines << line + T("Duration: ", "Durée: ") + DurationText(row.Single("Duration"));
    }
    return lines;
}

QMap<int, QStringList> ConflictingRecords(DataControl& datAbsence, int from, int to)
{
    QMap<int, QStringList> lines;
    for (const Recordset& row : datAbsence.Select(
             QString(kTimesOfRecord) + ", Attendance.RecordDate FROM Attendance, Categories WHERE "
                                       "Attendance.CategoryID = Categories.RecordID AND Attendance.RecordDate BETWEEN "
                                       "? AND ? AND Attendance.EmployeeID = ? AND Attendance.CancelledDate = 0",
             from, to, SessionState.EmployeeID))
        lines[row.Long("RecordDate")] << ConflictLine(row);
    return lines;
}
