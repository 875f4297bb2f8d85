#pragma once

#include "foundation/explained_balance.h"
#include "platform/dao/dao.h"

#include <QMap>
#include <QStringList>
#include <QVector>

/// One category on one date of the calendar. `Color` is 0xBBGGRR, 0 none. `Hours`, decimal, are those of all records of
/// the category within the scope, 0 where they are not known.
struct CalendarRecord
{
    int RecordDate = 0;
    int CategoryID = 0;
    int Color = 0;
    QString Name = {}; ///< of the category, in the session's language
    QString Code = {}; ///< empty for none
    float Hours = 0;
};

/// What the calendar shows is its scope: an employee or a unit, in a category or all of them, effective records or
/// pending ones; never a cancelled one, nor one of a category that the user may not see.

/// Total of the year within the scope, decimal hours; 0 for none.
float TotalForTheYear(DataControl& datAbsence);
/// How it comes about: for one employee in a limited category what is left to him, otherwise what has been taken, is
/// booked ahead, and waits for approval.
BalanceLines ExplainTotal(DataControl& datAbsence);
/// The year's records within the scope in order of date, one per date and category. Those of the whole company have no
/// hours: they would take the reading of each of its records.
QVector<CalendarRecord> RecordsOfTheYear(DataControl& datAbsence);

/// The lines that list the records of one date: name, category, times, duration.
QStringList DailyAttendance(DataControl& datAbsence, int date);

/// The employee's live records from one date to another, effective and pending: a line each, by date.
QMap<int, QStringList> ConflictingRecords(DataControl& datAbsence, int from, int to);
