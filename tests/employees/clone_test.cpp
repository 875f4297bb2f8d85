#include "employees/frm_clone_employee.h"
#include "support/company_test.h"

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace
{
class Cloning : public CompanyTest
{
protected:
    QString Offered()
    {
        user.Opens<frmCloneEmployee>(record);
        return Listed("lstCloneEmployees");
    }

    EmployeeRecord record;
};

TEST_F(Cloning, EachPositionListsThoseWithinItsReach)
{
    house.Sql("UPDATE Employees SET DepartmentID = 0 WHERE LoginID = 'DAN'");
    house.Hire({"NEXT", "Ned", "Next", "Production", "Assembly"}, house.FiscalYear("2027", 2027));
    EXPECT_EQ(Offered(), "Northern Works / Abel Northern Works / Bell Northern Works / Cote Northern Works / Dube "
                         "Southern Trade / Ellis");
    house.LogIn("DAN");
    SessionState.English = false;
    EXPECT_EQ(Offered(), "Fabrication / Abel Fabrication / Bell Fabrication / Cote")
        << "who has no department has no location in an organization";
    house.LogIn("CARLA");
    EXPECT_EQ(Offered(), "Abel Bell Cote");
    house.LogIn("ANNA");
    EXPECT_EQ(Offered(), "Abel Bell");
}

TEST_F(Cloning, TheNewRecordTakesWorkplaceScheduleApproversAndRightsButNothingPersonal)
{
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 8, AttendanceApprovedBy_Backup = 9, HourlyRate = 31, "
              "HoursWorkedFriday = 4.5, FRIDAY_SecondHalfStart = 0, FRIDAY_SecondHalfEnd = 0, MONDAY_FirstHalfStart = "
              "1e-7, EMailAddress = 'anna@example.org', IsAuthorizedToApprove = 1, AccessToCategoriesModule = 1, "
              "SelfLevelRead = 0 WHERE LoginID = 'ANNA'");
    user.Opens<frmCloneEmployee>(record).Picks("lstCloneEmployees", "Northern Works / Abel").Clicks("cmdCloneEmployee");
    EXPECT_FALSE(user.The<frmCloneEmployee>().isVisible());

    EXPECT_THAT((std::vector{record.OrganizationID, record.DepartmentID, record.GroupID, record.ApprovedByMain,
                             record.ApprovedByBackup}),
                ElementsAre(1, 1, 1, 8, 9));
    EXPECT_THAT(record.HoursWorked, ElementsAre(0, 7, 7, 7, 7, 4.5F, 0));
    EXPECT_THAT(record.HoursSpecified, ElementsAre(false, true, true, true, true, true, false));
    EXPECT_EQ(record.TotalHours[0] + record.TotalHours[5] + record.TotalMinutes[5], "430");
    EXPECT_THAT(record.FirstHalfStart, ElementsAre(0, 1e-7F, 8.5F, 8.5F, 8.5F, 8.5F, 0)) << "midnight is kept";
    EXPECT_THAT(record.SecondHalfEnd, ElementsAre(0, 16.5F, 16.5F, 16.5F, 16.5F, 0, 0));
    EXPECT_EQ(record.HoursWorkedDaily, 7);
    QStringList rights;
    for (const auto& [column, member] : kRights)
        if (record.*member != 0)
            rights << column;
    EXPECT_THAT(rights, UnorderedElementsAre("IsAuthorizedToApprove", "AccessToCategoriesModule",
                                             "AccessToRestrictedCategory", "SelfLevelRead"));
    EXPECT_EQ(record.RecordID + record.HourlyRate, 0);
    EXPECT_EQ(record.FamilyName + record.LoginID + record.Password + record.EMailAddress + record.HourlyRateText, "");
    house.Sql("UPDATE Employees SET HoursWorkedDaily = 0 WHERE LoginID = 'ANNA'");
    user.Opens<frmCloneEmployee>(record).Picks("lstCloneEmployees", "Northern Works / Abel").Clicks("cmdCloneEmployee");
    EXPECT_EQ(record.HoursWorkedDaily, 7) << "a length that is not known replaces none";

    record = {};
    user.Opens<frmCloneEmployee>(record).Picks("lstCloneEmployees", "Northern Works / Abel").Clicks("cmdNewEmployee");
    user.Opens<frmCloneEmployee>(record).Clicks("cmdCloneEmployee");
    EXPECT_FALSE(user.The<frmCloneEmployee>().isVisible()) << "nothing selected starts an empty record";
    EXPECT_EQ(record.OrganizationID + record.HoursWorkedDaily + record.IsAuthorizedToApprove, 0);
}
} // namespace
