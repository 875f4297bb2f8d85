#include "employees/employee_deactivation.h"

#include "employees/employee_entitlements.h"
#include "employees/employee_rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/employees_list.h"

namespace
{
RowValues Deactivation(const QString& reason)
{
    return {{"DeactivatedDate", Today()}, {"DeactivatedBy", Who()}, {"ReasonForDeactivation", reason}};
}

/// Only one year forward is reached, and a failure is ignored.
void DeactivateNextYear(DataControl& datAbsence, int employee, const QString& reason)
{
    try {
        if (datAbsence.Read("SELECT * FROM Employees WHERE PreviousID = ?", employee))
            WriteRow(datAbsence, "Employees", datAbsence.Records.Long("RecordID"), Deactivation(reason));
    } catch (const RuntimeError&) {
        return;
    }
}
} // namespace

void DeactivateEmployee(DataControl& datAbsence, int employee, const QString& reason)
{
    WriteAtOnce(datAbsence, [&] {
        LogEmployeeModification(datAbsence, employee);
        WriteRow(datAbsence, "Employees", employee, Deactivation(reason));
        DeactivateNextYear(datAbsence, employee, reason);
        DeactivateEntitlements(datAbsence, employee);
        EmployeesListToBeReloaded(datAbsence);
    });
}

QString StoredReason(QString reason)
{
    return reason.replace('\'', '`');
}
