#include "attendance/attendance_records.h"
#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/names.h"
#include "foundation/texts.h"
#include "reference/category_list.h"

#include <algorithm>

namespace
{
constexpr int kLocationWidth = 20;

/// The widest level at which the user creates records for others; empty for none. An organization counts without being
/// a unit of the user's: he then finds those who have none either.
const Level* CreatingLevel()
{
    const auto counts = [](const Level& level) {
        return level.IsHeld(Access::Create) && (&level == &kOrganizationLevel || level.HasUnit());
    };
    const auto* found = std::find_if(&kGlobalLevel, &kIndividualLevel, counts);
    return found == &kIndividualLevel ? nullptr : found;
}

/// The level whose names tell where an employee stands; empty below the organization, where it goes without saying.
const Level* LocationLevel(const Level& reach)
{
    return &reach > &kOrganizationLevel ? nullptr : &reach + 1;
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

QString EmployeesWithin(const Level& reach)
{
    QString location, join, order;
    if (const Level* level = LocationLevel(reach)) {
        const QString table = QLatin1String(level->Name) + "s";
        const QString name = table + "." + NameColumn(level->Name);
        location = ", " + name + " AS Location";
        join = QStringLiteral(" LEFT JOIN %1 ON %2 = %1.RecordID").arg(table, level->Column);
        // The departments stand in the order of their English names in both languages; that is kept.
        order = (level == &kDepartmentLevel ? "Departments.DepartmentEnglishName" : name) + ", ";
    }
    const QString notOneself = SessionState.SelfLevelCreate == 1 ? "" : " AND Employees.RecordID <> ?";
    return "SELECT Employees.RecordID, Employees.FamilyName, Employees.FirstName" + location + " FROM Employees" +
           join + " WHERE Employees.FiscalYear = ? AND Employees.DeactivatedDate = 0" + notOneself + UnitFilter(reach) +
           " ORDER BY " + order + "Employees.FamilyName, Employees.FirstName";
}

Recordset SelectWithin(DataControl& datAbsence, AttendanceEntry& entry, const Level& reach)
{
    const Session& s = SessionState;
    if (s.SelfLevelCreate == 1)
        return datAbsence.Select(EmployeesWithin(reach), s.FiscalYearID);
    if (entry.EmployeeID == s.UserID)
        entry.EmployeeID = 0;
    return datAbsence.Select(EmployeesWithin(reach), s.FiscalYearID, s.UserID);
}

QVector<ListEntry> EmployeeItems(Recordset people, bool located)
{
    QVector<ListEntry> items;
    for (const Recordset& person : people) {
        QString text = ListedName(person);
        if (located && !person.IsNull("Location"))
            text += " / " + person.Text("Location").trimmed().left(kLocationWidth).rightJustified(kLocationWidth);
        items << ListEntry{text, person.Long("RecordID")};
    }
    return items;
}
} // namespace

std::optional<QVector<ListEntry>> LoadRecords(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    if (entry.Kind != AttendanceKind::Submit) {
        if (const Level* reach = CreatingLevel())
            return EmployeeItems(SelectWithin(datAbsence, entry, *reach), LocationLevel(*reach) != nullptr);
        if (SessionState.SelfLevelCreate != 1)
            return std::nullopt;
    }
    return EmployeeItems(datAbsence.Select("SELECT FamilyName, FirstName, RecordID FROM Employees WHERE RecordID = ?",
                                           SessionState.UserID),
                         false);
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
