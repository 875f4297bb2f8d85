#pragma once

#include "employees/employee_record.h"
#include "foundation/list_entry.h"
#include "platform/dao/dao.h"

/// The candidates for the unit of the record: those of its group, of the head of its department, of the head of its
/// organization, and everybody with the global level; by name within each block. "Unit                 / Family,
/// First", or the name alone for those who reach everybody. Never the employee himself. Somebody may stand in two
/// blocks. Empty when nothing can be read.
QVector<ListEntry> LoadApprovedBy(DataControl& datAbsence, const EmployeeRecord& record);

/// "Family, First" of an employee, wherever he works; empty when there is none.
QString ApproverName(DataControl& datAbsence, int recordID);
