#pragma once

#include "employees/employee_record.h"

/// The names of the units that are selected for a record; empty for none.
struct UnitNames
{
    QString Organization;
    QString Department;
    QString Group;
};

/// Replaces "{FirstName}" and "{Name}" of a text.
QString WithName(const QString& text, const EmployeeRecord& record);

/// What the final confirmation shows of a record.
QString EmployeeSummary(const EmployeeRecord& record, const UnitNames& units, bool modifying);
