#pragma once

#include "foundation/entitlement_row.h"
#include "foundation/list_entry.h"

#include <QVector>

/// What an employee may use of a category, as the grid shows it. Decimal hours.
struct EntitlementLine
{
    int RecordID = 0;
    QString Category;           ///< in the user's language
    float CarriedOver = 0;      ///< from the year before; below 0 the employee owes it
    bool OwedToEmployee = true; ///< the sign of what is carried over
    float AnnualEntitlement = 0;
    float Total = 0;
    bool MayBeCarriedOver = false;
};

/// Hours and minutes as two boxes hold them.
struct HoursAndMinutes
{
    QString Hours;   ///< two digits at least
    QString Minutes; ///< two digits
};
/// The size of a duration; its sign stands elsewhere.
HoursAndMinutes BoxesOf(float hours);

/// A line with the boxes in which it is edited.
struct EntitlementEntry : EntitlementLine
{
    EntitlementEntry() = default;
    explicit EntitlementEntry(const EntitlementLine& line);

    HoursAndMinutes Carried;
    HoursAndMinutes Annual;
};

/// Takes the figures from the boxes. What is owed by the employee is below 0, and the annual hours are taken off it
/// too: that total is required, and holds until the line is read anew.
void RecalculateEntitlement(EntitlementEntry& entry);

/// The active employees of the year whom the user may read, by place and name; none without the right at any level.
QVector<ListEntry> LoadEntitledEmployees(DataControl& datAbsence);

/// An employee's active entitlements in order of their names, but for categories that the user may not see.
QVector<EntitlementLine> LoadEntitlements(DataControl& datAbsence, int employeeID);

/// Keeps each row as it stands in its audit twin and writes what its line says, all lines or none. Throws.
void SaveEntitlements(DataControl& datAbsence, const QVector<EntitlementLine>& lines);
