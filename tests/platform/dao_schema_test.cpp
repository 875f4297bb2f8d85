#include "foundation/attendance_row.h"
#include "foundation/category_row.h"
#include "foundation/connection.h"
#include "foundation/employee_row.h"
#include "foundation/entitlement_row.h"
#include "foundation/fiscal_year_row.h"
#include "reference/unit_row.h"
#include "support/house.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace
{
const QStringList kTwinned{"Attendance",   "Categories", "Departments",  "Employees",
                           "Entitlements", "Groups",     "Organizations"};

class Schema : public testing::Test
{
protected:
    std::unique_ptr<Database> Open(const char* name = "Tarvell.mdb", const QString& password = kDatabasePassword) const
    {
        return Database::Open(house_.Folder() + "/" + name, password);
    }

    House house_;
};

/// Reads a file as a tool does that knows nothing of this program.
QString ForeignAnswer(const QString& file, const char* sql)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(qPrintable(file), &handle, SQLITE_OPEN_READONLY, nullptr);
    QString answer;
    const auto collect = [](void* target, int, char** cells, char**) {
        *static_cast<QString*>(target) += QString::fromUtf8(cells[0]) + ";";
        return 0;
    };
    sqlite3_exec(handle, sql, collect, &answer, nullptr);
    sqlite3_close(handle);
    return answer;
}

TEST_F(Schema, EveryTableIsDeliveredAndNearlyAllAreEmpty)
{
    const auto database = Open();
    const QStringList tables{"FiscalYears",
                             "CategoriesDepartments",
                             "CategoriesEmployees",
                             "Employees_List",
                             "Holidays",
                             "BlockedDays",
                             "Entitlements_Reproduction",
                             "Messages",
                             "ErrorLog",
                             "WebSites",
                             "AddressBook",
                             "SAC"};
    for (const QString& table : tables + kTwinned) {
        const bool seeded = table == "WebSites" || table == "SAC";
        EXPECT_FALSE(database->Columns(table).isEmpty()) << qPrintable(table);
        EXPECT_EQ(database->OpenRecordset("SELECT * FROM " + table).RecordCount(), seeded ? 1 : 0) << qPrintable(table);
    }
    EXPECT_EQ(database->OpenRecordset("SELECT * FROM SAC").Text("Status"), "U-NR-NOCP");
    EXPECT_EQ(database->OpenRecordset("SELECT * FROM WebSites").Long("RecordID"), 1);
    const auto config = Open("Config.mdb", kConfigPassword);
    EXPECT_EQ(config->OpenRecordset("SELECT * FROM Configuration").RecordCount(), 0);
    EXPECT_EQ(config->Columns("Configuration").join(','),
              "English,SQL_Server,IP_Address,Username,Password,DatabasePath,"
              "DatabaseName,Configured,LastUpgradeDate");
}

TEST_F(Schema, ARowCopiedByPositionIntoItsTwinKeepsEachValueInItsColumn)
{
    const auto database = Open();
    for (const QString& table : kTwinned) {
        const QStringList columns = database->Columns(table);
        QStringList numbers;
        for (int i = 1; i < columns.size(); ++i)
            numbers << QString::number(i);
        database->Execute("INSERT INTO " + table + " (" + columns.mid(1).join(',') + ") VALUES (" + numbers.join(',') +
                          ")");
        const QString target = "INSERT INTO " + table + "_Modifications (" + columns.join(',') + ") SELECT * FROM ";
        for (int times = 0; times < 2; ++times)
            EXPECT_EQ(database->Execute(target + table), 1) << "the key of the base row repeats";
        Recordset twin = database->OpenRecordset("SELECT * FROM " + table + "_Modifications");
        EXPECT_EQ(twin.Columns().mid(0, columns.size()), columns);
        EXPECT_EQ(twin.Columns().size(), columns.size() + (table == "Employees" ? 1 : 0)) << qPrintable(table);
        for (int i = 1; i < columns.size(); ++i)
            EXPECT_EQ(twin.Long(columns[i]), i) << qPrintable(table + "." + columns[i]);
    }
    Recordset newest = database->OpenRecordset("SELECT * FROM Employees_Modifications ORDER BY ID DESC");
    EXPECT_EQ(newest.Long("ID"), 2) << "the log of employees has a counter of its own";
}

template <typename R>
void ExpectWholeTable(Database& database, const Table<R>& table)
{
    QStringList listed = (table.HasRecordID ? QStringList("RecordID") : QStringList()) + table.Columns;
    QStringList columns = database.Columns(table.Name);
    EXPECT_EQ(RowOf(table, database.OpenRecordset(SelectFrom(table, "1 = 1"))).RecordID, 0);
    listed.sort();
    columns.sort();
    EXPECT_EQ(listed, columns) << qPrintable(table.Name);
}

TEST_F(Schema, EachListOfColumnsNamesAllThatItsTableHas)
{
    const auto database = Open();
    ExpectWholeTable(*database, kTable<AttendanceRow>);
    ExpectWholeTable(*database, kTable<CategoryRow>);
    ExpectWholeTable(*database, kTable<EmployeeRow>);
    ExpectWholeTable(*database, kTable<EntitlementRow>);
    ExpectWholeTable(*database, kTable<FiscalYearRow>);
    for (const auto* units : {&kOrganizationRows, &kDepartmentRows, &kGroupRows})
        ExpectWholeTable(*database, *units);
}

TEST_F(Schema, ToolsWithAnotherOrderOfTextsStillReadTheFileSoundly)
{
    const auto database = Open();
    for (const char* name : {"ZÉRO", "éva", "Eva", "z"})
        database->Execute("INSERT INTO Employees (LoginID, FamilyName) VALUES (?, ?)", {name, name});
    database->Execute("INSERT INTO Attendance (EnteredBy) SELECT LoginID FROM Employees");
    EXPECT_EQ(ForeignAnswer(house_.DatabaseFile(), "PRAGMA integrity_check"), "ok;");
    EXPECT_EQ(ForeignAnswer(house_.DatabaseFile(), "SELECT FamilyName FROM Employees WHERE FamilyName = 'eva'"),
              "Eva;");
    EXPECT_EQ(ForeignAnswer(house_.DatabaseFile(), "PRAGMA journal_mode"), "delete;");
}

/// A plan is what keeps the calendar quick on a million rows: one narrow index, and no walk over the whole table.
TEST_F(Schema, TheCalendarsQueriesStayInsideAnIndex)
{
    const auto database = Open();
    const QString total =
        "SELECT SUM(Attendance.TotalDuration) FROM Attendance, Categories WHERE Attendance.CategoryID = "
        "Categories.RecordID AND Attendance.FiscalYear = ? AND Attendance.CancelledDate = 0 AND "
        "Attendance.Submitted = 0";
    const QString days = "SELECT DISTINCT Attendance.RecordDate, Attendance.CategoryID FROM Attendance WHERE "
                         "Attendance.RecordDate BETWEEN ? AND 60000 AND Attendance.CancelledDate = 0 AND "
                         "Attendance.Submitted = 0";
    for (const char* scope : {"", " AND Attendance.EmployeeID = 1", " AND Attendance.GroupID = 1",
                              " AND Attendance.DepartmentID = 1", " AND Attendance.OrganizationID = 1"})
        for (const QString& sql : {total, days}) {
            const Recordset plan = database->OpenRecordset("EXPLAIN QUERY PLAN " + sql + scope, {1});
            EXPECT_TRUE(plan.Text("detail").startsWith("SEARCH Attendance USING COVERING INDEX"))
                << qPrintable(sql + scope + "\n" + plan.Text("detail"));
        }
}
} // namespace
