#include "ledger/entitlements.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/located_employees.h"
#include "foundation/names.h"
#include "foundation/session_rows.h"
#include "foundation/values.h"
#include "platform/clock.h"

#include <algorithm>
#include <cmath>

namespace
{
float HoursOf(const HoursAndMinutes& boxes)
{
    return DecimalHours(static_cast<float>(Val(boxes.Hours)), static_cast<float>(Val(boxes.Minutes)));
}

EntitlementLine LineOf(const Recordset& row)
{
    EntitlementLine line;
    line.RecordID = row.Long("RecordID");
    line.Category = row.Text("Category").trimmed();
    line.CarriedOver = row.Single("CarriedOver");
    line.OwedToEmployee = line.CarriedOver >= 0;
    line.AnnualEntitlement = row.Single("AnnualEntitlement");
    line.Total = line.CarriedOver + line.AnnualEntitlement;
    line.MayBeCarriedOver = row.Long("MayBeCarriedOver") == 1;
    return line;
}
} // namespace

HoursAndMinutes BoxesOf(float hours)
{
    const QString text = DurationText(std::abs(hours));
    return {text.section(':', 0, 0), text.section(':', 1)};
}

EntitlementEntry::EntitlementEntry(const EntitlementLine& line)
    : EntitlementLine(line), Carried(BoxesOf(line.CarriedOver)), Annual(BoxesOf(line.AnnualEntitlement))
{}

void RecalculateEntitlement(EntitlementEntry& entry)
{
    const float carried = HoursOf(entry.Carried);
    entry.CarriedOver = entry.OwedToEmployee ? carried : -carried;
    entry.AnnualEntitlement = HoursOf(entry.Annual);
    entry.Total = entry.OwedToEmployee ? entry.CarriedOver + entry.AnnualEntitlement
                                       : entry.CarriedOver - entry.AnnualEntitlement;
}

QVector<ListEntry> LoadEntitledEmployees(DataControl& datAbsence)
{
    const auto reads = [](const Level& level) { return level.IsHeld(Access::Read) && level.HasUnit(); };
    const Level& reach = WidestLevel(reads);
    if (!reads(reach))
        return {};
    const Scope scope = WidestScope(Access::Read, &Level::Column);
    const Connection connection(datAbsence);
    return LocatedEmployees(
        datAbsence.Select(EmployeesWithin(reach, " AND " + scope.Condition), SessionState.FiscalYearID, scope.Unit));
}

QVector<EntitlementLine> LoadEntitlements(DataControl& datAbsence, int employeeID)
{
    const QString name = "Categories." + NameColumn("Category");
    const QString visible = SessionState.AccessToRestrictedCategory == 0 ? " AND Categories.Restricted = 0" : "";
    const Connection connection(datAbsence);
    QVector<EntitlementLine> lines;
    for (const Recordset& row : datAbsence.Select(
             "SELECT Entitlements.CarriedOver, Entitlements.AnnualEntitlement, Entitlements.MayBeCarriedOver, "
             "Entitlements.RecordID, " +
                 name +
                 " AS Category FROM Entitlements, Categories WHERE Entitlements.CategoryID = Categories.RecordID AND "
                 "Entitlements.EmployeeID = ? AND Entitlements.Active = 1" +
                 visible + " ORDER BY " + name + " ASC",
             employeeID))
        lines.append(LineOf(row));
    return lines;
}

void SaveEntitlements(DataControl& datAbsence, const QVector<EntitlementLine>& lines)
{
    InOpenYear(datAbsence, [&] {
        for (const EntitlementLine& line : lines) {
            CopyToAuditTwin(datAbsence, kTable<EntitlementRow>, line.RecordID);
            Set<EntitlementRow>(datAbsence, line.RecordID,
                                {{&EntitlementRow::CarriedOver, BoundValue(line.CarriedOver)},
                                 {&EntitlementRow::AnnualEntitlement, BoundValue(line.AnnualEntitlement)},
                                 {&EntitlementRow::ModifiedBy, UserStamp()},
                                 {&EntitlementRow::ModifiedDate, Today()},
                                 {&EntitlementRow::MayBeCarriedOver, line.MayBeCarriedOver ? 1 : 0}});
        }
    });
}
