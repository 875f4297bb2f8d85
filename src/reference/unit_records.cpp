#include "reference/unit_records.h"

#include "foundation/connection.h"
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

using Place = std::vector<std::pair<int UnitRow::*, int>>;

/// The units above one of `kind` that is placed under `parentID`, from the top down.
Place PlaceUnder(DataControl& datAbsence, const UnitKind& kind, int parentID)
{
    if (!kind.Parent)
        return {};
    if (const UnitKind* top = kind.Parent->Parent)
        return {{top->ID, Standing(datAbsence, parentID, kind.Parent->Rows).*(top->ID)}, {kind.Parent->ID, parentID}};
    return {{kind.Parent->ID, parentID}};
}

Settings<UnitRow> EnteredValues(const UnitKind& kind, const UnitEntry& unit)
{
    Settings<UnitRow> values = {{&UnitRow::FrenchName, unit.FrenchName}, {&UnitRow::EnglishName, unit.EnglishName}};
    for (int line = 0; kind.HasAddress && line < kAddressLines; ++line)
        values.push_back({kAddressFields[line].Line, unit.Address[line]});
    return values;
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

UnitRow NewUnit(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    UnitRow row;
    row.FiscalYear = SessionState.FiscalYearID;
    row.FrenchName = unit.FrenchName;
    row.EnglishName = unit.EnglishName;
    row.EnteredBy = UserStamp();
    row.EnteredDate = Today();
    row.Active = 1;
    for (int line = 0; line < kAddressLines; ++line)
        row.*kAddressFields[line].Line = unit.Address[line];
    for (const auto& [member, above] : PlaceUnder(datAbsence, kind, unit.ParentID))
        row.*member = above;
    return row;
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

UnitEntry LoadUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    const Connection connection(datAbsence);
    const auto row = Find(datAbsence, recordID, kind.Rows);
    UnitEntry unit;
    if (!row)
        return unit;
    unit.RecordID = recordID;
    unit.EnglishName = row->EnglishName.trimmed();
    unit.FrenchName = row->FrenchName.trimmed();
    unit.Active = row->Active == 1;
    if (kind.Parent)
        unit.ParentID = unit.StoredParentID = (*row).*(kind.Parent->ID);
    for (int line = 0; line < kAddressLines; ++line)
        unit.Address[line] = ((*row).*kAddressFields[line].Line).trimmed();
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

void AddUnit(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    InTransaction(datAbsence, [&] {
        const int added = Add(datAbsence, NewUnit(datAbsence, kind, unit), kind.Rows);
        if (&kind == &kDepartments && added != 0)
            UpdateCategoriesDepartments(datAbsence, added);
        EmployeesListToBeReloaded(datAbsence);
    });
}

void ModifyUnit(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    InTransaction(datAbsence, [&] {
        Settings<UnitRow> place;
        if (unit.IsMoved())
            for (const auto& [member, above] : PlaceUnder(datAbsence, kind, unit.ParentID))
                place.push_back({member, above});
        Settings<UnitRow> values = EnteredValues(kind, unit);
        values.insert(values.end(), place.begin(), place.end());
        Change(datAbsence, unit.RecordID, values, kind.Rows);
        if (unit.IsMoved())
            WriteBelow(datAbsence, kind, unit.RecordID, ValuesOf(kGroupRows, place), {"Employees"});
        EmployeesListToBeReloaded(datAbsence);
    });
}

void DeactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    InTransaction(datAbsence, [&] {
        SetActive(datAbsence, kind, recordID, 0);
        EmployeesListToBeReloaded(datAbsence);
    });
}

void ReactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    InTransaction(datAbsence, [&] {
        SetActive(datAbsence, kind, recordID, 1);
        WriteRowsOf(datAbsence, "Employees", kind.Key, recordID,
                    {{"DeactivatedDate", 0}, {"DeactivatedBy", QString("")}, {"ReasonForDeactivation", QString("")}});
        EmployeesListToBeReloaded(datAbsence);
    });
}
