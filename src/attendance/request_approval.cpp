#include "attendance/request_approval.h"

#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/session_rows.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"

#include <algorithm>

namespace
{
constexpr Text kSummaryHeading = {"STATUS      \tDATE:\tCATEGORY\r\n", "STATU         \tDATE:\tCATÉGORIE\r\n"};
constexpr Text kApprovedWord = {"Approved     ", "Approuvée     "};
constexpr Text kDeniedWord = {"Denied        ", "Refusée        "};
constexpr Text kNoAddress = {
    "\r\n\r\nNOTE: No e-mail address is available for this employee. As a result of this, TARVELL cannot notify this "
    "person that his/her requests have been processed.",
    "\r\n\r\nN.B.: Aucun courriel n'est disponible pour cet(te) employé(e). Conséquemment, TARVELL ne peut aviser "
    "cette personne par courrier électronique du fait que ses demandes de congé ont été traitées. Vous devrez donc le "
    "faire vous-même."};

/// In single precision the moment keeps its day and about five minutes of its time, as required.
float Moment()
{
    return static_cast<float>(Now());
}

Settings<AttendanceRow> Approval()
{
    return {{&AttendanceRow::Submitted, 0},
            {&AttendanceRow::ApprovedDateTime, Moment()},
            {&AttendanceRow::ApprovedBy, UserStamp()},
            {&AttendanceRow::RequestStatus, BoundValue(RequestStatus::Approved)}};
}

/// A denied record is cancelled by nobody: who denied it stands there instead.
Settings<AttendanceRow> Denial(const QString& reason)
{
    return {{&AttendanceRow::Submitted, 0},
            {&AttendanceRow::DeniedDateTime, Moment()},
            {&AttendanceRow::RequestStatus, BoundValue(RequestStatus::Denied)},
            {&AttendanceRow::DeniedBy, UserStamp()},
            {&AttendanceRow::ApprovalRefusalMessage, reason.trimmed()},
            {&AttendanceRow::CancelledDate, Today()}};
}

/// What whoever asked, or somebody else, has cancelled meanwhile stays so.
void Settle(DataControl& datAbsence, const RequestedDate& date, const QString& reason)
{
    if (!datAbsence.Scalar<QString>("SELECT CancelledBy FROM Attendance WHERE RecordID = ?", date.RecordID).isEmpty())
        RefuseChangedRow();
    Set<AttendanceRow>(datAbsence, date.RecordID, date.Mark == RequestMark::Approved ? Approval() : Denial(reason));
}

QString FailureText(const Settlement& settlement)
{
    const QString date = T(
        {"\r\n\r\nThe request for {date} could not be processed.", "\r\n\r\nLa demande du {date} n'a pu être traitée."},
        {{"date", FormatDate(settlement.FailedDate, "dd-mmm-yyyy")}});
    if (settlement.Settled.isEmpty())
        return date;
    return date + T("\r\n\r\nThese had been processed before:\r\n\r\n", "\r\n\r\nOnt été traitées avant:\r\n\r\n") +
           MarkSummary(settlement.Settled);
}
} // namespace

void Toggle(RequestedDate& date, RequestMark mark)
{
    date.Mark = date.Mark == mark ? RequestMark::None : mark;
}

QVector<RequestedDate> Marked(const QVector<RequestedDate>& dates)
{
    QVector<RequestedDate> marked = dates;
    marked.removeIf([](const RequestedDate& date) { return date.Mark == RequestMark::None; });
    return marked;
}

bool HasDenied(const QVector<RequestedDate>& dates)
{
    return std::any_of(dates.begin(), dates.end(),
                       [](const RequestedDate& date) { return date.Mark == RequestMark::Denied; });
}

QString MarkSummary(const QVector<RequestedDate>& marked)
{
    QString summary = T(kSummaryHeading);
    for (const RequestedDate& date : marked)
        summary += T(date.Mark == RequestMark::Approved ? kApprovedWord : kDeniedWord) + "\t" +
                   FormatDate(date.RecordDate, "dd-mmm") + "\t" + date.Category + "\r\n";
    return summary;
}

std::optional<Fault> ValidateMarks(const QVector<RequestedDate>& marked, const QString& reason)
{
    if (marked.isEmpty())
        return Fault{"flxRecordsToApprove",
                     T("You must approve or deny at least one of the employee's requests!",
                       "Vous devez approuver ou refuser au moins une des requêtes de l'employé(e)!")};
    if (HasDenied(marked) && reason.trimmed().isEmpty())
        return Fault{"txtReasonForRefusal", T("You must specify the reason why some of the requests are denied!",
                                              "Vous devez spécifier la raison du refus des requêtes!")};
    return std::nullopt;
}

bool ConfirmMarks(const QVector<RequestedDate>& marked)
{
    return AskWithList(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
                       T("Do you wish to process the following requests for leave?\r\n\r\n",
                         "Souhaitez-vous traiter les demandes de congé suivantes?\r\n\r\n") +
                           MarkSummary(marked),
                       marked.size());
}

Settlement SettleRequests(DataControl& datAbsence, const QVector<RequestedDate>& marked, const QString& reason)
{
    const Kept kept = InOpenYearOneByOne(datAbsence, marked.size(),
                                         [&](qsizetype date) { Settle(datAbsence, marked[date], reason); });
    return {marked.first(kept.Done), marked.value(kept.Done).RecordDate, kept.Failure};
}

void ThrowFailure(const Settlement& settlement)
{
    ThrowAgain(settlement.Failure, FailureText(settlement));
}

void TellSettled(const QString& address)
{
    Tell(
        T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
        T("The status of the selected requests has been updated.", "Le statu des requêtes traitées a été mis à jour.") +
            (address.trimmed().isEmpty() ? T(kNoAddress) : QString()));
}
