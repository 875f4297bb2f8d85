#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "employees/frm_employees.h"
#include "selection/frm_select_employee.h"
#include "support/main_window.h"

#include <gtest/gtest.h>

namespace
{
/// Another workstation closes the fiscal year, or opens it again.
class YearClosedElsewhere : public testing::Test
{
protected:
    YearClosedElsewhere()
    {
        house.Configured().Company().Today(2026, 3, 2);
        house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly"});
        main = &user.OpensMain("ADMIN");
    }
    void Close(bool closed = true) { house.Sql("UPDATE FiscalYears SET ClosedDate = ?", {closed ? 46083 : 0}); }
    void Selects(const QString& button)
    {
        user.WhenOpens<frmSelectEmployee>(
            [this](frmSelectEmployee&) { user.Picks("lstEmployees", "Abel").Clicks("cmdSelect"); });
        user.Clicks(button);
    }
    /// While a form is filled in.
    void ClosesBefore(const QString& button)
    {
        Close();
        user.WillAnswer("FISCAL YEAR CLOSED:", "OK", "Fiscal year 2026 was closed on Mon 02-Mar-2026.").Clicks(button);
        Close(false);
    }

    House house;
    MainUser user;
    frmMain* main = nullptr;
};

TEST_F(YearClosedElsewhere, NothingIsWrittenIntoItAndWhatWasTypedStays)
{
    Selects("imgUpdateSelection");
    user.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user.Types("txtDurationInHours", "2").Picks("cboCategories", "Vacation").WillConfirm();
        ClosesBefore("cmdAddOrUpdate");
        EXPECT_EQ(user.Reads("txtDurationInHours"), "2");
        EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance"), 0);
        user.WillConfirm().Clicks("cmdAddOrUpdate");
    });
    user.Clicks("imgCreateSingle");
    user.ClicksDay({2026, 3, 4});
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Attendance"), 1);

    user.Opens<frmEmployees>();
    Selects("cmdModify");
    user.Types("txtCity", "Laval").WillConfirm();
    ClosesBefore("cmdModify");
    EXPECT_EQ(user.Reads("txtCity"), "Laval");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Employees WHERE City = 'Laval'"), 0);
    user.WillConfirm().WillBeDone().Clicks("cmdModify").Leaves();
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Employees WHERE City = 'Laval'"), 1);
}

TEST_F(YearClosedElsewhere, TheToolsFollowWithTheMinute)
{
    const QStringList tools{"imgCreateSingle", "imgModify", "imgRemove"};
    EXPECT_EQ(user.Usable(tools), tools.join(' '));
    Close();
    main->timAbsence_Timer();
    EXPECT_EQ(user.Usable(tools), "");
    Close(false);
    main->timAbsence_Timer();
    EXPECT_EQ(user.Usable(tools), tools.join(' '));
}
} // namespace
