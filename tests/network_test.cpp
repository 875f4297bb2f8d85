#include "attendance/frm_approval.h"
#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "employees/frm_employees.h"
#include "ledger/frm_entitlements.h"
#include "selection/frm_select_employee.h"
#include "support/file_calls.h"
#include "support/main_window.h"

#include <QFile>

#include <gtest/gtest.h>

namespace
{
/// The program of a workstation whose database lies on a share: every call of the engine is a way to the server. The
/// company has a thousand employees.
class OnAShare : public testing::Test
{
protected:
    OnAShare()
    {
        house.Configured().Company();
        house.FiscalYear("2027", 2027);
        anna = house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly"});
        house.Sql(
            "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 999) "
            "INSERT INTO Employees (FiscalYear, OrganizationID, DepartmentID, GroupID, FirstName, FamilyName, "
            "LoginID, Password) SELECT FiscalYear, OrganizationID, DepartmentID, GroupID, 'No', 'Employee ' || i, "
            "'E' || i, 'PASS' FROM Employees, n WHERE RecordID = ?",
            {anna});
        house.Sql("INSERT INTO Entitlements (CategoryID, EmployeeID, Active) VALUES (1, ?, 1)", {anna});
        house.Sql("UPDATE Employees SET IsAuthorizedToApprove = 1 WHERE LoginID = 'ADMIN'");
        for (int day = 1; day <= 30; ++day)
            house.Sql("UPDATE Attendance SET SubmittedTo_Second = (SELECT RecordID FROM Employees WHERE LoginID = "
                      "'ADMIN') WHERE RecordID = ?",
                      {house.Record(anna, "Sick", {2026, 6, day}, 7, true)});
    }

    FileCalls calls;
    House house;
    MainUser user;
    int anna = 0;
};

TEST_F(OnAShare, EveryClickCostsFewCalls)
{
    const auto costs = [this](int most, const std::function<void()>& work) {
        calls.StartCounting();
        work();
        EXPECT_LE(calls.All(), most);
    };
    const auto select = [this](const QString& name) {
        user.WhenOpens<frmSelectEmployee>(
            [this, name](frmSelectEmployee&) { user.Picks("lstEmployees", name).Clicks("cmdSelect"); });
    };
    const auto change = [&](const QString& name) {
        select(name);
        user.Clicks("imgUpdateSelection");
    };
    user.OpensMain("ADMIN"); // from here on the file is at hand
    frmMain* main = nullptr;
    costs(110, [&] { main = &user.OpensMain("ADMIN"); });
    costs(10, [&] { main->timAbsence_Timer(); });
    EXPECT_EQ(user.Reads("imgApprove"), "Approve (1)") << "an approver's minute costs no more";
    costs(20, [&] { user.Picks("cboCategories", "Vacation"); });
    change("Abel");
    costs(35, [&] { change("Employee 7,"); });
    costs(35, [&] { user.Clicks("cmdNextYear"); });
    user.Clicks("cmdPreviousYear");

    user.WillAnswer("MANAGING EMPLOYEE TIME BANKS", "No");
    costs(25, [&] { user.Picks("cboCategories", "Time claimed"); });
    user.Picks("cboCategories", "(All categories)");
    costs(40, [&] { user.Opens<frmEntitlements>(); });
    costs(40, [&] { user.Picks("cboRecords", "Abel"); });
    user.Leaves();

    costs(40, [&] { user.Opens<frmEmployees>(); });
    costs(40, [&] {
        select("Abel");
        user.Clicks("cmdModify");
    });
    user.Leaves();
    costs(40, [&] { user.Opens<frmApproval>(); });
    user.Picks("cboRecords", "26-0").Clicks("optApproveAll").WillConfirm().WillBeDone();
    costs(115, [&] { user.Clicks("cmdProcess"); });
    EXPECT_LE(calls.Of(FileCall::Sync), 4) << "all dates are written together";
    user.Leaves().Works(*main);
    change("Abel");
    user.Picks("cboCategories", "Vacation");
    for (const QString tool : {"imgCreateSingle", "imgModify"}) {
        user.WhenOpens<frmAttendance>([&](frmAttendance&) {
            user.Types("txtDurationInHours", "2").Picks("cboCategories", "Vacation").WillConfirm();
            if (tool == "imgModify")
                user.WillBeDone("has been modified");
            calls.StartCounting();
            user.Clicks("cmdAddOrUpdate");
        });
        user.Clicks(tool);
        user.ClicksDay({2026, 3, 4});
        EXPECT_LE(calls.All(), 115) << qPrintable(tool);
        EXPECT_LE(calls.Of(FileCall::Sync), 4) << qPrintable(tool);
    }

    QFile::remove(house.DatabaseFile());
    main->timAbsence_Timer(); // whoever does nothing is told nothing when the share is away for a moment
}
} // namespace
