#pragma once

#include "support/user.h"

#include <gmock/gmock.h>

/// A test in a house of its own, with a user at its forms.
class HouseTest : public testing::Test
{
protected:
    /// Logs in an employee with further rights.
    void Grant(const QString& loginID, const QStringList& rights)
    {
        for (const QString& right : rights)
            house.Sql("UPDATE Employees SET " + right + " = 1 WHERE LoginID = ?", {loginID});
        house.LogIn(loginID);
    }
    void Dismiss(const QString& loginID)
    {
        house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE LoginID = ?", {loginID});
    }
    /// The list of employees of the year is to be rebuilt by whoever reads it next.
    int ListFlag() { return house.Number("SELECT ReloadEmployeesList FROM FiscalYears WHERE RecordID = 1"); }

    House house;
    User user;
    DataControl datAbsence{"HouseTest"};
};
