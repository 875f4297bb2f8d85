#pragma once

#include "platform/dao/dao.h"

#include <QStringList>
#include <QVector>

enum class ListKind
{
    Employees, ///< with their log-in details
    Categories ///< with their entitlement rules
};

/// A reference list in the user's language, ready to be shown.
struct ReferenceList
{
    QString Heading;
    QStringList Columns;
    QVector<QStringList> Rows; ///< one cell per column
};

/// The active categories of the session's year by name; hidden ones only for a user who may see them. Without rows
/// when nothing can be read.
ReferenceList ListOfCategories(DataControl& datAbsence);

/// The employees of the session's year by unit and name, as far as the user's rights to read reach; their passwords
/// stand in clear, for the administrator hands them out from here. Rebuilds the list of employees first when it is
/// flagged: throws RuntimeError when that fails.
ReferenceList ListOfEmployees(DataControl& datAbsence);
