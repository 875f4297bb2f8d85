#pragma once

#include "foundation/texts.h"
#include "reference/unit_row.h"

#include <array>
#include <vector>

/// What is said of one level of units. {name}: the unit's shown name; {english} and {french}: both its names;
/// {parent}: the shown name of the unit above; {FiscalYearName}.
struct UnitTexts
{
    Text Caption;
    Text ListLabel;
    Text ListPrompt;
    Text EnglishNameLabel;
    Text FrenchNameLabel;
    Text ParentLabel;

    Text NoParent; ///< the form does not open
    Text NameMissing;
    Text EnglishNameTaken;
    Text FrenchNameTaken;
    Text ParentMissing;

    Text AddQuestion;
    Text Names; ///< the lines below the questions of adding and modifying
    Text Added;
    Text InactiveRemark; ///< in the list, beside the name
    Text InactiveTitle;
    Text ReactivateQuestion;
    Text MoveQuestion;
    Text StillEmployed;
    Text DeactivateQuestion;
    Text Deactivated;
};

/// One level of the tree of units: organizations, departments or groups.
struct UnitKind
{
    const char* FormName;
    const Table<UnitRow>& Rows;
    int UnitRow::*ID; ///< the member in which the rows below name a unit of this level
    const char* Key;  ///< the column in which employees and the units below name a unit of this level
    const char* EnglishColumn;
    const char* FrenchColumn;
    const UnitKind* Parent; ///< nullptr at the top
    const char* ParentList; ///< the list box of the units above
    std::vector<const char*> TablesBelow;
    bool NamesAreUnique; ///< within a year; groups of different departments may share a name
    bool HasAddress;
    UnitTexts Texts;
};

extern const UnitKind kOrganizations;
extern const UnitKind kDepartments;
extern const UnitKind kGroups;

/// One line of an organization's address. `Missing`: what is said when it is empty; nullptr where it may be.
struct AddressField
{
    const char* Control;
    QString UnitRow::*Line;
    int Limit;
    Text Label;
    Text Missing;
};

inline constexpr int kAddressLines = 7;
extern const std::array<AddressField, kAddressLines> kAddressFields;
