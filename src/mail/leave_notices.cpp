#include "mail/leave_notices.h"

#include "foundation/texts.h"
#include "platform/clock.h"

#include <QLocale>

namespace
{
constexpr Text kRequestSubject = {"TARVELL  -  Request for leave", "TARVELL  -  Demande de congé"};
constexpr Text kRequestBody = {
    "{employee} is submitting the following request for leave for your approval:\r\n\r\nCategory: "
    "{category}\r\n\r\nDate(s) requested:\r\n\r\n{list}\r\n\r\n",
    "{employee} viens de soumettre la demande de congé suivante à votre approbation:\r\n\r\nCatégorie: "
    "{category}\r\n\r\nDate(s) demandé(e)s:\r\n\r\n{list}\r\n\r\n"};
constexpr Text kComment = {"COMMENT: {comment}\r\n\r\n", "COMMENTAIRE: {comment}\r\n\r\n"};
constexpr Text kHowToProcess = {
    "To process this request for leave, all you need to do is open «TARVELL» and click on the «Approve requests for "
    "leave» icon from the toolbar.",
    "Pour traiter cette demande, il vous suffit de démarrer «TARVELL» et de cliquer sur l'icône «Approuver demandes de "
    "congé»."};
constexpr Text kCopyBody = {
    "The following request for leave has been submitted to {first} for approval.\r\n\r\nEmployee: "
    "{employee}\r\nCategory: {category}\r\n\r\nDate(s) requested:\r\n\r\n{list}\r\n\r\nIf you happen to know that "
    "{first} is not available to process this request, please take care of it on his/her behalf as soon as possible.",
    "La demande de congé suivante a été soumise à {first} pour fin d'approbation.\r\n\r\nEmployé(e): "
    "{employee}\r\nCatégorie: {category}\r\n\r\nDate(s) demandées:\r\n\r\n{list}\r\n\r\nSi vous savez que {first} "
    "n'est présentement pas en mesure de traiter cette demande de congé, veuillez vous en charger en son nom le plus "
    "tôt possible."};

constexpr Text kOutcomeSubject = {"TARVELL  -  Your request for leave", "TARVELL  -  Votre demande de congé"};
constexpr Text kOutcomeBody = {"The following requests for leave you recently submitted have been processed by {user} "
                               "on {date} at {time}:\r\n\r\n{summary}",
                               "Les demandes de congé suivantes que vous avez récemment soumises ont été traitées par "
                               "{user} le {date} à {time}:\r\n\r\n{summary}"};
constexpr Text kReason = {"\r\n\r\nREASON FOR REFUSAL:\r\n{reason}", "\r\n\r\nRAISON DU REFUS:\r\n{reason}"};

constexpr Text kCancellationSubject = {"TARVELL  -  Cancellation of a request for leave",
                                       "TARVELL  -  Annulation d'une demande de congé"};
constexpr Text kCancellationBody = {
    "{user} has just cancelled the following request for leave which you were required to approve:\r\n\r\nCategory: "
    "{category}\r\n\r\nRecord date(s):\r\n\r\n{dates}",
    "{user} vient de supprimer les demandes de congé suivantes que vous deviez approuver:\r\n\r\nCatégorie: "
    "{category}\r\n\r\nDate(s) demandé(e)s:\r\n\r\n{dates}"};

/// What people typed goes in last: a name in braces within it is left as it is.
QString RequestBody(const LeaveRequest& request)
{
    const QString comment = request.Comment.trimmed();
    const QString text = T(kRequestBody) + (comment.isEmpty() ? QString() : T(kComment)) + T(kHowToProcess);
    return Fill(text, {{"employee", request.Employee},
                       {"category", request.Category},
                       {"list", request.Dates},
                       {"comment", comment}});
}

QString CopyBody(const LeaveRequest& request)
{
    return T(kCopyBody, {{"first", request.FirstApprover.Name},
                         {"employee", request.Employee},
                         {"category", request.Category},
                         {"list", request.Dates}});
}

Notice NoticeTo(const Approver& approver, const QString& body)
{
    return {
        .Address = approver.EMailAddress, .Subject = T(kRequestSubject), .Body = body, .EmployeeID = approver.RecordID};
}
} // namespace

QVector<Notice> RequestNotices(const LeaveRequest& request)
{
    QVector<Notice> notices{NoticeTo(request.FirstApprover, RequestBody(request)),
                            NoticeTo(request.SecondApprover, CopyBody(request))};
    notices.removeIf([](const Notice& notice) { return notice.Address.trimmed().isEmpty(); });
    return notices;
}

Notice OutcomeNotice(int employee, const QString& address, const QString& summary, const QString& reason)
{
    const QDateTime now = CurrentDateTime();
    const QString text = T(kOutcomeBody) + (reason.trimmed().isEmpty() ? QString() : T(kReason));
    return {.Address = address,
            .Subject = T(kOutcomeSubject),
            .Body = Fill(text, {{"user", SessionState.LoginID},
                                {"date", QLocale().toString(now.date(), "ddd dd-MMMM")},
                                {"time", now.toString("HH:mm")},
                                {"summary", summary},
                                {"reason", reason}}),
            .EmployeeID = employee};
}

Notice CancellationNotice(int approver, const QString& address, const QString& category, const QString& dates)
{
    return {.Address = address,
            .Subject = T(kCancellationSubject),
            .Body = T(kCancellationBody, {{"user", SenderName()}, {"category", category}, {"dates", dates}}),
            .EmployeeID = approver};
}
