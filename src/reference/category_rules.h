#pragma once

#include "foundation/category_row.h"
#include "foundation/fault.h"
#include "foundation/texts.h"

#include <optional>

/// How much of a category an employee may take in a year.
enum class EntitlementKind
{
    NotChosen,
    Standard, ///< the same hours for every employee
    Varies,   ///< said for each employee by himself
    None      ///< no limit
};

/// A category as the form has it.
struct CategoryEntry : CategoryRow
{
    EntitlementKind Kind = EntitlementKind::NotChosen;
    QString Hours, Minutes; ///< of the standard entitlement, as typed
    QVector<int> UsedBy;    ///< departments (RecordIDs, ascending) in which a category that is not public is used

    bool operator==(const CategoryEntry&) const = default;
};

/// What the form offers for a new one: an absence, used by all departments.
CategoryEntry NewCategory();
/// A stored category: its texts trimmed, its entitlement as the form shows it.
CategoryEntry EntryOf(const CategoryRow& category);

/// The name in the language of the session.
QString ShownName(const CategoryRow& category);
/// The colour of the calendar's cells, 0xBBGGRR.
int ColorOf(const CategoryRow& category);
/// One of the system's own; it cannot be deactivated.
bool IsReserved(const CategoryRow& category);

/// Why a category that has been deactivated cannot be modified.
inline constexpr Text kCategoryInactive = {"The selected category has been deactivated!",
                                           "La catégorie sélectionnée a été désactivée!"};

/// What another workstation may have brought about since the category was chosen: it is not active any more, or another
/// one of the year bears its name.
std::optional<Fault> FaultOfActivity(DataControl& datAbsence, const CategoryRow& category);
std::optional<Fault> FaultOfCategoryNames(DataControl& datAbsence, const CategoryRow& category);

/// Brings the entry into the form in which it is stored: texts trimmed, a name left empty taken from the other
/// language, the entitlement from its kind and time. A time that was not changed keeps its hours to the last decimal.
/// What is wrong with it; nothing when all is well.
std::optional<Fault> ValidateRecord(DataControl& datAbsence, CategoryEntry& entry);

/// The question before a category is added or modified: its name and a line for each fact.
QString CategoryQuestion(const CategoryEntry& entry, bool modifying);

/// Whether a modification sets the hours of all employees anew: kind or standard hours differ.
bool ChangesEntitlements(const CategoryEntry& before, const CategoryEntry& after);
/// Whether it changes in which departments the category is used.
bool ChangesDepartments(const CategoryEntry& before, const CategoryEntry& after);
/// What the question adds when it does: how many employees' hours are set, and how many had been set one by one.
QString EntitlementsRemark(DataControl& datAbsence, const CategoryEntry& before, const CategoryEntry& after);
