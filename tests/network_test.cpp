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
            house.Record(anna, "Sick", {2026, 6, day}, 7, true);
        house.Sql(
            "UPDATE Attendance SET SubmittedTo_Second = (SELECT RecordID FROM Employees WHERE LoginID = 'ADMIN')");
        main = &user.OpensMain("ADMIN"); // from here on the file is at hand
        Selects("Abel", "imgUpdateSelection");
    }
    /// What is written goes to the disk together.
    void Costs(int most, const std::function<void()>& work)
    {
        calls.StartCounting();
        work();
        EXPECT_LE(calls.All(), most);
        EXPECT_LE(calls.Of(FileCall::Sync), 4) << most;
    }
    void Selects(const QString& name, const QString& control)
    {
        user.WhenOpens<frmSelectEmployee>(
            [this, name](frmSelectEmployee&) { user.Picks("lstEmployees", name).Clicks("cmdSelect"); });
        user.Clicks(control);
    }

    FileCalls calls;
    House house;
    MainUser user;
    frmMain* main = nullptr;
    int anna = 0;
};

TEST_F(OnAShare, AClickInTheMainWindowCostsFewCalls)
{
    Costs(110, [this] { main = &user.OpensMain("ADMIN"); });
    Costs(10, [this] { main->timAbsence_Timer(); });
    EXPECT_EQ(user.Reads("imgApprove"), "Approve (1)") << "an approver's minute costs no more";
    Costs(20, [this] { user.Picks("cboCategories", "Vacation"); });
    Costs(35, [this] { Selects("Employee 7,", "imgUpdateSelection"); });
    Costs(35, [this] { user.Clicks("cmdNextYear"); });
    user.Clicks("cmdPreviousYear").WillAnswer("MANAGING EMPLOYEE TIME BANKS", "No");
    Costs(25, [this] { user.Picks("cboCategories", "Time claimed"); });

    QFile::remove(house.DatabaseFile());
    main->timAbsence_Timer(); // whoever does nothing is told nothing when the share is away for a moment
}

TEST_F(OnAShare, AFormCostsFewCalls)
{
    Costs(40, [this] { user.Opens<frmEntitlements>(); });
    Costs(40, [this] { user.Picks("cboRecords", "Abel"); });
    user.Leaves();
    Costs(40, [this] { user.Opens<frmEmployees>(); });
    Costs(40, [this] { Selects("Abel", "cmdModify"); });
    user.Leaves();
    Costs(40, [this] { user.Opens<frmApproval>(); });
    user.Picks("cboRecords", "26-0").Clicks("optApproveAll").WillConfirm().WillBeDone();
    Costs(115, [this] { user.Clicks("cmdProcess"); });
}

TEST_F(OnAShare, ARecordCostsFewCalls)
{
    user.Picks("cboCategories", "Vacation");
    for (const QString tool : {"imgCreateSingle", "imgModify"}) {
        user.WhenOpens<frmAttendance>([&](frmAttendance&) {
            user.Types("txtDurationInHours", "2").Picks("cboCategories", "Vacation").WillConfirm();
            if (tool == "imgModify")
                user.WillBeDone("has been modified");
            Costs(115, [this] { user.Clicks("cmdAddOrUpdate"); });
        });
        user.Clicks(tool);
        user.ClicksDay({2026, 3, 4});
    }
}
} // namespace
