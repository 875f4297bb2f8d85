#include "attendance/denied_requests.h"

#include "attendance/record_lines.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"

namespace
{
QStringList DeniedLines(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    QStringList lines;
    for (const Recordset& row : datAbsence.Select(
             "SELECT Attendance.RecordDate, Attendance.DeniedBy, Attendance.ApprovalRefusalMessage, "
             "Categories.CategoryEnglishName, Categories.CategoryFrenchName FROM Attendance, Categories WHERE "
             "Attendance.CategoryID = Categories.RecordID AND Attendance.SubmittedBy = ? AND Attendance.FiscalYear = ? "
             "AND Attendance.DeniedBy <> '' AND Attendance.CancelledDate <> 0 ORDER BY Attendance.RecordDate ASC",
             SessionState.UserID, SessionState.FiscalYearID))
        lines << QStringList{FormatDate(row.Long("RecordDate"), "ddd dd-mmm-yyyy"), CategoryOfRow(row),
                             row.Text("DeniedBy"), row.Text("ApprovalRefusalMessage")}
                     .join('\t');
    return lines;
}
} // namespace

void TellDeniedRequests(DataControl& datAbsence)
{
    const QString title = T("DENIED REQUESTS FOR LEAVE:", "DEMANDES DE CONGÉ REFUSÉES:");
    const QStringList lines = DeniedLines(datAbsence);
    if (lines.isEmpty())
        return Tell(title, T("None of your requests for leave has been denied in this fiscal year.",
                             "Aucune de vos demandes de congé n'a été refusée durant cette année fiscale."));
    const QString head = T("DATE\tCATEGORY\tDENIED BY\tREASON", "DATE\tCATÉGORIE\tREFUSÉE PAR\tRAISON");
    TellWithList(title, head + "\r\n" + lines.join("\r\n"), lines.size());
}
