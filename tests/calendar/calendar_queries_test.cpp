#include "calendar/calendar_records.h"
#include "calendar/frm_main.h"
#include "platform/clock.h"
#include "support/main_window.h"
#include "support/statement_trace.h"

#include <gtest/gtest.h>

namespace
{
class CalendarQueries : public testing::Test
{
protected:
    CalendarQueries()
    {
        house.Configured().Company();
        marie = house.Hire({"MARIE", "Marie", "Bouchard", "Production", "Assembly"});
        chris = house.Hire({"CHRIS", "Chris", "Davis", "Production", "Assembly"});
    }

    void Select(const CalendarSelection& selection) { static_cast<CalendarSelection&>(SessionState) = selection; }

    House house;
    MainUser user;
    int marie = 0;
    int chris = 0;
};

TEST_F(CalendarQueries, AYearIsReadByThreeQueriesFromAnIndexThatHoldsAllTheyNeed)
{
    for (int day = 0; day < 60; ++day)
        house.Record(marie, day % 2 == 0 ? "Vacation" : "Sick", QDate(2026, 1, 5).addDays(day), 7);
    frmMain& main = user.OpensMain("ADMIN");
    const std::tuple<CalendarSelection, const char*, const char*> selections[] = {
        {{marie, 1, 1, 1, ""}, "Attendance_Employee", "Attendance_Employee"},
        {{0, 1, 1, 1, ""}, "Attendance_Group", "Attendance_Group"},
        {{0, 1, 1, 0, ""}, "Attendance_Department", "Attendance_Department"},
        {{0, 1, 0, 0, ""}, "Attendance_Organization", "Attendance_Organization"},
        {{}, "Attendance_Year", "Attendance_Date"}};
    for (const auto& [selection, total, records] : selections) {
        Select(selection);
        QList<QByteArray> read; // the total, the records and the holidays
        {
            const StatementTrace trace;
            main.LoadDates();
            read = trace.Statements();
        }
        ASSERT_EQ(read.size(), 3);
        for (const auto& [statement, index] : {std::pair(read[0], total), {read[1], records}}) {
            const QString plan = house.Rows("EXPLAIN QUERY PLAN " + statement);
            EXPECT_TRUE(plan.contains(QString("SEARCH Attendance USING COVERING INDEX ") + index)) << qPrintable(plan);
        }
    }
}

TEST_F(CalendarQueries, ASelectionHasOneRecordPerDateAndCategoryInOrderOfDate)
{
    house.Record(house.Hire({"ZOE", "Zoe", "Abel", "Stores", ""}), "Sick", {2026, 6, 3}, 1);
    house.Record(chris, "Sick", {2026, 6, 2}, 7);
    house.Record(marie, "Vacation", {2026, 6, 2}, 7);
    house.Record(chris, "Vacation", {2026, 6, 2}, 3);
    house.Record(marie, "Vacation", {2026, 1, 1}, 7);
    house.Record(chris, "Vacation", {2026, 12, 31}, 7);
    house.Record(chris, "Vacation", {2027, 1, 1}, 7);
    house.Record(chris, "Vacation", {2026, 7, 1}, 7, true);
    house.LogIn("ADMIN");
    DataControl datAbsence("CalendarQueries");
    const Connection connection(datAbsence);
    const auto read = [&](const CalendarSelection& selection) {
        Select(selection);
        QList<int> order;
        QStringList dates;
        for (const CalendarRecord& record : RecordsOfTheYear(datAbsence)) {
            order << record.RecordDate;
            dates << DateOfSerial(record.RecordDate).toString("MM-dd ") + QString::number(record.Color, 16);
        }
        EXPECT_TRUE(std::is_sorted(order.begin(), order.end())) << dates.join(", ").toStdString();
        dates.sort(); // within a date the order is free
        return dates.join(", ") + " = " + QString::number(TotalForTheYear(datAbsence));
    };
    const QString production = "01-01 c0c000, 06-02 c0c000, 06-02 ffc0c0, 12-31 c0c000 = 38";
    EXPECT_EQ(read({0, 1, 1, 1, ""}), production);
    EXPECT_EQ(read({0, 1, 1, 0, ""}), production);
    EXPECT_EQ(read({0, 2, 0, 0, ""}), "06-03 ffc0c0 = 1");
    EXPECT_EQ(read({marie, 1, 1, 1, ""}), "01-01 c0c000, 06-02 c0c000 = 14");
    EXPECT_EQ(read({}), "01-01 c0c000, 06-02 c0c000, 06-02 ffc0c0, 06-03 ffc0c0, 12-31 c0c000 = 39")
        << "no selection means everybody";
}
} // namespace
