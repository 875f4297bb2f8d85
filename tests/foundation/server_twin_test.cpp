#include "attendance/attendance_records.h"
#include "employees/approver_list.h"
#include "employees/employee_deactivation.h"
#include "employees/employee_rows.h"
#include "employees/hourly_rate.h"
#include "employees/transfer_employee.h"
#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/entitlement_row.h"
#include "foundation/user_profile.h"
#include "platform/dao/server.h"
#include "reference/category_records.h"
#include "reference/employees_list.h"
#include "reference/holiday_row.h"
#include "reference/holidays.h"
#include "reference/unit_records.h"
#include "reference/unit_row.h"
#include "support/company_test.h"

#include <utility>

namespace
{
constexpr int kMonday = 46083; // 2 March 2026

/// The server back end is chosen. Whatever the routines write is a statement in `sent`, and nothing reaches the file.
class ServerTwin : public CompanyTest
{
protected:
    ServerTwin()
    {
        record.RecordID = anna;
        EXPECT_TRUE(LoadEmployeeRecord_ACCESS(datAbsence, record));
        before = house.All(kTables);
        SetServerSink([this](const QString& statement) { sent << statement; });
        SessionState.SQL_Server = true;
    }
    ~ServerTwin() override { EXPECT_EQ(house.All(kTables), before); }
    /// What was sent since the last time. "..." are the columns of the table, but for those that are kept in the file
    /// alone; STAMP says who changed the row when, RELOAD that the list of employees is to be rebuilt.
    QString Sent(const TableShape& table)
    {
        const QStringList columns = table.Columns.mid(0, table.Columns.size() - table.FileOnly);
        return std::exchange(sent, {})
            .replaceInStrings("UPDATE FiscalYears SET ReloadEmployeesList = 1 WHERE RecordID = 1", "RELOAD")
            .replaceInStrings("ModifiedBy = 'ADMIN', ModifiedDate = 46083", "STAMP")
            .replaceInStrings(columns.join(", ") + ")", "...)")
            .join('\n');
    }

    const QStringList kTables{"Organizations", "Departments",    "Groups",
                              "Employees",     "Attendance",     "Entitlements",
                              "FiscalYears",   "Employees_List", "Employees_Modifications"};
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
    entry.FirstApprover.RecordID = 4;
    entry.Comment = "flu ";
    entry.StartTime = 8.3F;
    entry.EndTime = 10.5F;
    entry.Duration = entry.TotalDuration = 2.5F;
    SubmitAttendance(datAbsence, entry);
    ModifyAttendance(datAbsence, entry);
    NewAttendance(datAbsence, entry);
    LoadEmployeeInfo(datAbsence, entry);
    const QString row =
        "INSERT INTO Attendance (...) VALUES (1, 3, 0, 1, 0, 2, 46083, 2.5, 8.3, 10.5, 1, 2.5, 0, 'flu', 0, %1, 0, 0, "
        "'', 0, '', '', 'ADMIN', 46083, '', 0, '', 0)\n";
    EXPECT_EQ(Sent(kTable<AttendanceRow>),
              row.arg("1, 46083.75, 1, 4, 0") +
                  "INSERT INTO Attendance_Modifications (RecordID, ...) SELECT * FROM Attendance WHERE RecordID = 7\n"
                  "UPDATE Attendance SET CategoryID = 2, Duration = 2.5, StartTime = 8.3, EndTime = 10.5, "
                  "TimeMultiplicator = 1, TotalDuration = 2.5, WholeDay = 0, Comment = 'flu', Justified = 0, STAMP "
                  "WHERE RecordID = 7\n" +
                  row.arg("0, 0, 0, 0, 0") + "SELECT * FROM Employees WHERE RecordID = 3");
}

TEST_F(ServerTwin, UnitsAreMovedAddedAndReactivated)
{
    UnitRow unit;
    unit.RecordID = 2;
    unit.EnglishName = "Sales";
    unit.FrenchName = "Ventes";
    unit.OrganizationID = 2;
    ModifyUnit(datAbsence, kDepartments, UnitRow(), unit);
    AddUnit(datAbsence, kDepartments, unit);
    EXPECT_EQ(Sent(kDepartmentRows),
              "INSERT INTO Departments_Modifications (RecordID, ...) SELECT * FROM Departments WHERE RecordID = 2\n"
              "UPDATE Departments SET OrganizationID = 2, DepartmentFrenchName = 'Ventes', DepartmentEnglishName = "
              "'Sales', STAMP WHERE RecordID = 2\n"
              "UPDATE Groups SET OrganizationID = 2 WHERE DepartmentID = 2\n"
              "UPDATE Employees SET OrganizationID = 2 WHERE DepartmentID = 2\nRELOAD\n"
              "INSERT INTO Departments (...) VALUES (1, 2, 'Ventes', 'Sales', 'ADMIN', 46083, '', 0, 1, 0, 0)\nRELOAD");
    ReactivateUnit(datAbsence, kGroups, 1);
    EXPECT_EQ(Sent(kGroupRows),
              "INSERT INTO Groups_Modifications (RecordID, ...) SELECT * FROM Groups WHERE RecordID = 1\n"
              "UPDATE Groups SET Active = 1, STAMP WHERE RecordID = 1\n"
              "UPDATE Employees SET DeactivatedDate = 0, DeactivatedBy = '', ReasonForDeactivation = '' WHERE "
              "GroupID = 1\nRELOAD");
}

TEST_F(ServerTwin, EmployeesAreAddedModifiedTransferredAndDeactivated)
{
    EXPECT_TRUE(AddEmployee(datAbsence, record).isEmpty());
    EXPECT_EQ(Sent(kTable<EmployeeRow>).section(" VALUES", 0, 0), "INSERT INTO Employees (...)");
    const QString kept =
        "INSERT INTO Employees_Modifications (RecordID, ...) SELECT * FROM Employees WHERE RecordID = 2\n";
    record.FirstName = "Annabel";
    ModifyEmployee(datAbsence, record);
    TransferEmployee(datAbsence, {anna, "Abel, Anna", {1, 1, 1}, {2, 3, 0}});
    DeactivateEmployee(datAbsence, anna, "gone");
    UpdateHourlyRate(datAbsence, record, kMonday);
    EXPECT_EQ(Sent(kTable<EmployeeRow>),
              kept +
                  "UPDATE Employees SET FirstName = 'Annabel', DateEntered = 46083, EnteredBy = 'ADMIN', DeactivatedBy "
                  "= ' ', ReasonForDeactivation = ' ', SelfLevelRead = 1, STAMP WHERE "
                  "RecordID = 2\nRELOAD\n" +
                  kept +
                  "UPDATE Employees SET OrganizationID = 2, DepartmentID = 3, GroupID = 0, STAMP WHERE "
                  "RecordID = 2\nUPDATE Attendance SET OrganizationID = 2, DepartmentID = 3, GroupID = 0 WHERE "
                  "EmployeeID = 2 AND RecordDate > 46083 AND CancelledDate = 0\nRELOAD\n" +
                  kept +
                  "UPDATE Employees SET DeactivatedDate = 46083, DeactivatedBy = 'ADMIN', "
                  "ReasonForDeactivation = 'gone' WHERE RecordID = 2\n"
                  "UPDATE Entitlements SET Active = 0, STAMP WHERE EmployeeID = 2\nRELOAD\n"
                  "UPDATE Attendance SET HourlyRate = '20.00', UnitCost = 20.00, ExtendedCost = TotalDuration * "
                  "20.00 WHERE EmployeeID = 2 AND RecordDate >= 46083");
}

TEST_F(ServerTwin, WhatIsReadIsEmpty)
{
    EXPECT_TRUE(LoadUnitItems(datAbsence, kDepartments, ListedUnits::All).isEmpty());
    EXPECT_EQ(CountActiveEmployees(datAbsence, kGroups, 1), 0);
    EXPECT_FALSE(IsUserPassword(datAbsence, "SECRET"));
    EXPECT_TRUE(LoadApprovedBy(datAbsence, record).isEmpty());
    ReloadEmployeesList(datAbsence, ListedEmployees::All);
    LogError(1, "it's", "frmX", "Routine", "SELECT 'x'", 1.5);
    EXPECT_EQ(sent.join('\n'),
              "DELETE FROM Employees_List WHERE FiscalYear = 1\n"
              "INSERT INTO ErrorLog (ErrorCode, ErrorDescription, Form, ProcedureName, Occurred, SQL) VALUES "
              "(1, 'it`s', 'frmX', 'Routine', 1.5, 'SELECT `x`')");
}
TEST_F(ServerTwin, CategoriesAndHolidaysAreSentWithWhatFollowsFromThem)
{
    CategoryEntry entry = NewCategory();
    entry.CategoryEnglishName = "Training";
    AddCategory(datAbsence, entry);
    EXPECT_EQ(Sent(kTable<CategoryRow>).section(" VALUES", 0, 0), "INSERT INTO Categories (...)");
    entry.RecordID = 9;
    DeactivateCategory(datAbsence, entry);
    EXPECT_EQ(Sent(kTable<CategoryRow>),
              "INSERT INTO Categories_Modifications (RecordID, ...) SELECT * FROM Categories WHERE RecordID = 9\n"
              "UPDATE Categories SET Active = 0, CategoryFrenchName = '«DEACTIVATED»', CategoryEnglishName = "
              "'«DEACTIVATED»', STAMP WHERE RecordID = 9\n"
              "INSERT INTO Entitlements_Modifications (RecordID, " +
                  kTable<EntitlementRow>.Columns.join(", ") +
                  ") SELECT * FROM Entitlements WHERE CategoryID = 9\n"
                  "UPDATE Entitlements SET Active = 0, STAMP WHERE CategoryID = 9");
    EXPECT_TRUE(AddHolidays(datAbsence, {{kMonday, "Closed"}}));
    RemoveHoliday(datAbsence, kMonday);
    EXPECT_EQ(Sent(kTable<HolidayRow>),
              "INSERT INTO Holidays (...) VALUES (46083, 'Closed', 'ADMIN', 46083, '', 0)\n"
              "UPDATE Holidays SET CancelledDate = 46083, CancelledBy = 'ADMIN' WHERE HolidayDate = 46083 AND "
              "CancelledDate = 0");
}
} // namespace
