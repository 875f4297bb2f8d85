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
    if (datAbsence.Read("SELECT * FROM Employees WHERE LoginID = ? AND FiscalYear = ? AND DeactivatedDate = 0",
                        SessionState.LoginID, year)) {
        TakeUser(datAbsence.Records);
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
    if (datAbsence.Read("SELECT * FROM FiscalYears WHERE RecordID = ?", s.FiscalYearID))
        TakeFiscalYear(datAbsence.Records);
    if (next)
        FindNextYear(datAbsence);
    else
        FindPreviousYear(datAbsence);
    s.CurrentSelection = s.LoginID == "ADMIN" ? s.LoginID : s.UserName;
    return true;
}

void LoadEmployeeInfo_ACCESS(DataControl& datAbsence)
{
    Session& s = SessionState;
    const Connection connection(datAbsence);
    static_cast<WorkSchedule&>(s) = WorkSchedule();
    if (s.EmployeeID == 0 || !datAbsence.Read("SELECT * FROM Employees WHERE RecordID = ?", s.EmployeeID))
        return;
    datAbsence.Take("OrganizationID", s.EmployeeOrganizationID);
    datAbsence.Take("DepartmentID", s.EmployeeDepartmentID);
    datAbsence.Take("GroupID", s.EmployeeGroupID);
    ReadSchedule(datAbsence.Records, s);
}

void LoadEmployeeInfo_SQL(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
}
