#include "reference/unit_records.h"

#include "foundation/connection.h"
#include "foundation/rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/employees_list.h"

namespace
{
const char* NameColumn(const UnitKind& kind)
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
    const QString parentName = above ? QStringLiteral("P.") + NameColumn(*above) : QStringLiteral("''");
    const QString join =
        above ? QStringLiteral(" LEFT JOIN %1 AS P ON P.RecordID = U.%2").arg(above->Table, above->Key) : QString();
    const QString query =
        QStringLiteral("SELECT U.RecordID, U.%1 AS UnitName, U.Active, %2 AS ParentName FROM %3 AS U%4 "
                       "WHERE %5 ORDER BY U.%1 ASC, ParentName ASC")
            .arg(NameColumn(kind), parentName, kind.Table, join, condition);
    QVector<UnitItem> items;
    for (Recordset rows = datAbsence.Select(query, values...); !rows.AtEnd(); rows.MoveNext())
        items.append({rows.Long("RecordID"), rows.Text("UnitName").trimmed(), rows.Text("ParentName").trimmed(),
                      rows.Long("Active") == 1});
    return items;
}

/// Undoes everything when one step fails, so that the user can press the same button again.
template <typename Steps>
void AllOrNothing(DataControl& datAbsence, Steps steps)
{
    const Connection connection(datAbsence);
    if (SessionState.SQL_Server)
        return steps();
    Batch batch(datAbsence.Engine());
    try {
        steps();
        batch.Commit();
    } catch (const RuntimeError&) {
        batch.Rollback();
        throw;
    }
}

void Append(RowValues& values, const RowValues& more)
{
    values.insert(values.end(), more.begin(), more.end());
}

/// Writes the same values into every record of a table that belongs to the unit.
void WriteRowsOf(DataControl& datAbsence, const char* table, const UnitKind& kind, int unitID, const RowValues& values)
{
    const QString ofUnit = QStringLiteral(" WHERE %1 = ").arg(kind.Key);
    if (SessionState.SQL_Server)
        return SendToServer(UpdateStatement(table, unitID, values).replace(" WHERE RecordID = ", ofUnit));
    QStringList settings;
    Values bound;
    for (const auto& [column, value] : values) {
        settings << QStringLiteral("%1 = ?").arg(column);
        bound << value;
    }
    bound << unitID;
    datAbsence.Engine().Execute(QStringLiteral("UPDATE %1 SET ").arg(table) + settings.join(", ") + ofUnit + "?",
                                bound);
}

void WriteRowsBelow(DataControl& datAbsence, const UnitKind& kind, int unitID, const RowValues& values)
{
    for (const char* table : kind.TablesBelow)
        WriteRowsOf(datAbsence, table, kind, unitID, values);
}

/// Copies the record to its audit twin, then changes it.
void ChangeUnit(DataControl& datAbsence, const UnitKind& kind, int unitID, RowValues values)
{
    CopyToAuditTwin(datAbsence, kind.Table, unitID);
    Append(values, {{"ModifiedBy", Who()}, {"ModifiedDate", Today()}});
    WriteRow(datAbsence, kind.Table, unitID, values);
}

/// The ids of all units above one of `kind` that is placed under `parentID`, from the top down.
RowValues PlaceUnder(DataControl& datAbsence, const UnitKind& kind, int parentID)
{
    if (!kind.Parent)
        return {};
    RowValues place;
    if (const UnitKind* top = kind.Parent->Parent) {
        int topID = 0;
        const QString query = QStringLiteral("SELECT * FROM %1 WHERE RecordID = ?").arg(kind.Parent->Table);
        if (!SessionState.SQL_Server)
            datAbsence.Open(query, parentID).Take(top->Key, topID);
        place.push_back({top->Key, topID});
    }
    place.push_back({kind.Parent->Key, parentID});
    return place;
}

RowValues EnteredValues(const UnitKind& kind, const UnitEntry& unit)
{
    RowValues values = {{kind.FrenchColumn, unit.FrenchName}, {kind.EnglishColumn, unit.EnglishName}};
    for (int line = 0; kind.HasAddress && line < kAddressLines; ++line)
        values.push_back({kAddressFields[line].Column, unit.Address[line]});
    return values;
}

/// Public categories apply to a new department at once; the others wait until somebody ticks them for it.
void UpdateCategoriesDepartments(DataControl& datAbsence, int departmentID)
{
    if (!SessionState.SQL_Server)
        datAbsence.Execute("INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed) "
                           "SELECT FiscalYear, RecordID, ?, IsPublic FROM Categories WHERE FiscalYear = ?",
                           departmentID, SessionState.FiscalYearID);
}

RowValues NewUnit(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    RowValues row = {{"FiscalYear", SessionState.FiscalYearID}};
    Append(row, PlaceUnder(datAbsence, kind, unit.ParentID));
    Append(row, EnteredValues(kind, unit));
    Append(row, {{"EnteredBy", Who()},
                 {"EnteredDate", Today()},
                 {"ModifiedBy", QString("")},
                 {"ModifiedDate", 0},
                 {"Active", 1},
                 {"PreviousID", 0}});
    if (&kind == &kDepartments)
        row.push_back({"DepartmentHead", 0});
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
    UnitEntry unit;
    if (!datAbsence.Read(QStringLiteral("SELECT * FROM %1 WHERE RecordID = ?").arg(kind.Table), recordID))
        return unit;
    const Recordset& row = datAbsence.Records;
    unit.RecordID = recordID;
    unit.EnglishName = row.Text(kind.EnglishColumn).trimmed();
    unit.FrenchName = row.Text(kind.FrenchColumn).trimmed();
    unit.Active = row.Long("Active") == 1;
    if (kind.Parent)
        unit.ParentID = unit.StoredParentID = row.Long(kind.Parent->Key);
    for (int line = 0; kind.HasAddress && line < kAddressLines; ++line)
        unit.Address[line] = row.Text(kAddressFields[line].Column).trimmed();
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
    return datAbsence.Read(QStringLiteral("SELECT * FROM %1 WHERE FiscalYear = ? AND RecordID <> ? AND "
                                          "TRIM(%2) = ? COLLATE NOCASE")
                               .arg(kind.Table, column),
                           SessionState.FiscalYearID, recordID, name);
}

int CountActiveEmployees(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    if (SessionState.SQL_Server)
        return 0;
    const Connection connection(datAbsence);
    return datAbsence
        .Open(QStringLiteral("SELECT COUNT(RecordID) AS ActiveRecords FROM Employees WHERE %1 = ? AND "
                             "DeactivatedDate = 0")
                  .arg(kind.Key),
              recordID)
        .Long("ActiveRecords");
}

void AddUnit(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    AllOrNothing(datAbsence, [&] {
        const int added = AddRow(datAbsence, kind.Table, NewUnit(datAbsence, kind, unit));
        if (&kind == &kDepartments)
            UpdateCategoriesDepartments(datAbsence, added);
        EmployeesListToBeReloaded(datAbsence);
    });
}

void ModifyUnit(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    AllOrNothing(datAbsence, [&] {
        const RowValues place = PlaceUnder(datAbsence, kind, unit.ParentID);
        RowValues values = EnteredValues(kind, unit);
        if (unit.IsMoved())
            Append(values, place);
        ChangeUnit(datAbsence, kind, unit.RecordID, values);
        if (unit.IsMoved()) {
            WriteRowsBelow(datAbsence, kind, unit.RecordID, place);
            WriteRowsOf(datAbsence, "Employees", kind, unit.RecordID, place);
        }
        EmployeesListToBeReloaded(datAbsence);
    });
}

void DeactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    AllOrNothing(datAbsence, [&] {
        ChangeUnit(datAbsence, kind, recordID, {{"Active", 0}});
        WriteRowsBelow(datAbsence, kind, recordID, {{"Active", 0}});
        EmployeesListToBeReloaded(datAbsence);
    });
}

void ReactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID)
{
    AllOrNothing(datAbsence, [&] {
        ChangeUnit(datAbsence, kind, recordID, {{"Active", 1}});
        WriteRowsBelow(datAbsence, kind, recordID, {{"Active", 1}});
        WriteRowsOf(datAbsence, "Employees", kind, recordID,
                    {{"DeactivatedDate", 0}, {"DeactivatedBy", QString("")}, {"ReasonForDeactivation", QString("")}});
        EmployeesListToBeReloaded(datAbsence);
    });
}
