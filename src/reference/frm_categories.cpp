#include "reference/frm_categories.h"

#include "foundation/connection.h"
#include "foundation/forms.h"
#include "ledger/category_entitlements.h"
#include "platform/controls/entry_lists.h"
#include "reference/category_records.h"
#include "reference/frm_category_configuration_page.h"
#include "reference/frm_category_departments_page.h"
#include "reference/frm_select_color.h"
#include "reference/unit_records.h"

#include <QTabWidget>

namespace
{
constexpr QSize kCategoriesSize(820, 580);
constexpr int kManyEmployees = 100;
constexpr Text kOfTheTimeBank = {"The same for all categories of the time bank",
                                 "Le même pour toutes les catégories de la banque de temps"};

QVector<ListEntry> DepartmentsOfTheYear(DataControl& datAbsence)
{
    QVector<ListEntry> departments;
    for (const UnitItem& department : LoadUnitItems(datAbsence, kDepartments, ListedUnits::All))
        departments.append({department.Name + " / " + department.ParentName, department.RecordID});
    return departments;
}

void RemindOfNextYear(const CategoryEntry& entry)
{
    if (SessionState.NextFYID == 0)
        return;
    Tell(
        T("REMINDER:", "RAPPEL:"),
        T({"TARVELL automatically reproduces your list of categories from one fiscal year to the next upon creation of "
           "a new fiscal year. The next fiscal year ({NextFYName}) having already been created, you will now be "
           "required to create the category «{name}» in the new year yourself.",
           "TARVELL reproduit automatiquement la liste de vos catégories d'une année fiscale à l'autre au moment de "
           "la création d'une nouvelle année fiscale. La prochaine année fiscale ({NextFYName}) ayant déjà été "
           "créée, vous allez devoir y ajouter la catégorie «{name}» vous-même."},
          {{"NextFYName", SessionState.NextFYName}, {"name", ShownName(entry)}}));
}

/// Stands over the form while the entitlements of many employees are written.
class WaitNotice
{
public:
    WaitNotice(QWidget* form, bool shown)
    {
        if (!shown)
            return;
        lblWait_.setParent(form);
        AsNotice(&lblWait_);
        lblWait_.setText(T("***  WAIT!  ***\r\n\r\nSetting up an annual entitlement for each employee in your "
                           "database...",
                           "***  VEUILLEZ PATIENTER!  ***\r\n\r\nLe temps alloué annuellement pour cette catégorie est "
                           "présentement attibué à chacun de vos employés..."));
        lblWait_.setAlignment(Qt::AlignCenter);
        lblWait_.adjustSize();
        lblWait_.move((form->width() - lblWait_.width()) / 2, (form->height() - lblWait_.height()) / 2);
        lblWait_.show();
        lblWait_.repaint();
    }

private:
    QLabel lblWait_;
};
} // namespace

frmCategories::frmCategories(QWidget* parent) : EditingForm("frmCategories", parent)
{
    SetTitle(this, {"Categories of attendance", "Catégories d'absentéisme"});
    SetSize(kCategoriesSize);
    BuildList();
    AddTabs();
    LayCommands({AddButton("cmdListRecords", {"List o&f categories", "&Liste des catégories"},
                           [this] { cmdListRecords_Click(); })});
    ResetVariables();
    ShowMode();
}

void frmCategories::BuildList()
{
    cboRecords = Named<WalkedList>("cboRecords");
    SetPlaceholder(cboRecords, {"Select a category", "Sélectionnez une catégorie"});
    connect(cboRecords, &QComboBox::activated, this, &frmCategories::cboRecords_Click);
    auto* lblRecords = MakeLabel("lblRecords");
    lblRecords->setText(T({"Categories of fiscal year {FiscalYearName}", "Catégories de l'année fiscale "
                                                                         "{FiscalYearName}"},
                          {{"FiscalYearName", SessionState.FiscalYearName}}));
    Page()->addWidget(MakeCard(Captioned(lblRecords, cboRecords)));
}

void frmCategories::AddTabs()
{
    configuration_ = new CategoryConfigurationPage;
    departments_ = new CategoryDepartmentsPage;
    configuration_->PublicChanged = [this](bool isPublic) { departments_->ShowList(!isPublic); };
    connect(configuration_->cmdColorAssigned, &QPushButton::clicked, this, &frmCategories::cmdColorAssigned_Click);
    departments_->LoadDepartments(DepartmentsOfTheYear(datAbsence));
    auto* tabs = Named<QTabWidget>("sstCategories");
    Page()->addWidget(tabs, 1);
    AddTab(tabs, configuration_, {"Configuration", "Configuration"});
    AddTab(tabs, departments_, {"User departments", "Départements utilisateurs"});
}

void frmCategories::LoadRecords()
{
    cboRecords->clear();
    for (const ListEntry& category : LoadCategoryRecords(datAbsence, false))
        cboRecords->addItem(category.Text, category.RecordID);
    cboRecords->setCurrentIndex(cboRecords->findData(record_.RecordID));
}

void frmCategories::LoadActiveRecords()
{
    cboRecords->clear();
    for (const ListEntry& category : LoadCategoryRecords(datAbsence, true))
        cboRecords->addItem(category.Text, category.RecordID);
    cboRecords->setCurrentIndex(cboRecords->findData(record_.RecordID));
}

void frmCategories::ResetVariables()
{
    ChooseCategory({});
    LoadRecords();
}

void frmCategories::ChooseCategory(const CategoryEntry& entry)
{
    record_ = entry;
    cboRecords->setCurrentIndex(cboRecords->findData(entry.RecordID));
    Show(entry);
    shown_ = Read();
}

void frmCategories::Show(const CategoryEntry& entry)
{
    configuration_->Show(entry);
    departments_->SelectUserDepartments(entry.UsedBy);
    departments_->ShowList(entry.IsPublic == 0);
}

CategoryEntry frmCategories::Read() const
{
    CategoryEntry entry = record_;
    configuration_->Read(entry);
    entry.UsedBy = departments_->UserDepartments();
    return entry;
}

void frmCategories::EnableControls()
{
    const Text whyNot = WhyNoEntry();
    const Text whyFixed = whyNot.IsEmpty() && record_.TimeBankRelated == 1 ? kOfTheTimeBank : whyNot;
    configuration_->EnableEntry(whyNot, whyFixed);
    departments_->EnableEntry(whyFixed);
    EnableUnless(cboRecords, WhyNoChoice());
    if (Mode() == EditingMode::Modifying)
        cmdModify->setText(T("&Modify", "ENREGISTRER"));
    if (IsIdle() && HasRecord() && record_.Active != 1)
        for (QPushButton* button : {cmdModify, cmdDeactivate})
            EnableOrExplain(button, false, kCategoryInactive);
}

bool frmCategories::Begin(EditingMode mode)
{
    ShowTabOf(configuration_);
    if (mode == EditingMode::Adding)
        ChooseCategory(NewCategory());
    if (mode == EditingMode::Deactivating)
        LoadActiveRecords();
    if (mode == EditingMode::Adding || (mode == EditingMode::Modifying && HasRecord()))
        configuration_->FocusFirstField();
    else
        cboRecords->setFocus();
    return true;
}

/// A category that cannot be read is not chosen: the list names the one that would be changed.
void frmCategories::cboRecords_Click(int index)
{
    if (!Attempt([&] { TakeListed(cboRecords->itemData(index).toInt()); }))
        cboRecords->setCurrentIndex(cboRecords->findData(record_.RecordID));
}

void frmCategories::TakeListed(int recordID)
{
    CategoryEntry entry = LoadCategory(datAbsence, recordID);
    if (entry.RecordID != 0 && entry.Active != 1) {
        Refuse(T(kCategoryInactive));
        if (!IsIdle()) // it can be looked at, and nothing else
            entry = {};
    }
    ChooseCategory(entry);
    ShowMode();
    if (Mode() == EditingMode::Modifying && HasRecord())
        configuration_->FocusFirstField();
}

void frmCategories::Finish(EditingMode mode)
{
    if (!configuration_->LeaveMinutesFor(mode == EditingMode::Adding ? cmdAdd : cmdModify))
        return;
    try {
        EditingForm::Finish(mode);
    } catch (const CategoryRefused& refused) {
        ShowFault(refused.Why);
    }
}

bool frmCategories::HasChanges() const
{
    const bool entering = Mode() == EditingMode::Adding || Mode() == EditingMode::Modifying;
    return entering && Read() != shown_;
}

void frmCategories::cmdCancelOperation_Click()
{
    if (!HasChanges() || AskToAbandonChanges())
        EditingForm::cmdCancelOperation_Click();
}

std::optional<Fault> frmCategories::Validate(CategoryEntry& entry)
{
    return ValidateRecord(datAbsence, entry);
}

bool frmCategories::Confirm(EditingMode mode, const CategoryEntry& entry)
{
    if (mode == EditingMode::Deactivating)
        return ConfirmDeactivation();
    const bool modifying = mode == EditingMode::Modifying;
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
               CategoryQuestion(entry, modifying) +
                   (modifying ? EntitlementsRemark(datAbsence, record_, entry) : QString()));
}

bool frmCategories::ConfirmDeactivation() const
{
    if (IsReserved(record_)) {
        Tell(T("OPERATION DENIED:", "OPÉRATION REFUSÉE:"),
             T("This category is «reserved» by the system and cannot be deactivated!",
               "Cette catégorie est «réservée» par le système et ne peut être désactivée!"),
             Face::Warning);
        return false;
    }
    return Ask(T("WARNING:", "MISE EN GARDE:"),
               T({"Do you really want to deactivate the category «{name}»?",
                  "Souhaitez-vous vraiment désactiver la catégorie «{name}»?"},
                 {{"name", ShownName(record_)}}),
               Face::Warning);
}

void frmCategories::Write(EditingMode mode, const CategoryEntry& entry)
{
    if (mode == EditingMode::Deactivating)
        return DeactivateCategory(datAbsence, entry);
    const bool grants = entry.RequiresMonitoring == 1 && (mode == EditingMode::Adding || record_.Kind != entry.Kind);
    const WaitNotice notice(this, grants && CountActiveEmployees(datAbsence) > kManyEmployees);
    if (mode == EditingMode::Adding)
        AddCategory(datAbsence, entry);
    else
        ModifyCategory(datAbsence, record_, entry);
}

void frmCategories::TellDone(EditingMode mode, const CategoryEntry& entry)
{
    shown_ = Read(); // nothing is left that could be lost
    if (mode == EditingMode::Adding)
        RemindOfNextYear(entry);
    const Text done[] = {
        {},
        {"The new category of attendance has been added to your database.",
         "La nouvelle catégorie a été ajoutée dans votre banque de données."},
        {"All modifications have been recorded.", "Toutes les modifications ont été enregistrées."},
        {"The selected category has been deactivated.", "La catégorie sélectionnée a été désactivée."}};
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), T(done[static_cast<int>(mode)]), Face::Congratulating);
}

void frmCategories::cmdColorAssigned_Click()
{
    frmSelectColor form(ColorOf(Read()), configuration_->CategoryName(), this);
    if (ShowModal(form) == QDialog::Accepted)
        configuration_->ShowColor(form.Color());
}

void frmCategories::cmdListRecords_Click()
{
    OpenAbove(FormsAbove.ShowCategoriesList, this);
}
