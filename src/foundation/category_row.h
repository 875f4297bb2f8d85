#pragma once

#include "foundation/rows.h"

/// A category of attendance in one fiscal year. Flags are 0 or 1.
struct CategoryRow
{
    int RecordID = 0;
    int FiscalYear = 0;
    QString CategoryFrenchName;
    QString CategoryEnglishName;
    QString SystemName; ///< empty for a category made by users
    int CanBeRemoved = 0;
    int ConstitutesAnAbsence = 0;
    float StandardEntitlement = 0; ///< decimal hours a year; 0 varies between employees
    int CarryOverAtYearEnd = 0;
    int TimeBankRelated = 0;
    int Restricted = 0; ///< hidden from those without the right to hidden categories
    int PreviousID = 0; ///< the same category in the year before
    QString CreatedBy;
    int CreatedDate = 0;
    QString ModifiedBy;
    int ModifiedDate = 0;
    int RequiresMonitoring = 0; ///< limited by an entitlement
    int Active = 0;
    int IsPublic = 0;
    QString CategoryCode;
    QString CategoryColorCode; ///< a number, 0xBBGGRR

    bool operator==(const CategoryRow&) const = default;
};

template <>
inline const Table<CategoryRow> kTable<CategoryRow> = {"Categories",
                                                       {COLUMN(CategoryRow, RecordID),
                                                        COLUMN(CategoryRow, FiscalYear),
                                                        COLUMN(CategoryRow, CategoryFrenchName),
                                                        COLUMN(CategoryRow, CategoryEnglishName),
                                                        COLUMN(CategoryRow, SystemName),
                                                        COLUMN(CategoryRow, CanBeRemoved),
                                                        COLUMN(CategoryRow, ConstitutesAnAbsence),
                                                        COLUMN(CategoryRow, StandardEntitlement),
                                                        COLUMN(CategoryRow, CarryOverAtYearEnd),
                                                        COLUMN(CategoryRow, TimeBankRelated),
                                                        COLUMN(CategoryRow, Restricted),
                                                        COLUMN(CategoryRow, PreviousID),
                                                        COLUMN(CategoryRow, CreatedBy),
                                                        COLUMN(CategoryRow, CreatedDate),
                                                        COLUMN(CategoryRow, ModifiedBy),
                                                        COLUMN(CategoryRow, ModifiedDate),
                                                        COLUMN(CategoryRow, RequiresMonitoring),
                                                        COLUMN(CategoryRow, Active),
                                                        COLUMN(CategoryRow, IsPublic),
                                                        COLUMN(CategoryRow, CategoryCode),
                                                        COLUMN(CategoryRow, CategoryColorCode)},
                                                       Twin::Kept};
