#include "reference/holidays.h"

#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/holiday_row.h"

#include <algorithm>

namespace
{
QVector<Holiday> HolidaysBetween(DataControl& datAbsence, int first, int last)
{
    QVector<Holiday> holidays;
    for (const Recordset& row : datAbsence.Select("SELECT HolidayDate, HolidayName FROM Holidays WHERE HolidayDate "
                                                  "BETWEEN ? AND ? AND CancelledDate = 0 ORDER BY HolidayDate ASC",
                                                  first, last))
        holidays.append({row.Long("HolidayDate"), row.Text("HolidayName").trimmed()});
    return holidays;
}

QString DatesInList(const DateList& dates)
{
    QStringList numbers;
    for (const int date : dates)
        numbers << QString::number(date);
    return numbers.join(", ");
}

bool HasHoliday(DataControl& datAbsence, const DateList& dates)
{
    return datAbsence.Read("SELECT HolidayDate FROM Holidays WHERE HolidayDate IN (" + DatesInList(dates) +
                           ") AND CancelledDate = 0");
}

HolidayRow NewHoliday(const Holiday& holiday)
{
    HolidayRow row;
    row.HolidayDate = holiday.Date;
    row.HolidayName = holiday.Name;
    row.EnteredBy = UserStamp();
    row.EnteredDate = Today();
    return row;
}
} // namespace

QVector<Holiday> LoadHolidays(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    return HolidaysBetween(datAbsence, SessionState.CommencingDate, SessionState.EndingDate);
}

QString HolidayName(const QVector<Holiday>& holidays, int date)
{
    const auto found =
        std::find_if(holidays.begin(), holidays.end(), [date](const Holiday& holiday) { return holiday.Date == date; });
    return found == holidays.end() ? QString() : found->Name;
}

DateList DatesOf(const QVector<Holiday>& holidays)
{
    DateList dates;
    for (const Holiday& holiday : holidays)
        dates << holiday.Date;
    return dates;
}

QVector<Holiday> HolidaysOfYearBefore(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    const Recordset year = datAbsence.Select("SELECT CommencingDate, EndingDate FROM FiscalYears WHERE RecordID = ?",
                                             SessionState.PreviousFYID);
    if (year.AtEnd())
        return {};
    QVector<Holiday> holidays;
    for (const Holiday& before : HolidaysBetween(datAbsence, year.Long("CommencingDate"), year.Long("EndingDate"))) {
        const int date = SerialOfDate(DateOfSerial(before.Date).addYears(1));
        const bool given = !holidays.isEmpty() && holidays.last().Date == date; // by the 28th of February
        if (!given && date >= SessionState.CommencingDate && date <= SessionState.EndingDate)
            holidays.append({date, before.Name});
    }
    return holidays;
}

Fault HolidayTaken()
{
    return {"lstHolidayDates", T("There already is a statutory holiday under one of the selected dates!",
                                 "Il existe déjà un congé férié sous l'une des dates sélectionnées!")};
}

std::optional<Fault> ValidateRecord(DataControl& datAbsence, HolidayEntry& entry)
{
    entry.Name = entry.Name.trimmed();
    if (entry.Name.isEmpty())
        return Fault{"txtHolidayName", T("You must specify a name for the statutory holiday!",
                                         "Vous devez spécifier un nom pour le congé férié!")};
    if (entry.Dates.isEmpty())
        return Fault{"lstHolidayDates", T("You must specify a date for the statutory holiday!",
                                          "Vous devez spécifier une date pour le congé férié!")};
    const Connection connection(datAbsence);
    if (HasHoliday(datAbsence, entry.Dates))
        return HolidayTaken();
    return {};
}

int CountRecordsOn(DataControl& datAbsence, const DateList& dates)
{
    const Connection connection(datAbsence);
    return datAbsence.Scalar<int>("SELECT COUNT(*) FROM Attendance WHERE RecordDate IN (" + DatesInList(dates) +
                                  ") AND CancelledDate = 0");
}

bool AddHolidays(DataControl& datAbsence, const QVector<Holiday>& holidays)
{
    bool added = false;
    InOpenYear(datAbsence, [&] {
        if (HasHoliday(datAbsence, DatesOf(holidays)))
            return;
        for (const Holiday& holiday : holidays)
            Add(datAbsence, NewHoliday(holiday));
        added = true;
    });
    SessionState.ReloadCalendar = SessionState.ReloadCalendar || added;
    return added;
}

void RemoveHoliday(DataControl& datAbsence, int date)
{
    InOpenYear(datAbsence, [&] {
        datAbsence.Execute("UPDATE Holidays SET CancelledDate = ?, CancelledBy = ? WHERE HolidayDate = ? AND "
                           "CancelledDate = 0",
                           Today(), UserStamp(), date);
    });
    SessionState.ReloadCalendar = true;
}
