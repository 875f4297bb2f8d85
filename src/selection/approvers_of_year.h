#pragma once

#include "foundation/list_entry.h"
#include "foundation/session_state.h"
#include "platform/dao/dao.h"

#include <QVector>

/// Somebody who may approve requests for leave.
struct ListedApprover
{
    int RecordID = 0; ///< of Employees
    QString Name;     ///< "FamilyName, FirstName"
    QString Place;    ///< "Organization / Department / Group" in the user's language, as far as there are
};

/// Everyone of the session's fiscal year who may approve requests and still works, by organization, department, group
/// and name. Rebuilds the list of employees first when it is flagged: throws RuntimeError when that fails. Empty when
/// nothing can be read.
QVector<ListedApprover> LoadApproversList(DataControl& datAbsence);

/// Who of the session's fiscal year may approve the requests of an employee, level by level: of his group, of his
/// department and in no group, of his organization and in no department, of no organization. Within a level they stand
/// by place and name. Himself is never among them.
QVector<ListEntry> ApproversAbove(DataControl& datAbsence, const CalendarSelection& requester);
