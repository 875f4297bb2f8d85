#pragma once

#include "foundation/explained_balance.h"
#include "ledger/live_records.h"
#include "platform/dao/dao.h"

/// What an employee may use of a category in its year, in decimal hours.
struct Allowance
{
    float CarriedOver = 0;
    float AnnualEntitlement = 0;

    /// 0: no limit.
    float Limit() const { return CarriedOver + AnnualEntitlement; }
};

/// What the ledger says, whether the entitlement is in force or not.
Allowance AllowanceOf(DataControl& datAbsence, int employeeID, int categoryID);

/// Sum of an employee's live records in a category.
float TimeInCategory(DataControl& datAbsence, int employeeID, int categoryID, LiveRecords records);

/// How much is left to an employee in a limited category, and how that comes about.
BalanceLines ExplainEntitlement(DataControl& datAbsence, int employeeID, int categoryID);
