#include "attendance/attendance_records.h"
#include "employees/approver_list.h"
#include "employees/employee_deactivation.h"
#include "employees/employee_rows.h"
#include "employees/hourly_rate.h"
#include "employees/transfer_employee.h"
#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/user_profile.h"
#include "platform/dao/server.h"
#include "reference/employees_list.h"
#include "reference/unit_records.h"
#include "reference/unit_row.h"
#include "support/house.h"

#include <gtest/gtest.h>

namespace
{
constexpr int kMonday = 46083; // 2 March 2026

/// The server back end is chosen. Whatever the routines write is a statement in `sent`, and nothing reaches the file.
class ServerTwin : public testing::Test
{
protected:
    ServerTwin()
    {
        house.Configured().Company();
        record.RecordID = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly"});
        house.LogIn("ADMIN");
        EXPECT_TRUE(LoadEmployeeRecord_ACCESS(datAbsence, record));
        before = Everything();
        SetServerSink([this](const QString& statement) { sent << statement; });
        SessionState.SQL_Server = true;
    }
    ~ServerTwin() override { EXPECT_EQ(Everything(), before); }
    QString Everything()
    {
        QStringList rows;
        for (const char* table : {"Organizations", "Departments", "Groups", "Employees", "Attendance", "Entitlements",
                                  "FiscalYears", "Employees_List", "Employees_Modifications"})
            rows << house.Rows(QStringLiteral("SELECT * FROM %1").arg(table));
        return rows.join('/');
    }
    QString Sent()
    {
        const QString all = sent.join('\n');
        sent.clear();
        return all;
    }

    House house;
    DataControl datAbsence{"ServerTwin"};
    QStringList sent;
    QString before;
    EmployeeRecord record;
};

TEST_F(ServerTwin, AttendanceIsSentWithoutItsCosts)
{
    house.Today(2026, 3, 2, 18);
    AttendanceEntry entry;
    entry.Dates = {kMonday};
    entry.EmployeeID = 3;
    entry.SelectedCategoryID = 2;
    entry.RecordToModify = 7;
    entry.EmployeeDepartmentID = 1;
    entry.FirstApprover = 4;
    entry.Comment = "flu ";
    entry.StartTime = 8.3F;
    entry.EndTime = 10.5F;
    entry.Duration = entry.TotalDuration = 2.5F;
    SubmitAttendance(datAbsence, entry);
    ModifyAttendance(datAbsence, entry);
    NewAttendance(datAbsence, entry);
    LoadEmployeeInfo(datAbsence, entry);

    const TableShape& table = kTable<AttendanceRow>;
    const QString columns = table.Columns.mid(0, table.Columns.size() - table.FileOnly).join(", ");
    const QString head = "INSERT INTO Attendance (" + columns +
                         ") VALUES (1, 3, 0, 1, 0, 2, 46083, 2.5, 8.3, 10.5, 1, 2.5, 0, 'flu', 0, ";
    const QString tail = ", 0, 0, '', 0, '', '', 'ADMIN', 46083, '', 0, '', 0)\n";
    EXPECT_EQ(sent.join('\n'),
              head + QStringLiteral("1, 46083.75, %1, 4, 0").arg(SessionState.UserID) + tail +
                  "INSERT INTO Attendance_Modifications (RecordID, " + columns +
                  ") SELECT * FROM Attendance WHERE RecordID = 7\n"
                  "UPDATE Attendance SET CategoryID = 2, Duration = 2.5, StartTime = 8.3, EndTime = 10.5, "
                  "TimeMultiplicator = 1, TotalDuration = 2.5, WholeDay = 0, Comment = 'flu', Justified = 0, "
                  "ModifiedBy = 'ADMIN', ModifiedDate = 46083 WHERE RecordID = 7\n" +
                  head + "0, 0, 0, 0, 0" + tail + "SELECT * FROM Employees WHERE RecordID = 3");
}

TEST_F(ServerTwin, UnitsAreMovedAndReactivated)
{
    UnitEntry unit;
    unit.RecordID = 2;
    unit.EnglishName = "Sales";
    unit.FrenchName = "Ventes";
    unit.ParentID = 2;
    ModifyUnit(datAbsence, kDepartments, unit);
    ReactivateUnit(datAbsence, kGroups, 1);
    AddUnit(datAbsence, kDepartments, unit);
    const QString columns = kDepartmentRows.Columns.join(", ") + ")";
    EXPECT_EQ(sent.join('\n'),
              "INSERT INTO Departments_Modifications (RecordID, " + columns +
                  " SELECT * FROM Departments WHERE RecordID = 2\n"
                  "UPDATE Departments SET DepartmentFrenchName = 'Ventes', DepartmentEnglishName = 'Sales', "
                  "OrganizationID = 2, ModifiedBy = 'ADMIN', ModifiedDate = 46083 WHERE RecordID = 2\n"
                  "UPDATE Groups SET OrganizationID = 2 WHERE DepartmentID = 2\n"
                  "UPDATE Employees SET OrganizationID = 2 WHERE DepartmentID = 2\n"
                  "UPDATE FiscalYears SET ReloadEmployeesList = 1 WHERE RecordID = 1\n"
                  "INSERT INTO Groups_Modifications (RecordID, " +
                  kGroupRows.Columns.join(", ") +
                  ") SELECT * FROM Groups WHERE RecordID = 1\n"
                  "UPDATE Groups SET Active = 1, ModifiedBy = 'ADMIN', ModifiedDate = 46083 WHERE RecordID = 1\n"
                  "UPDATE Employees SET DeactivatedDate = 0, DeactivatedBy = '', ReasonForDeactivation = '' WHERE "
                  "GroupID = 1\n"
                  "UPDATE FiscalYears SET ReloadEmployeesList = 1 WHERE RecordID = 1\n"
                  "INSERT INTO Departments (" +
                  columns +
                  " VALUES (1, 2, 'Ventes', 'Sales', 'ADMIN', 46083, '', 0, 1, 0, 0)\n"
                  "UPDATE FiscalYears SET ReloadEmployeesList = 1 WHERE RecordID = 1");
}

TEST_F(ServerTwin, EmployeesAreAddedModifiedTransferredAndDeactivated)
{
    EXPECT_TRUE(AddEmployee(datAbsence, record).isEmpty());
    ASSERT_EQ(sent.size(), 2);
    EXPECT_TRUE(Sent().startsWith("INSERT INTO Employees (FiscalYear, OrganizationID, "));
    ModifyEmployee(datAbsence, record);
    ASSERT_EQ(sent.size(), 3);
    EXPECT_TRUE(sent[0].startsWith("INSERT INTO Employees_Modifications (RecordID, FiscalYear, "));
    EXPECT_TRUE(sent[1].startsWith("UPDATE Employees SET FamilyName = 'Davis', FirstName = 'Chris', "));
    sent.clear();
    TransferEmployee(datAbsence, {record.RecordID, "Davis, Chris", {1, 1, 1}, {2, 3, 0}});
    sent.removeFirst();
    EXPECT_EQ(Sent(), "UPDATE Employees SET OrganizationID = 2, DepartmentID = 3, GroupID = 0, ModifiedBy = 'ADMIN', "
                      "ModifiedDate = 46083 WHERE RecordID = 2\n"
                      "UPDATE Attendance SET OrganizationID = 2, DepartmentID = 3, GroupID = 0 WHERE EmployeeID = "
                      "2 AND RecordDate > 46083 AND CancelledDate = 0\n"
                      "UPDATE FiscalYears SET ReloadEmployeesList = 1 WHERE RecordID = 1");
    DeactivateEmployee(datAbsence, record.RecordID, "gone");
    sent.removeFirst();
    EXPECT_EQ(Sent(), "UPDATE Employees SET DeactivatedDate = 46083, DeactivatedBy = 'ADMIN', ReasonForDeactivation = "
                      "'gone' WHERE RecordID = 2\n"
                      "UPDATE Entitlements SET Active = 0, ModifiedBy = 'ADMIN', ModifiedDate = 46083 WHERE EmployeeID "
                      "= 2\n"
                      "UPDATE FiscalYears SET ReloadEmployeesList = 1 WHERE RecordID = 1");
    UpdateHourlyRate(datAbsence, record, kMonday);
    EXPECT_EQ(Sent(), "UPDATE Attendance SET HourlyRate = '20.00', UnitCost = 20.00, ExtendedCost = TotalDuration * "
                      "20.00 WHERE EmployeeID = 2 AND RecordDate >= 46083");
}

TEST_F(ServerTwin, WhatIsReadIsEmpty)
{
    EXPECT_TRUE(LoadUnitItems(datAbsence, kDepartments, ListedUnits::All).isEmpty());
    EXPECT_EQ(CountActiveEmployees(datAbsence, kGroups, 1), 0);
    EXPECT_FALSE(IsUserPassword(datAbsence, "SECRET"));
    EXPECT_TRUE(LoadApprovedBy(datAbsence, record).isEmpty());
    EXPECT_EQ(Sent(), "");
    ReloadEmployeesList(datAbsence, ListedEmployees::All);
    EXPECT_EQ(Sent(), "DELETE FROM Employees_List WHERE FiscalYear = 1");
    LogError(1, "it's", "frmX", "Routine", "SELECT 'x'", 1.5);
    EXPECT_EQ(Sent(), "INSERT INTO ErrorLog (ErrorCode, ErrorDescription, Form, ProcedureName, Occurred, SQL) VALUES "
                      "(1, 'it`s', 'frmX', 'Routine', 1.5, 'SELECT `x`')");
}
} // namespace
