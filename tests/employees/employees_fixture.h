#pragma once

#include "support/house_test.h"

/// A company with Marc, head of Production and approver, and Chris of its group Assembly; ADMIN is logged in.
class EmployeesTest : public HouseTest
{
protected:
    EmployeesTest()
    {
        house.Configured().Company();
        const QStringList rights = {"DepartmentLevelRead", "DepartmentLevelCreate", "GroupLevelRead",
                                    "GroupLevelCreate",    "IsAuthorizedToApprove", "AccessToEmployeesModule",
                                    "CanViewComments"};
        marc = house.Hire({"MARC", "Marc", "Roy", "Production", "", rights});
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly", {"SelfLevelRead"}, marc, 20.55F});
        house.LogIn("ADMIN");
    }
    /// What a statement says of Chris.
    void Alters(const QString& assignments)
    {
        house.Sql("UPDATE Employees SET " + assignments + " WHERE RecordID = ?", {chris});
    }

    int marc = 0;
    int chris = 0;
};
