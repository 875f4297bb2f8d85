#include "employees/hourly_rate.h"

#include "employees/employee_rows.h"
#include "foundation/common_services.h"
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
                      {{"rate", record.HourlyRate},
                       {"employee", QString::number(record.RecordID)},
                       {"date", QString::number(effective)}}));
}

void WriteCosts(Recordset& attendance, const QString& rate)
{
    attendance.Edit();
    attendance["HourlyRate"] = rate;
    attendance["UnitCost"] = qRound64(Val(rate) * kHundredths);
    attendance["ExtendedCost"] = qRound64(Val(rate) * attendance.Single("TotalDuration") * kHundredths);
    attendance.Update();
}
} // namespace

bool HasNewRate(const EmployeeRecord& record)
{
    return static_cast<float>(Val(record.HourlyRate)) != record.PreviousHourlyRate;
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
               Fill(text, {{"old", FormatNumber(record.PreviousHourlyRate, 2)},
                           {"new", record.HourlyRate},
                           {"FiscalYearName", SessionState.FiscalYearName}}));
}

void UpdateHourlyRate(DataControl& datAbsence, const EmployeeRecord& record, int effective)
{
    if (SessionState.SQL_Server)
        return SendStatement(record, effective);
    WriteAtOnce(datAbsence, [&] {
        for (Recordset attendance = datAbsence.Open("SELECT * FROM Attendance WHERE EmployeeID = ? AND RecordDate >= ?",
                                                    record.RecordID, effective);
             !attendance.AtEnd(); attendance.MoveNext())
            WriteCosts(attendance, record.HourlyRate);
    });
}
