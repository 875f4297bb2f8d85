#pragma once

#include "foundation/entitlement_row.h"

#include <QVector>

/// One change of an entitlement: who wrote it, on which serial day, and the row before and after.
struct EntitlementChange
{
    int Date = 0;
    QString Who;
    EntitlementRow From; ///< of the row's own making, a row that is empty
    EntitlementRow To;
};

/// What became of an entitlement, its making first, as its audit images and the row itself tell. Throws.
QVector<EntitlementChange> HistoryOfEntitlement(DataControl& datAbsence, int recordID);

/// A change as the list shows it: the day, who, and what was carried over, allocated, transferable and in force; what
/// changed reads "from → to".
QStringList CellsOf(const EntitlementChange& change);
