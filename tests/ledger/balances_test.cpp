#include "attendance/attendance_guards.h"
#include "attendance/attendance_records.h"
#include "attendance/frm_attendance.h"
#include "calendar/main_window_fixture.h"
#include "foundation/common_services.h"

#include <QTest>
#include <QToolTip>

#include <random>

namespace
{
/// Marie and Dan, random records of theirs, and what plain statements over the rows say of them.
class Balances : public MainWindow
{
protected:
    Balances()
    {
        dan = house.Hire({"DDUBE", "Dan", "Dube", "Sales"});
        house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE SystemName IN ('Vacation', 'Sick')");
        house.Sql("UPDATE Categories SET TimeBankRelated = 1 WHERE SystemName = 'Doctor appointments'");
        house.Sql("INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, CarriedOver, AnnualEntitlement) "
                  "SELECT 1, Categories.RecordID, Employees.RecordID, -5.5, 70.25 * Categories.RecordID FROM "
                  "Categories, Employees WHERE RequiresMonitoring = 1 AND Employees.RecordID > 1");
    }

    int Pick(int choices) { return static_cast<int>(random() % static_cast<unsigned>(choices)); }
    void AddRandomRecords(int rows)
    {
        const float factors[] = {1, 1.33F, 1.5F, 2};
        for (int row = 0; row < rows; ++row) {
            const bool midnight = Pick(5) == 0;
            const float duration = static_cast<float>(Pick(16) + 1) / 2 * (Pick(3) == 0 ? -1.0F : 1.0F);
            const float factor = factors[Pick(4)];
            const int state = Pick(6); // cancelled, denied, pending, and otherwise approved
            house.Sql("INSERT INTO Attendance (FiscalYear, EmployeeID, GroupID, DepartmentID, OrganizationID, "
                      "CategoryID, RecordDate, Duration, StartTime, EndTime, TimeMultiplicator, TotalDuration, "
                      "Submitted, RequestStatus, CancelledDate, EnteredBy) SELECT 1, RecordID, GroupID, DepartmentID, "
                      "OrganizationID, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 'ADMIN' FROM Employees WHERE RecordID = ?",
                      {Pick(8) + 1, SerialOfDate({2026, 1, 1}) + Pick(365), duration, midnight ? 1e-7F : 8.0F,
                       midnight ? 24.5F : 12.0F, factor, duration * factor, state == 2, state == 1 ? 3 : 0,
                       state < 2 ? 46100 : 0, Pick(2) == 0 ? marie : dan});
        }
    }
    float Sum(const QString& where)
    {
        return house
            .Cell("SELECT printf('%.17g', TOTAL(Attendance.TotalDuration)) FROM Attendance JOIN Categories ON "
                  "Categories.RecordID = CategoryID WHERE CancelledDate = 0 AND " +
                  where)
            .toFloat();
    }
    float Limit(const QString& where)
    {
        return house.Cell("SELECT printf('%.17g', CarriedOver + AnnualEntitlement) FROM Entitlements WHERE " + where)
            .toFloat();
    }
    /// An employee or a unit of the first organization.
    static CalendarSelection Scope(int employee, int department, int group)
    {
        return {employee, 1, department, group, "Somebody"};
    }
    /// The calendar turns to the employee or unit and then to the category.
    void ShowsOf(const CalendarSelection& selection, const QString& category)
    {
        static_cast<CalendarSelection&>(SessionState) = selection;
        if (user.Reads("cboCategories") == category)
            user.Picks("cboCategories", category == "Vacation" ? "Sick" : "Vacation");
        user.Picks("cboCategories", category);
    }
    static QString Told(const BalanceLines& lines)
    {
        QStringList texts;
        for (const BalanceLine& line : lines)
            texts << T(line.Caption) + " " + DurationText(line.Hours);
        return texts.join(", ");
    }
    void ExpectEntryForm(int employee, const QString& category);
    void ExpectGuard(int employee, int category);

    int dan = 0;
    std::mt19937 random{2026};
};

void Balances::ExpectEntryForm(int employee, const QString& category)
{
    const int id = house.CategoryID(category);
    AttendanceJob job;
    job.EmployeeID = employee;
    job.Dates = {SerialOfDate({2026, 12, 31})};
    job.SelectedCategoryID = id;
    const frmAttendance form(job);
    const QString own = QStringLiteral("EmployeeID = %1").arg(employee);
    const bool bank = category.startsWith("Time");
    const float figure =
        bank ? Sum("TimeBankRelated = 1 AND " + own) : Limit(own + QStringLiteral(" AND CategoryID = %1").arg(id));
    EXPECT_EQ(form.findChild<QLabel*>("lblBalance")->text(),
              (bank ? "Time bank: " : "Annual entitlement: ") + DurationText(figure));
}

void Balances::ExpectGuard(int employee, int category)
{
    DataControl data("Balances");
    AttendanceEntry entry;
    entry.EmployeeID = employee;
    entry.SelectedCategoryID = category;
    ReadCategory(data, entry);
    entry.TotalTime = 5000;
    const QString own = QStringLiteral("EmployeeID = %1 AND CategoryID = %2").arg(employee).arg(category);
    const float used = Sum(own + " AND Submitted = 0"), pending = Sum(own + " AND Submitted = 1");
    user.WillAnswer("WARNING:", "No",
                    Fill("Annual entitlement:    \t{limit}\r\nTime used to date:     \t{used}\r\nRecords to be "
                         "approved:\t{pending}\r\nTotal time required:   \t5000:00\r\nNew balance:  \t\t{left}",
                         {{"limit", DurationText(Limit(own))},
                          {"used", DurationText(used)},
                          {"pending", DurationText(pending)},
                          {"left", DurationText(Limit(own) - (used + pending + 5000))}}));
    WillEntitlBeExceeded(data, entry);

    const QString today = QString::number(Today());
    const float left = Limit(own) - (used + pending);
    EXPECT_EQ(Told(ExplainBalance(data, entry)),
              Fill("Carried over -(05:30), Allocated {allocated}, Taken to date {taken}, Booked ahead {ahead}, Pending "
                   "{pending}, Left {left}",
                   {{"allocated", DurationText(70.25F * static_cast<float>(category))},
                    {"taken", DurationText(Sum(own + " AND Submitted = 0 AND RecordDate <= " + today))},
                    {"ahead", DurationText(Sum(own + " AND Submitted = 0 AND RecordDate > " + today))},
                    {"pending", DurationText(pending)},
                    {"left", DurationText(left)}}));
}

TEST_F(Balances, EveryScreenShowsWhatPlainSqlSaysOfRandomRows)
{
    Opens("ADMIN");
    AddRandomRecords(160);
    for (const CalendarSelection& scope :
         {Scope(marie, 1, 1), Scope(dan, 2, 0), Scope(0, 1, 1), Scope(0, 2, 0), Scope(0, 0, 0)}) {
        const QString own = QStringLiteral("%1 = %2").arg(scope.Narrowest().first).arg(scope.Narrowest().second);
        for (const QString& category : user.Entries("cboCategories")) {
            ShowsOf(scope, category);
            const int id = SessionState.SelectedCategoryID;
            const QString only = id == 0 ? "" : QStringLiteral(" AND CategoryID = %1").arg(id);
            const float total = Sum(own + " AND Submitted = 0" + only);
            const bool inDays = scope.EmployeeID != 0 && total != 0;
            EXPECT_EQ(user.ReadsAll({"lblTotalForTheYear_DISPLAY", "txtTimeBanked"}),
                      DurationText(total, inDays ? SessionState.HoursWorkedDaily : 0) + "|" +
                          DurationText(Sum("TimeBankRelated = 1 AND " + own)))
                << qPrintable(own + only);
        }
    }
    for (const int employee : {marie, dan}) {
        for (const char* category : {"Vacation", "Sick", "Time claimed", "Time accumulated"})
            ExpectEntryForm(employee, category);
        for (const char* category : {"Vacation", "Sick"})
            ExpectGuard(employee, house.CategoryID(category));
    }
}

TEST_F(Balances, APendingRequestWeighsOnTheBankAtOnceAndTheUnitIsTheOneInTheRecord)
{
    house.Record(marie, "Time accumulated", {2026, 3, 2}, 8);
    const int claim = house.Record(marie, "Time claimed", {2026, 12, 1}, -7.5F, true);
    Sets("DepartmentID", 2);
    Opens("ADMIN");
    const auto bank = [&](int department) {
        ShowsOf(Scope(0, department, 0), "(All categories)");
        return user.Reads("txtTimeBanked");
    };
    EXPECT_EQ(bank(1) + " " + bank(2), "00:30 00:00");
    EXPECT_TRUE(Visible("fraTimeBank"));
    Cancels(claim);
    EXPECT_EQ(bank(1), "08:00");
    house.Record(marie, "Time borrowed", {2026, 3, 3}, -9.5F);
    house.Sql("UPDATE Categories SET CategoryEnglishName = 'Loan' WHERE SystemName = 'Time borrowed'");
    ShowsOf(Scope(marie, 1, 1), "(All categories)");
    EXPECT_EQ(user.Reads("txtTimeBanked"), "-(01:30)");
}

TEST_F(Balances, AFigureIsExplainedWhenSomebodyLooks)
{
    house.Record(marie, "Vacation", {2026, 3, 2}, 7);
    house.Record(marie, "Vacation", {2026, 12, 1}, 3.5F);
    house.Record(marie, "Vacation", {2026, 12, 2}, 2, true);
    house.Record(marie, "Time accumulated", {2026, 3, 2}, 8);
    house.Record(marie, "Time claimed", {2026, 12, 1}, -2);
    OpensOnMarie();
    const auto explained = [this](const QString& figure) {
        user.Presses(figure, Qt::Key_Return);
        return QToolTip::text().remove(QChar(0x200A)).replace('\n', ", ");
    };
    EXPECT_EQ(explained("lblTotalForTheYear_DISPLAY"),
              "2 days 01:00  Recorded to date, 0 days 01:30  Booked ahead, 0 days 02:00  Pending");
    EXPECT_EQ(explained("txtTimeBanked"),
              "08:00  Put in the bank, 00:00  Taken to date, -(02:00)  Booked ahead, 00:00  Pending, 06:00  Left");
    user.Presses("txtTimeBanked", Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    user.Picks("cboCategories", "Vacation");
    SessionState.English = false;
    EXPECT_EQ(explained("lblTotalForTheYear_DISPLAY"),
              "-(0 jours 05:30)  Solde de l'année précédente, 10 jours 00:15  Temps alloué, 1 jours 00:00  Pris à ce "
              "jour, 0 jours 03:30  Prévu après aujourd'hui, 0 jours 02:00  En attente d'approbation, 7 jours 03:15  "
              "Reste");
}

TEST_F(Balances, WhoeverChoosesATimeBankForTheFirstTimeIsOfferedHelp)
{
    const QString title = "MANAGING EMPLOYEE TIME BANKS";
    OpensOnMarie();
    const auto rows = [this] { return house.Number("SELECT COUNT(*) FROM Attendance"); };
    user.WillAnswer(title, "No", "you just selected (Time claimed) is one of the four")
        .Picks("cboCategories", "Time claimed");
    user.SeesMessage = [](const Message& message) { SessionState.MessageStopAsking = message.ShowStopAsking; };
    user.WillAnswer(title, "Yes").WillAnswer("NOT AVAILABLE YET:", "OK").Picks("cboCategories", "Time paid");
    EXPECT_EQ(rows(), 0) << "the row is written on No alone";
    user.Picks("cboCategories", "Vacation");
    user.ChoosesMenu("mnuSpecialDisplayPending");
    user.Picks("cboCategories", "Time paid");
    user.ChoosesMenu("mnuSpecialDisplayApproved");
    user.WillAnswer(title, "No").Picks("cboCategories", "Time borrowed");
    EXPECT_EQ(house.Filled("Attendance", 1), "RecordID=1|CategoryID=8|EnteredBy=ADMIN|EnteredDate=46349");
    user.Picks("cboCategories", "Time claimed");
    EXPECT_EQ(user.Reads("txtTimeBanked"), "00:00");
}
} // namespace
