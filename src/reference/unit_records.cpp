#include "reference/unit_records.h"

#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/employees_list.h"

namespace
{
const char* ShownNameColumn(const UnitKind& kind)
{
    return SessionState.English ? kind.EnglishColumn : kind.FrenchColumn;
}

/// Units U with their shown name and that of the unit above, as far as `condition` admits them.
template <typename... V>
QVector<UnitItem> SelectItems(DataControl& datAbsence, const UnitKind& kind, const QString& condition,
                              const V&... values)
{
    const Connection connection(datAbsence);
    const UnitKind* above = kind.Parent;
    const QString parentName = above ? QStringLiteral("P.") + ShownNameColumn(*above) : QStringLiteral("''");
    const QString join =
        above ? QStringLiteral(" LEFT JOIN %1 AS P ON P.RecordID = U.%2").arg(above->Rows.Name, above->Key) : QString();
    const QString query =
        QStringLiteral("SELECT U.RecordID, U.%1 AS UnitName, U.Active, %2 AS ParentName FROM %3 AS U%4 "
                       "WHERE %5 ORDER BY U.%1 ASC, ParentName ASC")
            .arg(ShownNameColumn(kind), parentName, kind.Rows.Name, join, condition);
    QVector<UnitItem> items;
    for (const Recordset& rows : datAbsence.Select(query, values...))
        items.append({rows.Long("RecordID"), rows.Text("UnitName").trimmed(), rows.Text("ParentName").trimmed(),
                      rows.Long("Active") == 1});
    return items;
}

/// Names the units further above as the unit above has them.
void FillPlace(DataControl& datAbsence, const UnitKind& kind, UnitRow& unit)
{
    if (const UnitKind* top = kind.Parent ? kind.Parent->Parent : nullptr)
        unit.*top->ID = Standing(datAbsence, ParentOf(kind, unit), kind.Parent->Rows).*(top->ID);
}

/// The units above, as every record below names them.
RowValues PlaceOf(const UnitKind& kind, const UnitRow& unit)
{
    RowValues place;
    for (const UnitKind* above = kind.Parent; above; above = above->Parent)
        place.insert(place.begin(), {above->Key, unit.*above->ID});
    return place;
}

/// Writes the same values into all units below one, and into the records of further tables that name it.
void WriteBelow(DataControl& datAbsence, const UnitKind& kind, int unitID, const RowValues& values,
                std::vector<const char*> further = {})
{
    further.insert(further.begin(), kind.TablesBelow.begin(), kind.TablesBelow.end());
    for (const char* table : further)
        WriteRowsOf(datAbsence, table, kind.Key, unitID, values);
}

void SetActive(DataControl& datAbsence, const UnitKind& kind, int unitID, int active)
{
    Change(datAbsence, unitID, {{&UnitRow::Active, active}}, kind.Rows);
    WriteBelow(datAbsence, kind, unitID, {{"Active", active}});
}

/// Public categories apply to a new department at once; the others wait until somebody ticks them for it.
void UpdateCategoriesDepartments(DataControl& datAbsence, int departmentID)
{
    datAbsence.Execute("INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed) "
                       "SELECT FiscalYear, RecordID, ?, IsPublic FROM Categories WHERE FiscalYear = ?",
                       departmentID, SessionState.FiscalYearID);
}
} // namespace

QVector<UnitItem> LoadUnitItems(DataControl& datAbsence, const UnitKind& kind, ListedUnits which)
{
    const QString active = which == ListedUnits::ActiveOnly ? " AND U.Active = 1" : "";
    return SelectItems(datAbsence, kind, "U.FiscalYear = ?" + active, SessionState.FiscalYearID);
}

QVector<UnitItem> LoadParentItems(DataControl& datAbsence, const UnitKind& kind, int placedUnder)
{
    return SelectItems(datAbsence, *kind.Parent, "(U.FiscalYear = ? AND U.Active = 1) OR U.RecordID = ?",
                       SessionState.FiscalYearID, placedUnder);
}

UnitRow LoadUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    const Connection connection(datAbsence);
    UnitRow unit = Find(datAbsence, recordID, kind.Rows).value_or(UnitRow());
    TrimTexts(unit);
    return unit;
}

bool HasUnitsAbove(DataControl& datAbsence, const UnitKind& kind)
{
    return !kind.Parent || !LoadUnitItems(datAbsence, *kind.Parent, ListedUnits::ActiveOnly).isEmpty();
}

bool IsUnitNameTaken(DataControl& datAbsence, const UnitKind& kind, const char* column, const QString& name,
                     int recordID)
{
    const Connection connection(datAbsence);
    return datAbsence.Read(QStringLiteral("SELECT RecordID FROM %1 WHERE FiscalYear = ? AND RecordID <> ? AND "
                                          "TRIM(%2) = ? COLLATE NOCASE")
                               .arg(kind.Rows.Name, column),
                           SessionState.FiscalYearID, recordID, name);
}

int CountActiveEmployees(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    const Connection connection(datAbsence);
    int active = 0;
    datAbsence
        .Open(QStringLiteral("SELECT COUNT(RecordID) AS ActiveRecords FROM Employees WHERE %1 = ? AND "
                             "DeactivatedDate = 0")
                  .arg(kind.Key),
              recordID)
        .Take("ActiveRecords", active);
    return active;
}

void AddUnit(DataControl& datAbsence, const UnitKind& kind, UnitRow unit)
{
    InOpenYear(datAbsence, [&] {
        FillPlace(datAbsence, kind, unit);
        unit.FiscalYear = SessionState.FiscalYearID;
        unit.EnteredBy = UserStamp();
        unit.EnteredDate = Today();
        unit.Active = 1;
        const int added = Add(datAbsence, unit, kind.Rows);
        if (&kind == &kDepartments && added != 0)
            UpdateCategoriesDepartments(datAbsence, added);
        EmployeesListToBeReloaded(datAbsence);
    });
}

void ModifyUnit(DataControl& datAbsence, const UnitKind& kind, const UnitRow& before, UnitRow unit)
{
    const bool moved = ParentOf(kind, unit) != ParentOf(kind, before);
    InOpenYear(datAbsence, [&] {
        if (moved)
            FillPlace(datAbsence, kind, unit);
        Change(datAbsence, before, unit, kind.Rows);
        if (moved)
            WriteBelow(datAbsence, kind, unit.RecordID, PlaceOf(kind, unit), {"Employees"});
        EmployeesListToBeReloaded(datAbsence);
    });
}

void DeactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    InOpenYear(datAbsence, [&] {
        SetActive(datAbsence, kind, recordID, 0);
        EmployeesListToBeReloaded(datAbsence);
    });
}

void ReactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    InOpenYear(datAbsence, [&] {
        SetActive(datAbsence, kind, recordID, 1);
        WriteRowsOf(datAbsence, "Employees", kind.Key, recordID,
                    {{"DeactivatedDate", 0}, {"DeactivatedBy", QString("")}, {"ReasonForDeactivation", QString("")}});
        EmployeesListToBeReloaded(datAbsence);
    });
}
