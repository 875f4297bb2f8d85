#include "employees/hourly_rate.h"

#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/session_rows.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "foundation/values.h"

namespace
{
constexpr double kHundredths = 100;

void SendStatement(const EmployeeRecord& record, int effective)
{
    SendToServer(Fill("UPDATE Attendance SET HourlyRate = '{rate}', UnitCost = {rate}, ExtendedCost = TotalDuration * "
                      "{rate} WHERE EmployeeID = {employee} AND RecordDate >= {date}",
                      {{"rate", record.HourlyRateText},
                       {"employee", QString::number(record.RecordID)},
                       {"date", QString::number(effective)}}));
}

Settings<AttendanceRow> Costs(const AttendanceRow& record, const QString& rate)
{
    return {{&AttendanceRow::HourlyRate, rate},
            {&AttendanceRow::UnitCost, qRound64(Val(rate) * kHundredths)},
            {&AttendanceRow::ExtendedCost, qRound64(Val(rate) * record.TotalDuration * kHundredths)}};
}
} // namespace

bool HasNewRate(const EmployeeRecord& record)
{
    return static_cast<float>(Val(record.HourlyRateText)) != static_cast<float>(record.HourlyRate);
}

bool AskForRetroactiveRate(const EmployeeRecord& record)
{
    const QString text = T(
        "You just modified this employee's hourly rate as follows:\r\n\r\n » Previous rate:\t{old}\r\n » New "
        "rate:\t\t{new}\r\n\r\nDo you wish to apply this hourly rate retroactively to the attendance records entered "
        "so far in fiscal year {FiscalYearName}?\r\n\r\nNOTE: It will be possible for you to specify the date at which "
        "the change of rate became effective.",
        "Vous venez d'effectuer le changement suivant au taux horaire de cet(te) employé(e):\r\n\r\n » Taux horaire "
        "précédent:\t{old}\r\n » Nouveau taux horaire:  \t\t{new}\r\n\r\nSouhaitez-vous appliquer ce nouveau taux "
        "horaire rétroactivement aux absences enregistrées jusqu'à présent durant l'année fiscale "
        "{FiscalYearName}?\r\n\r\nN.B.: Il vous sera possible de spécifier la date à laquelle le nouveau taux horaire "
        "est entré en vigueur.");
    return Ask(T("New hourly rate specified:", "Un changement de taux horaire a été détecté!"),
               Fill(text, {{"old", FormatNumber(static_cast<float>(record.HourlyRate), 2)},
                           {"new", record.HourlyRateText},
                           {"FiscalYearName", SessionState.FiscalYearName}}));
}

void UpdateHourlyRate(DataControl& datAbsence, const EmployeeRecord& record, int effective)
{
    if (IsServerChosen()) // which works the costs out by itself, in one statement
        return SendStatement(record, effective);
    InOpenYear(datAbsence, [&] {
        for (const AttendanceRow& row :
             Where<AttendanceRow>(datAbsence, "EmployeeID = ? AND RecordDate >= ?", record.RecordID, effective))
            Set(datAbsence, row.RecordID, Costs(row, record.HourlyRateText));
    });
}
