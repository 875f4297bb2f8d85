#pragma once

#include "platform/dao/dao.h"

#include <QString>
#include <QVector>

/// What follows "WHERE ..." in every calendar query: the employee, or else the unit shown; the chosen category; hidden
/// categories; live records only; effective or pending ones. Its two values go in the place of its question marks.
struct ScopeFilter
{
    QString Sql;
    int Scope = 0;    ///< id of the employee or unit, 0 the whole company
    int Category = 0; ///< 0 all
};
ScopeFilter CalendarScope();

/// One category on one date of the calendar. `Color` is 0xBBGGRR, 0 none.
struct CalendarRecord
{
    int RecordDate = 0;
    int CategoryID = 0;
    int Color = 0;
};

/// Total of the year within the scope, decimal hours; 0 for none.
float TotalForTheYear(DataControl& datAbsence);
/// The year's records within the scope in order of date, one per date and category.
QVector<CalendarRecord> RecordsOfTheYear(DataControl& datAbsence);

/// The lines that list the records of one date: name, category, times, duration.
QStringList DailyAttendance(DataControl& datAbsence, int date);

/// The employee's live records on a date, effective and pending, a line each; empty when there are none.
QString ConflictingRecords(DataControl& datAbsence, int date);
