#include "attendance/request_reports.h"

#include "attendance/leave_requests.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/rows.h"

namespace
{
constexpr Text kWaitingHeading = {"Submitted:\tEmployee\t\tCategory\r\n", "Soumis le:\tEmployé(e)\t\tCatégorie\r\n"};
constexpr Text kStatusHeading = {"DATE: \tSTATUS\t\t\tCATEGORY\r\n", "DATE: \tSTATU\t\t\tCATÉGORIE\r\n"};
/// By RequestStatus; blanks fill them up to a column.
constexpr Text kStatusWords[] = {{"Request is on hold  ", "Requête en suspens"},
                                 {"Responsible notified", "Responsable avisé  "},
                                 {"Request approved    ", "Requête approuvée "},
                                 {"Request denied      ", "Requête refusée"}};
constexpr int kSettled = 2; ///< RequestStatus of an approval; that of a denial follows it

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
                 "Attendance.CategoryID = Categories.RecordID AND Attendance.RequestStatus < 4 AND "
                 "Attendance.SubmittedBy = ? ORDER BY Attendance.RecordDate ASC",
             SessionState.UserID)) {
        const int status = row.Long("RequestStatus");
        if (status >= kSettled)
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
        datAbsence.Execute("UPDATE Attendance SET RequestStatus = 4 WHERE SubmittedBy = ? AND RequestStatus IN (2, 3) "
                           "AND RecordID IN (" +
                               settled.join(", ") + ")",
                           SessionState.UserID);
    });
}
} // namespace

QString AreThereRequestsToApprove(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    if (UntoldRequests(datAbsence).isEmpty())
        return {};
    QString lines;
    InTransaction(datAbsence, [&] { // what comes in while the marks are written must be told another time
        for (const RequestGroup& group : UntoldRequests(datAbsence))
            lines += WaitingLine(group);
        MarkRequestsAsTold(datAbsence);
    });
    return lines.isEmpty() ? QString() : T(kWaitingHeading) + lines;
}

void MarkRequestsAsTold(DataControl& datAbsence)
{
    datAbsence.Execute("UPDATE Attendance SET RequestStatus = 1 WHERE SubmittedTo_First = ? AND RequestStatus = 0",
                       SessionState.UserID);
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
