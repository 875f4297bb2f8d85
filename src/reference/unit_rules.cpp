#include "reference/unit_rules.h"

#include "foundation/session_state.h"
#include "reference/unit_records.h"

namespace
{
void Tidy(UnitRow& unit)
{
    TrimTexts(unit);
    if (unit.EnglishName.isEmpty())
        unit.EnglishName = unit.FrenchName;
    if (unit.FrenchName.isEmpty())
        unit.FrenchName = unit.EnglishName;
}

std::optional<Fault> FaultOfNames(DataControl& datAbsence, const UnitKind& kind, const UnitRow& unit)
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

std::optional<Fault> FaultOfAddress(const UnitRow& unit)
{
    for (const AddressField& field : kAddressFields)
        if (!field.Missing.IsEmpty() && (unit.*field.Line).isEmpty())
            return Fault{field.Control, T(field.Missing)};
    return {};
}
} // namespace

QString ShownName(const UnitRow& unit)
{
    return SessionState.English ? unit.EnglishName : unit.FrenchName;
}

int ParentOf(const UnitKind& kind, const UnitRow& unit)
{
    return kind.Parent ? unit.*kind.Parent->ID : 0;
}

void TrimTexts(UnitRow& unit)
{
    for (QString UnitRow::*name : {&UnitRow::EnglishName, &UnitRow::FrenchName})
        unit.*name = (unit.*name).trimmed();
    for (const AddressField& field : kAddressFields)
        unit.*field.Line = (unit.*field.Line).trimmed();
}

std::optional<Fault> ValidateRecord(DataControl& datAbsence, const UnitKind& kind, UnitRow& unit)
{
    Tidy(unit);
    if (const auto fault = FaultOfNames(datAbsence, kind, unit))
        return fault;
    if (kind.Parent && ParentOf(kind, unit) == 0)
        return Fault{kind.ParentList, T(kind.Texts.ParentMissing)};
    return kind.HasAddress ? FaultOfAddress(unit) : std::nullopt;
}
