#pragma once

#include "foundation/rows.h"

/// An organization, a department or a group of one fiscal year; each level uses the members that its table has.
struct UnitRow
{
    int RecordID = 0;
    int FiscalYear = 0;
    int OrganizationID = 0;
    int DepartmentID = 0;
    QString FrenchName;
    QString EnglishName;
    QString AddressLine1;
    QString AddressLine2;
    QString Suite;
    QString City;
    QString StateProvince;
    QString Country;
    QString ZipCode;
    QString EnteredBy;
    int EnteredDate = 0; ///< serial day
    QString ModifiedBy;
    int ModifiedDate = 0;
    int Active = 0;
    int PreviousID = 0; ///< the same unit in the year before
    int DepartmentHead = 0;
};

extern const Table<UnitRow> kOrganizationRows;
extern const Table<UnitRow> kDepartmentRows;
extern const Table<UnitRow> kGroupRows;
