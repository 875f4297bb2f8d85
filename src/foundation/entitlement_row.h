#pragma once

#include "foundation/rows.h"

/// What an employee may use of a category in one fiscal year, in decimal hours.
struct EntitlementRow
{
    int RecordID = 0;
    int FiscalYear = 0;
    int CategoryID = 0;
    int EmployeeID = 0;
    float CarriedOver = 0; ///< from the year before
    float AnnualEntitlement = 0;
    int MayBeCarriedOver = 0;
    QString EnteredBy;
    int EnteredDate = 0;
    QString ModifiedBy;
    int ModifiedDate = 0;
    int Active = 0;
    QString Comment;
};

template <>
inline const Table<EntitlementRow> kTable<EntitlementRow> = {
    "Entitlements",
    {COLUMN(EntitlementRow, RecordID), COLUMN(EntitlementRow, FiscalYear), COLUMN(EntitlementRow, CategoryID),
     COLUMN(EntitlementRow, EmployeeID), COLUMN(EntitlementRow, CarriedOver), COLUMN(EntitlementRow, AnnualEntitlement),
     COLUMN(EntitlementRow, MayBeCarriedOver), COLUMN(EntitlementRow, EnteredBy), COLUMN(EntitlementRow, EnteredDate),
     COLUMN(EntitlementRow, ModifiedBy), COLUMN(EntitlementRow, ModifiedDate), COLUMN(EntitlementRow, Active),
     COLUMN(EntitlementRow, Comment)},
    Twin::Kept};
