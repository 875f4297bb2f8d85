#include "attendance/request_reports.h"

#include "attendance/leave_requests.h"
#include "attendance/record_lines.h"
#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/rows.h"

namespace
{
constexpr Text kWaitingHeading = {"Submitted:\tEmployee\t\tCategory\r\n", "Soumis le:\tEmployé(e)\t\tCatégorie\r\n"};
constexpr Text kStatusHeading = {"DATE: \tSTATUS\t\t\tCATEGORY\r\n", "DATE: \tSTATU\t\t\tCATÉGORIE\r\n"};
/// In the order of RequestStatus; blanks fill them up to a column.
constexpr Text kStatusWords[] = {{"Request is on hold  ", "Requête en suspens"},
                                 {"Responsible notified", "Responsable avisé  "},
                                 {"Request approved    ", "Requête approuvée "},
                                 {"Request denied      ", "Requête refusée"}};

QString WaitingLine(const RequestGroup& group)
{
    constexpr int kWidth = 15;
    return FormatDate(group.EnteredDate, "dd-mmm-yyyy") + "\t" + group.FamilyName.left(kWidth) + ", " +
           group.FirstName.left(kWidth) + "\t" + group.Category.left(kWidth) + "\r\n";
}

/// How the user's requests stand.
struct StatusReport
{
    QString Lines;
    int Count = 0;
    QStringList Settled; ///< RecordIDs
};

StatusReport ReadStatusReport(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    StatusReport report;
    for (const Recordset& row : datAbsence.Select(
             "SELECT Attendance.RecordID, Attendance.RecordDate, Categories." + NameColumn("Category") +
                 " AS Catg, Attendance.RequestStatus, Attendance.CancelledDate FROM Attendance, Categories WHERE "
                 "Attendance.CategoryID = Categories.RecordID AND Attendance.RequestStatus < ? AND "
                 "Attendance.SubmittedBy = ? ORDER BY Attendance.RecordDate ASC",
             RequestStatus::OutcomeTold, SessionState.UserID)) {
        const int status = row.Long("RequestStatus");
        if (status >= static_cast<int>(RequestStatus::Approved))
            report.Settled << row.Text("RecordID");
        if (row.Long("CancelledDate") != 0)
            continue;
        ++report.Count;
        report.Lines += FormatDate(row.Long("RecordDate"), "dd-mmm") + "\t" + T(kStatusWords[status]) + "\t" +
                        row.Text("Catg").trimmed() + "\r\n";
    }
    return report;
}

/// Those that another workstation has settled meanwhile are left for the next time.
void MarkOutcomesAsTold(DataControl& datAbsence, const QStringList& settled)
{
    if (settled.isEmpty())
        return;
    InTransaction(datAbsence, [&] {
        datAbsence.Execute("UPDATE Attendance SET RequestStatus = ? WHERE SubmittedBy = ? AND RequestStatus IN (?, ?) "
                           "AND RecordID IN (" +
                               settled.join(", ") + ")",
                           RequestStatus::OutcomeTold, SessionState.UserID, RequestStatus::Approved,
                           RequestStatus::Denied);
    });
}

void MarkRequestsAsTold(DataControl& datAbsence)
{
    datAbsence.Execute("UPDATE Attendance SET RequestStatus = ? WHERE SubmittedTo_First = ? AND RequestStatus = ?",
                       RequestStatus::Told, SessionState.UserID, RequestStatus::OnHold);
}

/// A reason stands below the dates for which it was given.
QStringList DeniedLines(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    QStringList lines;
    QString reason;
    const auto tellReason = [&] { lines << T("REASON: ", "RAISON: ") + reason; };
    for (const Recordset& row : datAbsence.Select(
             "SELECT Attendance.RecordDate, Attendance.DeniedBy, Attendance.ApprovalRefusalMessage, "
             "Categories.CategoryEnglishName, Categories.CategoryFrenchName FROM Attendance, Categories WHERE "
             "Attendance.CategoryID = Categories.RecordID AND Attendance.SubmittedBy = ? AND Attendance.FiscalYear = ? "
             "AND Attendance.DeniedBy <> '' AND Attendance.CancelledDate <> 0 ORDER BY Attendance.RecordDate ASC",
             SessionState.UserID, SessionState.FiscalYearID)) {
        if (!lines.isEmpty() && row.Text("ApprovalRefusalMessage") != reason) {
            tellReason();
            lines << QString();
        }
        reason = row.Text("ApprovalRefusalMessage");
        lines << QStringList{FormatDate(row.Long("RecordDate"), "ddd dd-mmm-yyyy"), CategoryOfRow(row),
                             row.Text("DeniedBy")}
                     .join('\t');
    }
    if (!lines.isEmpty())
        tellReason();
    return lines;
}
} // namespace

QString TakeNewRequests(DataControl& datAbsence)
{
    QString lines;
    InTransaction(datAbsence, [&] { // what comes in while the marks are written must be told another time
        for (const RequestGroup& group : UntoldRequests(datAbsence))
            lines += WaitingLine(group);
        if (!lines.isEmpty())
            MarkRequestsAsTold(datAbsence);
    });
    return lines.isEmpty() ? QString() : T(kWaitingHeading) + lines;
}

bool OfferApproval(const QString& list)
{
    return !list.isEmpty() &&
           Ask(T("REQUEST(S) FOR LEAVE RECEIVED:", "DEMANDE(S) DE CONGÉ REÇUE(S):"),
               T("The following requests for leave have been submitted for your approval. Do you want to process those "
                 "requests now?",
                 "Les demandes de congé suivantes ont été soumises pour votre approbation. Souhaitez-vous traiter ces "
                 "demandes maintenant?") +
                   "\r\n\r\n" + list,
               Face::Informing);
}

void WereRequestsApproved(DataControl& datAbsence)
{
    const StatusReport report = ReadStatusReport(datAbsence);
    if (report.Count == 0)
        return;
    TellWithList(T("REQUEST(S) FOR LEAVE STATUS REPORT:", "STATU DE VOS DEMANDES DE CONGÉ:"),
                 T("Here is the status of your request(s) for leave:\r\n\r\n",
                   "Voici le statu de vos demandes de congé:\r\n\r\n") +
                     T(kStatusHeading) + report.Lines,
                 report.Count);
    MarkOutcomesAsTold(datAbsence, report.Settled);
}

void TellDeniedRequests(DataControl& datAbsence)
{
    const QString title = T("DENIED REQUESTS FOR LEAVE:", "DEMANDES DE CONGÉ REFUSÉES:");
    const QStringList lines = DeniedLines(datAbsence);
    if (lines.isEmpty())
        return Tell(title, T("None of your requests for leave has been denied in this fiscal year.",
                             "Aucune de vos demandes de congé n'a été refusée durant cette année fiscale."));
    const QString head = T("DATE\tCATEGORY\tDENIED BY", "DATE\tCATÉGORIE\tREFUSÉE PAR");
    TellWithList(title, head + "\r\n" + lines.join("\r\n"), lines.size());
}
