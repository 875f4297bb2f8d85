#pragma once

#include "platform/dao/dao.h"

#include <QString>
#include <QVector>

#include <array>

enum class UnitList
{
    Organizations,
    Departments,
    Groups
};
inline constexpr std::array<UnitList, 3> kUnitLists = {UnitList::Organizations, UnitList::Departments,
                                                       UnitList::Groups};

/// An organization, department or group of the session's year; ids are RecordIDs, 0 none.
struct Unit
{
    int RecordID = 0;
    QString Name;           ///< in the user's language
    int OrganizationID = 0; ///< its own id for an organization
    int DepartmentID = 0;   ///< its own id for a department; 0 for an organization
};

/// The units of a list by name, as the position of the logged-in user allows: a user who stands in a unit finds just
/// that one, whoever stands above it all active ones below his own unit. `organizationID` and `departmentID` narrow
/// the list further, 0 does not. Empty when nothing can be read.
QVector<Unit> UnitsByPosition(DataControl& datAbsence, UnitList list, int organizationID = 0, int departmentID = 0);
