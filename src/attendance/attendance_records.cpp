#include "attendance/attendance_records.h"

#include "foundation/attendance_row.h"
#include "foundation/category_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "ledger/allowances.h"
#include "ledger/time_banks.h"
#include "platform/clock.h"

#include <cmath>

namespace
{
void TakeEmployee(const EmployeeRow& employee, AttendanceEntry& entry)
{
    entry.EmployeeOrganizationID = employee.OrganizationID;
    entry.EmployeeDepartmentID = employee.DepartmentID;
    entry.EmployeeGroupID = employee.GroupID;
    TakeSchedule(employee, entry);
    entry.FirstApprover.RecordID = employee.ApprovedByMain;
    entry.SecondApprover.RecordID = employee.ApprovedByBackup;
    entry.EmployeeRate = static_cast<float>(employee.HourlyRate);
    entry.EmployeeName = FullName(employee.FirstName, employee.FamilyName);
}

void ForgetEmployee(AttendanceEntry& entry)
{
    entry.FirstApprover = entry.SecondApprover = {};
    entry.EmployeeRate = 0;
    static_cast<WorkSchedule&>(entry) = WorkSchedule();
}

/// Rates show only to those who keep the employees' files.
QString VisibleRate(float rate)
{
    return SessionState.AccessToEmployeesModule == 1 ? FormatNumber(rate, 2) : QString();
}

/// What the form can change of a record.
constexpr Column<AttendanceRow>::Place kEntered[] = {
    &AttendanceRow::CategoryID, &AttendanceRow::Duration,          &AttendanceRow::StartTime,
    &AttendanceRow::EndTime,    &AttendanceRow::TimeMultiplicator, &AttendanceRow::TotalDuration,
    &AttendanceRow::WholeDay,   &AttendanceRow::Comment,           &AttendanceRow::Justified,
    &AttendanceRow::HourlyRate, &AttendanceRow::UnitCost,          &AttendanceRow::ExtendedCost};

int Hundredths(double money)
{
    return static_cast<int>(qRound64(money * 100));
}

AttendanceRow EnteredRow(const AttendanceEntry& entry)
{
    const double rate = entry.HourlyRateText.isEmpty() ? entry.EmployeeRate : Val(entry.HourlyRateText);
    AttendanceRow row;
    row.CategoryID = entry.SelectedCategoryID;
    row.Duration = entry.Duration;
    row.StartTime = entry.StartTime;
    row.EndTime = entry.EndTime;
    row.TimeMultiplicator = entry.TimeMultiplicator;
    row.TotalDuration = entry.TotalDuration;
    row.WholeDay = entry.Part == DayPart::WholeDay ? 1 : 0;
    row.Comment = entry.Comment.trimmed();
    row.Justified = entry.Justified ? 1 : 0;
    row.HourlyRate = FormatNumber(static_cast<float>(rate), 2);
    row.UnitCost = Hundredths(rate);
    row.ExtendedCost = Hundredths(rate * entry.TotalDuration);
    return row;
}

Approver FindApprover(DataControl& datAbsence, int recordID)
{
    Approver approver{.RecordID = recordID};
    for (const Recordset& person : datAbsence.Select(
             "SELECT FirstName, FamilyName, EMailAddress, DeactivatedDate FROM Employees WHERE RecordID = ?", recordID))
        approver = {recordID, FullName(person), person.Text("EMailAddress").trimmed(),
                    person.Long("DeactivatedDate") != 0};
    return approver;
}

AttendanceRow NewRow(const AttendanceEntry& entry)
{
    AttendanceRow row = EnteredRow(entry);
    row.FiscalYear = SessionState.FiscalYearID;
    row.EmployeeID = entry.EmployeeID;
    row.GroupID = entry.EmployeeGroupID;
    row.DepartmentID = entry.EmployeeDepartmentID;
    row.OrganizationID = entry.EmployeeOrganizationID;
    row.EnteredBy = UserStamp();
    row.EnteredDate = Today();
    return row;
}

void AddOnEachDate(DataControl& datAbsence, const AttendanceEntry& entry, AttendanceRow row)
{
    InOpenYear(
        datAbsence,
        [&] {
            for (const int date : entry.Dates) {
                row.RecordDate = date;
                Add(datAbsence, row);
            }
        },
        Transaction::KeepOnFailure);
}
} // namespace

void LoadEmployeeInfo(DataControl& datAbsence, AttendanceEntry& entry)
{
    ForgetEmployee(entry);
    if (IsServerChosen()) {
        SendToServer(QStringLiteral("SELECT * FROM Employees WHERE RecordID = %1").arg(entry.EmployeeID));
    } else {
        const Connection connection(datAbsence);
        if (const auto employee = Find<EmployeeRow>(datAbsence, entry.EmployeeID))
            TakeEmployee(*employee, entry);
        entry.HourlyRateText = VisibleRate(entry.EmployeeRate);
    }
    FindDayParts(entry);
}

void ReadCategory(DataControl& datAbsence, AttendanceEntry& entry)
{
    static_cast<CategoryFacts&>(entry) = {};
    if (entry.SelectedCategoryID == 0)
        return;
    const Connection connection(datAbsence);
    if (const auto category = Find<CategoryRow>(datAbsence, entry.SelectedCategoryID)) {
        entry.TimeBankRelated = category->TimeBankRelated;
        entry.RequiresMonitoring = category->RequiresMonitoring;
        entry.SystemName = category->SystemName.trimmed();
    }
    if (entry.EmployeeID == 0)
        return;
    if (entry.RequiresMonitoring == 1)
        entry.Entitlement = AllowanceOf(datAbsence, entry.EmployeeID, entry.SelectedCategoryID).Limit();
    else if (entry.TimeBankRelated == 1)
        entry.TimeBanked = TimeBankOf(datAbsence, entry);
}

BalanceLines ExplainBalance(DataControl& datAbsence, const AttendanceEntry& entry)
{
    if (entry.RequiresMonitoring == 1)
        return ExplainEntitlement(datAbsence, entry.EmployeeID, entry.SelectedCategoryID);
    return entry.TimeBankRelated == 1 ? ExplainTimeBank(datAbsence, entry) : BalanceLines();
}

QString BalanceText(const AttendanceEntry& entry)
{
    if (entry.EmployeeID == 0)
        return {};
    if (entry.RequiresMonitoring == 1)
        return T({"Annual entitlement: {hours}", "Temps alloué annuellement: {hours}"},
                 {{"hours", DurationText(entry.Entitlement)}});
    return entry.TimeBankRelated == 1
               ? T({"Time bank: {hours}", "Banque de temps: {hours}"}, {{"hours", DurationText(entry.TimeBanked)}})
               : QString();
}

bool LacksEntitlement(const AttendanceEntry& entry)
{
    return entry.RequiresMonitoring == 1 && entry.EmployeeID != 0 && entry.Entitlement == 0;
}

void ReloadRecord(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    const auto record = Find<AttendanceRow>(datAbsence, entry.RecordToModify);
    if (!record)
        return;
    entry.Comment = record->Comment.trimmed();
    entry.Justified = record->Justified == 1;
    entry.Part = record->WholeDay == 1 ? DayPart::WholeDay : DayPart::None;
    entry.TimeMultiplicator = record->TimeMultiplicator;
    entry.StartTime = record->StartTime;
    entry.EndTime = record->EndTime;
    entry.Duration = record->Duration;
    entry.TotalDuration = record->TotalDuration;
    const float rate = static_cast<float>(Val(record->HourlyRate));
    entry.HourlyRateText = VisibleRate(rate);
    if (entry.HourlyRateText.isEmpty())
        entry.EmployeeRate = rate; // who may not see the rate does not change it
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
    for (Approver* approver : {&entry.FirstApprover, &entry.SecondApprover})
        *approver = FindApprover(datAbsence, approver->RecordID);
}

void NewAttendance(DataControl& datAbsence, const AttendanceEntry& entry)
{
    AddOnEachDate(datAbsence, entry, NewRow(entry));
}

void SubmitAttendance(DataControl& datAbsence, const AttendanceEntry& entry)
{
    AttendanceRow row = NewRow(entry);
    row.Submitted = 1;
    // In the file the moment is rounded to a whole day: a request made after noon bears the next day's number, as
    // required.
    row.SubmittedDateTime = static_cast<float>(IsServerChosen() ? Now() : std::rint(Now()));
    row.SubmittedBy = SessionState.UserID;
    row.SubmittedTo_First = entry.FirstApprover.RecordID;
    row.SubmittedTo_Second = entry.SecondApprover.RecordID;
    AddOnEachDate(datAbsence, entry, row);
}

void ModifyAttendance(DataControl& datAbsence, const AttendanceEntry& entry)
{
    const AttendanceRow row = EnteredRow(entry);
    InOpenYear(
        datAbsence, [&] { Change(datAbsence, entry.RecordToModify, Picked(row, kEntered)); },
        Transaction::KeepOnFailure);
}
