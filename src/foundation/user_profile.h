#pragma once

#include "platform/dao/dao.h"

/// True when this is the user's password; letter case does not count.
bool IsUserPassword(DataControl& datAbsence, const QString& password);
/// Gives the user, in the fiscal year of the session, a new password, kept in upper case. Throws RuntimeError.
void SetUserPassword(DataControl& datAbsence, const QString& password);

/// Keeps the session's language as the user's own. Throws when it cannot be written.
void SetUserLanguage(DataControl& datAbsence);

/// What the administrator tells about himself.
struct AdministratorInfo
{
    QString FamilyName;
    QString FirstName;
    QString PhoneOffice;
    QString EMailAddress;
};

AdministratorInfo ReadAdministratorInfo(DataControl& datAbsence);
/// Writes the ADMIN row; the name and address that messages quote follow. Throws RuntimeError.
void WriteAdministratorInfo(DataControl& datAbsence, const AdministratorInfo& info);
