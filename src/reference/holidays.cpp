#include "reference/holidays.h"

#include "foundation/connection.h"
#include "foundation/session_state.h"

#include <algorithm>

QVector<Holiday> LoadHolidays(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    QVector<Holiday> holidays;
    for (const Recordset& row : datAbsence.Select("SELECT HolidayDate, HolidayName FROM Holidays WHERE HolidayDate "
                                                  "BETWEEN ? AND ? AND CancelledDate = 0 ORDER BY HolidayDate ASC",
                                                  SessionState.CommencingDate, SessionState.EndingDate))
        holidays.append({row.Long("HolidayDate"), row.Text("HolidayName").trimmed()});
    return holidays;
}

QString HolidayName(const QVector<Holiday>& holidays, int date)
{
    const auto found =
        std::find_if(holidays.begin(), holidays.end(), [date](const Holiday& holiday) { return holiday.Date == date; });
    return found == holidays.end() ? QString() : found->Name;
}
