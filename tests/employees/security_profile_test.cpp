#include "employees/security_profile_rules.h"
#include "support/house.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace
{
const SecurityProfile kNone;

Right RightOf(const QString& name)
{
    for (const ProfileBox& box : ProfileBoxes())
        if (name == box.Name.mid(3))
            return box.Member;
    ADD_FAILURE() << "no box " << name.toStdString();
    return nullptr;
}

/// The names of the boxes that meet a condition, without their "chk".
template <typename Condition>
QString Boxes(Condition meets)
{
    QStringList names;
    for (const ProfileBox& box : ProfileBoxes())
        if (meets(box.Member))
            names << box.Name.mid(3);
    return names.join(' ');
}

QString Granted(const SecurityProfile& profile)
{
    return Boxes([&profile](Right right) { return profile.*right == 1; });
}

QString Open(bool modifying)
{
    return Boxes([modifying](Right right) { return MayTick(right, modifying); });
}

/// Absolute includes Create includes Read; of the four upper levels each includes the one below it.
bool HoldsTogether(const SecurityProfile& profile)
{
    const auto lacks = [&profile](int level, int kind) { return profile.*kLevelBoxes[level][kind].Member != 1; };
    for (int level = 0; level < kLevels; ++level)
        for (int kind = 0; kind < kKinds; ++kind)
            if (!lacks(level, kind) &&
                ((kind > 0 && lacks(level, kind - 1)) || (level < kLevels - 2 && lacks(level + 1, kind))))
                return false;
    return true;
}
} // namespace

TEST(SecurityProfile, EveryClickLeavesTheLevelsHoldingTogether)
{
    int profiles = 0;
    for (int digits = 0; digits < 4 * 4 * 4 * 4 * 4; ++digits) { // 0 to 3 for each level
        SecurityProfile before;
        for (int level = 0, rest = digits; level < kLevels; ++level, rest /= 4)
            for (int kind = 0; kind < rest % 4; ++kind)
                before.*kLevelBoxes[level][kind].Member = 1;
        if (!HoldsTogether(before))
            continue;
        ++profiles;
        for (const ProfileBox& box : ProfileBoxes()) {
            SecurityProfile after = before;
            ChangeRight(after, box.Member, before.*box.Member == 0);
            EXPECT_TRUE(HoldsTogether(after)) << box.Name.toStdString() << " of " << Granted(before).toStdString();
            EXPECT_NE(after.*box.Member, before.*box.Member);
        }
    }
    EXPECT_EQ(profiles, 35 * 4);
}

TEST(SecurityProfile, AClickMovesNoMoreThanItMust)
{
    SecurityProfile profile;
    ChangeRight(profile, RightOf("Department_CreateOnly"), true);
    EXPECT_EQ(Granted(profile), "Department_ReadOnly Department_CreateOnly Group_ReadOnly Group_CreateOnly");
    ChangeRight(profile, RightOf("Global_Absolute"), true);
    ChangeRight(profile, RightOf("Global_Absolute"), false);
    EXPECT_EQ(Granted(profile).split(' ').size(), 11) << "nothing else goes";
    for (const bool granted : {true, false})
        ChangeRight(profile, RightOf("Individual_ReadOnly"), granted);
    EXPECT_EQ(Granted(profile).split(' ').size(), 11) << "the individual level stands by itself";
    ChangeRight(profile, RightOf("Individual_Absolute"), true);
    ChangeRight(profile, RightOf("Group_ReadOnly"), false);
    EXPECT_EQ(Granted(profile), "Individual_ReadOnly Individual_CreateOnly Individual_Absolute");
    ChangeRight(profile, RightOf("Individual_ReadOnly"), false);
    ChangeRight(profile, RightOf("ModuleCategories"), false);
    EXPECT_EQ(Granted(profile), "");
    ChangeRight(profile, RightOf("ModuleCategories"), true);
    EXPECT_EQ(Granted(profile), "ViewHiddenCategories ModuleCategories")
        << "whoever keeps categories sees the hidden ones";

    SecurityProfile loaded;
    loaded.AccessToCategoriesModule = loaded.AccessToOrganizationsModule = 1;
    CompleteLoadedRights(loaded);
    EXPECT_EQ(Granted(loaded), "Individual_ReadOnly ViewHiddenCategories ModuleCategories");
    EXPECT_EQ(loaded.AccessToOrganizationsModule, 0);
}

TEST(SecurityProfile, NobodyGivesWhatHeHasNotGot)
{
    SessionState = Session();
    SessionState.LoginID = "MARC";
    const std::pair<Right, const char*> opened[] = {
        {&SecurityProfile::GroupLevelRead, "Group_ReadOnly"},
        {&SecurityProfile::GroupLevelModify, "Group_Absolute Individual_Absolute"},
        {&SecurityProfile::DepartmentLevelCreate, "Department_CreateOnly Individual_CreateOnly"},
        {&SecurityProfile::OrganizationLevelModify, "Organization_Absolute Individual_Absolute"},
        {&SecurityProfile::GlobalLevelModify, ""},
        {&SecurityProfile::SelfLevelCreate, ""},
        {&SecurityProfile::IsAuthorizedToApprove, "ApprovalAuthority"},
        {&SecurityProfile::CanViewComments, "ViewComments"},
        {&SecurityProfile::AccessToEmployeesModule, ""}};
    for (const auto& [right, boxes] : opened) {
        static_cast<SecurityProfile&>(SessionState) = kNone;
        SessionState.*right = 1;
        EXPECT_EQ(Open(false), boxes);
    }
    static_cast<SecurityProfile&>(SessionState) = kNone;
    SessionState.GroupLevelModify = 1;
    EXPECT_EQ(Open(true), "Group_CreateOnly Group_Absolute Individual_Absolute");

    SessionState.LoginID = "ADMIN";
    EXPECT_EQ(Open(true).split(' ').size(), 24 - 2);
    EXPECT_FALSE(Open(true).contains("ApprovalAuthority") || Open(true).contains("Individual_ReadOnly"));
    SessionState.IsAuthorizedToApprove = 1;
    EXPECT_TRUE(Open(false).contains("ApprovalAuthority"));
}
