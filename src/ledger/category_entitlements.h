#pragma once

#include "foundation/category_row.h"

// The entitlements of all employees in one category. Whatever a routine writes it writes in one statement for the whole
// company, the rows as they stood in the audit twin before; it throws RuntimeError, and belongs into a transaction. The
// entitlement of an employee is active where the category is used: everywhere for a public one, else in the departments
// that use it.

/// Grants the standard hours of the category to the active employees of its year who have no entitlement there.
void CreateEntitlements(DataControl& datAbsence, const CategoryRow& category);
/// Sets every entitlement of the category to its standard hours, whatever a single employee had been given.
void UpdateEntitlements(DataControl& datAbsence, const CategoryRow& category);
/// Switches every entitlement of the category off.
void DeactivateEntitlements(DataControl& datAbsence, const CategoryRow& category);
/// Switches the entitlements of the category on, and off in departments that do not use it: what stands right already
/// is left alone. Hours stay as they are.
void ReactivateEntitlements(DataControl& datAbsence, const CategoryRow& category);

/// The employees of the session's year who are not deactivated.
int CountActiveEmployees(DataControl& datAbsence);

/// Whom a change of the standard hours reaches.
struct EntitledEmployees
{
    int All = 0;       ///< those with an entitlement in the category, and the active ones who have none yet
    int Listed = 0;    ///< those with an entitlement
    int SetSingly = 0; ///< of these, those whose hours are not the standard ones; 0 where none applied
};

/// `category` as it stands before the change.
EntitledEmployees CountEntitled(DataControl& datAbsence, const CategoryRow& category);
