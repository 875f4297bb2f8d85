#include "foundation/located_employees.h"

#include "foundation/names.h"

namespace
{
constexpr int kLocationWidth = 20;

QString LocatedName(const Recordset& person)
{
    const QString name = ListedName(person);
    if (!person.Columns().contains("Location") || person.IsNull("Location"))
        return name;
    return name + " / " + person.Text("Location").trimmed().left(kLocationWidth).rightJustified(kLocationWidth);
}
} // namespace

const Level* LocationLevel(const Level& reach)
{
    return &reach > &kOrganizationLevel ? nullptr : &reach + 1;
}

QString EmployeesWithin(const Level& reach, const QString& condition)
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
    return "SELECT Employees.RecordID, Employees.FamilyName, Employees.FirstName" + location + " FROM Employees" +
           join + " WHERE Employees.FiscalYear = ? AND Employees.DeactivatedDate = 0" + condition + " ORDER BY " +
           order + "Employees.FamilyName, Employees.FirstName";
}

QVector<ListEntry> LocatedEmployees(Recordset people)
{
    QVector<ListEntry> items;
    for (const Recordset& person : people)
        items << ListEntry{LocatedName(person), person.Long("RecordID")};
    return items;
}
