#pragma once

#include "foundation/rows.h"

/// One date of a statutory holiday; a holiday of several dates is several rows of the same name. A row is never
/// deleted.
struct HolidayRow
{
    int HolidayDate = 0; ///< serial day
    QString HolidayName;
    QString EnteredBy;
    int EnteredDate = 0;
    QString CancelledBy;
    int CancelledDate = 0; ///< 0 while the holiday is valid
};

template <>
inline const Table<HolidayRow> kTable<HolidayRow> = {
    "Holidays",
    {COLUMN(HolidayRow, HolidayDate), COLUMN(HolidayRow, HolidayName), COLUMN(HolidayRow, EnteredBy),
     COLUMN(HolidayRow, EnteredDate), COLUMN(HolidayRow, CancelledBy), COLUMN(HolidayRow, CancelledDate)}};
