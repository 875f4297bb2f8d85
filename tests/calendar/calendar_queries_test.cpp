#include "calendar/calendar_records.h"
#include "calendar/frm_main.h"
#include "platform/clock.h"
#include "support/statement_trace.h"
#include "support/user.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class CalendarQueries : public testing::Test
{
protected:
    CalendarQueries()
    {
        house.Configured().Company();
        marie = house.Hire({"MARIE", "Marie", "Bouchard", "Production", "Assembly"});
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly"});
        house.LogIn("ADMIN");
    }

    /// What a calendar of that selection is read with; 0 for each level that is not selected.
    std::vector<std::string> StatementsOf(int organization, int department, int group, int employee)
    {
        SessionState.EmployeeOrganizationID = organization;
        SessionState.EmployeeDepartmentID = department;
        SessionState.EmployeeGroupID = group;
        SessionState.EmployeeID = employee;
        frmMain main;
        main.Form_Load();
        const StatementTrace trace;
        main.LoadDates();
        std::vector<std::string> statements;
        for (const QByteArray& statement : trace.Statements())
            statements.push_back(statement.toStdString());
        return statements;
    }

    House house;
    int marie = 0;
    int chris = 0;
};

TEST_F(CalendarQueries, AYearCostsOneQueryForTheTotalOneForTheRecordsAndOneForTheHolidays)
{
    for (int day = 0; day < 60; ++day)
        house.Record(marie, day % 2 == 0 ? "Vacation" : "Sick", QDate(2026, 1, 5).addDays(day), 7);
    const auto read =
        ElementsAre(HasSubstr("SUM(Attendance.TotalDuration)"),
                    AllOf(HasSubstr("Attendance.RecordDate"), HasSubstr("DISTINCT")), HasSubstr("FROM Holidays"));
    EXPECT_THAT(StatementsOf(1, 1, 1, marie), read);
    EXPECT_THAT(StatementsOf(0, 0, 0, 0), read);
}

TEST_F(CalendarQueries, EachSelectionIsReadFromAnIndexThatHoldsAllItNeeds)
{
    const auto plan = [this](const std::string& statement) {
        return house.Rows("EXPLAIN QUERY PLAN " + QString::fromStdString(statement)).toStdString();
    };
    const auto expectIndexes = [&](const std::vector<std::string>& statements, const char* total, const char* records) {
        const std::string search = "SEARCH Attendance USING COVERING INDEX ";
        EXPECT_THAT(plan(statements[0]), HasSubstr(search + total));
        EXPECT_THAT(plan(statements[1]), HasSubstr(search + records));
    };
    expectIndexes(StatementsOf(1, 1, 1, marie), "Attendance_Employee", "Attendance_Employee");
    expectIndexes(StatementsOf(1, 1, 1, 0), "Attendance_Group", "Attendance_Group");
    expectIndexes(StatementsOf(1, 1, 0, 0), "Attendance_Department", "Attendance_Department");
    expectIndexes(StatementsOf(1, 0, 0, 0), "Attendance_Organization", "Attendance_Organization");
    expectIndexes(StatementsOf(0, 0, 0, 0), "Attendance_Year", "Attendance_Date");
}

TEST_F(CalendarQueries, AUnitHasOneRecordPerDateAndCategoryInOrderOfDate)
{
    house.Record(chris, "Sick", {2026, 6, 2}, 7);
    house.Record(marie, "Vacation", {2026, 6, 2}, 7);
    house.Record(chris, "Vacation", {2026, 6, 2}, 3);
    house.Record(marie, "Vacation", {2026, 1, 1}, 7);
    house.Record(chris, "Vacation", {2026, 12, 31}, 7);
    house.Record(chris, "Vacation", {2027, 1, 1}, 7);
    house.Record(chris, "Vacation", {2026, 7, 1}, 7, true);
    SessionState.EmployeeID = 0;
    SessionState.EmployeeDepartmentID = 1;
    DataControl datAbsence("CalendarQueries");
    const Connection connection(datAbsence);
    QStringList read;
    for (const CalendarRecord& record : RecordsOfTheYear(datAbsence))
        read << DateOfSerial(record.RecordDate).toString("MM-dd ") + QString::number(record.Color, 16);
    std::sort(read.begin() + 1, read.end() - 1); // within a date the order is free
    EXPECT_EQ(read.join(", "), "01-01 c0c000, 06-02 c0c000, 06-02 ffc0c0, 12-31 c0c000");
}
} // namespace
