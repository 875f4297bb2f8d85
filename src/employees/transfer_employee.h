#pragma once

#include "employees/transfer_place.h"
#include "foundation/list_entry.h"

/// What is to be carried out.
struct EmployeeTransfer
{
    int RecordID = 0; ///< the employee's, 0 none selected
    QString Name;
    TransferPlace From;
    TransferPlace To;
};

/// The active employees of the deepest unit chosen, or of the session's year, as "FamilyName, FirstName" and in that
/// order. Empty when nothing can be read.
QVector<ListEntry> ReloadEmployees(DataControl& datAbsence, const TransferPlace& within);
/// The units that an employee's row holds; `place` is unchanged when there is no such row.
void TakePlaceOfEmployee(DataControl& datAbsence, int employee, TransferPlace& place);

/// Says what is missing; true when nothing is.
bool ValidateTransfer(const EmployeeTransfer& transfer);
/// Asks for the final Yes, naming the units of both sides.
bool ConfirmTransfer(const EmployeeTransfer& transfer, const QString& fromLines, const QString& toLines);

/// Moves the employee, his records of the days after today that are not cancelled, and, into another department, the
/// entitlements' being active. The row as it stands goes to the modifications log. The calendar follows when it shows
/// him. Throws RuntimeError when something cannot be written; nothing has changed then.
void TransferEmployee(DataControl& datAbsence, const EmployeeTransfer& transfer);
