#include "ledger/time_banks.h"

#include "foundation/session_state.h"

namespace
{
float TimeBank(DataControl& datAbsence, const char* column, int id)
{
    return datAbsence.Scalar<float>(
        QStringLiteral("SELECT SUM(Attendance.TotalDuration) FROM Attendance, Categories WHERE "
                       "Attendance.CategoryID = Categories.RecordID AND Attendance.%1 = ? AND "
                       "Categories.TimeBankRelated = 1 AND Attendance.CancelledDate = 0")
            .arg(QLatin1String(column)),
        id);
}
} // namespace

float TimeBankOfEmployee(DataControl& datAbsence, int employeeID)
{
    return TimeBank(datAbsence, "EmployeeID", employeeID);
}

float TimeBankOfSelection(DataControl& datAbsence)
{
    const Session& s = SessionState;
    const std::pair<const char*, int> scopes[] = {{"EmployeeID", s.EmployeeID},
                                                  {"GroupID", s.EmployeeGroupID},
                                                  {"DepartmentID", s.EmployeeDepartmentID},
                                                  {"OrganizationID", s.EmployeeOrganizationID}};
    for (const auto& [column, id] : scopes)
        if (id >= 1)
            return TimeBank(datAbsence, column, id);
    return 0;
}
