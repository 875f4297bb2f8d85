#include "employees/frm_employees.h"

#include "employees/employee_deactivation.h"
#include "employees/employee_rows.h"
#include "employees/employee_validation.h"
#include "employees/frm_clone_employee.h"
#include "employees/frm_employee_general_page.h"
#include "employees/frm_employee_modules_page.h"
#include "employees/frm_employee_profile_page.h"
#include "employees/frm_employee_schedule_page.h"
#include "employees/frm_transfer_employees.h"
#include "employees/hourly_rate.h"
#include "foundation/connection.h"
#include "foundation/forms.h"
#include "foundation/frm_input_box.h"
#include "reference/employees_list.h"
#include "selection/frm_select_employee.h"
#include "selection/frm_select_period.h"

#include <QTabWidget>

namespace
{
constexpr QSize kSize(1040, 638);
constexpr int kYearWidth = 150;
constexpr int kModulesTab = 3;

constexpr Text kByTransfer = {"«Transfer» moves an employee to another unit",
                              "«Transférer» déplace un(e) employé(e) vers une autre unité"};
constexpr Text kOwnUnit = {"You add employees to your own unit",
                           "Vous ajoutez des employé(e)s dans votre propre unité"};
constexpr Text kNoOrganization = {"Before you can update your list of employees you must first set up at least one "
                                  "organization in fiscal year {FiscalYearName}!",
                                  "Avant de pouvoir mettre à jour votre liste d'employé(e)s vous devez d'abord créer "
                                  "au moins une organisation dans l'année fiscale {FiscalYearName}!"};
constexpr Text kNoDepartment = {"Before you can update your list of employees you must first set up at least one "
                                "department in fiscal year {FiscalYearName}!",
                                "Avant de pouvoir mettre à jour votre liste d'employé(e)s vous devez d'abord créer au "
                                "moins un département dans l'année fiscale {FiscalYearName}!"};

void RemindOfEntitlements(const QStringList& categories)
{
    if (categories.isEmpty())
        return;
    const QString text =
        T("You must remember to specify this employee's annual entitlement for the following categorie(s):\r\n\r\n",
          "Vous devez vous rappeler de sécifier le temps alloué annuellement à cet(te) employé(e) pour les categories "
          "suivantes:\r\n\r\n");
    Tell(T("REMINDER:", "RAPPEL:"), text + " - " + categories.join("\r\n - ") + "\r\n");
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

bool AskForDeactivation(const EmployeeRecord& record)
{
    const QString text =
        T("Do you really wish to deactivate {FirstName} {Name}?\r\n\r\nNOTE: This process is irreversible! Deactivated "
          "employees cannot be reactivated.",
          "Souhaitez-vous vraiment désactiver {FirstName} {Name}?\r\n\r\nN.B.: Ce processus est irréversible! Un(e) "
          "employé(e) désactivé(e) ne peut être réactivée.");
    return AskCarefully(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), WithName(text, record), Face::Warning);
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

void TellAlreadyInactive()
{
    Tell(T("UNABLE TO PROCEED:", "CETTE OPÉRATION NE PEUT ÊTRE COMPLÉTÉE:"),
         T("The selected employee record is already inactive!",
           "L'employé(e) que vous venez de sélectionner est déjà inactif(ve)!"),
         Face::Warning);
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

frmEmployees::frmEmployees(QWidget* parent)
    : EditingForm("frmEmployees", parent, {{"Ca&ncel", "A&nnuler"}, {"&Close", "&Fermer"}})
{
    SetTitle(this, {"Employees", "Employé(e)s"});
    auto* txtFiscalYear = Named<QLineEdit>("txtFiscalYear", SessionState.FiscalYearName);
    txtFiscalYear->setReadOnly(true);
    txtFiscalYear->setFixedWidth(kYearWidth);
    txtFiscalYear->setFocusPolicy(Qt::NoFocus);
    Page()->addLayout(
        Row({LabelOf(txtFiscalYear, {"All records to be added / modified are associated to fiscal year",
                                     "Tous les enregistrements ajoutés / modifiés sont associés à l'année fiscale"}),
             txtFiscalYear}));
    AddTabs();
    LayCommands({AddButton("cmdListRecords", {"&List of employees", "&Liste des employé(e)s"},
                           [this] { cmdListRecords_Click(); }),
                 AddButton("cmdTransfer", {"&Transfer", "&Transférer"}, [this] { cmdTransfer_Click(); })});
    SetSize(kSize);
    ShowMode();
    Show(record_);
}

/// Hiding takes the focus from its field, whose handler needs the form whole.
frmEmployees::~frmEmployees()
{
    hide();
}

void frmEmployees::AddTabs()
{
    general_ = new EmployeeGeneralPage;
    schedule_ = new EmployeeSchedulePage(record_, Loading);
    profile_ = new EmployeeProfilePage(boxes_, record_, Loading, [this] {
        record_ = Read();
        return (record_.FirstName + " " + record_.FamilyName).trimmed();
    });
    for (const UnitList list : kUnitLists)
        general_->lstUnits[static_cast<std::size_t>(list)]->OnChoice(
            [this, list](int row) { UnitList_Click(list, row); });
    auto* tabs = Named<QTabWidget>("sstEmployees");
    Page()->addWidget(tabs, 1);
    AddTab(tabs, general_, {"General information", "Informations générales"});
    AddTab(tabs, schedule_, {"Working schedule", "Horaire de travail"});
    AddTab(tabs, profile_, {"Security profile", "Profil de sécurité"});
    AddTab(tabs, MakeModulesPage(boxes_), {"Accessible modules", "Modules accessibles"});
    connect(tabs, &QTabWidget::currentChanged, this, &frmEmployees::sstEmployees_Click);
}

void frmEmployees::Form_Activate()
{
    LoadRecords();
    if (units_[0].isEmpty() || units_[1].isEmpty()) {
        Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"), T(units_[0].isEmpty() ? kNoOrganization : kNoDepartment,
                                                             {{"FiscalYearName", SessionState.FiscalYearName}}));
        return reject();
    }
    SelectStartingUnits();
    cmdAdd->setFocus();
}

void frmEmployees::LoadRecords()
{
    const Connection connection(datAbsence);
    const LoadingGuard loading(Loading);
    for (const UnitList list : kUnitLists)
        units_[static_cast<std::size_t>(list)] = UnitsByPosition(datAbsence, list);
    general_->LoadUnits(units_);
    EmployeeCount = CountEmployees(datAbsence);
}

/// A list with one unit has it selected, with the units above it. The user's own units are always the form's.
void frmEmployees::SelectStartingUnits()
{
    for (const QVector<Unit>& units : units_)
        if (units.size() == 1) {
            record_.OrganizationID = units.first().OrganizationID;
            record_.DepartmentID = units.first().DepartmentID;
        }
    if (units_[2].size() == 1)
        record_.GroupID = units_[2].first().RecordID;
    for (const auto& [level, unit] : {std::pair(&kOrganizationLevel, &EmployeeRecord::OrganizationID),
                                      {&kDepartmentLevel, &EmployeeRecord::DepartmentID},
                                      {&kGroupLevel, &EmployeeRecord::GroupID}})
        if (level->Unit() != 0)
            record_.*unit = level->Unit();
    Show(record_);
}

void frmEmployees::EnableControls()
{
    const Text whyNot = WhyNoEntry();
    general_->EnableEntry(whyNot);
    schedule_->EnableEntry(whyNot);
    profile_->EnableEntry(whyNot);
    boxes_.EnableEntry(whyNot, Mode() == EditingMode::Modifying);
    // A new employee may stand in any unit below the user's own.
    Text whyHere = whyNot.IsEmpty() && Mode() == EditingMode::Modifying ? kByTransfer : whyNot;
    for (std::size_t list = kUnitLists.size(); list-- > 0;) {
        if (whyHere.IsEmpty() && kLevelTable[list + 1].Unit() != 0)
            whyHere = kOwnUnit;
        EnableUnless(general_->lstUnits[list], whyHere);
    }
}

void frmEmployees::ResetVariables()
{
    record_ = {};
    profile_->ClearApprovers();
    SelectStartingUnits();
}

void frmEmployees::cmdCancelOperation_Click()
{
    EditingForm::cmdCancelOperation_Click();
    cmdAdd->setFocus();
}

void frmEmployees::Show(const EmployeeRecord& record)
{
    const LoadingGuard loading(Loading);
    record_ = record;
    general_->Show(record_);
    schedule_->Show();
    profile_->Show(record_);
    boxes_.Show(record_);
}

/// An employee who is deactivated is told of as his row stands.
EmployeeRecord frmEmployees::Read() const
{
    EmployeeRecord record = record_;
    if (Mode() == EditingMode::Deactivating)
        return record;
    general_->Read(record);
    profile_->Read(record);
    NormaliseTexts(record);
    return record;
}

/// A unit brings the units above it along; those below it, and the approvers, have to be chosen anew. A group leaves
/// the approvers as they are.
void frmEmployees::UnitList_Click(UnitList list, int row)
{
    if (Loading)
        return;
    record_ = Read();
    const Unit& unit = units_[static_cast<std::size_t>(list)][row];
    record_.OrganizationID = unit.OrganizationID;
    record_.DepartmentID = unit.DepartmentID;
    record_.GroupID = list == UnitList::Groups ? unit.RecordID : 0;
    if (list != UnitList::Groups)
        record_.ApprovedByMain = record_.ApprovedByBackup = 0;
    Show(record_);
    profile_->LoadApprovers(datAbsence, true);
}

void frmEmployees::Right_Click(Right box, bool granted)
{
    if (Loading)
        return;
    ChangeRight(record_, box, granted);
    boxes_.Show(record_);
}

void frmEmployees::sstEmployees_Click(int tab)
{
    if (tab == kModulesTab && SessionState.LoginID != "ADMIN")
        Tell(T("FOR YOUR INFORMATION:", "POUR VOTRE INFORMATION:"),
             Fill(T("The system administrator ({name}) is the only user authorized to grant these privileges.",
                    "L'administrateur du système ({name}) est le seul usager ayant le pouvoir d'accorder ces "
                    "privilèges."),
                  {{"name", SessionState.AdminName}}));
}

bool frmEmployees::Begin(EditingMode mode)
{
    ShowTabOf(general_);
    if (mode == EditingMode::Adding)
        OfferTemplate();
    else if (!SelectEmployee() || !LoadEmployeeRecord())
        return false;
    ShowMode();
    if (mode == EditingMode::Deactivating)
        cmdDeactivate->setFocus();
    else
        general_->txtName->setFocus();
    return true;
}

void frmEmployees::OfferTemplate()
{
    if (EmployeeCount >= 1) {
        frmCloneEmployee form(record_, this);
        ShowModal(form);
        Show(record_);
    }
    if (record_.OrganizationID != 0)
        profile_->LoadApprovers(datAbsence, false);
}

/// The employee that the user chooses becomes the record's; the calendar keeps the one that it shows.
bool frmEmployees::SelectEmployee()
{
    frmSelectEmployee form(this, frmSelectEmployee::Purpose::EmployeeRecord);
    ShowModal(form);
    record_.RecordID = form.ChosenEmployeeID();
    return record_.RecordID > 0;
}

/// False when there is nothing to work on; the user has been told. The server reads nobody, and nobody counts as
/// active.
bool frmEmployees::LoadEmployeeRecord()
{
    const bool server = SessionState.SQL_Server;
    const Connection connection(datAbsence);
    if (!server && !LoadEmployeeRecord_ACCESS(datAbsence, record_))
        return false;
    const bool active = record_.DeactivatedDate == 0;
    if (server || (Mode() == EditingMode::Deactivating && !active)) {
        TellAlreadyInactive();
        return false;
    }
    Show(record_);
    if (active)
        profile_->LoadApprovers(datAbsence, true);
    else
        TellDeactivated(record_);
    return active;
}

void frmEmployees::Finish(EditingMode mode)
{
    if (mode == EditingMode::Deactivating || LeavesFieldsFor(mode == EditingMode::Adding ? cmdAdd : cmdModify))
        EditingForm::Finish(mode);
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

std::optional<Fault> frmEmployees::Validate(EmployeeRecord& record)
{
    return ValidateRecord(datAbsence, record, {Mode() == EditingMode::Modifying, profile_->HasApprovers()});
}

bool frmEmployees::Confirm(EditingMode mode, const EmployeeRecord& record)
{
    if (mode == EditingMode::Deactivating)
        return ConfirmDeactivation(record);
    const auto& lists = general_->lstUnits;
    const UnitNames units{ChosenText(lists[0]), ChosenText(lists[1]), ChosenText(lists[2])};
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), EmployeeSummary(record, units, mode == EditingMode::Modifying));
}

/// Whoever does not go through with it, or gives no reason, is led out of the mode.
bool frmEmployees::ConfirmDeactivation(const EmployeeRecord& record)
{
    const bool wanted = AskForDeactivation(record);
    reason_ = wanted ? AskForReason(record, this) : QString();
    if (!reason_.isEmpty())
        return true;
    if (wanted)
        TellWithoutReason(record);
    cmdCancelOperation_Click();
    return false;
}

void frmEmployees::Write(EditingMode mode, const EmployeeRecord& record)
{
    if (mode == EditingMode::Deactivating)
        return DeactivateEmployee(datAbsence, record.RecordID, reason_);
    if (mode == EditingMode::Adding)
        return RemindOfEntitlements(AddEmployee(datAbsence, record));
    ModifyEmployee(datAbsence, record);
    if (HasNewRate(record))
        ApplyNewRate(record);
}

/// Attendance that is entered already keeps its costs unless the user says from which day the new rate counts. The
/// employee is saved by then: a failure here is told for itself.
void frmEmployees::ApplyNewRate(const EmployeeRecord& record)
{
    if (!AskForRetroactiveRate(record))
        return;
    frmSelectPeriod form(PeriodMode::SingleDate, this);
    ShowModal(form);
    if (form.PeriodStart() != 0)
        Attempt([&] { UpdateHourlyRate(datAbsence, record, form.PeriodStart()); });
}

void frmEmployees::TellDone(EditingMode mode, const EmployeeRecord& record)
{
    constexpr Text kDone[] = {
        {},
        {"The new employee has been added to your database.",
         "Le nouvel employé a été ajouté dans votre banque de données."},
        {"All modifications have been recorded.", "Toutes les modifications ont été enregistrées."},
        {"The selected employee has been deactivated.", "L'employé(e) sélectionné(e) a été désactivé(e)."}};
    if (mode == EditingMode::Adding)
        RemindOfNextYear(record);
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), T(kDone[static_cast<int>(mode)]));
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
    {
        const BusyPointer busy;
        ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::All);
    }
    OpenAbove(FormsAbove.ShowEmployeesList, this);
}
