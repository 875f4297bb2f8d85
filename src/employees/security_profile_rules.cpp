#include "employees/security_profile_rules.h"

#include "foundation/session_state.h"

#include <algorithm>

namespace
{
using P = SecurityProfile;
constexpr Right GlobalRead = &P::GlobalLevelRead;
constexpr Right GlobalCreate = &P::GlobalLevelCreate;
constexpr Right GlobalAll = &P::GlobalLevelModify;
constexpr Right OrgRead = &P::OrganizationLevelRead;
constexpr Right OrgCreate = &P::OrganizationLevelCreate;
constexpr Right OrgAll = &P::OrganizationLevelModify;
constexpr Right DeptRead = &P::DepartmentLevelRead;
constexpr Right DeptCreate = &P::DepartmentLevelCreate;
constexpr Right DeptAll = &P::DepartmentLevelModify;
constexpr Right GroupRead = &P::GroupLevelRead;
constexpr Right GroupCreate = &P::GroupLevelCreate;
constexpr Right GroupAll = &P::GroupLevelModify;
constexpr Right SelfRead = &P::SelfLevelRead;
constexpr Right SelfCreate = &P::SelfLevelCreate;
constexpr Right SelfAll = &P::SelfLevelModify;
constexpr Right HiddenCategories = &P::AccessToRestrictedCategory;
constexpr Right CategoriesModule = &P::AccessToCategoriesModule;

enum class When
{
    Always,
    OnModify
};

/// Nobody gives what he has not got: a right of the user opens these boxes.
struct Opening
{
    Right Held;
    std::vector<Right> Boxes;
    When Applies = When::Always;
};

const std::vector<Opening>& Openings()
{
    static const std::vector<Opening> openings = {
        {&P::IsAuthorizedToApprove, {&P::IsAuthorizedToApprove}},
        {DeptRead, {DeptRead}},
        {DeptCreate, {DeptCreate, SelfCreate}},
        {DeptAll, {DeptAll, SelfAll}},
        {GroupRead, {GroupRead}},
        {GroupCreate, {GroupCreate, SelfCreate}},
        {GroupAll, {GroupAll, SelfAll}},
        {GroupAll, {GroupCreate}, When::OnModify},
        {OrgRead, {OrgRead}},
        {OrgCreate, {OrgCreate, SelfCreate}},
        {OrgAll, {OrgAll, SelfAll}},
        {HiddenCategories, {HiddenCategories}},
        {&P::CanViewComments, {&P::CanViewComments}},
        {&P::CanGenerateReports, {&P::CanGenerateReports}},
    };
    return openings;
}

/// All boxes but two: the approval of requests follows his own right, and everybody views his own records anyhow.
bool IsOpenToAdministrator(Right box)
{
    return box != &P::IsAuthorizedToApprove && box != SelfRead;
}

bool Contains(const std::vector<Right>& boxes, Right box)
{
    return std::find(boxes.begin(), boxes.end(), box) != boxes.end();
}
} // namespace

const std::array<std::array<ProfileBox, kKinds>, kLevels> kLevelBoxes = {{
    {{{"chkGlobal_ReadOnly", GlobalRead}, {"chkGlobal_CreateOnly", GlobalCreate}, {"chkGlobal_Absolute", GlobalAll}}},
    {{{"chkOrganization_ReadOnly", OrgRead},
      {"chkOrganization_CreateOnly", OrgCreate},
      {"chkOrganization_Absolute", OrgAll}}},
    {{{"chkDepartment_ReadOnly", DeptRead},
      {"chkDepartment_CreateOnly", DeptCreate},
      {"chkDepartment_Absolute", DeptAll}}},
    {{{"chkGroup_ReadOnly", GroupRead}, {"chkGroup_CreateOnly", GroupCreate}, {"chkGroup_Absolute", GroupAll}}},
    {{{"chkIndividual_ReadOnly", SelfRead},
      {"chkIndividual_CreateOnly", SelfCreate},
      {"chkIndividual_Absolute", SelfAll}}},
}};

const std::array<ProfileBox, 4> kSingleRightBoxes = {{
    {"chkApprovalAuthority", &P::IsAuthorizedToApprove},
    {"chkViewHiddenCategories", HiddenCategories},
    {"chkViewComments", &P::CanViewComments},
    {"chkGenerateReports", &P::CanGenerateReports},
}};

const std::array<ProfileBox, 5> kModuleBoxes = {{
    {"chkModuleDepartments", &P::AccessToDepartmentsModule},
    {"chkModuleGroups", &P::AccessToGroupsModule},
    {"chkModuleCategories", CategoriesModule},
    {"chkModuleEntitlements", &P::AccessToEntitlementsModule},
    {"chkModuleEmployees", &P::AccessToEmployeesModule},
}};

std::vector<ProfileBox> ProfileBoxes()
{
    std::vector<ProfileBox> boxes;
    for (const auto& level : kLevelBoxes)
        boxes.insert(boxes.end(), level.begin(), level.end());
    boxes.insert(boxes.end(), kSingleRightBoxes.begin(), kSingleRightBoxes.end());
    boxes.insert(boxes.end(), kModuleBoxes.begin(), kModuleBoxes.end());
    return boxes;
}

const std::vector<Implication>& Implications()
{
    static const std::vector<Implication> implications = {
        {GlobalAll,
         {GlobalCreate, GlobalRead, OrgAll, OrgCreate, OrgRead, DeptAll, DeptCreate, DeptRead, GroupAll, GroupCreate,
          GroupRead},
         {}},
        {GlobalCreate, {GlobalRead, OrgCreate, OrgRead, DeptCreate, DeptRead, GroupCreate, GroupRead}, {GlobalAll}},
        {GlobalRead, {OrgRead, DeptRead, GroupRead}, {GlobalAll, GlobalCreate}},
        {OrgAll, {OrgCreate, OrgRead, DeptAll, DeptCreate, DeptRead, GroupAll, GroupCreate, GroupRead}, {GlobalAll}},
        {OrgCreate, {OrgRead, DeptCreate, DeptRead, GroupCreate, GroupRead}, {GlobalAll, GlobalCreate, OrgAll}},
        {OrgRead, {DeptRead, GroupRead}, {GlobalAll, GlobalCreate, GlobalRead, OrgAll, OrgCreate}},
        {DeptAll, {DeptCreate, DeptRead, GroupAll, GroupCreate, GroupRead}, {GlobalAll, OrgAll}},
        {DeptCreate, {DeptRead, GroupCreate, GroupRead}, {DeptAll, GlobalAll, GlobalCreate, OrgAll, OrgCreate}},
        {DeptRead, {GroupRead}, {GlobalAll, GlobalCreate, OrgAll, OrgCreate, DeptAll, DeptCreate, OrgRead, GlobalRead}},
        {GroupAll, {GroupCreate, GroupRead}, {GlobalAll, OrgAll, DeptAll}},
        {GroupCreate, {GroupRead}, {GroupAll, GlobalAll, GlobalCreate, OrgAll, OrgCreate, DeptAll, DeptCreate}},
        {GroupRead,
         {},
         {GlobalAll, GlobalCreate, GlobalRead, OrgAll, OrgCreate, OrgRead, DeptAll, DeptCreate, DeptRead, GroupAll,
          GroupCreate}},
        {SelfAll, {SelfCreate, SelfRead}, {}},
        {SelfCreate, {SelfRead}, {SelfAll}},
        {SelfRead, {}, {SelfAll, SelfCreate}},
        {CategoriesModule, {HiddenCategories}, {}},
    };
    return implications;
}

void ChangeRight(SecurityProfile& profile, Right box, bool granted)
{
    profile.*box = granted ? 1 : 0;
    for (const Implication& implication : Implications())
        if (implication.Box == box)
            for (const Right moved : granted ? implication.Checks : implication.Unchecks)
                profile.*moved = granted ? 1 : 0;
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
    return std::any_of(Openings().begin(), Openings().end(), [box, modifying](const Opening& opening) {
        return Contains(opening.Boxes, box) && SessionState.*opening.Held == 1 &&
               (modifying || opening.Applies == When::Always);
    });
}

int LevelDigit(const SecurityProfile& profile, int level)
{
    const auto& boxes = kLevelBoxes[static_cast<std::size_t>(level)];
    const bool individual = level == kLevels - 1;
    for (int kind = kKinds - 1; kind >= 0; --kind)
        if (profile.*boxes[static_cast<std::size_t>(kind)].Member == 1)
            return kind + 1;
    return individual ? 1 : 0;
}
