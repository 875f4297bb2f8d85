#include "foundation/connection.h"
#include "foundation/employee_rights.h"
#include "foundation/work_schedule.h"
#include "platform/dao/dao.h"
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
        Recordset base = database->OpenRecordset("SELECT * FROM " + table);
        base.AddNew();
        for (int i = 1; i < columns.size(); ++i)
            base[columns[i]] = i;
        base.Update();
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

TEST_F(Schema, TheListsThatTheProgramWalksNameColumnsOfEmployees)
{
    const QStringList columns = Open()->Columns("Employees");
    for (const RightColumn& right : kRights)
        EXPECT_TRUE(columns.contains(QLatin1String(right.Column))) << right.Column;
    for (const ScheduleColumn& time : kClockTimes)
        EXPECT_TRUE(columns.contains(QLatin1String(time.Column))) << time.Column;
    EXPECT_LT(columns.indexOf("MONDAY_FirstHalfStart"), columns.indexOf("SUNDAY_FirstHalfStart"));
    EXPECT_EQ(columns.indexOf("HoursWorkedSaturday") - columns.indexOf("HoursWorkedSunday"), 6);
    EXPECT_EQ(columns.mid(columns.size() - 6).join(','), "LoginID,ReportTo,Title,Gender,Language,LoggedIn");
}

TEST_F(Schema, UnsetColumnsReadAsNoneAndHoursKeepSinglePrecision)
{
    const auto database = Open();
    Recordset record = database->OpenRecordset("SELECT * FROM Attendance");
    record.AddNew();
    record["Duration"] = 2.1;
    record["HourlyRate"] = "12.50";
    record["ExtendedCost"] = 26.25 * 100;
    record.Update();
    EXPECT_TRUE(house_.Number("SELECT COUNT(*) FROM Attendance WHERE CancelledDate = 0 AND Submitted = 0"));
    Recordset read = database->OpenRecordset("SELECT * FROM Attendance");
    EXPECT_FALSE(read.IsNull("Comment"));
    EXPECT_EQ(read.Value("Duration").toDouble(), static_cast<double>(2.1F));
    EXPECT_EQ(read.Text("HourlyRate"), "12.50");
    EXPECT_EQ(read.Value("ExtendedCost"), QVariant(2625));
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
