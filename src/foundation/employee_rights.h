#pragma once

#include <array>

/// What a user may see and do: one member per rights column of `Employees`, 1 granted. Every test is "equals 1".
struct SecurityProfile
{
    int AccessToRestrictedCategory = 0;
    int IsAuthorizedToApprove = 0;
    int GroupLevelRead = 0;
    int GroupLevelCreate = 0;
    int GroupLevelModify = 0;
    int DepartmentLevelRead = 0;
    int DepartmentLevelCreate = 0;
    int DepartmentLevelModify = 0;
    int OrganizationLevelRead = 0;
    int OrganizationLevelCreate = 0;
    int OrganizationLevelModify = 0;
    int GlobalLevelRead = 0;
    int GlobalLevelCreate = 0;
    int GlobalLevelModify = 0;
    int SelfLevelRead = 0;
    int SelfLevelCreate = 0;
    int SelfLevelModify = 0;
    int AccessToOrganizationsModule = 0;
    int AccessToDepartmentsModule = 0;
    int AccessToGroupsModule = 0;
    int AccessToCategoriesModule = 0;
    int AccessToEntitlementsModule = 0;
    int AccessToEmployeesModule = 0;
    int CanGenerateReports = 0;
    int CanViewComments = 0;
};

using Right = int SecurityProfile::*;

struct RightColumn
{
    const char* Column;
    Right Member;
};

/// The 25 rights with their columns: log-in, the profile editor, cloning and generation all walk this list.
extern const std::array<RightColumn, 25> kRights;
