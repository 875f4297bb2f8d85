#include "employees/employee_validation.h"

#include "employees/employee_rows.h"
#include "employees/employee_summary.h"
#include "employees/work_schedule_rules.h"
#include "foundation/common_services.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
using Verdict = std::optional<FieldInError>;

struct Validation
{
    DataControl& datAbsence;
    EmployeeRecord& Record;
    ValidationContext Context;
};

FieldInError General(const char* control)
{
    return {EmployeeTab::General, control};
}

FieldInError Profile(const char* control)
{
    return {EmployeeTab::Profile, control};
}

FieldInError Refuse(const QString& text, const FieldInError& field)
{
    Tell(T("ERROR:", "ERREUR:"), text, Face::Warning);
    return field;
}

Verdict Confirmed(bool yes, const FieldInError& field)
{
    return yes ? Verdict() : field;
}

Verdict CheckOrganization(Validation& v)
{
    if (v.Record.OrganizationID != 0)
        return {};
    return Refuse(T("You must associate the employee to an organization!",
                    "Vous devez associer l'employé(e) à une organisation!"),
                  General("lstOrganizations"));
}

Verdict CheckFamilyName(Validation& v)
{
    if (!v.Record.FamilyName.isEmpty())
        return {};
    return Refuse(
        T("You must specify the employee's family name!", "Vous devez spécifier le nom de famille de l'employé(e)!"),
        General("txtName"));
}

Verdict CheckFirstName(Validation& v)
{
    if (!v.Record.FirstName.isEmpty())
        return {};
    return Refuse(T("You must specify the employee's first name!", "Vous devez spécifier le prénom de l'employé(e)!"),
                  General("txtFirstName"));
}

/// A date that is not complete is left as it was. False for an invalid one.
bool TakeDate(const DateEntry& entry, int& serial)
{
    if (!entry.IsFilled())
        return true;
    const QDate date(entry.Year.toInt(), entry.Month.toInt(), entry.Day.toInt());
    if (!date.isValid() || SerialOfDate(date) <= 0)
        return false;
    serial = SerialOfDate(date);
    return true;
}

Verdict CheckBirth(Validation& v)
{
    if (TakeDate(v.Record.Birth, v.Record.DateOfBirth))
        return {};
    return Refuse(
        T("The date of birth you specified is invalid!", "La date de naissance que vous avez spécifiée est invalide!"),
        General("cboBirthYear"));
}

Verdict CheckHire(Validation& v)
{
    if (TakeDate(v.Record.Hire, v.Record.DateOfHire))
        return {};
    return Refuse(
        T("The date of hire you specified is invalid!", "La date d'embauche que vous avez spécifiée est invalide!"),
        General("cboHireYear"));
}

Verdict CheckWeek(Validation& v)
{
    return CheckSchedule(v.Record);
}

Verdict CheckLoginID(Validation& v)
{
    if (!v.Record.LoginID.isEmpty())
        return {};
    return Refuse(
        T("You must specify a username and a password for this employee!\r\n\r\nNOTE: While the username can be "
          "anything, we suggest you adopt a certain standard and adhere to it. For example, the username could be made "
          "of the first letter of the employee's first name followed by their family name. According to this structure "
          "James Bond's username would be «JBOND».",
          "Vous devez spécifier un nom d'usager et un mot-clé pour cet(te) employé(e)!\r\n\r\nN.B.: Bien que le nom "
          "d'usager puisse être n'importe quoi, nous vous suggérons d'adopter un standard et d'y adhérer. Vous "
          "pourriez, par exemple, combiner la première du prénom de l'employé(e) à son nom de famille. Selon cette "
          "structure, James Bond aurait pour nom d'usager «JBOND»."),
        Profile("txtUserName"));
}

Verdict CheckThatLoginIDIsFree(Validation& v)
{
    if (!IsLoginIDTaken(v.datAbsence, v.Record))
        return {};
    return Refuse(T("The specified username has already been used!", "Le nom d'usager spécifié a déjà été utilisé!"),
                  Profile("txtUserName"));
}

Verdict CheckPassword(Validation& v)
{
    if (!v.Record.NewPassword.isEmpty() || !v.Record.Password.isEmpty())
        return {};
    return Refuse(
        T("You must specify a password for this employee!", "Vous devez spécifier un mot-clé pour cet(te) employé(e)!"),
        Profile("txtPassword"));
}

/// The question speaks of the department also when the namesake was found in the whole organization.
Verdict CheckNamesake(Validation& v)
{
    if (!HasNamesake(v.datAbsence, v.Record, v.Context.Modifying))
        return {};
    const QString text =
        T("You already have a {FirstName} {Name} in the same department! Proceed anyway?",
          "Vous avez déjà un(e) {FirstName} {Name} dans le même département! Souhaitez-vous continuer?");
    return Confirmed(Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), WithName(text, v.Record)), General("txtName"));
}

Verdict CheckDepartment(Validation& v)
{
    bool& accepted = v.Record.NoDepartmentAccepted;
    if (v.Record.DepartmentID != 0 || accepted)
        return {};
    const QString text = T("You did not associate {FirstName} {Name} to any department! Proceed anyway?",
                           "Vous n'avez associé {FirstName} {Name} à aucun département! Souhaitez-vous continuer?");
    accepted = Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), WithName(text, v.Record));
    return Confirmed(accepted, General("lstDepartments"));
}

Verdict CheckEMailOfApprover(Validation& v)
{
    if (v.Record.IsAuthorizedToApprove != 1 || !v.Record.EMailAddress.isEmpty())
        return {};
    return Refuse(
        T("An e-mail address must be specified for any employee who will be authorized to approve other "
          "employees' requests for leave!",
          "Un courriel doit être spécifié pour tout(e) employé(e) qui sera autorisé(e) à approuver les demandes "
          "de congé d'autres employés!"),
        General("txtEMail"));
}

Verdict CheckEMail(Validation& v)
{
    bool& accepted = v.Record.NoEMailAccepted;
    if (!v.Record.EMailAddress.isEmpty() || v.Record.ApprovedByMain == 0 || accepted)
        return {};
    const QString text = T(
        "You did not specify an e-mail address for this employee!\r\n\r\nTARVELL is designed to automatically send a "
        "confirming e-mail every time an employee's request for leave has been approved by his or her superior. Unless "
        "you specify an e-mail address for {FirstName} {Name}, you will have to rely on some other procedure to notify "
        "him/her every time their requests for leave are approved.\r\n\r\nDo you wish to proceed without specifying an "
        "e-mail address for this employee?",
        "Vous n'avez pas spécifié le courriel de cet(te) employé(e)!\r\n\r\nTARVELL est conçu afin d'envoyer "
        "automatiquement un message de confirmation chaque fois que les demandes de congé d'un employé sont "
        "approuvées. À moins que vous ne spécifiiez le courriel de {FirstName} {Name}, vous devrez avoir recours à une "
        "autre méthode afin d'aviser cet(te) employé(e) chaque fois que ses demandes de congé seront "
        "approuvées.\r\n\r\nSouhaitez-vous continuer sans spécifier le courriel de {FirstName} {Name}?");
    accepted = Ask(T("WARNING:", "VEUILLEZ CONFIRMER:"), WithName(text, v.Record), Face::Warning);
    return Confirmed(accepted, General("txtEMail"));
}

Verdict CheckApprover(Validation& v)
{
    bool& accepted = v.Record.NoApproverAccepted;
    if (!v.Context.ApproversOffered || v.Record.ApprovedByMain != 0 || accepted)
        return {};
    const QString text = T(
        "TARVELL is designed to allow employees to submit their own requests for leave and have them approved by the "
        "individual of your choice. This is a very useful feature of the system as it makes it possible to "
        "decentralize the data entry while keeping the required controls centralized.\r\n\r\nYou did not specify the "
        "name of the employee who will be authorized to approve {FirstName} {Name}'s requests for leave. Proceed "
        "anyway?",
        "TARVELL permet aux employé(e)s de soumettre leurs propres demandes de congé et de les faire approuver par une "
        "personne désignée. Il s'agit d'une caractéristique très avantageuse du système puisqu'elle permet de "
        "décentraliser le fardeau de la saisie des données tout en centralisant les contrôles "
        "nécessaires.\r\n\r\nVous n'avez pas spécifié le nom de l'employé(e) qui sera autorisé(e) à approuver les "
        "demandes de congé de {FirstName} {Name}. Souhaitez-vous tout-de-même continuer?");
    accepted = Ask(T("WARNING:", "VEUILLEZ CONFIRMER:"), WithName(text, v.Record), Face::Warning);
    return Confirmed(accepted, Profile("cboApprovedBy_FirstLevel"));
}

/// In the order in which the user meets them.
constexpr Verdict (*kChecks[])(Validation&) = {
    CheckOrganization, CheckFamilyName,        CheckFirstName, CheckBirth,    CheckHire,       CheckWeek,
    CheckLoginID,      CheckThatLoginIDIsFree, CheckPassword,  CheckNamesake, CheckDepartment, CheckEMailOfApprover,
    CheckEMail,        CheckApprover,
};
} // namespace

std::optional<FieldInError> ValidateRecord(DataControl& datAbsence, EmployeeRecord& record,
                                           const ValidationContext& context)
{
    Validation validation{datAbsence, record, context};
    for (const auto check : kChecks)
        if (const Verdict refused = check(validation))
            return refused;
    return {};
}

void NormaliseTexts(EmployeeRecord& record)
{
    record.FamilyName = ProperCase(record.FamilyName);
    record.FirstName = ProperCase(record.FirstName);
    record.PostalCode = record.PostalCode.toUpper();
    record.LoginID = record.LoginID.toUpper();
    record.NewPassword = record.NewPassword.toUpper();
    record.EMailAddress = record.EMailAddress.trimmed();
    record.Comment = record.Comment.trimmed();
    if (!record.HourlyRateText.isEmpty())
        record.HourlyRateText = FormatNumber(static_cast<float>(Val(record.HourlyRateText)), 2);
}
