#include "reference/unit_entry.h"

#include "foundation/session_state.h"
#include "reference/unit_records.h"

namespace
{
void Tidy(UnitEntry& unit)
{
    unit.EnglishName = unit.EnglishName.trimmed();
    unit.FrenchName = unit.FrenchName.trimmed();
    if (unit.EnglishName.isEmpty())
        unit.EnglishName = unit.FrenchName;
    if (unit.FrenchName.isEmpty())
        unit.FrenchName = unit.EnglishName;
    for (QString& line : unit.Address)
        line = line.trimmed();
}

std::optional<Fault> FaultOfNames(DataControl& datAbsence, const UnitKind& kind, const UnitEntry& unit)
{
    const auto fault = [](const Text& text, const char* field) {
        return Fault{field, T(text, {{"FiscalYearName", SessionState.FiscalYearName}})};
    };
    if (unit.EnglishName.isEmpty())
        return fault(kind.Texts.NameMissing, SessionState.English ? "txtEnglishName" : "txtFrenchName");
    if (!kind.NamesAreUnique)
        return {};
    if (IsUnitNameTaken(datAbsence, kind, kind.EnglishColumn, unit.EnglishName, unit.RecordID))
        return fault(kind.Texts.EnglishNameTaken, "txtEnglishName");
    if (IsUnitNameTaken(datAbsence, kind, kind.FrenchColumn, unit.FrenchName, unit.RecordID))
        return fault(kind.Texts.FrenchNameTaken, "txtFrenchName");
    return {};
}

std::optional<Fault> FaultOfAddress(const UnitEntry& unit)
{
    for (int line = 0; line < kAddressLines; ++line)
        if (!kAddressFields[line].Missing.IsEmpty() && unit.Address[line].isEmpty())
            return Fault{kAddressFields[line].Control, T(kAddressFields[line].Missing)};
    return {};
}
} // namespace

QString ShownName(const UnitEntry& unit)
{
    return SessionState.English ? unit.EnglishName : unit.FrenchName;
}

std::optional<Fault> ValidateRecord(DataControl& datAbsence, const UnitKind& kind, UnitEntry& unit)
{
    Tidy(unit);
    if (const auto fault = FaultOfNames(datAbsence, kind, unit))
        return fault;
    if (kind.Parent && unit.ParentID == 0)
        return Fault{kind.ParentList, T(kind.Texts.ParentMissing)};
    return kind.HasAddress ? FaultOfAddress(unit) : std::nullopt;
}
