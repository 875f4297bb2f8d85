#include "employees/frm_clone_employee.h"
#include "support/user.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

/// Anna assembles in Production and approves; Carla works there without a group, Dan sells, Eva is with the other
/// organization, Gil stands at the head of the first one.
class Cloning : public testing::Test
{
protected:
    Cloning()
    {
        house.Company();
        anna = house.Hire({"ANNA",
                           "Anna",
                           "Abel",
                           "Production",
                           "Assembly",
                           {"IsAuthorizedToApprove", "GlobalLevelModify", "AccessToGroupsModule",
                            "AccessToOrganizationsModule", "SelfLevelCreate"}});
        house.Hire({"CARLA", "Carla", "Cote", "Production", "", {}});
        house.Hire({"DAN", "Dan", "Dube", "Sales", "", {}});
        house.Hire({"EVA", "Eva", "Ellis", "Stores", "", {}});
        house.Hire({"GIL", "Gil", "Gray", "Sales", "", {}});
        house.Sql("UPDATE Employees SET DepartmentID = 0 WHERE LoginID = 'GIL'");
        house.LogIn("ADMIN");
    }

    QStringList Listed()
    {
        user.Opens<frmCloneEmployee>(record);
        return user.Entries("lstCloneEmployees");
    }

    House house;
    User user;
    EmployeeRecord record;
    int anna = 0;
};

TEST_F(Cloning, EachPositionListsThoseWithinItsReach)
{
    EXPECT_THAT(Listed(),
                ElementsAre("Northern Works / Abel, Anna", "Northern Works / Cote, Carla", "Northern Works / Dube, Dan",
                            "Northern Works / Gray, Gil", "Southern Trade / Ellis, Eva"));
    house.LogIn("GIL");
    EXPECT_THAT(Listed(), ElementsAre("Production / Abel, Anna", "Production / Cote, Carla", "Sales / Dube, Dan"))
        << "who has no department has no location in an organization";
    SessionState.English = false;
    EXPECT_THAT(Listed(), ElementsAre("Fabrication / Abel, Anna", "Fabrication / Cote, Carla", "Ventes / Dube, Dan"));
    house.LogIn("CARLA");
    EXPECT_THAT(Listed(), ElementsAre("Abel, Anna", "Cote, Carla"));
    house.LogIn("ANNA");
    EXPECT_THAT(Listed(), ElementsAre("Abel, Anna"));
}

TEST_F(Cloning, TheNewRecordTakesWorkplaceScheduleApproversAndRightsButNothingPersonal)
{
    house.Sql(
        "UPDATE Employees SET AttendanceApprovedBy_Main = 8, AttendanceApprovedBy_Backup = 9, "
        "HoursWorkedFriday = 4.5, FRIDAY_SecondHalfStart = 0, FRIDAY_SecondHalfEnd = 0, "
        "MONDAY_FirstHalfStart = 1e-7, EMailAddress = 'anna@example.org', HourlyRate = 31 WHERE LoginID = 'ANNA'");
    user.Opens<frmCloneEmployee>(record).Picks("lstCloneEmployees", "Northern Works / Abel").Clicks("cmdCloneEmployee");
    EXPECT_FALSE(user.The<frmCloneEmployee>().isVisible());

    EXPECT_EQ(record.OrganizationID, 1);
    EXPECT_EQ(record.DepartmentID, 1);
    EXPECT_EQ(record.GroupID, 1);
    EXPECT_EQ(record.ApprovedByMain, 8);
    EXPECT_EQ(record.ApprovedByBackup, 9);
    EXPECT_THAT(record.HoursWorked, ElementsAre(0, 7, 7, 7, 7, 4.5F, 0));
    EXPECT_THAT(record.HoursSpecified, ElementsAre(false, true, true, true, true, true, false));
    EXPECT_EQ(record.TotalHours[5], "4");
    EXPECT_EQ(record.TotalMinutes[5], "30");
    EXPECT_EQ(record.TotalHours[0], "");
    EXPECT_EQ(record.FirstHalfStart[1], 1e-7F) << "midnight";
    EXPECT_EQ(record.SecondHalfEnd[4], 16.5F);
    EXPECT_EQ(record.SecondHalfEnd[5], 0);
    EXPECT_EQ(record.HoursWorkedDaily, 7);
    EXPECT_EQ(record.IsAuthorizedToApprove, 1);
    EXPECT_EQ(record.GlobalLevelModify, 1);
    EXPECT_EQ(record.AccessToGroupsModule, 1);
    EXPECT_EQ(record.SelfLevelCreate, 1);
    EXPECT_EQ(record.CanGenerateReports, 0);

    EXPECT_EQ(record.RecordID, 0);
    EXPECT_EQ(record.FamilyName + record.FirstName + record.LoginID + record.Password + record.EMailAddress +
                  record.HourlyRateText,
              "");
    EXPECT_EQ(record.HourlyRate, 0);
}

TEST_F(Cloning, WithoutATemplateTheRecordStaysEmpty)
{
    user.Opens<frmCloneEmployee>(record).Clicks("cmdCloneEmployee");
    EXPECT_FALSE(user.The<frmCloneEmployee>().isVisible()) << "nothing selected starts an empty record";
    user.Opens<frmCloneEmployee>(record).Picks("lstCloneEmployees", "Northern Works / Abel").Clicks("cmdNewEmployee");
    EXPECT_EQ(record.OrganizationID, 0);
    EXPECT_EQ(record.HoursWorkedDaily, 0);
    EXPECT_EQ(record.SelfLevelRead, 1);
    EXPECT_EQ(record.IsAuthorizedToApprove, 0);
}
