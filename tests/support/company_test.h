#pragma once

#include "support/user.h"

#include <gmock/gmock.h>

/// A company of five: Anna and Bruno assemble in Production, Carla works there without a group, Dan sells; Eva is with
/// the other organization. ADMIN is logged in.
class CompanyTest : public testing::Test
{
protected:
    CompanyTest()
    {
        house.Configured().Company();
        anna = house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly"});
        house.Hire({"BRUNO", "Bruno", "Bell", "Production", "Assembly"});
        house.Hire({"CARLA", "Carla", "Cote", "Production"});
        dan = house.Hire({"DAN", "Dan", "Dube", "Sales"});
        eva = house.Hire({"EVA", "Eva", "Ellis", "Stores"});
        house.LogIn("ADMIN");
    }

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
    DataControl datAbsence{"CompanyTest"};
    int anna = 0;
    int dan = 0;
    int eva = 0;
};
