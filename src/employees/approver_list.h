#pragma once

#include "employees/employee_record.h"
#include "platform/dao/dao.h"

#include <QVector>

/// Somebody who may approve the requests of an employee.
struct Approver
{
    int RecordID = 0;
    QString Listed; ///< "Unit                 / Family, First", or the name alone for those who reach everybody
};

/// The candidates for the unit of the record: those of its group, of the head of its department, of the head of its
/// organization, and everybody with the global level; by name within each block. Never the employee himself. Somebody
/// may stand in two blocks. Empty when nothing can be read.
QVector<Approver> LoadApprovedBy(DataControl& datAbsence, const EmployeeRecord& record);

/// "Family, First" of an employee, wherever he works; empty when there is none.
QString ApproverName(DataControl& datAbsence, int recordID);
