#pragma once

#include "foundation/fault.h"
#include "reference/unit_kind.h"

#include <optional>

class DataControl;

/// The name in the language of the session.
QString ShownName(const UnitRow& unit);
/// RecordID of the unit above; 0 at the top, or none chosen.
int ParentOf(const UnitKind& kind, const UnitRow& unit);
/// Removes the spaces around names and address.
void TrimTexts(UnitRow& unit);

/// Trims the unit, gives a name left empty the one of the other language, and checks the rest. Nothing when all is
/// well.
std::optional<Fault> ValidateRecord(DataControl& datAbsence, const UnitKind& kind, UnitRow& unit);
