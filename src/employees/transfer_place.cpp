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

QString LabelOf(UnitList list)
{
    switch (list) {
    case UnitList::Organizations:
        return T("Organization:", "Organisation:");
    case UnitList::Departments:
        return T("Department:", "Département:");
    case UnitList::Groups:
        return T("Group:", "Groupe:");
    }
    return {};
}
} // namespace

int UnitOf(const TransferPlace& place, UnitList list)
{
    switch (list) {
    case UnitList::Organizations:
        return place.OrganizationID;
    case UnitList::Departments:
        return place.DepartmentID;
    default:
        return place.GroupID;
    }
}

TransferPlace PlaceOf(const Unit& unit, UnitList list)
{
    return {unit.OrganizationID, unit.DepartmentID, list == UnitList::Groups ? unit.RecordID : 0};
}

Unit TransferSide::Chosen(UnitList list) const
{
    return FindUnit(UnitsOf(list), UnitOf(Place, list));
}

QString TransferSide::Lines() const
{
    QString lines;
    for (const UnitList list : kUnitLists)
        if (Chosen(list).RecordID != 0)
            lines += LabelOf(list) + "\t" + Chosen(list).Name + "\r\n";
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
    side.Place = PlaceOf(unit, list);
    LoadBelow(datAbsence, side, list);
}

void ChoosePlace(DataControl& datAbsence, TransferSide& side, const TransferPlace& place)
{
    const Connection connection(datAbsence);
    side.Place = place;
    LoadBelow(datAbsence, side, UnitList::Organizations);
}
