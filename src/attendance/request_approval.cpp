#include "attendance/request_approval.h"

#include "attendance/attendance_records.h"
#include "foundation/attendance_row.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/session_rows.h"
#include "foundation/values.h"
#include "mail/leave_notices.h"
#include "platform/clock.h"

#include <algorithm>
#include <iterator>

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

constexpr int kApproved = 2; ///< RequestStatus
constexpr int kDenied = 3;

bool HasDenied(const QVector<RequestedDate>& dates)
{
    return std::any_of(dates.begin(), dates.end(), [](const auto& date) { return date.Said == Verdict::Denied; });
}

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
            {&AttendanceRow::RequestStatus, kApproved}};
}

/// A denied record is cancelled by nobody: who denied it stands there instead.
Settings<AttendanceRow> Denial(const QString& reason)
{
    return {{&AttendanceRow::Submitted, 0},
            {&AttendanceRow::DeniedDateTime, Moment()},
            {&AttendanceRow::RequestStatus, kDenied},
            {&AttendanceRow::DeniedBy, UserStamp()},
            {&AttendanceRow::ApprovalRefusalMessage, reason.trimmed()},
            {&AttendanceRow::CancelledDate, Today()}};
}

/// The year may be closed while an approver thinks.
void Settle(DataControl& datAbsence, const RequestedDate& date, const QString& reason)
{
    InOpenYear(datAbsence, [&] {
        Set<AttendanceRow>(datAbsence, date.RecordID, date.Said == Verdict::Approved ? Approval() : Denial(reason));
    });
}

QString FailureText(const Settlement& settlement)
{
    const QString date = T(
        {"\r\n\r\nThe request for {date} could not be processed.", "\r\n\r\nLa demande du {date} n'a pu être traitée."},
        {{"date", FormatDate(settlement.FailedDate, "dd-mmm-yyyy")}});
    if (settlement.Settled.isEmpty())
        return date;
    return date + T("\r\n\r\nThese had been processed before:\r\n\r\n", "\r\n\r\nOnt été traitées avant:\r\n\r\n") +
           VerdictSummary(settlement.Settled);
}

float TotalOf(const QVector<RequestedDate>& dates)
{
    double hours = 0;
    for (const RequestedDate& date : dates)
        hours += date.TotalDuration;
    return static_cast<float>(hours);
}
} // namespace

void Toggle(RequestedDate& date, Verdict verdict)
{
    date.Said = date.Said == verdict ? Verdict::None : verdict;
}

QVector<RequestedDate> Judged(const QVector<RequestedDate>& dates)
{
    QVector<RequestedDate> judged;
    std::copy_if(dates.begin(), dates.end(), std::back_inserter(judged),
                 [](const RequestedDate& date) { return date.Said != Verdict::None; });
    return judged;
}

QString VerdictSummary(const QVector<RequestedDate>& judged)
{
    QString summary = T(kSummaryHeading);
    for (const RequestedDate& date : judged)
        summary += T(date.Said == Verdict::Approved ? kApprovedWord : kDeniedWord) + "\t" +
                   FormatDate(date.RecordDate, "dd-mmm") + "\t" + date.Category + "\r\n";
    return summary;
}

std::optional<Fault> ValidateVerdicts(const QVector<RequestedDate>& judged, const QString& reason)
{
    if (judged.isEmpty())
        return Fault{"flxRecordsToApprove",
                     T("You must approve or deny at least one of the employee's requests!",
                       "Vous devez approuver ou refuser au moins une des requêtes de l'employé(e)!")};
    if (HasDenied(judged) && reason.trimmed().isEmpty())
        return Fault{"txtReasonForRefusal", T("You must specify the reason why some of the requests are denied!",
                                              "Vous devez spécifier la raison du refus des requêtes!")};
    return std::nullopt;
}

bool ConfirmVerdicts(const QVector<RequestedDate>& judged)
{
    return AskWithList(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
                       T("Do you wish to process the following requests for leave?\r\n\r\n",
                         "Souhaitez-vous traiter les demandes de congé suivantes?\r\n\r\n") +
                           VerdictSummary(judged),
                       judged.size());
}

Settlement SettleRequests(DataControl& datAbsence, const QVector<RequestedDate>& judged, const QString& reason)
{
    Settlement settlement;
    for (const RequestedDate& date : judged)
        try {
            Settle(datAbsence, date, reason);
            settlement.Settled.append(date);
        } catch (const RuntimeError&) {
            settlement.FailedDate = date.RecordDate;
            settlement.Failure = std::current_exception();
            break;
        }
    return settlement;
}

void ThrowFailure(const Settlement& settlement)
{
    try {
        std::rethrow_exception(settlement.Failure);
    } catch (const YearClosed&) {
        throw;
    } catch (const ConnectionFailed&) {
        throw;
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.Number, error.Description + FailureText(settlement));
    }
}

void EMailNotice(const QString& address, const QVector<RequestedDate>& settled, const QString& reason)
{
    if (!address.trimmed().isEmpty() && !settled.isEmpty())
        SendNotice(OutcomeNotice(address, VerdictSummary(settled), HasDenied(settled) ? reason : QString()));
}

void TellSettled(const QString& address)
{
    Tell(
        T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
        T("The status of the selected requests has been updated.", "Le statu des requêtes traitées a été mis à jour.") +
            (address.trimmed().isEmpty() ? T(kNoAddress) : QString()));
}

std::optional<RequestBalance> BalanceOfRequest(DataControl& datAbsence, const RequestGroup& group,
                                               const QVector<RequestedDate>& dates)
{
    const Connection connection(datAbsence);
    AttendanceEntry entry;
    entry.EmployeeID = group.EmployeeID;
    entry.SelectedCategoryID = group.CategoryID;
    ReadCategory(datAbsence, entry);
    RequestBalance balance{.InTimeBank = entry.RequiresMonitoring != 1, .Lines = ExplainBalance(datAbsence, entry)};
    const auto left = HoursOf(balance.Lines, kLeft);
    if (!left)
        return std::nullopt;
    const float taken = balance.InTimeBank ? 1 : -1; // by an hour of a record
    const float pending = HoursOf(balance.Lines, kPending).value_or(0);
    balance.Request = TotalOf(dates);
    balance.OtherPending = pending - balance.Request;
    balance.AfterAll = *left;
    balance.Before = *left - taken * pending;
    balance.After = balance.Before + taken * balance.Request;
    return balance;
}
