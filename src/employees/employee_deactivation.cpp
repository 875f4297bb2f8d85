#include "employees/employee_deactivation.h"

#include "employees/employee_entitlements.h"
#include "foundation/employee_row.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/employees_list.h"

namespace
{
Settings<EmployeeRow> Deactivation(QString reason)
{
    return {{&EmployeeRow::DeactivatedDate, Today()},
            {&EmployeeRow::DeactivatedBy, UserStamp()},
            {&EmployeeRow::ReasonForDeactivation, reason.replace('\'', '`')}};
}

/// Only one year forward is reached, and a failure is ignored.
void DeactivateNextYear(DataControl& datAbsence, int employee, const QString& reason)
{
    try {
        if (const auto next = First<EmployeeRow>(datAbsence, "PreviousID = ?", employee))
            Set(datAbsence, next->RecordID, Deactivation(reason));
    } catch (const RuntimeError&) {
        return;
    }
}
} // namespace

void DeactivateEmployee(DataControl& datAbsence, int employee, const QString& reason)
{
    InOpenYear(datAbsence, [&] {
        CopyToAuditTwin(datAbsence, kTable<EmployeeRow>, employee);
        Set(datAbsence, employee, Deactivation(reason));
        DeactivateNextYear(datAbsence, employee, reason);
        DeactivateEntitlements(datAbsence, employee);
        EmployeesListToBeReloaded(datAbsence);
    });
}
