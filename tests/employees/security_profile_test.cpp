#include "employees/security_profile_rules.h"
#include "support/house.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace
{
const SecurityProfile kNone;

std::vector<ProfileBox> ProfileBoxes()
{
    std::vector<ProfileBox> boxes;
    const auto add = [&boxes](const auto& some) { boxes.insert(boxes.end(), some.begin(), some.end()); };
    std::for_each(kLevelBoxes.begin(), kLevelBoxes.end(), add);
    add(kSingleRightBoxes);
    add(kModuleBoxes);
    return boxes;
}

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

/// The access at each level after a click on each box of the levels, in a profile without rights or with all of them.
QString AfterClicks(bool granted)
{
    QStringList profiles;
    for (const auto& level : kLevelBoxes)
        for (const ProfileBox& box : level) {
            SecurityProfile profile;
            for (const ProfileBox& each : ProfileBoxes())
                profile.*each.Member = granted ? 0 : 1;
            ChangeRight(profile, box.Member, granted);
            profiles << QString();
            for (int digit = 0; digit < kLevels; ++digit)
                profiles.last() += QString::number(LevelDigit(profile, digit));
        }
    return profiles.join(' ');
}
} // namespace

TEST(SecurityProfile, AccessIncludesTheLessAndTheLevelsBelowButNotTheIndividualOne)
{
    EXPECT_EQ(AfterClicks(true), "11111 22221 33331 01111 02221 03331 00111 00221 00331 00011 00021 00031 "
                                 "00001 00002 00003");
    EXPECT_EQ(AfterClicks(false), "03333 13333 23333 00333 11333 22333 00033 11133 22233 00003 11113 22223 "
                                  "33331 33331 33332");
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
