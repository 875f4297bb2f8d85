#pragma once

#include "employees/employee_record.h"
#include "platform/dao/dao.h"

#include <QStringList>

/// The number of active employees of the session's year.
int CountEmployees(DataControl& datAbsence);

/// Fills the record from the row `record.RecordID`; all else that the record held is forgotten. Fields that are NULL
/// stay empty. False, and an empty record, when there is no such row.
bool LoadEmployeeRecord_ACCESS(DataControl& datAbsence, EmployeeRecord& record);

/// Another employee of the year logs in by that name, or it is the administrator's. Letter case does not count.
bool IsLoginIDTaken(DataControl& datAbsence, const EmployeeRecord& record);
/// An active employee of that name in the record's department, or in its organization when it has no department.
/// `modifying`: the employee himself does not count.
bool HasNamesake(DataControl& datAbsence, const EmployeeRecord& record, bool modifying);

/// Writes a new employee with his entitlements, and flags the list of employees. Returns the names, in the user's
/// language, of the categories that still need an annual entitlement. Throws RuntimeError when something cannot be
/// written; nothing is written then.
QStringList AddEmployee(DataControl& datAbsence, const EmployeeRecord& record);
/// Stores the row as it stands in the modifications log, changes the columns that differ from the row loaded, and flags
/// the list of employees. Throws RuntimeError; nothing is written then.
void ModifyEmployee(DataControl& datAbsence, const EmployeeRecord& record);
