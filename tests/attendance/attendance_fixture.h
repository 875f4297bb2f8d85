#pragma once

#include "attendance/attendance_records.h"
#include "platform/clock.h"
#include "support/house.h"
#include "support/user.h"

#include <gtest/gtest.h>

/// A company with an employee (who may only ask for leave) and Marc, his supervisor and approver; ADMIN is logged in.
class AttendanceTest : public testing::Test
{
protected:
    AttendanceTest()
    {
        house.Configured().Company();
        marc =
            house.Hire({"MARC", "Marc", "Roy", "Production", "", {"DepartmentLevelCreate", "DepartmentLevelModify"}});
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly", {"SelfLevelRead"}, marc, 20.55F});
        house.LogIn("ADMIN");
    }

    /// The operation on days of March 2026 (the second one is a Monday), for an employee in a category.
    void Begin(const QVector<int>& days, int employee, const QString& systemName)
    {
        entry = AttendanceEntry();
        Select(days);
        entry.EmployeeID = employee;
        entry.SelectedCategoryID = systemName.isEmpty() ? 0 : house.CategoryID(systemName);
    }
    void Select(const QVector<int>& days)
    {
        entry.Dates.clear();
        for (const int day : days)
            entry.Dates << SerialOfDate({2026, 3, day});
    }
    int Record(int employee, const QString& systemName, int day, float hours, bool pending = false)
    {
        return house.Record(employee, systemName, {2026, 3, day}, hours, pending);
    }
    void Entitle(int employee, const QString& systemName, float carriedOver, float annual)
    {
        house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE SystemName = ?", {systemName});
        house.Sql(
            "INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, CarriedOver, AnnualEntitlement, Active) "
            "VALUES (1, ?, ?, ?, ?, 1)",
            {house.CategoryID(systemName), employee, carriedOver, annual});
    }
    void Cancel(int record) { house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?", {record}); }

    House house;
    User user;
    DataControl datAbsence{"AttendanceTest"};
    AttendanceEntry entry; ///< the job of the form, or what the rules work on
    int marc = 0;
    int chris = 0;
};
