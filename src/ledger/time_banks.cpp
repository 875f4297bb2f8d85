#include "ledger/time_banks.h"

float TimeBankOf(DataControl& datAbsence, const CalendarSelection& selection)
{
    const auto [column, id] = selection.Narrowest();
    if (!column)
        return 0;
    return datAbsence.Scalar<float>(
        QStringLiteral("SELECT SUM(Attendance.TotalDuration) FROM Attendance, Categories WHERE "
                       "Attendance.CategoryID = Categories.RecordID AND Attendance.%1 = ? AND "
                       "Categories.TimeBankRelated = 1 AND Attendance.CancelledDate = 0")
            .arg(QLatin1String(column)),
        id);
}
