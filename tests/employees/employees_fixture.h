#pragma once

#include "employees/frm_employees.h"
#include "selection/frm_select_employee.h"
#include "support/house.h"
#include "support/user.h"

#include <gtest/gtest.h>

/// A company with Marc, head of Production and approver, and Chris of its group Assembly; ADMIN is logged in.
class EmployeesTest : public testing::Test
{
protected:
    EmployeesTest()
    {
        house.Configured().Company();
        marc = house.Hire({"MARC",
                           "Marc",
                           "Roy",
                           "Production",
                           "",
                           {"DepartmentLevelRead", "DepartmentLevelCreate", "GroupLevelRead", "GroupLevelCreate",
                            "IsAuthorizedToApprove", "AccessToEmployeesModule", "CanViewComments"}});
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly", {"SelfLevelRead"}, marc, 20.55F});
        house.LogIn("ADMIN");
    }

    /// The employee of that family name will be chosen from the list that opens next.
    User& WillChoose(const QString& familyName)
    {
        return user.WhenOpens<frmSelectEmployee>(
            [this, familyName](frmSelectEmployee&) { user.Picks("lstEmployees", familyName).Clicks("cmdSelect"); });
    }

    QString EmployeeCell(const QString& column, int employee)
    {
        return house.Cell(QStringLiteral("SELECT %1 FROM Employees WHERE RecordID = ?").arg(column), {employee});
    }

    House house;
    User user;
    DataControl datAbsence{"EmployeesTest"};
    int marc = 0;
    int chris = 0;
};
