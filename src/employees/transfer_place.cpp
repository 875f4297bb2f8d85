#include "employees/transfer_place.h"

#include "foundation/connection.h"
#include "foundation/texts.h"

namespace
{
/// Reads the lists below `above` again, as the choice narrows them.
void LoadBelow(DataControl& datAbsence, TransferSide& side, UnitList above)
{
    for (const UnitList list : kUnitLists)
        if (list > above)
            side.UnitsOf(list) = UnitsByPosition(datAbsence, list, side.Place.OrganizationID, side.Place.DepartmentID);
}

/// In the order of UnitList.
constexpr Text kUnitLabels[] = {
    {"Organization:", "Organisation:"}, {"Department:", "Département:"}, {"Group:", "Groupe:"}};
} // namespace

int UnitOf(const TransferPlace& place, UnitList list)
{
    constexpr int TransferPlace::*kMembers[] = {&TransferPlace::OrganizationID, &TransferPlace::DepartmentID,
                                                &TransferPlace::GroupID};
    return place.*kMembers[static_cast<std::size_t>(list)];
}

QString TransferSide::Lines() const
{
    QString lines;
    for (const UnitList list : kUnitLists)
        for (const Unit& unit : UnitsOf(list))
            if (unit.RecordID == UnitOf(Place, list))
                lines += T(kUnitLabels[static_cast<std::size_t>(list)]) + "\t" + unit.Name + "\r\n";
    return lines;
}

TransferSide LoadTransferSide(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    TransferSide side;
    side.UnitsOf(UnitList::Organizations) = UnitsByPosition(datAbsence, UnitList::Organizations);
    side.Place = {SessionState.UserOrganizationID, SessionState.UserDepartmentID, SessionState.UserGroupID};
    if (side.UnitsOf(UnitList::Organizations).size() == 1)
        side.Place.OrganizationID = side.UnitsOf(UnitList::Organizations).first().RecordID;
    LoadBelow(datAbsence, side, UnitList::Organizations);
    return side;
}

void ChooseUnit(DataControl& datAbsence, TransferSide& side, UnitList list, const Unit& unit)
{
    const Connection connection(datAbsence);
    side.Place = {unit.OrganizationID, unit.DepartmentID, list == UnitList::Groups ? unit.RecordID : 0};
    LoadBelow(datAbsence, side, list);
}

void ChoosePlace(DataControl& datAbsence, TransferSide& side, const TransferPlace& place)
{
    const Connection connection(datAbsence);
    side.Place = place;
    LoadBelow(datAbsence, side, UnitList::Organizations);
}
