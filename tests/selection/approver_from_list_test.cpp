#include "selection/approvers_of_year.h"
#include "selection/frm_get_approver_from_list.h"
#include "support/company_test.h"

using testing::ElementsAre;

class ApproverFromList : public CompanyTest
{};

TEST_F(ApproverFromList, ApproversOfTheWholeYearStandUnderTheirUnitsInTheUsersLanguage)
{
    house.Hire({"FRED", "Fred", "Fox", "Production", "Assembly"});
    house.Sql("UPDATE Employees SET IsAuthorizedToApprove = 1 WHERE LoginID <> 'BRUNO'");
    Dismiss("DAN");
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    house.Sql("INSERT INTO Employees_List (FiscalYear, EmplID, FamilyName) VALUES (2, ?, 'Next')", {eva});
    user.Opens<frmGetApproverFromList>("Bruno Bell");
    EXPECT_TRUE(user.Reads("lblInstructions").contains("who will appprove Bruno Bell's request"));
    EXPECT_THAT(user.Entries("lstApprovers"),
                ElementsAre("Northern Works / Production", "Cote, Carla", "Northern Works / Production / Assembly",
                            "Abel, Anna", "Fox, Fred", "Southern Trade / Stores", "Ellis, Eva"));
    EXPECT_EQ(ListFlag(), 0) << "the flagged list was rebuilt first";
    EXPECT_FALSE(user.CanUse("cmdSelect"));
    user.Presses("lstApprovers", Qt::Key_Down);
    EXPECT_EQ(user.Reads("lstApprovers"), "Cote, Carla") << "the first who can be chosen, not the second";
    user.Picks("lstApprovers", "Abel").Picks("lstApprovers", "Southern Trade");
    EXPECT_FALSE(user.CanUse("cmdSelect")) << "a unit is no approver";
    user.Picks("lstApprovers", "Ellis").Clicks("cmdSelect");
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverID(), eva);
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverName(), "Ellis, Eva");

    SessionState.English = false;
    user.Opens<frmGetApproverFromList>("Bruno Bell");
    EXPECT_EQ(user.Entries("lstApprovers").value(2), "Ateliers du Nord / Fabrication / Assemblage");
    user.Picks("lstApprovers", "Abel").Clicks("cmdCancel");
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverID(), 0);
    EXPECT_EQ(user.The<frmGetApproverFromList>().ApproverName(), "");
}

TEST_F(ApproverFromList, WhoeverHasNoApproverFindsThoseAboveHimLevelByLevel)
{
    house.Hire({"FRED", "Fred", "Fox", "Production", "Assembly"});
    house.Hire({"GUS", "Gus", "Gray", "Production", "Assembly"});
    const int hugo = house.Hire({"HUGO", "Hugo", "Hart", "Production"});
    const int ivan = house.Hire({"IVAN", "Ivan", "Ives", "Production"});
    house.Sql("UPDATE Employees SET IsAuthorizedToApprove = 1 WHERE LoginID <> 'BRUNO'");
    house.Sql("UPDATE Employees SET DepartmentID = 0 WHERE RecordID = ?", {hugo});
    house.Sql("UPDATE Employees SET DepartmentID = 0, OrganizationID = 0 WHERE RecordID = ?", {ivan});
    Dismiss("GUS");
    const auto candidates = [this](const CalendarSelection& requester) {
        QStringList lines;
        for (const ListEntry& line : ApproversAbove(datAbsence, requester))
            lines << line.Text;
        return lines;
    };
    EXPECT_THAT(candidates({anna, 1, 1, 1, ""}),
                ElementsAre("Fox, Fred /           Production", "Cote, Carla /           Production",
                            "Hart, Hugo /       Northern Works", "Ives, Ivan"))
        << "neither herself nor who has left";
    EXPECT_THAT(candidates({eva, 2, 3, 0, ""}), ElementsAre("Ives, Ivan"));
    SessionState.English = false;
    EXPECT_THAT(candidates({hugo, 1, 0, 0, ""}), ElementsAre("Ives, Ivan"));
    EXPECT_EQ(candidates({dan, 1, 2, 0, ""}).value(0), "Hart, Hugo /     Ateliers du Nord");
}
