#include "attendance/attendance_records.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/rows.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "ledger/time_banks.h"
#include "platform/clock.h"

#include <cmath>

namespace
{
constexpr double kHundredths = 100;

QString FullName(const Recordset& person)
{
    return (person.Text("FirstName").trimmed() + " " + person.Text("FamilyName").trimmed()).trimmed();
}

void TakeEmployee(const Recordset& employee, AttendanceEntry& entry)
{
    employee.Take("OrganizationID", entry.EmployeeOrganizationID);
    employee.Take("DepartmentID", entry.EmployeeDepartmentID);
    employee.Take("GroupID", entry.EmployeeGroupID);
    ReadSchedule(employee, entry);
    employee.Take("AttendanceApprovedBy_Main", entry.FirstApprover);
    employee.Take("AttendanceApprovedBy_Backup", entry.SecondApprover);
    employee.Take("HourlyRate", entry.EmployeeRate);
    entry.EmployeeName = FullName(employee);
}

void ForgetEmployee(AttendanceEntry& entry)
{
    entry.FirstApprover = 0;
    entry.SecondApprover = 0;
    entry.EmployeeRate = 0;
    static_cast<WorkSchedule&>(entry) = WorkSchedule();
}

/// Rates show only to those who keep the employees' files.
QString VisibleRate(float rate)
{
    return SessionState.AccessToEmployeesModule == 1 ? FormatNumber(rate, 2) : QString();
}

struct Submission
{
    int Submitted = 0;
    QVariant Moment = 0;
    int By = 0;
    int ToFirst = 0;
    int ToSecond = 0;
};

Submission RequestBy(const AttendanceEntry& entry, const QVariant& moment)
{
    return {1, moment, SessionState.UserID, entry.FirstApprover, entry.SecondApprover};
}

/// What the form can change of a record.
RowValues EnteredValues(const AttendanceEntry& entry)
{
    return {{"CategoryID", entry.SelectedCategoryID},
            {"Duration", entry.Duration},
            {"StartTime", entry.StartTime},
            {"EndTime", entry.EndTime},
            {"TimeMultiplicator", entry.TimeMultiplicator},
            {"TotalDuration", entry.TotalDuration},
            {"WholeDay", entry.Part == DayPart::WholeDay ? 1 : 0},
            {"Comment", entry.Comment.trimmed()},
            {"Justified", entry.Justified ? 1 : 0}};
}

void Append(RowValues& values, const RowValues& more)
{
    values.insert(values.end(), more.begin(), more.end());
}

RowValues NewRow(const AttendanceEntry& entry, int date, const Submission& submission)
{
    RowValues row = {{"FiscalYear", SessionState.FiscalYearID},
                     {"EmployeeID", entry.EmployeeID},
                     {"GroupID", entry.EmployeeGroupID},
                     {"DepartmentID", entry.EmployeeDepartmentID},
                     {"OrganizationID", entry.EmployeeOrganizationID}};
    RowValues entered = EnteredValues(entry);
    entered.insert(entered.begin() + 1, {"RecordDate", date});
    Append(row, entered);
    Append(row, {{"Submitted", submission.Submitted},
                 {"SubmittedDateTime", submission.Moment},
                 {"SubmittedBy", submission.By},
                 {"SubmittedTo_First", submission.ToFirst},
                 {"SubmittedTo_Second", submission.ToSecond},
                 {"RequestStatus", 0},
                 {"ApprovedDateTime", 0},
                 {"ApprovedBy", QString("")},
                 {"DeniedDateTime", 0},
                 {"DeniedBy", QString("")},
                 {"ApprovalRefusalMessage", QString("")},
                 {"EnteredBy", Who()},
                 {"EnteredDate", Today()},
                 {"ModifiedBy", QString("")},
                 {"ModifiedDate", 0},
                 {"CancelledBy", QString("")},
                 {"CancelledDate", 0}});
    return row;
}

RowValues ModifiedRow(const AttendanceEntry& entry)
{
    RowValues row = EnteredValues(entry);
    Append(row, {{"ModifiedBy", Who()}, {"ModifiedDate", Today()}});
    return row;
}

RowValues WithCosts(RowValues row, const AttendanceEntry& entry)
{
    const double rate = entry.HourlyRateText.isEmpty() ? entry.EmployeeRate : Val(entry.HourlyRateText);
    Append(row, {{"HourlyRate", FormatNumber(static_cast<float>(rate), 2)},
                 {"UnitCost", qRound64(rate * kHundredths)},
                 {"ExtendedCost", qRound64(rate * entry.TotalDuration * kHundredths)}});
    return row;
}

void AddRows(DataControl& datAbsence, const AttendanceEntry& entry, const Submission& submission)
{
    const Connection connection(datAbsence);
    Batch batch(datAbsence.Engine());
    for (const int date : entry.Dates)
        AddRow(datAbsence, "Attendance", WithCosts(NewRow(entry, date, submission), entry));
    batch.Commit();
}

void SendRows(const AttendanceEntry& entry, const Submission& submission)
{
    for (const int date : entry.Dates)
        SendToServer(InsertStatement("Attendance", NewRow(entry, date, submission)));
}

void ReadEntitlement(DataControl& datAbsence, AttendanceEntry& entry)
{
    if (datAbsence.Read("SELECT * FROM Entitlements WHERE CategoryID = ? AND EmployeeID = ?", entry.SelectedCategoryID,
                        entry.EmployeeID))
        entry.Entitlement = datAbsence.Records.Single("CarriedOver") + datAbsence.Records.Single("AnnualEntitlement");
}

void ForgetCategory(AttendanceEntry& entry)
{
    entry.TimeBankRelated = 0;
    entry.SystemName.clear();
    entry.RequiresMonitoring = 0;
    entry.ConstitutesAnAbsence = 0;
    entry.Entitlement = 0;
    entry.TimeUsed = 0;
    entry.TimePending = 0;
    entry.TimeBanked = 0;
}
} // namespace

void LoadEmployeeInfo(DataControl& datAbsence, AttendanceEntry& entry)
{
    ForgetEmployee(entry);
    if (SessionState.SQL_Server)
        LoadEmployeeInfo_SQL(entry);
    else
        LoadEmployeeInfo_ACCESS(datAbsence, entry);
}

void LoadEmployeeInfo_ACCESS(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    if (datAbsence.Read("SELECT * FROM Employees WHERE RecordID = ?", entry.EmployeeID))
        TakeEmployee(datAbsence.Records, entry);
    entry.HourlyRateText = VisibleRate(entry.EmployeeRate);
    FindDayParts(entry);
}

void LoadEmployeeInfo_SQL(AttendanceEntry& entry)
{
    SendToServer(QStringLiteral("SELECT * FROM Employees WHERE RecordID = %1").arg(entry.EmployeeID));
    FindDayParts(entry);
}

void ReadCategory(DataControl& datAbsence, AttendanceEntry& entry)
{
    ForgetCategory(entry);
    if (entry.SelectedCategoryID == 0)
        return;
    const Connection connection(datAbsence);
    if (datAbsence.Read("SELECT * FROM Categories WHERE RecordID = ?", entry.SelectedCategoryID)) {
        datAbsence.Take("TimeBankRelated", entry.TimeBankRelated);
        datAbsence.Take("ConstitutesAnAbsence", entry.ConstitutesAnAbsence);
        datAbsence.Take("RequiresMonitoring", entry.RequiresMonitoring);
        entry.SystemName = datAbsence.Records.Text("SystemName").trimmed();
    }
    if (entry.EmployeeID == 0)
        return;
    if (entry.RequiresMonitoring == 1)
        ReadEntitlement(datAbsence, entry);
    else if (entry.TimeBankRelated == 1)
        entry.TimeBanked = TimeBankOfEmployee(datAbsence, entry.EmployeeID);
}

bool LacksEntitlement(const AttendanceEntry& entry)
{
    return entry.RequiresMonitoring == 1 && entry.EmployeeID != 0 && entry.Entitlement == 0;
}

void ReloadRecord(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    if (!datAbsence.Read("SELECT * FROM Attendance WHERE RecordID = ?", entry.RecordToModify))
        return;
    const Recordset& record = datAbsence.Records;
    entry.Comment = record.Text("Comment").trimmed();
    entry.Justified = record.Long("Justified") == 1;
    entry.Part = record.Long("WholeDay") == 1 ? DayPart::WholeDay : DayPart::None;
    record.Take("TimeMultiplicator", entry.TimeMultiplicator);
    record.Take("StartTime", entry.StartTime);
    record.Take("EndTime", entry.EndTime);
    record.Take("Duration", entry.Duration);
    record.Take("TotalDuration", entry.TotalDuration);
    entry.HourlyRateText = VisibleRate(static_cast<float>(Val(record.Text("HourlyRate"))));
    if (entry.StartTime != 0) {
        entry.StartTimeText = DurationText(entry.StartTime);
        entry.EndTimeText = DurationText(entry.EndTime);
    }
    ShowDuration(entry, std::abs(entry.Duration));
    RecalculateTotalTime(entry);
}

void GetApprovalNames(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    for (Recordset people = datAbsence.Select(
             "SELECT RecordID, FirstName, FamilyName, EMailAddress FROM Employees WHERE RecordID IN (?, ?)",
             entry.FirstApprover, entry.SecondApprover);
         !people.AtEnd(); people.MoveNext()) {
        const bool first = people.Long("RecordID") == entry.FirstApprover;
        (first ? entry.FirstApproverName : entry.SecondApproverName) = FullName(people);
        people.Take("EMailAddress", first ? entry.FirstApproverEMail : entry.SecondApproverEMail);
    }
}

void NewAttendance_ACCESS(DataControl& datAbsence, const AttendanceEntry& entry)
{
    AddRows(datAbsence, entry, {});
}

void NewAttendance_SQL(const AttendanceEntry& entry)
{
    SendRows(entry, {});
}

void SubmitAttendance_ACCESS(DataControl& datAbsence, const AttendanceEntry& entry)
{
    // The moment is rounded to a whole day: a request made after noon bears the next day's number, as required.
    AddRows(datAbsence, entry, RequestBy(entry, static_cast<int>(std::lrint(Now()))));
}

void SubmitAttendance_SQL(const AttendanceEntry& entry)
{
    SendRows(entry, RequestBy(entry, static_cast<float>(Now())));
}

void ModifyAttendance_ACCESS(DataControl& datAbsence, const AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    Batch batch(datAbsence.Engine());
    ModificationsLog(datAbsence, entry.RecordToModify);
    WriteRow(datAbsence, "Attendance", entry.RecordToModify, WithCosts(ModifiedRow(entry), entry));
    batch.Commit();
}

void ModifyAttendance_SQL(DataControl& datAbsence, const AttendanceEntry& entry)
{
    ModificationsLog(datAbsence, entry.RecordToModify);
    SendToServer(UpdateStatement("Attendance", entry.RecordToModify, ModifiedRow(entry)));
}

void ModificationsLog(DataControl& datAbsence, int recordID)
{
    if (!SessionState.SQL_Server)
        return CopyToAuditTwin(datAbsence, "Attendance", recordID);
    QStringList columns = {"RecordID"};
    for (const ColumnValue& value : NewRow({}, 0, {}))
        columns << value.Column;
    SendToServer(
        QStringLiteral("INSERT INTO Attendance_Modifications (%1) SELECT * FROM Attendance WHERE RecordID = %2")
            .arg(columns.join(", "))
            .arg(recordID));
}
