#include "foundation/attendance_row.h"
#include "foundation/category_row.h"
#include "foundation/connection.h"
#include "foundation/employee_row.h"
#include "foundation/entitlement_row.h"
#include "foundation/fiscal_year_row.h"
#include "reference/holiday_row.h"
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
    House house_;
    std::unique_ptr<Database> database = Database::Open(house_.DatabaseFile(), kDatabasePassword);
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

TEST_F(Schema, NearlyAllTablesAreDeliveredEmpty)
{
    QStringList filled;
    for (const Recordset& table : database->OpenRecordset("SELECT name FROM sqlite_master WHERE type = 'table'"))
        if (!database->OpenRecordset("SELECT * FROM " + table.Text("name")).AtEnd())
            filled << table.Text("name");
    filled.sort();
    EXPECT_EQ(filled.join(','), "FilePassword,SAC,WebSites,sqlite_sequence");
    EXPECT_EQ(house_.Rows("SELECT Status, (SELECT RecordID FROM WebSites) FROM SAC"), "U-NR-NOCP|1");
    const auto config = Database::Open(house_.Folder() + "/Config.mdb", kConfigPassword);
    EXPECT_TRUE(config->OpenRecordset("SELECT * FROM Configuration").AtEnd());
}

TEST_F(Schema, ARowCopiedByPositionIntoItsTwinKeepsEachValueInItsColumn)
{
    for (const QString& table : kTwinned) {
        const QStringList columns = database->Columns(table);
        QStringList numbers;
        for (int i = 1; i < columns.size(); ++i)
            numbers << QString::number(i);
        database->Execute(
            QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)").arg(table, columns.mid(1).join(','), numbers.join(',')));
        const QString target = "INSERT INTO " + table + "_Modifications (" + columns.join(',') + ") SELECT * FROM ";
        for (int times = 0; times < 2; ++times)
            EXPECT_EQ(database->Execute(target + table), 1) << "the key of the base row repeats";
        const QString twin = "SELECT " + columns.mid(1).join(',') + " FROM " + table + "_Modifications LIMIT 1";
        EXPECT_EQ(RowsOf(*database, twin), numbers.join('|')) << qPrintable(table);
        EXPECT_EQ(database->Columns(table + "_Modifications").mid(0, columns.size()), columns);
    }
    EXPECT_EQ(RowsOf(*database, "SELECT MAX(ID) FROM Employees_Modifications"), "2") << "a counter of its own";
}

template <typename R>
void ExpectWholeTable(Database& database, const Table<R>& table)
{
    QStringList listed = (table.HasRecordID ? QStringList("RecordID") : QStringList()) + table.Columns;
    QStringList columns = database.Columns(table.Name);
    EXPECT_TRUE(database.OpenRecordset(SelectFrom(table, "1 = 1")).AtEnd());
    listed.sort();
    columns.sort();
    EXPECT_EQ(listed, columns) << qPrintable(table.Name);
}

TEST_F(Schema, EachListOfColumnsNamesAllThatItsTableHas)
{
    ExpectWholeTable(*database, kTable<AttendanceRow>);
    ExpectWholeTable(*database, kTable<CategoryRow>);
    ExpectWholeTable(*database, kTable<EmployeeRow>);
    ExpectWholeTable(*database, kTable<EntitlementRow>);
    ExpectWholeTable(*database, kTable<FiscalYearRow>);
    ExpectWholeTable(*database, kTable<HolidayRow>);
    for (const auto* units : {&kOrganizationRows, &kDepartmentRows, &kGroupRows})
        ExpectWholeTable(*database, *units);
}

TEST_F(Schema, ToolsWithAnotherOrderOfTextsStillReadTheFileSoundly)
{
    for (const char* name : {"ZÉRO", "éva", "Eva", "z"})
        database->Execute("INSERT INTO Employees (LoginID, FamilyName) VALUES (?, ?)", {name, name});
    database->Execute("INSERT INTO Attendance (EnteredBy) SELECT LoginID FROM Employees");
    EXPECT_EQ(ForeignAnswer(house_.DatabaseFile(), "PRAGMA integrity_check"), "ok;");
    EXPECT_EQ(ForeignAnswer(house_.DatabaseFile(), "SELECT FamilyName FROM Employees WHERE FamilyName = 'eva'"),
              "Eva;");
    EXPECT_EQ(ForeignAnswer(house_.DatabaseFile(), "PRAGMA journal_mode"), "delete;");
}
} // namespace
