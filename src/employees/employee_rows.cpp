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

/// The text columns with their fields.
struct TextColumn
{
    const char* Column;
    QString EmployeeRecord::*Member;
};
constexpr TextColumn kTextColumns[] = {
    {"FamilyName", &EmployeeRecord::FamilyName},       {"FirstName", &EmployeeRecord::FirstName},
    {"EmployeeID", &EmployeeRecord::EmployeeID},       {"AddressLine1", &EmployeeRecord::AddressLine1},
    {"AddressLine2", &EmployeeRecord::PostalCode},     {"City", &EmployeeRecord::City},
    {"ProvinceState", &EmployeeRecord::ProvinceState}, {"Country", &EmployeeRecord::Country},
    {"PhoneHome", &EmployeeRecord::PhoneHome},         {"PhoneOffice", &EmployeeRecord::PhoneOffice},
    {"EMailAddress", &EmployeeRecord::EMailAddress},   {"Comment", &EmployeeRecord::Comment},
};

struct NumberColumn
{
    const char* Column;
    int EmployeeRecord::*Member;
};
constexpr NumberColumn kNumberColumns[] = {
    {"DeactivatedDate", &EmployeeRecord::DeactivatedDate},
    {"AttendanceApprovedBy_Main", &EmployeeRecord::ApprovedByMain},
    {"AttendanceApprovedBy_Backup", &EmployeeRecord::ApprovedByBackup},
};
struct DateColumn
{
    const char* Column;
    int EmployeeRecord::*Member;
    DateEntry EmployeeRecord::*Entry;
};
constexpr DateColumn kDateColumns[] = {
    {"DateOfBirth", &EmployeeRecord::DateOfBirth, &EmployeeRecord::Birth},
    {"DateOfHire", &EmployeeRecord::DateOfHire, &EmployeeRecord::Hire},
};
/// Written by Add alone: later only a transfer changes them.
constexpr NumberColumn kUnitColumns[] = {
    {"OrganizationID", &EmployeeRecord::OrganizationID},
    {"DepartmentID", &EmployeeRecord::DepartmentID},
    {"GroupID", &EmployeeRecord::GroupID},
};

DateEntry EntryOf(int serial)
{
    if (serial <= 0)
        return {};
    const QDate date = DateOfSerial(serial);
    return {QString::number(date.year()), QString::number(date.month()), QString::number(date.day())};
}

void TakeLogIn(const Recordset& row, EmployeeRecord& record)
{
    record.LoginID = row.Text(row.IsNull("LoginID") ? "Username" : "LoginID").trimmed();
    row.Take("Password", record.KeptPassword);
    row.Take("HourlyRate", record.PreviousHourlyRate);
    record.HourlyRate = FormatNumber(record.PreviousHourlyRate, 2);
}

void TakeRow(const Recordset& row, EmployeeRecord& record)
{
    for (const auto& [column, member] : kTextColumns)
        record.*member = row.Text(column).trimmed();
    for (const auto& [column, member] : kNumberColumns)
        row.Take(column, record.*member);
    for (const auto& [column, member] : kUnitColumns)
        row.Take(column, record.*member);
    row.Take("DeactivatedBy", record.DeactivatedBy);
    for (const auto& [column, member, entry] : kDateColumns) {
        row.Take(column, record.*member);
        record.*entry = EntryOf(record.*member);
    }
    TakeLogIn(row, record);
    ReadRights(row, record);
    CompleteLoadedRights(record);
    ReadSchedule(row, record);
    ShowDayLengths(record);
}

void AppendSchedule(RowValues& values, const WorkSchedule& schedule)
{
    for (const auto& [column, member, weekday] : kDayLengths)
        values.push_back({column, (schedule.*member)[weekday]});
    for (const auto& [column, member, weekday] : kClockTimes)
        values.push_back({column, (schedule.*member)[weekday]});
    values.push_back({"HoursWorkedDaily", schedule.HoursWorkedDaily});
}

void AppendRights(RowValues& values, SecurityProfile profile)
{
    CompleteLoadedRights(profile);
    for (const auto& [column, member] : kRights)
        values.push_back({column, profile.*member == 1 ? 1 : 0});
}

RowValues NewRow(const EmployeeRecord& record)
{
    RowValues values = {{"FiscalYear", SessionState.FiscalYearID}};
    for (const auto& [column, member] : kUnitColumns)
        values.push_back({column, record.*member});
    for (const ColumnValue& value : EmployeeColumns(record))
        values.push_back(value);
    return values;
}
} // namespace

void CountEmployees(DataControl& datAbsence, int& count)
{
    const Connection connection(datAbsence);
    if (datAbsence.Read("SELECT COUNT(RecordID) AS Empl FROM Employees WHERE DeactivatedDate = 0 AND FiscalYear = ?",
                        SessionState.FiscalYearID))
        datAbsence.Take("Empl", count);
}

bool LoadEmployeeRecord_ACCESS(DataControl& datAbsence, EmployeeRecord& record)
{
    const int employee = record.RecordID;
    record = {};
    const Connection connection(datAbsence);
    if (!datAbsence.Read("SELECT * FROM Employees WHERE RecordID = ?", employee))
        return false;
    record.RecordID = employee;
    TakeRow(datAbsence.Records, record);
    return true;
}

bool LoadEmployeeRecord_SQL()
{
    TellAlreadyInactive();
    return false;
}

void TellAlreadyInactive()
{
    Tell(T("UNABLE TO PROCEED:", "CETTE OPÉRATION NE PEUT ÊTRE COMPLÉTÉE:"),
         T("The selected employee record is already inactive!",
           "L'employé(e) que vous venez de sélectionner est déjà inactif(ve)!"),
         Face::Warning);
}

bool IsLoginIDTaken(DataControl& datAbsence, const EmployeeRecord& record)
{
    const QString name = record.LoginID.trimmed().toUpper();
    const Connection connection(datAbsence);
    return name == "ADMIN" ||
           datAbsence.Read("SELECT * FROM Employees WHERE LoginID = ? AND RecordID <> ? AND FiscalYear = ?", name,
                           record.RecordID, SessionState.FiscalYearID);
}

bool HasNamesake(DataControl& datAbsence, const EmployeeRecord& record, bool modifying)
{
    const Connection connection(datAbsence);
    const int self = modifying ? record.RecordID : 0;
    return datAbsence.Read("SELECT * FROM Employees WHERE FamilyName = ? AND FirstName = ? AND FiscalYear = ? AND "
                           "OrganizationID = ? AND DeactivatedDate = 0 AND (? = 0 OR DepartmentID = ?) AND "
                           "RecordID <> ?",
                           record.FamilyName, record.FirstName, SessionState.FiscalYearID, record.OrganizationID,
                           record.DepartmentID, record.DepartmentID, self);
}

RowValues EmployeeColumns(const EmployeeRecord& record)
{
    RowValues values;
    for (const auto& [column, member] : kTextColumns)
        values.push_back({column, record.*member});
    for (const auto& [column, member] : kNumberColumns)
        values.push_back({column, record.*member});
    for (const auto& [column, member, entry] : kDateColumns)
        values.push_back({column, (record.*entry).IsFilled() ? record.*member : 0});
    const RowValues others = {
        {"DateEntered", Today()},
        {"EnteredBy", Who()},
        {"DeactivatedBy", QString(" ")},
        {"ReasonForDeactivation", QString(" ")},
        {"EmployeeType", 0},
        {"HourlyRate", Val(record.HourlyRate)},
        {"PreviousID", 0}, // cuts the link to the year before, also on a modification; that is kept
        {"IsAllowedToCarryOverVacation", 0},
        {"IsAllowedToCarryOverTimeBanked", 0},
        {"LoginID", record.LoginID},
        {"Username", record.LoginID.left(kUsernameWidth)},
        {"Password", record.Password.isEmpty() ? record.KeptPassword : record.Password},
    };
    values.insert(values.end(), others.begin(), others.end());
    AppendSchedule(values, record);
    AppendRights(values, record);
    return values;
}

EntitlementReminders AddEmployee(DataControl& datAbsence, const EmployeeRecord& record)
{
    EntitlementReminders reminders;
    WriteAtOnce(datAbsence, [&] {
        const int employee = AddRow(datAbsence, "Employees", NewRow(record));
        reminders = CreateEntitlements(datAbsence, record, employee);
        EmployeesListToBeReloaded(datAbsence);
    });
    return reminders;
}

void ModifyEmployee(DataControl& datAbsence, const EmployeeRecord& record)
{
    RowValues values = EmployeeColumns(record);
    values.push_back({"ModifiedBy", Who()});
    values.push_back({"ModifiedDate", Today()});
    WriteAtOnce(datAbsence, [&] {
        LogEmployeeModification(datAbsence, record.RecordID);
        WriteRow(datAbsence, "Employees", record.RecordID, values);
        EmployeesListToBeReloaded(datAbsence);
    });
}

void LogEmployeeModification(DataControl& datAbsence, int employee)
{
    try {
        CopyToAuditTwin(datAbsence, "Employees", employee);
    } catch (const RuntimeError&) {
        return;
    }
}

void WriteAtOnce(DataControl& datAbsence, const std::function<void()>& work)
{
    const Connection connection(datAbsence);
    if (SessionState.SQL_Server)
        return work();
    Batch batch(datAbsence.Engine());
    try {
        work();
        batch.Commit();
    } catch (const RuntimeError&) {
        batch.Rollback();
        throw;
    }
}
