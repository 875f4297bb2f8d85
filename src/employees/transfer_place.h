#pragma once

#include "selection/unit_lists.h"

/// Where an employee works; ids are RecordIDs, 0 none.
struct TransferPlace
{
    int OrganizationID = 0;
    int DepartmentID = 0;
    int GroupID = 0;
};

/// The unit of that kind.
int UnitOf(const TransferPlace& place, UnitList list);

/// One side of the transfer: the units to choose from, and the choice. A choice narrows the lists below it and brings
/// those above it in line.
struct TransferSide
{
    std::array<QVector<Unit>, 3> Units; ///< indexed by UnitList
    TransferPlace Place;

    QVector<Unit>& UnitsOf(UnitList list) { return Units[static_cast<std::size_t>(list)]; }
    const QVector<Unit>& UnitsOf(UnitList list) const { return Units[static_cast<std::size_t>(list)]; }
    /// A line "Department:\tSales" for each unit chosen.
    QString Lines() const;
};

/// All units in the user's reach; his own units, and the organization when it is the only one, are chosen.
TransferSide LoadTransferSide(DataControl& datAbsence);
/// Chooses the entry `unit` of a list, with the units above it.
void ChooseUnit(DataControl& datAbsence, TransferSide& side, UnitList list, const Unit& unit);
/// Chooses all three units at once.
void ChoosePlace(DataControl& datAbsence, TransferSide& side, const TransferPlace& place);
