#pragma once

#include "attendance/attendance_entry.h"
#include "foundation/explained_balance.h"
#include "foundation/list_entry.h"
#include "platform/dao/dao.h"

#include <optional>

/// The employees whom the user may enter records for, or the user alone for a request. Nothing at all: the user may add
/// for nobody. The entry's employee is cleared when he is the user, who may not enter his own records.
std::optional<QVector<ListEntry>> LoadRecords(DataControl& datAbsence, AttendanceEntry& entry);

/// The categories of the employee's department by name, "(All categories)" first. Notes TimeClaimedCategoryID.
QVector<ListEntry> LoadCategories(DataControl& datAbsence, AttendanceEntry& entry);

/// The entry takes over what the employee's file says: units, schedule, name, rate, approvers, day parts. On the server
/// back end the statement is composed and nothing is read.
void LoadEmployeeInfo(DataControl& datAbsence, AttendanceEntry& entry);

/// What the selected category says, with the employee's entitlement or bank balance where it matters.
void ReadCategory(DataControl& datAbsence, AttendanceEntry& entry);
/// The limit or the bank that the entry draws on, as it was when the category was chosen; empty where there is neither.
QString BalanceText(const AttendanceEntry& entry);
/// How much of it the employee, who must be known, has left now, and how that comes about.
BalanceLines ExplainBalance(DataControl& datAbsence, const AttendanceEntry& entry);
/// The category is limited by an entitlement, and the employee has none.
bool LacksEntitlement(const AttendanceEntry& entry);

/// Fills the entry from the record to modify. `entry` knows employee and category by then.
void ReloadRecord(DataControl& datAbsence, AttendanceEntry& entry);

/// Names ("FirstName FamilyName") and mail addresses of the approvers, and whether they have left.
void GetApprovalNames(DataControl& datAbsence, AttendanceEntry& entry);

/// One record for each selected date. They throw; what was written before the failure stays written.
void NewAttendance(DataControl& datAbsence, const AttendanceEntry& entry);
void SubmitAttendance(DataControl& datAbsence, const AttendanceEntry& entry);

/// Audits the record to modify as it was, and rewrites it. Throws, 3021 when it is gone.
void ModifyAttendance(DataControl& datAbsence, const AttendanceEntry& entry);
