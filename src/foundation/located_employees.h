#pragma once

#include "foundation/levels.h"
#include "foundation/list_entry.h"
#include "platform/dao/dao.h"

/// Lists of employees in which the place of each stands behind his name.

/// The level whose names tell where an employee stands; null below the organization, where it goes without saying.
const Level* LocationLevel(const Level& reach);

/// The statement that finds the active employees of a year, its first value, for whom `condition` holds, such as
/// " AND Employees.GroupID = ?": in the order of place and name.
QString EmployeesWithin(const Level& reach, const QString& condition);

/// "FamilyName, FirstName", and behind it "/" and the place, 20 characters wide, where the rows have one.
QVector<ListEntry> LocatedEmployees(Recordset people);
