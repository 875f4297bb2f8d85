#pragma once

#include "foundation/rows.h"

/// A fiscal year. Dates are serial days, 0 none.
struct FiscalYearRow
{
    int RecordID = 0;
    QString FiscalYearName; ///< unique, letter case ignored
    int CommencingDate = 0;
    int EndingDate = 0;
    int EnteredDate = 0;
    QString EnteredBy;
    int ClosedDate = 0; ///< 0 while the year is open
    QString ClosedBy;
    int ScheduledClosingDate = 0;
    int ReloadEmployeesList = 0; ///< 1: Employees_List is out of date
};

template <>
inline const Table<FiscalYearRow> kTable<FiscalYearRow> = {
    "FiscalYears",
    {COLUMN(FiscalYearRow, RecordID), COLUMN(FiscalYearRow, FiscalYearName), COLUMN(FiscalYearRow, CommencingDate),
     COLUMN(FiscalYearRow, EndingDate), COLUMN(FiscalYearRow, EnteredDate), COLUMN(FiscalYearRow, EnteredBy),
     COLUMN(FiscalYearRow, ClosedDate), COLUMN(FiscalYearRow, ClosedBy), COLUMN(FiscalYearRow, ScheduledClosingDate),
     COLUMN(FiscalYearRow, ReloadEmployeesList)}};
