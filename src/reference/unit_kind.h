#pragma once

#include "foundation/texts.h"

#include <array>
#include <vector>

/// A text in both languages; {names} in it are filled in by Say.
struct UnitText
{
    const char* English;
    const char* French;
};

/// The text in the language of the session.
QString Say(const UnitText& text, std::initializer_list<std::pair<const char*, QString>> values = {});

/// What is said of one level of units. {name}: the unit's shown name; {english} and {french}: both its names;
/// {parent}: the shown name of the unit above; {FiscalYearName}.
struct UnitTexts
{
    UnitText Caption;
    UnitText ListLabel;
    UnitText ListPrompt;
    UnitText EnglishNameLabel;
    UnitText FrenchNameLabel;
    UnitText ParentLabel;

    UnitText NoParent; ///< the form does not open
    UnitText NameMissing;
    UnitText EnglishNameTaken;
    UnitText FrenchNameTaken;
    UnitText ParentMissing;

    UnitText AddQuestion;
    UnitText Names; ///< the lines below the questions of adding and modifying
    UnitText Added;
    UnitText InactiveRemark; ///< in the list, beside the name
    UnitText InactiveTitle;
    UnitText ReactivateQuestion;
    UnitText MoveQuestion;
    UnitText StillEmployed;
    UnitText DeactivateQuestion;
    UnitText Deactivated;
};

/// One level of the tree of units: organizations, departments or groups.
struct UnitKind
{
    const char* FormName;
    const char* Table;
    const char* Key; ///< the column in which employees and the units below name a unit of this level
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
    const char* Column;
    int Limit;
    UnitText Label;
    UnitText Missing;
};

inline constexpr int kAddressLines = 7;
extern const std::array<AddressField, kAddressLines> kAddressFields;
