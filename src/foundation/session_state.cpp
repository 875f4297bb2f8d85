#include "foundation/session_state.h"

Session SessionState;

std::pair<const char*, int> CalendarSelection::Narrowest() const
{
    for (const auto& shown : {std::pair("EmployeeID", EmployeeID),
                              {"GroupID", EmployeeGroupID},
                              {"DepartmentID", EmployeeDepartmentID},
                              {"OrganizationID", EmployeeOrganizationID}})
        if (shown.second != 0)
            return shown;
    return {nullptr, 0};
}
