#pragma once

#include "platform/clock.h"
#include "support/house_test.h"

/// Marie assembles in Production and Dan sells; both have a limit in three categories. ADMIN is logged in.
class LedgerTest : public HouseTest
{
protected:
    LedgerTest()
    {
        house.Configured().Company();
        marie = house.Hire({"MARIE", "Marie", "Roy", "Production", "Assembly"});
        dan = house.Hire({"DAN", "Dan", "Dube", "Sales"});
        house.Hire({"EVA", "Eva", "Ellis", "Stores"});
        for (const char* name : {"Vacation", "Sick", "Personal time"}) {
            house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE SystemName = ?", {name});
            Entitle(marie, name, 0, 70);
            Entitle(dan, name, 7.5F, 35);
        }
        house.LogIn("ADMIN");
    }
    int Entitle(int employee, const QString& systemName, float carriedOver, float annual, bool active = true)
    {
        return house.Sql("INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, CarriedOver, "
                         "AnnualEntitlement, EnteredBy, EnteredDate, Active, Comment) VALUES (1, ?, ?, ?, ?, 'ADMIN', "
                         "46023, ?, 'SYSTEM GENERATED')",
                         {house.CategoryID(systemName), employee, carriedOver, annual, active ? 1 : 0});
    }
    QString Ledger(int employee)
    {
        return house.Rows("SELECT CarriedOver, AnnualEntitlement, MayBeCarriedOver, ModifiedBy, ModifiedDate FROM "
                          "Entitlements WHERE EmployeeID = ? ORDER BY RecordID",
                          {employee});
    }

    int marie = 0;
    int dan = 0;
};
