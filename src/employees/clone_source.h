#pragma once

#include "employees/employee_record.h"
#include "foundation/list_entry.h"
#include "platform/dao/dao.h"

/// Whose record may serve as a template: the employees of the session's year that the user's position reaches, of his
/// group, of his department, of all departments of his organization, or of all organizations. "Location / FamilyName,
/// FirstName", without a location within one's own unit. Empty when nothing can be read.
QVector<ListEntry> LoadCloneSources(DataControl& datAbsence);

/// Fills the record with what a colleague's row says of workplace, schedule, approvers and rights; personal data stay
/// as they are. The day lengths count as typed, so that a time picked later does not replace them. Without such a row
/// the record is unchanged.
void TakeTemplate(DataControl& datAbsence, int sourceEmployeeID, EmployeeRecord& record);
