#include "ledger/allowances.h"

#include "foundation/connection.h"

Allowance AllowanceOf(DataControl& datAbsence, int employeeID, int categoryID)
{
    const Connection connection(datAbsence);
    const Recordset row = datAbsence.Select(
        "SELECT CarriedOver, AnnualEntitlement FROM Entitlements WHERE CategoryID = ? AND EmployeeID = ?", categoryID,
        employeeID);
    Allowance allowance;
    if (row.AtEnd())
        return allowance;
    row.Take("CarriedOver", allowance.CarriedOver);
    row.Take("AnnualEntitlement", allowance.AnnualEntitlement);
    return allowance;
}

float TimeInCategory(DataControl& datAbsence, int employeeID, int categoryID, LiveRecords records)
{
    const Connection connection(datAbsence);
    return datAbsence.Scalar<float>("SELECT SUM(TotalDuration) FROM Attendance WHERE CategoryID = ? AND EmployeeID = ? "
                                    "AND CancelledDate = 0" +
                                        ConditionOf(records),
                                    categoryID, employeeID);
}

BalanceLines ExplainEntitlement(DataControl& datAbsence, int employeeID, int categoryID)
{
    const Connection connection(datAbsence);
    const auto sum = [&](LiveRecords records) { return TimeInCategory(datAbsence, employeeID, categoryID, records); };
    const Allowance allowance = AllowanceOf(datAbsence, employeeID, categoryID);
    const float pending = sum(LiveRecords::Pending);
    BalanceLines lines{{{"Carried over", "Solde de l'année précédente"}, allowance.CarriedOver},
                       {{"Allocated", "Temps alloué"}, allowance.AnnualEntitlement},
                       {kTakenToDate, sum(LiveRecords::TakenToDate)},
                       {kBookedAhead, sum(LiveRecords::BookedAhead)},
                       {kPending, pending, BalancePart::Pending}};
    if (allowance.Limit() != 0) // otherwise there is no limit
        lines.push_back({kLeft, allowance.Limit() - (sum(LiveRecords::Approved) + pending), BalancePart::Left});
    return lines;
}
