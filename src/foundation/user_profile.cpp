#include "foundation/user_profile.h"

#include "foundation/connection.h"
#include "foundation/rows.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"

bool IsUserPassword(DataControl& datAbsence, const QString& password)
{
    const Connection connection(datAbsence);
    return datAbsence.Read("SELECT * FROM Employees WHERE RecordID = ?", SessionState.UserID) &&
           datAbsence.Records.Text("Password").toUpper() == password.toUpper();
}

void SetUserPassword(DataControl& datAbsence, const QString& password)
{
    const Connection connection(datAbsence);
    WriteRow(datAbsence, "Employees", SessionState.UserID, {{"Password", password.toUpper()}});
    SessionState.UserPassword = password.toUpper();
}

void SetUserLanguage(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    WriteRow(datAbsence, "Employees", SessionState.UserID, {{"Language", SessionState.English ? 0 : 1}});
}

AdministratorInfo ReadAdministratorInfo(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    AdministratorInfo info;
    if (datAbsence.Read("SELECT * FROM Employees WHERE LoginID = 'ADMIN'")) {
        datAbsence.Take("FamilyName", info.FamilyName);
        datAbsence.Take("FirstName", info.FirstName);
        datAbsence.Take("PhoneOffice", info.PhoneOffice);
        datAbsence.Take("EMailAddress", info.EMailAddress);
    }
    info.EMailAddress = info.EMailAddress.trimmed(); // a new database holds one blank
    return info;
}

void WriteAdministratorInfo(DataControl& datAbsence, const AdministratorInfo& info)
{
    const Connection connection(datAbsence);
    int administrator = 0;
    if (datAbsence.Read("SELECT * FROM Employees WHERE LoginID = 'ADMIN'"))
        datAbsence.Take("RecordID", administrator);
    WriteRow(datAbsence, "Employees", administrator,
             {{"FamilyName", info.FamilyName},
              {"FirstName", info.FirstName},
              {"PhoneOffice", info.PhoneOffice},
              {"EMailAddress", info.EMailAddress}});
    LoadAdministratorInfo(datAbsence);
}
