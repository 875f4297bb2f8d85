#include "employees/employee_deactivation.h"
#include "employees/employee_rows.h"
#include "employees/employee_validation.h"
#include "employees/frm_clone_employee.h"
#include "employees/frm_employee_general_page.h"
#include "employees/frm_employee_profile_page.h"
#include "employees/frm_employee_schedule_page.h"
#include "employees/frm_employees.h"
#include "employees/frm_transfer_employees.h"
#include "employees/hourly_rate.h"
#include "employees/work_schedule_rules.h"
#include "foundation/common_services.h"
#include "foundation/frm_input_box.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "reference/employees_list.h"
#include "selection/frm_select_employee.h"
#include "selection/frm_select_period.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

namespace
{
QString Completed()
{
    return T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:");
}

void RemindOfEntitlements(const EntitlementReminders& categories)
{
    if (categories.isEmpty())
        return;
    QString text =
        T("You must remember to specify this employee's annual entitlement for the following categorie(s):\r\n\r\n",
          "Vous devez vous rappeler de sécifier le temps alloué annuellement à cet(te) employé(e) pour les categories "
          "suivantes:\r\n\r\n");
    for (const QString& category : categories)
        text += " - " + category + "\r\n";
    Tell(T("REMINDER:", "RAPPEL:"), text);
}

void RemindOfNextYear(const EmployeeRecord& record)
{
    if (SessionState.NextFYID <= 0)
        return;
    const QString text =
        T("TARVELL automatically reproduces your list of employees from one fiscal year to the next upon creation of a "
          "new fiscal year. The next fiscal year ({NextFYName}) having already been created, you will now be required "
          "to create {FirstName} {Name} in the new year yourself.",
          "TARVELL reproduit automatiquement la liste de vos employés d'une année fiscale à l'autre au moment de la "
          "création d'une nouvelle année fiscale. La prochaine année fiscale ({NextFYName}) ayant déjà été créée, vous "
          "allez devoir y ajouter {FirstName} {Name} vous-même.");
    Tell(T("REMINDER:", "RAPPEL:"), WithName(Fill(text, {{"NextFYName", SessionState.NextFYName}}), record));
}

bool ConfirmDeactivationOf(const EmployeeRecord& record)
{
    const QString text =
        T("Do you really wish to deactivate {FirstName} {Name}?\r\n\r\nNOTE: This process is irreversible! Deactivated "
          "employees cannot be reactivated.",
          "Souhaitez-vous vraiment désactiver {FirstName} {Name}?\r\n\r\nN.B.: Ce processus est irréversible! Un(e) "
          "employé(e) désactivé(e) ne peut être réactivée.");
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), WithName(text, record), Face::Warning);
}

QString AskForReason(const EmployeeRecord& record, QWidget* parent)
{
    const QString prompt = T("Please specify the reason why you are deactivating {FirstName} {Name}.",
                             "Veuillez spécifier la raison pour laquelle vous désactivez {FirstName} {Name}.");
    return AskForText(T("Employee deactivation:", "Désactivation d'employé(e):"), WithName(prompt, record), parent);
}

void TellWithoutReason(const EmployeeRecord& record)
{
    const QString text =
        T("You did not specify a reason for the deactivation of {FirstName} {Name}. The operation is now cancelled.",
          "Vous n'avez spécifié aucune une raison pour la désactivation de {FirstName} {Name}. L'opération est "
          "maintenant annulée.");
    Tell(T("OPERATION CANCELLED:", "OPÉRATION ANNULÉE:"), WithName(text, record));
}

void TellDeactivated(const EmployeeRecord& record)
{
    Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
         record.FirstName + " " + record.FamilyName + T(" was deactivated on ", " a été désactivé(e) le ") +
             FormatDate(record.DeactivatedDate, "ddd dd-mmm-yyyy") + T(" by ", " par ") + record.DeactivatedBy +
             T("! ", "!"),
         Face::Warning);
}
} // namespace

void frmEmployees::cmdAdd_Click()
{
    if (cmdModify->isEnabled())
        BeginAdd();
    else
        SaveNew();
}

void frmEmployees::cmdModify_Click()
{
    if (cmdAdd->isEnabled())
        BeginModify();
    else
        SaveModified();
}

void frmEmployees::cmdDeactivate_Click()
{
    if (cmdAdd->isEnabled())
        BeginDeactivate();
    else
        ConfirmDeactivation();
}

void frmEmployees::BeginAdd()
{
    SetButtons(false, cmdAdd);
    StartEntry();
    const Session& s = SessionState;
    general_->SetUnitsEnabled(s.UserOrganizationID == 0 && s.UserDepartmentID == 0 && s.UserGroupID == 0,
                              s.UserDepartmentID == 0 && s.UserGroupID == 0, s.UserGroupID == 0);
    if (EmployeeCount >= 1)
        OfferTemplate();
    if (record_.OrganizationID != 0)
        LoadApprovers(false);
    general_->txtName->setFocus();
}

void frmEmployees::StartEntry()
{
    SetEntryEnabled(true);
    sstEmployees->setCurrentIndex(static_cast<int>(EmployeeTab::General));
}

void frmEmployees::OfferTemplate()
{
    frmCloneEmployee form(record_, this);
    ShowModal(form);
    CompleteLoadedRights(record_);
    ShowDayLengths(record_);
    ShowRecord();
}

void frmEmployees::BeginModify()
{
    ModifyMode = true;
    SetButtons(false, nullptr);
    sstEmployees->setCurrentIndex(static_cast<int>(EmployeeTab::General));
    if (!SelectEmployee() || !LoadEmployeeRecord())
        return cmdCancelOperation_Click();
    if (record_.DeactivatedDate > 0) {
        TellDeactivated(record_);
        return cmdCancelOperation_Click();
    }
    SetButtons(false, cmdModify);
    StartEntry();
    general_->txtName->setFocus();
}

void frmEmployees::BeginDeactivate()
{
    DeactivateMode = true;
    SetButtons(false, nullptr);
    sstEmployees->setCurrentIndex(static_cast<int>(EmployeeTab::General));
    if (!SelectEmployee() || !LoadEmployeeRecord())
        return cmdCancelOperation_Click();
    SetButtons(false, cmdDeactivate);
    cmdDeactivate->setFocus();
}

/// The employee that the user chooses becomes the record's; the calendar keeps the one that it shows.
bool frmEmployees::SelectEmployee()
{
    frmSelectEmployee form(this, frmSelectEmployee::Purpose::EmployeeRecord);
    ShowModal(form);
    record_.RecordID = form.ChosenEmployeeID();
    return record_.RecordID > 0;
}

/// False when there is nothing to work on; the user has been told.
bool frmEmployees::LoadEmployeeRecord()
{
    if (SessionState.SQL_Server)
        return LoadEmployeeRecord_SQL();
    if (!LoadEmployeeRecord_ACCESS(datAbsence, record_))
        return false;
    if (DeactivateMode && record_.DeactivatedDate > 0) {
        TellAlreadyInactive();
        return false;
    }
    ShowRecord();
    if (record_.DeactivatedDate == 0)
        LoadApprovers(true);
    return true;
}

/// A field that is left by pressing a button, or by Enter, may refuse its contents and keep the focus: nothing is saved
/// then.
bool frmEmployees::LeavesFieldsFor(QPushButton* button)
{
    if (!schedule_->LeaveFocusedTotalFor(button))
        return false;
    button->setFocus();
    return focusWidget() == button;
}

bool frmEmployees::IsRecordAccepted()
{
    ReadForm();
    const ValidationContext context{ModifyMode, profile_->cboApprovedBy_FirstLevel->count() > 0};
    const auto field = ValidateRecord(datAbsence, record_, context);
    ShowRecord();
    if (field) {
        ShowFieldInError(*field);
        return false;
    }
    return ApproveRecord(record_, SelectedUnits(), ModifyMode);
}

UnitNames frmEmployees::SelectedUnits() const
{
    return {general_->SelectedUnit(UnitList::Organizations), general_->SelectedUnit(UnitList::Departments),
            general_->SelectedUnit(UnitList::Groups)};
}

void frmEmployees::ShowFieldInError(const FieldInError& field)
{
    sstEmployees->setCurrentIndex(static_cast<int>(field.Tab));
    if (auto* control = field.Control.isEmpty() ? nullptr : findChild<QWidget*>(field.Control))
        control->setFocus();
}

void frmEmployees::SaveNew()
{
    if (!LeavesFieldsFor(cmdAdd) || !IsRecordAccepted())
        return;
    try {
        RemindOfEntitlements(AddEmployee(datAbsence, record_));
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    RemindOfNextYear(record_);
    Tell(Completed(), T("The new employee has been added to your database.",
                        "Le nouvel employé a été ajouté dans votre banque de données."));
    cmdCancelOperation_Click();
}

void frmEmployees::SaveModified()
{
    if (!LeavesFieldsFor(cmdModify) || !IsRecordAccepted())
        return;
    try {
        ModifyEmployee(datAbsence, record_);
        if (HasNewRate(record_))
            ApplyNewRate();
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    Tell(Completed(), T("All modifications have been recorded.", "Toutes les modifications ont été enregistrées."));
    cmdCancelOperation_Click();
}

/// Attendance that is entered already keeps its costs unless the user says from which day the new rate counts.
void frmEmployees::ApplyNewRate()
{
    if (!AskForRetroactiveRate(record_))
        return;
    frmSelectPeriod form(PeriodMode::SingleDate, this);
    ShowModal(form);
    if (form.PeriodStart() != 0)
        UpdateHourlyRate(datAbsence, record_, form.PeriodStart());
}

void frmEmployees::ConfirmDeactivation()
{
    if (!ConfirmDeactivationOf(record_))
        return cmdCancelOperation_Click();
    const QString reason = AskForReason(record_, this);
    if (reason.isEmpty()) {
        TellWithoutReason(record_);
        return cmdCancelOperation_Click();
    }
    try {
        DeactivateEmployee(datAbsence, record_.RecordID, StoredReason(reason));
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    Tell(Completed(),
         T("The selected employee has been deactivated.", "L'employé(e) sélectionné(e) a été désactivé(e)."));
    cmdCancelOperation_Click();
}

void frmEmployees::cmdTransfer_Click()
{
    frmTransferEmployees form(this);
    ShowModal(form);
    if (form.Transferred())
        cmdCancelOperation_Click();
}

void frmEmployees::cmdListRecords_Click()
{
    try {
        const BusyPointer busy;
        ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::All);
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    if (ShowEmployeesList)
        ShowEmployeesList(this);
}

void frmEmployees::ResetVariables()
{
    record_ = {};
    ModifyMode = false;
    DeactivateMode = false;
}

void frmEmployees::cmdCancelOperation_Click()
{
    ResetVariables();
    SetButtons(true, cmdAdd);
    SetEntryEnabled(false);
    profile_->LoadApprovers({});
    SelectStartingUnits();
    cmdAdd->setFocus();
}

void frmEmployees::cmdQuit_Click()
{
    ResetVariables();
    done(Accepted);
}

void frmEmployees::reject()
{
    if (cmdQuit->isEnabled())
        cmdQuit_Click();
    else
        cmdCancelOperation_Click();
}
