#include "calendar/year_change.h"

#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/start_up.h"

namespace
{
/// Everything that the session knows of the current year moves one place on.
void Shift(Neighbour direction)
{
    Session& s = SessionState;
    if (direction == Neighbour::Next) {
        s.PreviousFYID = s.FiscalYearID;
        s.PreviousFYName = s.FiscalYearName;
        s.FiscalYearID = s.NextFYID;
        s.FiscalYearName = s.NextFYName;
    } else {
        s.NextFYID = s.FiscalYearID;
        s.NextFYName = s.FiscalYearName;
        s.FiscalYearID = s.PreviousFYID;
        s.FiscalYearName = s.PreviousFYName;
    }
}

void ShowNoUnit()
{
    Session& s = SessionState;
    s.EmployeeID = s.UserID;
    s.EmployeeOrganizationID = 0;
    s.EmployeeDepartmentID = 0;
    s.EmployeeGroupID = 0;
}

bool TakeUserOfYear(DataControl& datAbsence, int year, const QString& name,
                    const std::function<bool(int, const QString&)>& logIn)
{
    if (const auto user = First<EmployeeRow>(datAbsence, "LoginID = ? AND FiscalYear = ? AND DeactivatedDate = 0",
                                             SessionState.LoginID, year)) {
        TakeUser(*user);
        return true;
    }
    if (SessionState.LoginID != "ADMIN")
        return logIn(year, name);
    ShowNoUnit();
    return true;
}
} // namespace

bool ChangeYear(DataControl& datAbsence, Neighbour direction, const std::function<bool(int, const QString&)>& logIn)
{
    Session& s = SessionState;
    const bool next = direction == Neighbour::Next;
    if (!TakeUserOfYear(datAbsence, next ? s.NextFYID : s.PreviousFYID, next ? s.NextFYName : s.PreviousFYName, logIn))
        return false;
    Shift(direction);
    if (const auto year = Find<FiscalYearRow>(datAbsence, s.FiscalYearID))
        TakeFiscalYear(*year);
    if (next)
        FindNextYear(datAbsence);
    else
        FindPreviousYear(datAbsence);
    s.CurrentSelection = s.LoginID == "ADMIN" ? s.LoginID : s.UserName;
    return true;
}

void LoadEmployeeInfo(DataControl& datAbsence)
{
    Session& s = SessionState;
    const Connection connection(datAbsence);
    static_cast<WorkSchedule&>(s) = WorkSchedule();
    const auto employee = Find<EmployeeRow>(datAbsence, s.EmployeeID);
    if (!employee)
        return;
    s.EmployeeOrganizationID = employee->OrganizationID;
    s.EmployeeDepartmentID = employee->DepartmentID;
    s.EmployeeGroupID = employee->GroupID;
    TakeSchedule(*employee, s);
}
