#pragma once

#include "foundation/list_entry.h"
#include "reference/category_rules.h"

/// The categories of the session's year in order of their names in the user's language: the active ones, or all.
QVector<ListEntry> LoadCategoryRecords(DataControl& datAbsence, bool activeOnly);
/// The stored category; RecordID is 0 when there is no such row.
CategoryEntry LoadCategory(DataControl& datAbsence, int recordID);
/// Whether another category of the session's year than `recordID` bears the name in that column; letter case is
/// ignored.
bool IsCategoryNameTaken(DataControl& datAbsence, const char* column, const QString& name, int recordID);

/// Thrown where another workstation's writing stands in the way.
struct CategoryRefused : RuntimeError
{
    explicit CategoryRefused(const Fault& why) : RuntimeError(0, why.Text), Why(why) {}

    Fault Why;
};

// What follows writes all or nothing, with what it means for the departments and for everybody's entitlement, and
// throws RuntimeError: CategoryRefused when the category has been deactivated or its name taken since it was checked.

/// Adds an active category to the session's year.
void AddCategory(DataControl& datAbsence, CategoryEntry entry);
/// Records what differs from the category `before`; the rest stays as it is stored now. Only a change of kind or of
/// standard hours sets entitlements.
void ModifyCategory(DataControl& datAbsence, const CategoryEntry& before, const CategoryEntry& entry);
/// The category loses its names, which a new one may take; its records stay.
void DeactivateCategory(DataControl& datAbsence, const CategoryEntry& entry);
