#include "foundation/session_rows.h"

#include "foundation/connection.h"
#include "foundation/names.h"

#include <algorithm>

void TakeSchedule(const WorkSchedule& employee, WorkSchedule& schedule)
{
    const float daily = employee.HoursWorkedDaily > 0 ? employee.HoursWorkedDaily : schedule.HoursWorkedDaily;
    schedule = employee;
    schedule.HoursWorkedDaily = daily;
    schedule.HasSchedule =
        std::any_of(schedule.HoursWorked.begin(), schedule.HoursWorked.end(), [](float hours) { return hours != 0; });
}

void TakeUser(const EmployeeRow& employee)
{
    Session& s = SessionState;
    s.UserID = s.EmployeeID = employee.RecordID;
    s.UserApprovedBy = employee.ApprovedByMain;
    s.UserEMail = employee.EMailAddress;
    s.UserOrganizationID = s.EmployeeOrganizationID = employee.OrganizationID;
    s.UserDepartmentID = s.EmployeeDepartmentID = employee.DepartmentID;
    s.UserGroupID = s.EmployeeGroupID = employee.GroupID;
    static_cast<SecurityProfile&>(s) = employee;
}

void TakeFiscalYear(const FiscalYearRow& year)
{
    SessionState.FiscalYearID = year.RecordID;
    SessionState.FiscalYearName = year.FiscalYearName;
    SessionState.CommencingDate = year.CommencingDate;
    SessionState.EndingDate = year.EndingDate;
    SessionState.ClosedDate = year.ClosedDate;
}

void RereadClosing(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    datAbsence.Select("SELECT ClosedDate FROM FiscalYears WHERE RecordID = ?", SessionState.FiscalYearID)
        .Take("ClosedDate", SessionState.ClosedDate);
}

void InOpenYear(DataControl& datAbsence, const std::function<void()>& work, Transaction::OnFailure onFailure)
{
    InTransaction(
        datAbsence,
        [&] {
            RereadClosing(datAbsence);
            if (SessionState.ClosedDate > 0)
                throw YearClosed();
            work();
        },
        onFailure);
}

Kept InOpenYearOneByOne(DataControl& datAbsence, qsizetype count, const std::function<void(qsizetype)>& work)
{
    Kept kept;
    const auto writeEach = [&] {
        try {
            for (; kept.Done < count; ++kept.Done)
                work(kept.Done);
        } catch (const RuntimeError&) {
            kept.Failure = std::current_exception();
        }
    };
    try {
        InOpenYear(datAbsence, writeEach);
    } catch (const RuntimeError&) {
        kept = {0, std::current_exception()}; // what cannot be committed is undone
    }
    return kept;
}

void ThrowAgain(const std::exception_ptr& failure, const QString& more)
{
    try {
        std::rethrow_exception(failure);
    } catch (RuntimeError& error) {
        error.Description += more;
        throw;
    }
}

std::optional<EmployeeRow> FindAdministrator(DataControl& datAbsence)
{
    return First<EmployeeRow>(datAbsence, "LoginID = 'ADMIN' AND FiscalYear = 0");
}

void LoadAdministratorInfo(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    if (const auto administrator = FindAdministrator(datAbsence)) {
        SessionState.AdminName = FullName(administrator->FirstName, administrator->FamilyName);
        SessionState.AdminEMail = administrator->EMailAddress;
    }
}
