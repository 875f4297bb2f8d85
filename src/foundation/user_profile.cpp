#include "foundation/user_profile.h"

#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"

bool IsUserPassword(DataControl& datAbsence, const QString& password)
{
    const Connection connection(datAbsence);
    const auto user = Find<EmployeeRow>(datAbsence, SessionState.UserID);
    return user && user->Password.toUpper() == password.toUpper();
}

void SetUserPassword(DataControl& datAbsence, const QString& password)
{
    const Connection connection(datAbsence);
    Set<EmployeeRow>(datAbsence, SessionState.UserID, {{&EmployeeRow::Password, password.toUpper()}});
    SessionState.UserPassword = password.toUpper();
}

void SetUserLanguage(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    Set<EmployeeRow>(datAbsence, SessionState.UserID, {{&EmployeeRow::Language, SessionState.English ? 0 : 1}});
}

AdministratorInfo ReadAdministratorInfo(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    const EmployeeRow administrator = FindAdministrator(datAbsence).value_or(EmployeeRow());
    return {administrator.FamilyName, administrator.FirstName, administrator.PhoneOffice,
            administrator.EMailAddress.trimmed()}; // a new database holds one blank
}

void WriteAdministratorInfo(DataControl& datAbsence, const AdministratorInfo& info)
{
    const Connection connection(datAbsence);
    Set<EmployeeRow>(datAbsence, FindAdministrator(datAbsence).value_or(EmployeeRow()).RecordID,
                     {{&EmployeeRow::FamilyName, info.FamilyName},
                      {&EmployeeRow::FirstName, info.FirstName},
                      {&EmployeeRow::PhoneOffice, info.PhoneOffice},
                      {&EmployeeRow::EMailAddress, info.EMailAddress}});
    LoadAdministratorInfo(datAbsence);
}
