#include "attendance/attendance_messages.h"

#include "attendance/record_lines.h"
#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/mail/mail_message.h"

namespace
{
QString Confirm()
{
    return T("CONFIRM:", "VEUILLEZ CONFIRMER:");
}

/// "Marie's", "Chris'".
QString Possessive(const QString& name)
{
    return name + (name.endsWith('s', Qt::CaseInsensitive) ? "'" : "'s");
}

QString OutOfReach(const Approver& approver)
{
    constexpr Text kHasLeft = {"{name} has left and will not settle this request: see your system administrator.",
                               "{name} ne travaille plus ici et ne traitera pas cette demande : consultez votre "
                               "administrateur du système."};
    constexpr Text kHasNoAddress = {
        "{name} has no valid e-mail address and will not be told of this request by mail.",
        "{name} n'a pas d'adresse de courriel valide et ne sera pas avisé(e) de cette demande."};
    if (approver.Name.isEmpty() || (!approver.HasLeft && IsMailAddress(BareAddress(approver.EMailAddress))))
        return {};
    return T(approver.HasLeft ? kHasLeft : kHasNoAddress, {{"name", approver.Name}});
}
} // namespace

bool AcceptMissingEntitlement(const AttendanceEntry& entry)
{
    const QString text = T(
        "The category «{category}» involves an annual entitlement! You did not scecify {whose} annual entitlement for "
        "this category.\r\n\r\nProceed anyway?",
        "La catégorie «{category}» implique une limite annuelle de temps! Vous n'avez pas spécifié le temps alloué "
        "annuellement à {employee} pour cette catégorie.\r\n\r\nSouhaitez-vous tout-de-même continuer?");
    return Ask(T("WARNING:", "ATTENTION:"),
               Fill(text, {{"category", entry.CategoryName},
                           {"whose", Possessive(entry.EmployeeName)},
                           {"employee", entry.EmployeeName}}),
               Face::Warning);
}

bool ConfirmNewAttendance(const AttendanceEntry& entry)
{
    return AskWithList(Confirm(),
                       T("Add the following attendance record(s) to your database?\r\n\r\n",
                         "Souhaitez-vous ajouter les enregistrements suivants à votre banque de données?\r\n\r\n") +
                           EntryLines(entry),
                       entry.Dates.size());
}

bool ConfirmSubmission(AttendanceEntry& entry)
{
    entry.RequestedDates = EntryLines(entry);
    return AskWithList(T("REQUEST FOR APPROVAL:", "DEMANDE DE CONGÉ:"),
                       T("Submit the following attendance record(s) for approval?\r\n\r\n",
                         "Souhaitez-vous soumettre les enregistrements suivants pour approbation par votre "
                         "supérieur?\r\n\r\n") +
                           entry.RequestedDates,
                       entry.Dates.size());
}

bool ConfirmModification(const AttendanceEntry& entry)
{
    return Ask(Confirm(), T("Modify the selected attendance record as follows?\r\n\r\nCategory:\t",
                            "Souhaitez-vous enregistrer les modifications suivantes?\r\n\r\nCatégorie:\t") +
                              entry.CategoryName + "\r\n" + EntryLines(entry));
}

QString ApproversOutOfReach(const AttendanceEntry& entry)
{
    QStringList lines = {OutOfReach(entry.FirstApprover), OutOfReach(entry.SecondApprover)};
    lines.removeAll(QString());
    lines.removeDuplicates(); // one person may stand for both
    return lines.join('\n');
}

void TellSubmitted(const AttendanceEntry& entry)
{
    QString text = T("Your request for leave has been recorded and a notification has been sent to {first}",
                     "Votre demande de congé a été reçue et acheminée à {first}");
    if (entry.SecondApprover.RecordID != 0)
        text += T(" and copied to {second}", " copie conforme à {second}");
    text +=
        T(". If you do not receive an acknowledgment that your request has been processed or if you don't see your "
          "attendance records displayed on the calendar in the next few days, make sure to follow up with your "
          "superior(s).",
          ". Si vous ne recevez pas confirmation que votre demande a été traitée ou si vous ne voyez pas vos absences "
          "apparaître sur le calendrier d'ici quelque jours, assurez-vous de faire un suivi auprès de votre "
          "supérieur.");
    Tell(T("REQUEST SUBMITTED SUCCESSFULLY:", "DEMANDE DE CONGÉ ENREGISTRÉE:"),
         Fill(text, {{"first", entry.FirstApprover.Name}, {"second", entry.SecondApprover.Name}}));
}

void TellModified()
{
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"),
         T("The selected attendance record has been modified.", "L'enregistrement sélectionné a été modifié."));
}
