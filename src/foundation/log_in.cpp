#include "foundation/log_in.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
constexpr int kEmployeeTimeOut = 840;
constexpr int kAdminTimeOut = 3540;
constexpr int kExperiencedUser = 25;

std::optional<EmployeeRow> FindUser(DataControl& datAbsence, int fiscalYear)
{
    const Session& s = SessionState;
    if (s.LoginID == "ADMIN")
        return First<EmployeeRow>(datAbsence, "LoginID = 'ADMIN' AND FiscalYear = 0 AND Password = ?", s.UserPassword);
    return First<EmployeeRow>(datAbsence, "LoginID = ? AND Password = ? AND FiscalYear = ? AND DeactivatedDate = 0",
                              s.LoginID, s.UserPassword, fiscalYear);
}

void TakeName(const EmployeeRow& employee)
{
    Session& s = SessionState;
    const bool isAdmin = s.LoginID == "ADMIN";
    s.UserName = isAdmin ? QString() : employee.FirstName.trimmed() + " " + employee.FamilyName.trimmed();
    s.CurrentSelection = isAdmin ? s.LoginID : s.UserName;
    s.TimeOutSeconds = isAdmin ? kAdminTimeOut : kEmployeeTimeOut;
}

void NoteLogIn(DataControl& datAbsence, double moment)
{
    Set<EmployeeRow>(datAbsence, SessionState.UserID, {{&EmployeeRow::LoggedIn, moment}});
}
} // namespace

bool LogInUser(DataControl& datAbsence, int fiscalYear)
{
    const auto user = FindUser(datAbsence, fiscalYear);
    if (!user)
        return false;
    TakeUser(*user);
    TakeName(*user);
    SessionState.English = user->Language == 0;
    NoteLogIn(datAbsence, Now());
    SessionState.ShowSelectHint = true;
    if (SessionState.GroupLevelCreate == 1 || SessionState.SelfLevelCreate == 1)
        SessionState.ShowSelectHint = !CountAttenceRecords(datAbsence);
    return true;
}

bool CountAttenceRecords(DataControl& datAbsence)
{
    const Recordset batches = datAbsence.Select(
        "SELECT DISTINCT EnteredDate, CategoryID FROM Attendance WHERE EnteredBy = ? COLLATE BINARY LIMIT ?",
        UserStamp(), kExperiencedUser + 1);
    return batches.RecordCount() > kExperiencedUser;
}

void LogOutUser(DataControl& datAbsence)
{
    try {
        TryToConnect(datAbsence);
        NoteLogIn(datAbsence, 0);
        DisconnectFromDatabase(datAbsence);
    } catch (const RuntimeError&) {
        // Nothing reads LoggedIn; a database that is gone must not keep the program from ending.
    }
}

void TellWhenYearIsClosed()
{
    if (SessionState.ClosedDate <= 0)
        return;
    Tell(T("FISCAL YEAR CLOSED:", "ANNÉE FISCALE FERMÉE:"),
         Fill(T("Fiscal year {FiscalYearName} was closed on {ClosedDate}.\r\n\r\nYou can no longer allowed to add or "
                "modify records within that fiscal year.",
                "L'année fiscale {FiscalYearName} a été fermée le {ClosedDate}.\r\n\r\nLes ajoûts ou modifications à "
                "l'intérieur de cette année fiscale ne sont plus permis."),
              {{"FiscalYearName", SessionState.FiscalYearName},
               {"ClosedDate", FormatDate(SessionState.ClosedDate, "ddd dd-mmm-yyyy")}}),
         Face::Warning);
}
