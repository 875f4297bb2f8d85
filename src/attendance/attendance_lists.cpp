#include "attendance/attendance_records.h"
#include "foundation/connection.h"
#include "foundation/located_employees.h"
#include "foundation/texts.h"
#include "reference/category_list.h"

#include <algorithm>

namespace
{
/// The widest level at which the user creates records for others; empty for none. An organization counts without being
/// a unit of the user's: he then finds those who have none either.
const Level* CreatingLevel()
{
    const auto counts = [](const Level& level) {
        return level.IsHeld(Access::Create) && (&level == &kOrganizationLevel || level.HasUnit());
    };
    const Level& widest = WidestLevel(counts);
    return &widest == &kIndividualLevel ? nullptr : &widest;
}

/// Whoever creates records for a unit also does so for those whose requests he approves.
QString UnitFilter(const Level& reach)
{
    return &reach == &kGlobalLevel ? QString()
                                   : QStringLiteral(" AND (%1 = %2 OR Employees.AttendanceApprovedBy_Main = %3 OR "
                                                    "Employees.AttendanceApprovedBy_Backup = %3)")
                                         .arg(reach.Column)
                                         .arg(reach.Unit())
                                         .arg(SessionState.UserID);
}

Recordset SelectWithin(DataControl& datAbsence, AttendanceEntry& entry, const Level& reach)
{
    const Session& s = SessionState;
    if (s.SelfLevelCreate == 1)
        return datAbsence.Select(EmployeesWithin(reach, UnitFilter(reach)), s.FiscalYearID);
    if (entry.EmployeeID == s.UserID)
        entry.EmployeeID = 0;
    return datAbsence.Select(EmployeesWithin(reach, " AND Employees.RecordID <> ?" + UnitFilter(reach)), s.FiscalYearID,
                             s.UserID);
}
} // namespace

std::optional<QVector<ListEntry>> LoadRecords(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    if (entry.Kind != AttendanceKind::Submit) {
        if (const Level* reach = CreatingLevel())
            return LocatedEmployees(SelectWithin(datAbsence, entry, *reach));
        if (SessionState.SelfLevelCreate != 1)
            return std::nullopt;
    }
    return LocatedEmployees(datAbsence.Select(
        "SELECT FamilyName, FirstName, RecordID FROM Employees WHERE RecordID = ?", SessionState.UserID));
}

QVector<ListEntry> LoadCategories(DataControl& datAbsence, AttendanceEntry& entry)
{
    QVector<ListEntry> items = {{AllCategories(), 0}};
    entry.TimeClaimedCategoryID = 0;
    for (const CategoryItem& category : LoadCategoryItems(datAbsence, entry.EmployeeDepartmentID)) {
        items << ListEntry{category.Name, category.RecordID};
        if (category.SystemName == "Time claimed")
            entry.TimeClaimedCategoryID = category.RecordID;
    }
    return items;
}
