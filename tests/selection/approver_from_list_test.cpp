#include "reference/employees_list.h"
#include "selection/frm_get_approver_from_list.h"
#include "support/user.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

class ApproverFromList : public testing::Test
{
protected:
    ApproverFromList()
    {
        house.Company();
        house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly", {"IsAuthorizedToApprove"}});
        house.Hire({"BRUNO", "Bruno", "Bell", "Production", "Assembly", {}});
        house.Hire({"CARLA", "Carla", "Cote", "Production", "", {"IsAuthorizedToApprove"}});
        eva = house.Hire({"EVA", "Eva", "Ellis", "Stores", "", {"IsAuthorizedToApprove"}});
        house.Hire({"FRED", "Fred", "Fox", "Stores", "", {"IsAuthorizedToApprove"}});
        house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE LoginID = 'FRED'");
        house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
        house.LogIn("ADMIN");
    }

    House house;
    User user;
    int eva = 0;
};

TEST_F(ApproverFromList, ApproversOfTheWholeYearStandUnderTheirUnits)
{
    user.Opens<frmGetApproverFromList>("Bruno Bell");
    EXPECT_THAT(user.Reads("lblInstructions").toStdString(),
                testing::HasSubstr("who will appprove Bruno Bell's request"));
    EXPECT_THAT(user.Entries("lstApprovers"),
                ElementsAre("Northern Works / Production", "Cote, Carla", "Northern Works / Production / Assembly",
                            "Abel, Anna", "Southern Trade / Stores", "Ellis, Eva"));
    EXPECT_EQ(house.Number("SELECT ReloadEmployeesList FROM FiscalYears"), 0) << "the flagged list was rebuilt first";
    EXPECT_FALSE(user.CanUse("cmdSelect"));
    user.Picks("lstApprovers", "Abel").Picks("lstApprovers", "Southern Trade");
    EXPECT_FALSE(user.CanUse("cmdSelect")) << "a unit is no approver";
    user.Picks("lstApprovers", "Ellis").Clicks("cmdSelect");
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverID(), eva);
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverName(), "Ellis, Eva");
}

TEST_F(ApproverFromList, InFrenchTheUnitsAreSortedByTheirFrenchNamesAndLeavingChoosesNobody)
{
    SessionState.English = false;
    user.Opens<frmGetApproverFromList>("Bruno Bell");
    EXPECT_EQ(user.Entries("lstApprovers").value(2), "Ateliers du Nord / Fabrication / Assemblage");
    user.Picks("lstApprovers", "Abel").Clicks("cmdCancel");
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverID(), 0);
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverName(), "");
}
