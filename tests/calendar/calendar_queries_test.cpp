#include "calendar/calendar_records.h"
#include "calendar/frm_main.h"
#include "platform/clock.h"
#include "support/main_window.h"
#include "support/statement_trace.h"

#include <gmock/gmock.h>

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
    const auto plan = [this](const std::string& statement) {
        return house.Rows("EXPLAIN QUERY PLAN " + QString::fromStdString(statement)).toStdString();
    };
    const std::tuple<CalendarSelection, const char*, const char*> selections[] = {
        {{marie, 1, 1, 1, ""}, "Attendance_Employee", "Attendance_Employee"},
        {{0, 1, 1, 1, ""}, "Attendance_Group", "Attendance_Group"},
        {{0, 1, 1, 0, ""}, "Attendance_Department", "Attendance_Department"},
        {{0, 1, 0, 0, ""}, "Attendance_Organization", "Attendance_Organization"},
        {{}, "Attendance_Year", "Attendance_Date"}};
    for (const auto& [selection, total, records] : selections) {
        Select(selection);
        std::vector<std::string> read;
        {
            const StatementTrace trace;
            main.LoadDates();
            for (const QByteArray& statement : trace.Statements())
                read.push_back(statement.toStdString());
        }
        ASSERT_THAT(read, ElementsAre(HasSubstr("SUM(Attendance.TotalDuration)"),
                                      AllOf(HasSubstr("Attendance.RecordDate"), HasSubstr("DISTINCT")),
                                      HasSubstr("FROM Holidays")));
        const std::string search = "SEARCH Attendance USING COVERING INDEX ";
        EXPECT_THAT(plan(read[0]), HasSubstr(search + total));
        EXPECT_THAT(plan(read[1]), HasSubstr(search + records));
    }
}

TEST_F(CalendarQueries, ASelectionHasOneRecordPerDateAndCategoryInOrderOfDate)
{
    const int zoe = house.Hire({"ZOE", "Zoe", "Abel", "Stores", ""});
    house.Record(zoe, "Sick", {2026, 6, 3}, 1);
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
