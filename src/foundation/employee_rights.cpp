#include "foundation/employee_rights.h"

#define RIGHT(name)                                                                                                    \
    RightColumn                                                                                                        \
    {                                                                                                                  \
#name, &SecurityProfile::name                                                                                  \
    }

const std::array<RightColumn, 25> kRights = {
    RIGHT(AccessToRestrictedCategory),
    RIGHT(IsAuthorizedToApprove),
    RIGHT(GroupLevelRead),
    RIGHT(GroupLevelCreate),
    RIGHT(GroupLevelModify),
    RIGHT(DepartmentLevelRead),
    RIGHT(DepartmentLevelCreate),
    RIGHT(DepartmentLevelModify),
    RIGHT(OrganizationLevelRead),
    RIGHT(OrganizationLevelCreate),
    RIGHT(OrganizationLevelModify),
    RIGHT(GlobalLevelRead),
    RIGHT(GlobalLevelCreate),
    RIGHT(GlobalLevelModify),
    RIGHT(SelfLevelRead),
    RIGHT(SelfLevelCreate),
    RIGHT(SelfLevelModify),
    RIGHT(AccessToOrganizationsModule),
    RIGHT(AccessToDepartmentsModule),
    RIGHT(AccessToGroupsModule),
    RIGHT(AccessToCategoriesModule),
    RIGHT(AccessToEntitlementsModule),
    RIGHT(AccessToEmployeesModule),
    RIGHT(CanGenerateReports),
    RIGHT(CanViewComments),
};

#undef RIGHT
