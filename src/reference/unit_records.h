#pragma once

#include "platform/dao/dao.h"
#include "reference/unit_rules.h"

#include <QVector>

/// One unit as lists offer it, names in the session's language.
struct UnitItem
{
    int RecordID = 0;
    QString Name;
    QString ParentName; ///< of the unit above; empty at the top
    bool Active = true;
};

enum class ListedUnits
{
    ActiveOnly,
    All
};

/// The units of the session's year in order of name.
QVector<UnitItem> LoadUnitItems(DataControl& datAbsence, const UnitKind& kind, ListedUnits which);
/// The units under which one of `kind` can be placed: the active ones, and `placedUnder`, where it is now.
QVector<UnitItem> LoadParentItems(DataControl& datAbsence, const UnitKind& kind, int placedUnder);
/// The record as it is stored, trimmed; RecordID is 0 when there is no such row.
UnitRow LoadUnit(DataControl& datAbsence, const UnitKind& kind, int recordID);

/// Whether a unit of that kind could be placed anywhere: the level above has an active unit in the session's year.
bool HasUnitsAbove(DataControl& datAbsence, const UnitKind& kind);
/// Whether another unit of the session's year than `recordID`, active or not, bears the name in that column. Letter
/// case is ignored.
bool IsUnitNameTaken(DataControl& datAbsence, const UnitKind& kind, const char* column, const QString& name,
                     int recordID);
/// The employees of the unit who are not deactivated. Throws when they cannot be counted.
int CountActiveEmployees(DataControl& datAbsence, const UnitKind& kind, int recordID);

// What follows writes all or nothing, flags Employees_List and throws RuntimeError. The unit's own record goes to its
// audit twin before it changes; what it drags along does not.

/// Adds an active unit. A department is linked to every category of the year, and uses the public ones at once.
void AddUnit(DataControl& datAbsence, const UnitKind& kind, UnitRow unit);
/// Records what differs from the unit `before`. A unit that is moved takes the units below it and its employees along.
void ModifyUnit(DataControl& datAbsence, const UnitKind& kind, const UnitRow& before, UnitRow unit);
/// Deactivates the unit and all units below it.
void DeactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID);
/// Reactivates the unit, all units below it and all their employees: also those who had been deactivated earlier and
/// for other reasons, as required.
void ReactivateUnit(DataControl& datAbsence, const UnitKind& kind, int recordID);
