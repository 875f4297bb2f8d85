#pragma once

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
