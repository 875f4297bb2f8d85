#pragma once

#include "foundation/fault.h"
#include "reference/unit_kind.h"

#include <QString>

#include <array>
#include <optional>

class DataControl;

/// The working values of a form of units.
struct UnitEntry
{
    int RecordID = 0; ///< 0: new, or none chosen
    QString EnglishName;
    QString FrenchName;
    int ParentID = 0;                           ///< the unit above; 0 none chosen
    int StoredParentID = 0;                     ///< the unit above as it is stored
    std::array<QString, kAddressLines> Address; ///< in the order of kAddressFields
    bool Active = true;

    bool IsMoved() const { return ParentID != StoredParentID; }
};

/// The name in the language of the session.
QString ShownName(const UnitEntry& unit);

/// Trims the entry, gives a name left empty the one of the other language, and checks the rest. Nothing when all is
/// well.
std::optional<Fault> ValidateRecord(DataControl& datAbsence, const UnitKind& kind, UnitEntry& unit);
