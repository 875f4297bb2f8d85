#include "employees/employee_rows.h"

#include "employees/employee_entitlements.h"
#include "employees/security_profile_rules.h"
#include "employees/work_schedule_rules.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/employees_list.h"

namespace
{
constexpr int kUsernameWidth = 15;

/// What is read and shown without blanks around it.
constexpr QString EmployeeRow::*kTexts[] = {
    &EmployeeRow::FamilyName, &EmployeeRow::FirstName,   &EmployeeRow::EmployeeID,    &EmployeeRow::AddressLine1,
    &EmployeeRow::PostalCode, &EmployeeRow::City,        &EmployeeRow::ProvinceState, &EmployeeRow::Country,
    &EmployeeRow::PhoneHome,  &EmployeeRow::PhoneOffice, &EmployeeRow::EMailAddress,  &EmployeeRow::Comment,
    &EmployeeRow::LoginID};

DateEntry EntryOf(int serial)
{
    if (serial <= 0)
        return {};
    const QDate date = DateOfSerial(serial);
    return {QString::number(date.year()), QString::number(date.month()), QString::number(date.day())};
}

/// What the employee file leaves alone in a row that exists: transfers and log-ins change it.
constexpr int EmployeeRow::*kKept[] = {
    &EmployeeRow::FiscalYear, &EmployeeRow::OrganizationID, &EmployeeRow::DepartmentID, &EmployeeRow::GroupID,
    &EmployeeRow::ReportTo,   &EmployeeRow::Gender,         &EmployeeRow::Language};

/// The row as the form has it.
EmployeeRow TypedRow(const EmployeeRecord& record)
{
    EmployeeRow row = record;
    row.DateOfBirth = record.Birth.IsFilled() ? record.DateOfBirth : 0;
    row.DateOfHire = record.Hire.IsFilled() ? record.DateOfHire : 0;
    row.HourlyRate = Val(record.HourlyRateText);
    row.Username = record.LoginID.left(kUsernameWidth);
    if (!record.NewPassword.isEmpty())
        row.Password = record.NewPassword;
    for (const RightColumn& right : kRights)
        row.*right.Member = row.*right.Member == 1 ? 1 : 0;
    return row;
}

/// The row as the employee file writes it.
EmployeeRow WrittenRow(const EmployeeRecord& record)
{
    EmployeeRow row = TypedRow(record);
    row.DateEntered = Today();
    row.EnteredBy = UserStamp();
    row.DeactivatedBy = row.ReasonForDeactivation = " ";
    row.EmployeeType = 0;
    row.PreviousID = 0; // cuts the link to the year before, also on a modification; that is kept
    row.IsAllowedToCarryOverVacation = row.IsAllowedToCarryOverTimeBanked = 0;
    row.SelfLevelRead = 1;
    row.AccessToOrganizationsModule = 0; // has no box
    return row;
}
} // namespace

int CountEmployees(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    return datAbsence.Scalar<int>(
        "SELECT COUNT(RecordID) AS Empl FROM Employees WHERE DeactivatedDate = 0 AND FiscalYear = ?",
        SessionState.FiscalYearID);
}

bool LoadEmployeeRecord_ACCESS(DataControl& datAbsence, EmployeeRecord& record)
{
    const Connection connection(datAbsence);
    const auto row = Find<EmployeeRow>(datAbsence, record.RecordID);
    record = row ? EmployeeRecord(*row) : EmployeeRecord();
    if (!row)
        return false;
    if (record.LoginID.isEmpty())
        record.LoginID = record.Username; // of a row older than log-in names
    for (const auto text : kTexts)
        record.*text = (record.*text).trimmed();
    record.HourlyRateText = FormatNumber(static_cast<float>(record.HourlyRate), 2);
    record.Birth = EntryOf(record.DateOfBirth);
    record.Hire = EntryOf(record.DateOfHire);
    CompleteLoadedRights(record);
    TakeSchedule(*row, record);
    ShowDayLengths(record);
    record.Loaded = TypedRow(record);
    record.Loaded.SelfLevelRead = row->SelfLevelRead; // saving gives it to whoever has not got it
    return true;
}

bool IsLoginIDTaken(DataControl& datAbsence, const EmployeeRecord& record)
{
    const QString name = record.LoginID.trimmed().toUpper();
    const Connection connection(datAbsence);
    return name == "ADMIN" ||
           datAbsence.Read("SELECT RecordID FROM Employees WHERE LoginID = ? AND RecordID <> ? AND FiscalYear = ?",
                           name, record.RecordID, SessionState.FiscalYearID);
}

bool HasNamesake(DataControl& datAbsence, const EmployeeRecord& record, bool modifying)
{
    const Connection connection(datAbsence);
    const int self = modifying ? record.RecordID : 0;
    return datAbsence.Read(
        "SELECT RecordID FROM Employees WHERE FamilyName = ? AND FirstName = ? AND FiscalYear = ? AND "
        "OrganizationID = ? AND DeactivatedDate = 0 AND (? = 0 OR DepartmentID = ?) AND RecordID <> ?",
        record.FamilyName, record.FirstName, SessionState.FiscalYearID, record.OrganizationID, record.DepartmentID,
        record.DepartmentID, self);
}

QStringList AddEmployee(DataControl& datAbsence, const EmployeeRecord& record)
{
    QStringList reminders;
    InOpenYear(datAbsence, [&] {
        EmployeeRow row = WrittenRow(record);
        row.FiscalYear = SessionState.FiscalYearID;
        reminders = CreateEntitlements(datAbsence, record, Add(datAbsence, row));
        EmployeesListToBeReloaded(datAbsence);
    });
    return reminders;
}

namespace
{
/// By somebody else, while he stood in the form.
bool WasDeactivated(DataControl& datAbsence, const EmployeeRecord& record)
{
    return datAbsence.Scalar<int>("SELECT DeactivatedDate FROM Employees WHERE RecordID = ?", record.RecordID) > 0;
}
} // namespace

void ModifyEmployee(DataControl& datAbsence, const EmployeeRecord& record)
{
    InOpenYear(datAbsence, [&] {
        EmployeeRow row = WrittenRow(record);
        for (const auto kept : kKept)
            row.*kept = record.Loaded.*kept;
        row.Title = record.Loaded.Title;
        row.LoggedIn = record.Loaded.LoggedIn;
        if (WasDeactivated(datAbsence, record)) {
            row.DeactivatedBy = record.Loaded.DeactivatedBy;
            row.ReasonForDeactivation = record.Loaded.ReasonForDeactivation;
        }
        Change(datAbsence, record.Loaded, row);
        EmployeesListToBeReloaded(datAbsence);
    });
}
