#pragma once

#include "platform/dao/dao.h"

#include <QVector>

/// A statutory holiday; `Date` is a serial day.
struct Holiday
{
    int Date = 0;
    QString Name;
};

/// The valid holidays of the session's fiscal year in order of date.
QVector<Holiday> LoadHolidays(DataControl& datAbsence);

/// The name of the holiday on a date, empty for none.
QString HolidayName(const QVector<Holiday>& holidays, int date);
