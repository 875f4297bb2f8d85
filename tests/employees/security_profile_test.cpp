#include "employees/security_profile_rules.h"
#include "foundation/session_state.h"

#include <QMap>
#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

namespace
{
Right RightOf(const QString& name)
{
    for (const ProfileBox& box : ProfileBoxes())
        if (name == box.Name)
            return box.Member;
    ADD_FAILURE() << "no box " << name.toStdString();
    return nullptr;
}

QStringList Granted(const SecurityProfile& profile)
{
    QStringList names;
    for (const ProfileBox& box : ProfileBoxes())
        if (profile.*box.Member == 1)
            names << box.Name.mid(3);
    return names;
}

/// Absolute includes Create includes Read; of the four upper levels each includes the one below it.
bool HoldsTogether(const SecurityProfile& profile)
{
    for (int level = 0; level < kLevels; ++level)
        for (int kind = 0; kind < kKinds; ++kind) {
            const bool granted = profile.*kLevelBoxes[level][kind].Member == 1;
            if (granted && kind > 0 && profile.*kLevelBoxes[level][kind - 1].Member != 1)
                return false;
            if (granted && level < kLevels - 2 && profile.*kLevelBoxes[level + 1][kind].Member != 1)
                return false;
        }
    return true;
}

/// Whatever the four upper levels and the individual one may come to: 0 to 3 for each level, never less than above.
QVector<SecurityProfile> AllProfiles()
{
    QVector<SecurityProfile> profiles;
    for (int digits = 0; digits < 4 * 4 * 4 * 4 * 4; ++digits) {
        SecurityProfile profile;
        for (int level = 0, rest = digits; level < kLevels; ++level, rest /= 4)
            for (int kind = 0; kind < rest % 4; ++kind)
                profile.*kLevelBoxes[level][kind].Member = 1;
        if (HoldsTogether(profile))
            profiles << profile;
    }
    return profiles;
}

QStringList Open(bool modifying)
{
    QStringList names;
    for (const ProfileBox& box : ProfileBoxes())
        if (MayTick(box.Member, modifying))
            names << box.Name.mid(3);
    return names;
}
} // namespace

TEST(SecurityProfile, EveryClickLeavesTheLevelsHoldingTogether)
{
    const QVector<SecurityProfile> profiles = AllProfiles();
    EXPECT_EQ(profiles.size(), 35 * 4);
    for (const SecurityProfile& before : profiles)
        for (const ProfileBox& box : ProfileBoxes()) {
            SecurityProfile after = before;
            ChangeRight(after, box.Member, before.*box.Member == 0);
            EXPECT_TRUE(HoldsTogether(after))
                << box.Name.toStdString() << " of " << Granted(before).join(' ').toStdString();
            EXPECT_NE(after.*box.Member, before.*box.Member);
        }
}

TEST(SecurityProfile, AClickMovesNoMoreThanItMust)
{
    SecurityProfile profile;
    ChangeRight(profile, RightOf("chkDepartment_CreateOnly"), true);
    EXPECT_EQ(Granted(profile),
              (QStringList{"Department_ReadOnly", "Department_CreateOnly", "Group_ReadOnly", "Group_CreateOnly"}));
    ChangeRight(profile, RightOf("chkGlobal_Absolute"), true);
    EXPECT_EQ(Granted(profile).size(), 12);
    ChangeRight(profile, RightOf("chkGlobal_Absolute"), false);
    EXPECT_EQ(Granted(profile).size(), 11) << "nothing else goes";
    ChangeRight(profile, RightOf("chkIndividual_Absolute"), true);
    ChangeRight(profile, RightOf("chkGroup_ReadOnly"), false);
    EXPECT_EQ(Granted(profile), (QStringList{"Individual_ReadOnly", "Individual_CreateOnly", "Individual_Absolute"}));
}

TEST(SecurityProfile, WhoeverKeepsCategoriesSeesTheHiddenOnes)
{
    SecurityProfile profile;
    ChangeRight(profile, RightOf("chkModuleCategories"), true);
    EXPECT_EQ(profile.AccessToRestrictedCategory, 1);
    ChangeRight(profile, RightOf("chkModuleCategories"), false);
    EXPECT_EQ(profile.AccessToRestrictedCategory, 1);

    SecurityProfile loaded;
    loaded.AccessToCategoriesModule = 1;
    loaded.AccessToOrganizationsModule = 1;
    CompleteLoadedRights(loaded);
    EXPECT_EQ(Granted(loaded), (QStringList{"Individual_ReadOnly", "ViewHiddenCategories", "ModuleCategories"}));
    EXPECT_EQ(loaded.AccessToOrganizationsModule, 0);
}

TEST(SecurityProfile, NobodyGivesWhatHeHasNotGot)
{
    SessionState = Session();
    SessionState.LoginID = "MARC";
    EXPECT_EQ(Open(false), QStringList());
    const QMap<QString, QStringList> opened = {
        {"GroupLevelRead", {"Group_ReadOnly"}},
        {"GroupLevelCreate", {"Group_CreateOnly", "Individual_CreateOnly"}},
        {"GroupLevelModify", {"Group_Absolute", "Individual_Absolute"}},
        {"DepartmentLevelRead", {"Department_ReadOnly"}},
        {"DepartmentLevelCreate", {"Department_CreateOnly", "Individual_CreateOnly"}},
        {"DepartmentLevelModify", {"Department_Absolute", "Individual_Absolute"}},
        {"OrganizationLevelRead", {"Organization_ReadOnly"}},
        {"OrganizationLevelCreate", {"Organization_CreateOnly", "Individual_CreateOnly"}},
        {"OrganizationLevelModify", {"Organization_Absolute", "Individual_Absolute"}},
        {"IsAuthorizedToApprove", {"ApprovalAuthority"}},
        {"AccessToRestrictedCategory", {"ViewHiddenCategories"}},
        {"CanViewComments", {"ViewComments"}},
        {"CanGenerateReports", {"GenerateReports"}},
    };
    for (const auto& [column, member] : kRights) {
        static_cast<SecurityProfile&>(SessionState) = {};
        SessionState.*member = 1;
        EXPECT_EQ(Open(false), opened.value(column)) << column;
    }
    static_cast<SecurityProfile&>(SessionState) = {};
    SessionState.GroupLevelModify = 1;
    EXPECT_EQ(Open(true), (QStringList{"Group_CreateOnly", "Group_Absolute", "Individual_Absolute"}));
}

TEST(SecurityProfile, TheAdministratorGivesAllButWhatIsEverybodysOrHisOwnToGive)
{
    SessionState = Session();
    SessionState.LoginID = "ADMIN";
    EXPECT_EQ(Open(false).size(), 24 - 2);
    EXPECT_FALSE(Open(true).contains("ApprovalAuthority") || Open(true).contains("Individual_ReadOnly"));
    SessionState.IsAuthorizedToApprove = 1;
    EXPECT_TRUE(Open(false).contains("ApprovalAuthority"));
}

TEST(SecurityProfile, ALevelIsSummedUpInOneDigit)
{
    SecurityProfile profile;
    EXPECT_EQ(LevelDigit(profile, 4), 1) << "the individual level never shows none";
    EXPECT_EQ(LevelDigit(profile, 0), 0);
    profile.GlobalLevelRead = profile.OrganizationLevelCreate = profile.DepartmentLevelModify = 1;
    EXPECT_EQ(LevelDigit(profile, 0), 1);
    EXPECT_EQ(LevelDigit(profile, 1), 2);
    EXPECT_EQ(LevelDigit(profile, 2), 3);
}
