#include "employees/security_profile_rules.h"

#include <algorithm>

namespace
{
using P = SecurityProfile;

/// All boxes but two: the approval of requests follows his own right, and everybody views his own records anyhow.
bool IsOpenToAdministrator(Right box)
{
    return box != &P::IsAuthorizedToApprove && box != &P::SelfLevelRead;
}

bool IsSingleRight(Right box)
{
    return std::any_of(kSingleRightBoxes.begin(), kSingleRightBoxes.end(),
                       [box](const ProfileBox& single) { return single.Member == box; });
}

std::array<ProfileBox, kKinds> BoxesOf(const Level& level)
{
    const QString name = QLatin1String("chk") + level.Name;
    return {{{name + "_ReadOnly", level.To(Access::Read)},
             {name + "_CreateOnly", level.To(Access::Create)},
             {name + "_Absolute", level.To(Access::Modify)}}};
}

/// Moves the rights that hang together with the one of `level` and `kind`.
void MoveAlong(SecurityProfile& profile, int level, int kind, bool granted)
{
    const bool individual = level == kLevels - 1;
    for (int other = individual ? level : 0; other < (individual ? kLevels : kLevels - 1); ++other)
        for (int access = 0; access < kKinds; ++access)
            if (granted ? other >= level && access <= kind : other <= level && access >= kind)
                profile.*kLevelTable[other].Rights[access] = granted ? 1 : 0;
}
} // namespace

const std::array<std::array<ProfileBox, kKinds>, kLevels> kLevelBoxes = {
    BoxesOf(kGlobalLevel), BoxesOf(kOrganizationLevel), BoxesOf(kDepartmentLevel), BoxesOf(kGroupLevel),
    BoxesOf(kIndividualLevel)};

const std::array<ProfileBox, 4> kSingleRightBoxes = {{
    {"chkApprovalAuthority", &P::IsAuthorizedToApprove},
    {"chkViewHiddenCategories", &P::AccessToRestrictedCategory},
    {"chkViewComments", &P::CanViewComments},
    {"chkGenerateReports", &P::CanGenerateReports},
}};

const std::array<ProfileBox, 5> kModuleBoxes = {{
    {"chkModuleDepartments", &P::AccessToDepartmentsModule},
    {"chkModuleGroups", &P::AccessToGroupsModule},
    {"chkModuleCategories", &P::AccessToCategoriesModule},
    {"chkModuleEntitlements", &P::AccessToEntitlementsModule},
    {"chkModuleEmployees", &P::AccessToEmployeesModule},
}};

void ChangeRight(SecurityProfile& profile, Right box, bool granted)
{
    profile.*box = granted ? 1 : 0;
    if (granted && box == &P::AccessToCategoriesModule)
        profile.AccessToRestrictedCategory = 1;
    for (int level = 0; level < kLevels; ++level)
        for (int kind = 0; kind < kKinds; ++kind)
            if (kLevelTable[level].Rights[kind] == box)
                MoveAlong(profile, level, kind, granted);
}

void CompleteLoadedRights(SecurityProfile& profile)
{
    profile.SelfLevelRead = 1;
    profile.AccessToOrganizationsModule = 0;
    if (profile.AccessToCategoriesModule == 1)
        profile.AccessToRestrictedCategory = 1;
}

bool MayTick(Right box, bool modifying)
{
    if (SessionState.LoginID == "ADMIN" && IsOpenToAdministrator(box))
        return true;
    if (modifying && box == kGroupLevel.To(Access::Create) && kGroupLevel.IsHeld(Access::Modify))
        return true;
    if (IsSingleRight(box))
        return SessionState.*box == 1;
    // Below the global level each right opens its own box, and those to add and change that of the individual level.
    return std::any_of(&kOrganizationLevel, &kIndividualLevel, [box](const Level& level) {
        for (const Access access : {Access::Read, Access::Create, Access::Modify})
            if (level.IsHeld(access) &&
                (box == level.To(access) || (access != Access::Read && box == kIndividualLevel.To(access))))
                return true;
        return false;
    });
}

int LevelDigit(const SecurityProfile& profile, int level)
{
    for (int kind = kKinds - 1; kind >= 0; --kind)
        if (profile.*kLevelTable[level].Rights[kind] == 1)
            return kind + 1;
    return level == kLevels - 1 ? 1 : 0;
}
