#include "foundation/session_rows.h"

#include "foundation/connection.h"

#include <algorithm>

void ReadRights(const Recordset& employee, SecurityProfile& profile)
{
    for (const auto& [column, member] : kRights)
        employee.Take(column, profile.*member);
}

void ReadSchedule(const Recordset& employee, WorkSchedule& schedule)
{
    for (const auto& [column, member, weekday] : kClockTimes)
        employee.Take(column, (schedule.*member)[weekday]);
    for (const auto& [column, member, weekday] : kDayLengths)
        employee.Take(column, (schedule.*member)[weekday]);
    float daily = 0;
    employee.Take("HoursWorkedDaily", daily);
    if (daily > 0)
        schedule.HoursWorkedDaily = daily;
    schedule.HasSchedule =
        std::any_of(schedule.HoursWorked.begin(), schedule.HoursWorked.end(), [](float hours) { return hours != 0; });
}

void TakeUser(const Recordset& employee)
{
    Session& s = SessionState;
    employee.Take("RecordID", s.UserID);
    s.EmployeeID = s.UserID;
    employee.Take("AttendanceApprovedBy_Main", s.UserApprovedBy);
    employee.Take("OrganizationID", s.UserOrganizationID);
    employee.Take("DepartmentID", s.UserDepartmentID);
    employee.Take("GroupID", s.UserGroupID);
    s.EmployeeOrganizationID = s.UserOrganizationID;
    s.EmployeeDepartmentID = s.UserDepartmentID;
    s.EmployeeGroupID = s.UserGroupID;
    ReadRights(employee, s);
}

void TakeFiscalYear(const Recordset& year)
{
    year.Take("RecordID", SessionState.FiscalYearID);
    year.Take("FiscalYearName", SessionState.FiscalYearName);
    year.Take("CommencingDate", SessionState.CommencingDate);
    year.Take("EndingDate", SessionState.EndingDate);
    year.Take("ClosedDate", SessionState.ClosedDate);
}

void LoadAdministratorInfo(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    if (!datAbsence.Read("SELECT * FROM Employees WHERE LoginID = 'ADMIN' AND FiscalYear = 0"))
        return;
    SessionState.AdminName =
        (datAbsence.Records.Text("FirstName").trimmed() + " " + datAbsence.Records.Text("FamilyName").trimmed())
            .trimmed();
    datAbsence.Take("EMailAddress", SessionState.AdminEMail);
}
