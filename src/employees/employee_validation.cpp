#include "employees/employee_validation.h"

#include "employees/employee_rows.h"
#include "employees/employee_summary.h"
#include "employees/work_schedule_rules.h"
#include "foundation/common_services.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/clock.h"

#include <span>

namespace
{
struct Validation
{
    DataControl& datAbsence;
    EmployeeRecord& Record;
    ValidationContext Context;
};

/// How a question is asked; an error has none.
struct Asking
{
    Text Title;
    Face Shown = Face::Presenting;
};
constexpr Asking kConfirm = {{"CONFIRM:", "VEUILLEZ CONFIRMER:"}};
constexpr Asking kWarning = {{"WARNING:", "VEUILLEZ CONFIRMER:"}, Face::Warning};

/// An error of a record, or a question whose No keeps it from being saved.
struct Check
{
    bool (*Arises)(Validation&);
    const char* Control;
    Text Told;
    Asking Asked = {};
    bool EmployeeRecord::*Accepted = nullptr; ///< remembers the Yes, where it holds for the rest of the operation
};

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

/// In the order in which the user meets them.
constexpr Check kPersonChecks[] = {
    {[](Validation& v) { return v.Record.OrganizationID == 0; },
     "lstOrganizations",
     {"You must associate the employee to an organization!", "Vous devez associer l'employé(e) à une organisation!"}},
    {[](Validation& v) { return v.Record.FamilyName.isEmpty(); },
     "txtName",
     {"You must specify the employee's family name!", "Vous devez spécifier le nom de famille de l'employé(e)!"}},
    {[](Validation& v) { return v.Record.FirstName.isEmpty(); },
     "txtFirstName",
     {"You must specify the employee's first name!", "Vous devez spécifier le prénom de l'employé(e)!"}},
    {[](Validation& v) { return !TakeDate(v.Record.Birth, v.Record.DateOfBirth); },
     "cboBirthYear",
     {"The date of birth you specified is invalid!", "La date de naissance que vous avez spécifiée est invalide!"}},
    {[](Validation& v) { return !TakeDate(v.Record.Hire, v.Record.DateOfHire); },
     "cboHireYear",
     {"The date of hire you specified is invalid!", "La date d'embauche que vous avez spécifiée est invalide!"}},
};

constexpr Check kLogInChecks[] = {
    {[](Validation& v) { return v.Record.LoginID.isEmpty(); },
     "txtUserName",
     {"You must specify a username and a password for this employee!\r\n\r\nNOTE: While the username can be "
      "anything, we suggest you adopt a certain standard and adhere to it. For example, the username could be made "
      "of the first letter of the employee's first name followed by their family name. According to this structure "
      "James Bond's username would be «JBOND».",
      "Vous devez spécifier un nom d'usager et un mot-clé pour cet(te) employé(e)!\r\n\r\nN.B.: Bien que le nom "
      "d'usager puisse être n'importe quoi, nous vous suggérons d'adopter un standard et d'y adhérer. Vous "
      "pourriez, par exemple, combiner la première du prénom de l'employé(e) à son nom de famille. Selon cette "
      "structure, James Bond aurait pour nom d'usager «JBOND»."}},
    {[](Validation& v) { return IsLoginIDTaken(v.datAbsence, v.Record); },
     "txtUserName",
     {"The specified username has already been used!", "Le nom d'usager spécifié a déjà été utilisé!"}},
    {[](Validation& v) { return v.Record.NewPassword.isEmpty() && v.Record.Password.isEmpty(); },
     "txtPassword",
     {"You must specify a password for this employee!", "Vous devez spécifier un mot-clé pour cet(te) employé(e)!"}},
    // The question speaks of the department also when the namesake was found in the whole organization.
    {[](Validation& v) { return HasNamesake(v.datAbsence, v.Record, v.Context.Modifying); },
     "txtName",
     {"You already have a {FirstName} {Name} in the same department! Proceed anyway?",
      "Vous avez déjà un(e) {FirstName} {Name} dans le même département! Souhaitez-vous continuer?"},
     kConfirm},
    {[](Validation& v) { return v.Record.DepartmentID == 0; },
     "lstDepartments",
     {"You did not associate {FirstName} {Name} to any department! Proceed anyway?",
      "Vous n'avez associé {FirstName} {Name} à aucun département! Souhaitez-vous continuer?"},
     kConfirm,
     &EmployeeRecord::NoDepartmentAccepted},
    {[](Validation& v) { return v.Record.IsAuthorizedToApprove == 1 && v.Record.EMailAddress.isEmpty(); },
     "txtEMail",
     {"An e-mail address must be specified for any employee who will be authorized to approve other "
      "employees' requests for leave!",
      "Un courriel doit être spécifié pour tout(e) employé(e) qui sera autorisé(e) à approuver les demandes "
      "de congé d'autres employés!"}},
    {[](Validation& v) { return v.Record.EMailAddress.isEmpty() && v.Record.ApprovedByMain != 0; },
     "txtEMail",
     {"You did not specify an e-mail address for this employee!\r\n\r\nTARVELL is designed to automatically send a "
      "confirming e-mail every time an employee's request for leave has been approved by his or her superior. Unless "
      "you specify an e-mail address for {FirstName} {Name}, you will have to rely on some other procedure to notify "
      "him/her every time their requests for leave are approved.\r\n\r\nDo you wish to proceed without specifying an "
      "e-mail address for this employee?",
      "Vous n'avez pas spécifié le courriel de cet(te) employé(e)!\r\n\r\nTARVELL est conçu afin d'envoyer "
      "automatiquement un message de confirmation chaque fois que les demandes de congé d'un employé sont "
      "approuvées. À moins que vous ne spécifiiez le courriel de {FirstName} {Name}, vous devrez avoir recours à une "
      "autre méthode afin d'aviser cet(te) employé(e) chaque fois que ses demandes de congé seront "
      "approuvées.\r\n\r\nSouhaitez-vous continuer sans spécifier le courriel de {FirstName} {Name}?"},
     kWarning,
     &EmployeeRecord::NoEMailAccepted},
    {[](Validation& v) { return v.Context.ApproversOffered && v.Record.ApprovedByMain == 0; },
     "cboApprovedBy_FirstLevel",
     {"TARVELL is designed to allow employees to submit their own requests for leave and have them approved by the "
      "individual of your choice. This is a very useful feature of the system as it makes it possible to "
      "decentralize the data entry while keeping the required controls centralized.\r\n\r\nYou did not specify the "
      "name of the employee who will be authorized to approve {FirstName} {Name}'s requests for leave. Proceed "
      "anyway?",
      "TARVELL permet aux employé(e)s de soumettre leurs propres demandes de congé et de les faire approuver par une "
      "personne désignée. Il s'agit d'une caractéristique très avantageuse du système puisqu'elle permet de "
      "décentraliser le fardeau de la saisie des données tout en centralisant les contrôles "
      "nécessaires.\r\n\r\nVous n'avez pas spécifié le nom de l'employé(e) qui sera autorisé(e) à approuver les "
      "demandes de congé de {FirstName} {Name}. Souhaitez-vous tout-de-même continuer?"},
     kWarning,
     &EmployeeRecord::NoApproverAccepted},
};

bool IsAccepted(Validation& v, const Check& check)
{
    if (check.Asked.Title.IsEmpty())
        return false;
    if (check.Accepted && v.Record.*check.Accepted)
        return true;
    const bool yes = Ask(T(check.Asked.Title), WithName(T(check.Told), v.Record), check.Asked.Shown);
    if (check.Accepted)
        v.Record.*check.Accepted = yes;
    return yes;
}

std::optional<Fault> FirstFault(Validation v, std::span<const Check> checks)
{
    for (const Check& check : checks)
        if (check.Arises(v) && !IsAccepted(v, check))
            return Fault{check.Control, check.Asked.Title.IsEmpty() ? T(check.Told) : QString()};
    return {};
}
} // namespace

std::optional<Fault> ValidateRecord(DataControl& datAbsence, EmployeeRecord& record, const ValidationContext& context)
{
    const Validation validation{datAbsence, record, context};
    auto fault = FirstFault(validation, kPersonChecks);
    if (!fault)
        fault = CheckSchedule(record);
    return fault ? fault : FirstFault(validation, kLogInChecks);
}

QString TextWhenLeft(QString EmployeeRecord::*member, const QString& text)
{
    if (member == &EmployeeRecord::FamilyName || member == &EmployeeRecord::FirstName)
        return ProperCase(text);
    for (QString EmployeeRecord::*const upper : std::initializer_list<QString EmployeeRecord::*>{
             &EmployeeRecord::PostalCode, &EmployeeRecord::LoginID, &EmployeeRecord::NewPassword})
        if (member == upper)
            return text.toUpper();
    if (member == &EmployeeRecord::HourlyRateText && !text.isEmpty())
        return FormatNumber(static_cast<float>(Val(text)), 2);
    return text;
}

void NormaliseTexts(EmployeeRecord& record)
{
    record.LoginID = record.LoginID.toUpper();
    record.NewPassword = record.NewPassword.toUpper();
    record.EMailAddress = record.EMailAddress.trimmed();
    record.Comment = record.Comment.trimmed();
}
