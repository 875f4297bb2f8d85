#include "employees/frm_employees.h"

#include "employees/employee_rows.h"
#include "employees/employee_validation.h"
#include "employees/frm_employee_general_page.h"
#include "employees/frm_employee_kit.h"
#include "employees/frm_employee_modules_page.h"
#include "employees/frm_employee_profile_page.h"
#include "employees/frm_employee_schedule_page.h"
#include "foundation/common_services.h"
#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "selection/frm_get_approver_from_list.h"

#include <QListWidget>
#include <QShowEvent>
#include <QTabWidget>
#include <QTimer>

namespace
{
constexpr QSize kSize(1040, 638);
constexpr int kYearWidth = 150;

QString InYear(const QString& text)
{
    return Fill(text, {{"FiscalYearName", SessionState.FiscalYearName}});
}
} // namespace

std::function<void(QWidget*)> frmEmployees::ShowEmployeesList;

frmEmployees::frmEmployees(QWidget* parent) : QDialog(parent)
{
    BuildControls();
    LayControls();
    ConnectControls();
    Form_Load();
}

/// Hiding takes the focus from its field, whose handler needs the form whole.
frmEmployees::~frmEmployees()
{
    hide();
}

void frmEmployees::BuildControls()
{
    setObjectName("frmEmployees");
    general_ = new EmployeeGeneralPage;
    schedule_ = new EmployeeSchedulePage(record_, Loading);
    profile_ = new EmployeeProfilePage(boxes_);
    modules_ = new EmployeeModulesPage(boxes_);
    sstEmployees = Named<QTabWidget>("sstEmployees");
    for (QWidget* page : std::initializer_list<QWidget*>{general_, schedule_, profile_, modules_})
        sstEmployees->addTab(page, QString());
    lblFiscalYear = Named<QLabel>("lblFiscalYear");
    txtFiscalYear = Named<QLineEdit>("txtFiscalYear");
    txtFiscalYear->setReadOnly(true);
    txtFiscalYear->setFixedWidth(kYearWidth);
    txtFiscalYear->setFocusPolicy(Qt::NoFocus);
    lblFiscalYear->setBuddy(txtFiscalYear);
    BuildButtons();
}

void frmEmployees::BuildButtons()
{
    const std::pair<QPushButton**, const char*> buttons[] = {
        {&cmdAdd, "cmdAdd"},
        {&cmdModify, "cmdModify"},
        {&cmdTransfer, "cmdTransfer"},
        {&cmdDeactivate, "cmdDeactivate"},
        {&cmdListRecords, "cmdListRecords"},
        {&cmdCancelOperation, "cmdCancelOperation"},
        {&cmdQuit, "cmdQuit"},
    };
    for (const auto& [button, name] : buttons) {
        *button = Named<QPushButton>(name);
        (*button)->setAutoDefault(false);
    }
}

void frmEmployees::LayControls()
{
    auto* page = PageLayout(this);
    page->addLayout(Row({lblFiscalYear, txtFiscalYear}));
    page->addWidget(sstEmployees, 1);
    auto* buttons = ButtonRow({cmdListRecords, cmdTransfer, cmdDeactivate, cmdModify, cmdAdd});
    buttons->insertWidget(0, cmdQuit);
    buttons->insertWidget(1, cmdCancelOperation);
    page->addLayout(buttons);
    resize(kSize);
}

void frmEmployees::ConnectControls()
{
    connect(cmdAdd, &QPushButton::clicked, this, &frmEmployees::cmdAdd_Click);
    connect(cmdModify, &QPushButton::clicked, this, &frmEmployees::cmdModify_Click);
    connect(cmdTransfer, &QPushButton::clicked, this, &frmEmployees::cmdTransfer_Click);
    connect(cmdDeactivate, &QPushButton::clicked, this, &frmEmployees::cmdDeactivate_Click);
    connect(cmdListRecords, &QPushButton::clicked, this, &frmEmployees::cmdListRecords_Click);
    connect(cmdCancelOperation, &QPushButton::clicked, this, &frmEmployees::cmdCancelOperation_Click);
    connect(cmdQuit, &QPushButton::clicked, this, &frmEmployees::cmdQuit_Click);
    connect(sstEmployees, &QTabWidget::currentChanged, this, &frmEmployees::sstEmployees_Click);
    ConnectUnitLists();
    ConnectApprovers();
}

/// A click counts also on the unit that is selected already: it takes the choice back to that level.
void frmEmployees::ConnectUnitLists()
{
    for (const UnitList list : kUnitLists) {
        const QListWidget* box = general_->lstUnits[static_cast<std::size_t>(list)];
        const auto choose = [this, list] { UnitList_Click(list); };
        connect(box, &QListWidget::itemSelectionChanged, this, choose);
        connect(box, &QListWidget::itemClicked, this, choose);
    }
}

void frmEmployees::ConnectApprovers()
{
    QComboBox* first = profile_->cboApprovedBy_FirstLevel;
    QComboBox* second = profile_->cboApprovedBy_SecondLevel;
    connect(first, &QComboBox::activated, this, &frmEmployees::cboApprovedBy_FirstLevel_Click);
    connect(second, &QComboBox::activated, this, &frmEmployees::cboApprovedBy_SecondLevel_Click);
    const std::tuple<QComboBox*, int EmployeeRecord::*, QPushButton*> approvers[] = {
        {first, &EmployeeRecord::ApprovedByMain, profile_->cmdGetApprover1FromList},
        {second, &EmployeeRecord::ApprovedByBackup, profile_->cmdGetApprover2FromList}};
    for (const auto& [combo, approver, button] : approvers) {
        connect(combo->lineEdit(), &QLineEdit::textEdited, this,
                [this, combo = combo, approver = approver] { Approver_Change(combo, approver); });
        connect(button, &QPushButton::clicked, this,
                [this, combo = combo, approver = approver] { GetApproverFromList(combo, approver); });
    }
}

void frmEmployees::Form_Load()
{
    LoadCaptions();
    txtFiscalYear->setText(SessionState.FiscalYearName);
    LoadComboBoxes();
    SetButtons(true, cmdAdd);
    SetEntryEnabled(false);
    ShowRecord();
}

void frmEmployees::LoadCaptions()
{
    setWindowTitle(T("Employees", "Employé(e)s"));
    lblFiscalYear->setText(T("All records to be added / modified are associated to fiscal year",
                             "Tous les enregistrements ajoutés / modifiés sont associés à l'année fiscale"));
    const QString tabs[] = {T("General information", "Informations générales"),
                            T("Working schedule", "Horaire de travail"), T("Security profile", "Profil de sécurité"),
                            T("Accessible modules", "Modules accessibles")};
    for (int tab = 0; tab < sstEmployees->count(); ++tab)
        sstEmployees->setTabText(tab, tabs[tab]);
    cmdAdd->setText(T("&Add", "&Ajouter"));
    cmdModify->setText(T("&Modify", "&Modifier"));
    cmdTransfer->setText(T("&Transfer", "&Transférer"));
    cmdDeactivate->setText(T("&Deactivate", "&Désactiver"));
    cmdListRecords->setText(T("&List of employees", "&Liste des employé(e)s"));
    cmdCancelOperation->setText(T("Ca&ncel", "A&nnuler"));
    cmdQuit->setText(T("&Close", "&Fermer"));
    general_->LoadCaptions();
    schedule_->LoadCaptions();
    profile_->LoadCaptions();
    modules_->LoadCaptions();
}

void frmEmployees::LoadComboBoxes()
{
    const LoadingGuard loading(Loading);
    general_->LoadComboBoxes();
    schedule_->LoadComboBoxes();
}

void frmEmployees::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (std::exchange(activated_, true))
        return;
    QTimer::singleShot(0, this, &frmEmployees::Form_Activate);
}

void frmEmployees::Form_Activate()
{
    LoadRecords();
    if (MustClose)
        return cmdQuit_Click();
    cmdAdd->setFocus();
}

void frmEmployees::LoadRecords()
{
    {
        const LoadingGuard loading(Loading);
        for (const UnitList list : kUnitLists)
            units_[static_cast<std::size_t>(list)] = UnitsByPosition(datAbsence, list);
        general_->LoadUnits(units_);
        CountEmployees(datAbsence, EmployeeCount);
    }
    const QString denied = T("OPERATION DENIED:", "OPÉRATION REFUSÉE:");
    MustClose = units_[0].isEmpty() || units_[1].isEmpty();
    if (units_[0].isEmpty())
        Tell(denied, InYear(T("Before you can update your list of employees you must first set up at least one "
                              "organization in fiscal year {FiscalYearName}!",
                              "Avant de pouvoir mettre à jour votre liste d'employé(e)s vous devez d'abord créer au "
                              "moins une organisation dans l'année fiscale {FiscalYearName}!")));
    else if (units_[1].isEmpty())
        Tell(denied, InYear(T("Before you can update your list of employees you must first set up at least one "
                              "department in fiscal year {FiscalYearName}!",
                              "Avant de pouvoir mettre à jour votre liste d'employé(e)s vous devez d'abord créer au "
                              "moins un département dans l'année fiscale {FiscalYearName}!")));
    else
        SelectStartingUnits();
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
    for (const auto& [own, unit] : {std::pair(SessionState.UserOrganizationID, &EmployeeRecord::OrganizationID),
                                    std::pair(SessionState.UserDepartmentID, &EmployeeRecord::DepartmentID),
                                    std::pair(SessionState.UserGroupID, &EmployeeRecord::GroupID)})
        if (own != 0)
            record_.*unit = own;
    ShowRecord();
}

/// A unit brings the units above it along; those below it, and the approvers, have to be chosen anew. A group leaves
/// the approvers as they are.
void frmEmployees::UnitList_Click(UnitList list)
{
    const auto index = static_cast<std::size_t>(list);
    const QListWidget* box = general_->lstUnits[index];
    if (Loading)
        return;
    ReadForm();
    if (box->selectedItems().isEmpty())
        return ShowRecord(); // a choice is changed, never taken away
    const Unit& unit = units_[index][box->row(box->selectedItems().first())];
    record_.OrganizationID = unit.OrganizationID;
    record_.DepartmentID = unit.DepartmentID;
    record_.GroupID = list == UnitList::Groups ? unit.RecordID : 0;
    if (list != UnitList::Groups)
        record_.ApprovedByMain = record_.ApprovedByBackup = 0;
    ShowRecord();
    LoadApprovers(true);
}

void frmEmployees::Right_Click(Right box, bool granted)
{
    if (Loading)
        return;
    ChangeRight(record_, box, granted);
    boxes_.Show(record_);
}

/// Both lists offer those who may approve for the unit, and show the approvers of the record. One whom the unit does
/// not offer is shown only when he is looked for `wherever` he works.
void frmEmployees::LoadApprovers(bool wherever)
{
    const LoadingGuard loading(Loading);
    profile_->LoadApprovers(LoadApprovedBy(datAbsence, record_));
    ShowApprover(profile_->cboApprovedBy_FirstLevel, record_.ApprovedByMain, wherever);
    ShowApprover(profile_->cboApprovedBy_SecondLevel, record_.ApprovedByBackup, wherever);
}

void frmEmployees::ShowApprover(QComboBox* combo, int approver, bool wherever)
{
    const int index = approver == 0 ? -1 : combo->findData(approver);
    if (index >= 0)
        combo->setCurrentIndex(index);
    else if (approver != 0 && wherever)
        ShowText(combo, ApproverName(datAbsence, approver));
}

void frmEmployees::cboApprovedBy_FirstLevel_Click()
{
    const QComboBox* combo = profile_->cboApprovedBy_FirstLevel;
    if (!Loading && !combo->currentText().isEmpty())
        record_.ApprovedByMain = combo->currentData().toInt();
}

void frmEmployees::cboApprovedBy_SecondLevel_Click()
{
    QComboBox* combo = profile_->cboApprovedBy_SecondLevel;
    if (Loading || combo->currentText().isEmpty())
        return;
    const QString error = T("ERROR:", "ERREUR:");
    if (record_.ApprovedByMain == 0) {
        Tell(error,
             T("You must specify a first level of approval before specifying a second level of approval!",
               "Vous devez spécifier un premier niveau d'approbation avant d'en spécifier un second!"),
             Face::Warning);
        ShowText(combo, QString());
        record_.ApprovedByBackup = 0;
        return profile_->cboApprovedBy_FirstLevel->setFocus();
    }
    record_.ApprovedByBackup = combo->currentData().toInt();
    if (record_.ApprovedByBackup != record_.ApprovedByMain)
        return;
    Tell(error,
         T("The second level of approval cannot be the same as the first one!",
           "Le second niveau d'approbation ne peut être le même que le premier!"),
         Face::Warning);
    ShowText(combo, QString());
    record_.ApprovedByBackup = 0;
}

/// An approver is picked, never typed.
void frmEmployees::Approver_Change(QComboBox* combo, int EmployeeRecord::*approver)
{
    if (Loading)
        return;
    record_.*approver = 0;
    ShowText(combo, QString());
}

void frmEmployees::GetApproverFromList(QComboBox* combo, int EmployeeRecord::*approver)
{
    ReadForm();
    frmGetApproverFromList form((record_.FirstName + " " + record_.FamilyName).trimmed(), this);
    ShowModal(form);
    if (form.ApproverID() == 0)
        return;
    const LoadingGuard loading(Loading);
    ShowText(combo, form.ApproverName());
    record_.*approver = form.ApproverID();
}

void frmEmployees::sstEmployees_Click(int tab)
{
    if (tab != static_cast<int>(EmployeeTab::Modules) || SessionState.LoginID == "ADMIN")
        return;
    Tell(T("FOR YOUR INFORMATION:", "POUR VOTRE INFORMATION:"),
         Fill(T("The system administrator ({name}) is the only user authorized to grant these privileges.",
                "L'administrateur du système ({name}) est le seul usager ayant le pouvoir d'accorder ces privilèges."),
              {{"name", SessionState.AdminName}}));
}

void frmEmployees::ShowRecord()
{
    const LoadingGuard loading(Loading);
    general_->Show(record_);
    schedule_->Show();
    profile_->Show(record_);
    boxes_.Show(record_);
}

void frmEmployees::ReadForm()
{
    general_->Read(record_);
    profile_->Read(record_);
    NormaliseTexts(record_);
}

void frmEmployees::SetEntryEnabled(bool enabled)
{
    general_->SetEntryEnabled(enabled);
    general_->SetUnitsEnabled(false, false, false);
    schedule_->SetEntryEnabled(enabled);
    profile_->SetEntryEnabled(enabled);
    boxes_.SetEnabled(enabled, ModifyMode);
}

/// All commands are enabled, or only the one that ends the mode. That one, or Add, is the main button.
void frmEmployees::SetButtons(bool idle, QPushButton* usable)
{
    for (QPushButton* button : {cmdAdd, cmdModify, cmdTransfer, cmdDeactivate, cmdListRecords, cmdQuit}) {
        button->setEnabled(idle || button == usable);
        button->setProperty("look", button == usable ? "main" : "");
        button->setDefault(button == usable);
        button->style()->unpolish(button);
        button->style()->polish(button);
    }
    cmdCancelOperation->setEnabled(!idle);
}
