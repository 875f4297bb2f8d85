#include "reference/frm_unit.h"

#include "foundation/common_services.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"
#include "platform/controls/remark_delegate.h"
#include "reference/frm_unit_pages.h"

#include <QComboBox>
#include <QStyle>
#include <QTimer>

namespace
{
constexpr int kNameLimit = 75;
constexpr int kFieldsWidth = 660;
constexpr int kCardGap = 14;
constexpr int kEntriesShown = 16;
constexpr int kRemark = Qt::UserRole + 1;

QString NameOf(const QModelIndex& entry)
{
    return entry.data().toString();
}

/// Where a unit belongs and that it is inactive.
QString RemarkOf(const QModelIndex& entry)
{
    return entry.data(kRemark).toString();
}

QString RemarkOn(const UnitItem& item, const UnitKind& kind)
{
    QStringList remarks{item.ParentName};
    if (!item.Active)
        remarks << T(kind.Texts.InactiveRemark);
    remarks.removeAll(QString());
    return remarks.join(", ");
}

QLineEdit* NameField(const QString& name)
{
    auto* field = Named<QLineEdit>(name);
    field->setMaxLength(kNameLimit);
    FilterKeys(field, KeyFilter::FreeText);
    return field;
}

void SetMain(QPushButton* button, bool main)
{
    button->setDefault(main);
    button->setProperty("look", main ? "main" : "");
    button->style()->unpolish(button);
    button->style()->polish(button);
}
} // namespace

frmUnit::frmUnit(const UnitKind& kind, UnitPage* page, QWidget* parent)
    : QDialog(parent), kind_(kind), page_(page), datAbsence(kind.FormName)
{
    setObjectName(kind.FormName);
    BuildControls();
    BuildPage();
    ConnectControls();
    LoadCaptions();
    cmdCancelOperation_Click();
}

void frmUnit::BuildControls()
{
    lblRecords = Named<QLabel>("lblRecords");
    cboRecords = Named<QComboBox>("cboRecords");
    cboRecords->setItemDelegate(new RemarkDelegate(NameOf, RemarkOf, cboRecords));
    cboRecords->setMaxVisibleItems(kEntriesShown);
    lblEnglishName = Named<QLabel>("lblEnglishName");
    txtEnglishName = NameField("txtEnglishName");
    lblFrenchName = Named<QLabel>("lblFrenchName");
    txtFrenchName = NameField("txtFrenchName");
    cmdAdd = Named<QPushButton>("cmdAdd");
    cmdModify = Named<QPushButton>("cmdModify");
    cmdDeactivate = Named<QPushButton>("cmdDeactivate");
    cmdCancelOperation = Named<QPushButton>("cmdCancelOperation");
    cmdQuit = Named<QPushButton>("cmdQuit");
}

void frmUnit::BuildPage()
{
    auto* column = new QVBoxLayout;
    column->setSpacing(kCardGap);
    column->addLayout(Names());
    column->addWidget(page_, 1);
    fields_ = MakeCard(column);
    fields_->setMinimumWidth(kFieldsWidth);
    auto* page = PageLayout(this);
    page->addWidget(MakeCard(Captioned(lblRecords, cboRecords)));
    page->addWidget(fields_, 1);
    page->addLayout(Buttons());
}

/// The name that the user's language requires comes first.
QHBoxLayout* frmUnit::Names()
{
    auto* names = new QHBoxLayout;
    names->setSpacing(kCardGap);
    names->addLayout(Captioned(lblEnglishName, txtEnglishName), 1);
    names->insertLayout(SessionState.English ? 1 : 0, Captioned(lblFrenchName, txtFrenchName), 1);
    return names;
}

QHBoxLayout* frmUnit::Buttons()
{
    auto* row = Row({cmdAdd, cmdModify, cmdDeactivate});
    row->addWidget(cmdCancelOperation);
    row->addWidget(cmdQuit);
    return row;
}

void frmUnit::ConnectControls()
{
    if (!SessionState.English)
        setTabOrder(txtFrenchName, txtEnglishName);
    connect(cboRecords, &QComboBox::activated, this, &frmUnit::cboRecords_Click);
    connect(cmdAdd, &QPushButton::clicked, this, &frmUnit::cmdAdd_Click);
    connect(cmdModify, &QPushButton::clicked, this, &frmUnit::cmdModify_Click);
    connect(cmdDeactivate, &QPushButton::clicked, this, &frmUnit::cmdDeactivate_Click);
    connect(cmdCancelOperation, &QPushButton::clicked, this, &frmUnit::cmdCancelOperation_Click);
    connect(cmdQuit, &QPushButton::clicked, this, &frmUnit::reject);
}

void frmUnit::LoadCaptions()
{
    const UnitTexts& texts = kind_.Texts;
    setWindowTitle(T(texts.Caption));
    lblRecords->setText(T(texts.ListLabel, {{"FiscalYearName", SessionState.FiscalYearName}}));
    cboRecords->setPlaceholderText(T(texts.ListPrompt));
    lblEnglishName->setText(T(texts.EnglishNameLabel));
    lblFrenchName->setText(T(texts.FrenchNameLabel));
    cmdDeactivate->setText(T("&Deactivate", "&Désactiver"));
    cmdCancelOperation->setText(T("&Cancel operation", "A&nnuler l'opération"));
    cmdQuit->setText(T("C&lose", "&Sortir"));
    page_->LoadCaptions();
}

void frmUnit::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous())
        QTimer::singleShot(0, this, &frmUnit::Form_Activate);
}

void frmUnit::Form_Activate()
{
    if (HasUnitsAbove(datAbsence, kind_))
        return;
    Tell(T("ERROR:", "ERREUR:"), T(kind_.Texts.NoParent, {{"FiscalYearName", SessionState.FiscalYearName}}),
         Face::Warning);
    reject();
}

void frmUnit::LoadRecords()
{
    ShowRecords(LoadUnitItems(datAbsence, kind_, ListedUnits::All));
}

void frmUnit::LoadActiveRecords()
{
    ShowRecords(LoadUnitItems(datAbsence, kind_, ListedUnits::ActiveOnly));
}

void frmUnit::ShowRecords(const QVector<UnitItem>& items)
{
    cboRecords->clear();
    for (const UnitItem& item : items) {
        cboRecords->addItem(item.Name, item.RecordID);
        cboRecords->setItemData(cboRecords->count() - 1, RemarkOn(item, kind_), kRemark);
    }
    cboRecords->setCurrentIndex(cboRecords->findData(unit_.RecordID));
}

void frmUnit::ShowUnit(const UnitEntry& unit)
{
    unit_ = unit;
    cboRecords->setCurrentIndex(cboRecords->findData(unit.RecordID));
    txtEnglishName->setText(unit.EnglishName);
    txtFrenchName->setText(unit.FrenchName);
    page_->Show(datAbsence, unit);
    ShowButtons();
}

UnitEntry frmUnit::ReadForm() const
{
    UnitEntry unit = unit_;
    unit.EnglishName = txtEnglishName->text();
    unit.FrenchName = txtFrenchName->text();
    page_->Read(unit);
    return unit;
}

void frmUnit::EnterMode(Mode mode)
{
    mode_ = mode;
    ShowButtons();
    if (fields_->isEnabled())
        FocusFirstField();
    else if (mode != Mode::Idle)
        cboRecords->setFocus();
}

/// In a mode only its own button and the way out of it can be pressed; what needs a record waits until one is chosen.
void frmUnit::ShowButtons()
{
    const bool idle = mode_ == Mode::Idle;
    const bool chosen = unit_.RecordID != 0;
    fields_->setEnabled(mode_ == Mode::Adding || (mode_ == Mode::Modifying && chosen));
    cboRecords->setEnabled(idle || mode_ == Mode::Deactivating || (mode_ == Mode::Modifying && !chosen));
    cmdAdd->setEnabled(idle || mode_ == Mode::Adding);
    cmdModify->setEnabled(idle || (mode_ == Mode::Modifying && chosen));
    cmdDeactivate->setEnabled(idle || (mode_ == Mode::Deactivating && chosen));
    cmdCancelOperation->setEnabled(!idle);
    cmdQuit->setEnabled(idle);
    cmdAdd->setText(mode_ == Mode::Adding ? T("&Save", "&Enregistrer") : T("&Add", "&Ajouter"));
    cmdModify->setText(mode_ == Mode::Modifying ? T("&Save", "&Enregistrer") : T("&Modify", "&Modifier"));
    SetMain(cmdAdd, idle || mode_ == Mode::Adding);
    SetMain(cmdModify, mode_ == Mode::Modifying);
    SetMain(cmdDeactivate, mode_ == Mode::Deactivating);
}

void frmUnit::FocusFirstField()
{
    (SessionState.English ? txtEnglishName : txtFrenchName)->setFocus();
}

void frmUnit::ResetVariables()
{
    ShowUnit({});
}

void frmUnit::cboRecords_Click(int index)
{
    UnitEntry unit = LoadUnit(datAbsence, kind_, cboRecords->itemData(index).toInt());
    if (!unit.Active && !Reactivate(unit))
        unit = {};
    ShowUnit(unit);
    if (fields_->isEnabled())
        FocusFirstField();
}

/// True when the unit is active again.
bool frmUnit::Reactivate(const UnitEntry& unit)
{
    const UnitTexts& texts = kind_.Texts;
    if (!Ask(T(texts.InactiveTitle), T(texts.ReactivateQuestion, {{"name", ShownName(unit)}}), Face::Warning))
        return false;
    if (!Attempt([&] { ReactivateUnit(datAbsence, kind_, unit.RecordID); }))
        return false;
    LoadRecords();
    return true;
}

void frmUnit::cmdAdd_Click()
{
    if (mode_ == Mode::Idle) {
        ResetVariables();
        return EnterMode(Mode::Adding);
    }
    UnitEntry unit = ReadForm();
    if (!Validate(unit) || !ConfirmAddition(unit))
        return;
    if (Attempt([&] { AddUnit(datAbsence, kind_, unit); }))
        Complete(T(kind_.Texts.Added));
}

void frmUnit::cmdModify_Click()
{
    if (mode_ == Mode::Idle)
        return EnterMode(Mode::Modifying);
    UnitEntry unit = ReadForm();
    if (!Validate(unit) || !ConfirmModification(unit))
        return;
    if (Attempt([&] { ModifyUnit(datAbsence, kind_, unit); }))
        Complete(T("All modifications have been recorded.", "Toutes les modifications ont été enregistrées."));
}

void frmUnit::cmdDeactivate_Click()
{
    if (mode_ == Mode::Idle) {
        LoadActiveRecords();
        return EnterMode(Mode::Deactivating);
    }
    if (RefuseWhileEmployed() || !ConfirmDeactivation())
        return;
    if (Attempt([&] { DeactivateUnit(datAbsence, kind_, unit_.RecordID); }))
        Complete(T(kind_.Texts.Deactivated));
}

/// Shows the names that were filled in, also when something else is wrong.
bool frmUnit::Validate(UnitEntry& unit)
{
    const auto fault = ValidateRecord(datAbsence, kind_, unit);
    txtEnglishName->setText(unit.EnglishName);
    txtFrenchName->setText(unit.FrenchName);
    if (!fault)
        return true;
    Tell(T("ERROR:", "ERREUR:"), fault->Text, Face::Warning);
    findChild<QWidget*>(fault->Field)->setFocus();
    return false;
}

bool frmUnit::ConfirmAddition(const UnitEntry& unit) const
{
    const QString names = T(kind_.Texts.Names, {{"english", unit.EnglishName}, {"french", unit.FrenchName}});
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T(kind_.Texts.AddQuestion) + "\r\n\r\n" + names);
}

bool frmUnit::ConfirmModification(const UnitEntry& unit) const
{
    const QString names = T(kind_.Texts.Names, {{"english", unit.EnglishName}, {"french", unit.FrenchName}});
    const QString question =
        T("Record the following modifications?", "Souhaitez-vous sauvegarder les modifications suivantes:");
    if (!Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), question + "\r\n\r\n" + names))
        return false;
    return !unit.IsMoved() ||
           Ask(T("WARNING:", "AVERTISSEMENT:"),
               T(kind_.Texts.MoveQuestion, {{"name", ShownName(unit)}, {"parent", page_->ChosenParent()}}),
               Face::Warning);
}

bool frmUnit::ConfirmDeactivation() const
{
    return Ask(T("WARNING:", "MISE EN GARDE:"), T(kind_.Texts.DeactivateQuestion, {{"name", ShownName(unit_)}}),
               Face::Warning);
}

/// True, with the reason told, while the unit has active employees or they cannot be counted.
bool frmUnit::RefuseWhileEmployed()
{
    int employees = 0;
    if (!Attempt([&] { employees = CountActiveEmployees(datAbsence, kind_, unit_.RecordID); }))
        return true;
    if (employees == 0)
        return false;
    Tell(T("OPERATION NOT ALLOWED:", "OPÉRATION REFUSÉE:"), T(kind_.Texts.StillEmployed, {{"name", ShownName(unit_)}}),
         Face::Warning);
    return true;
}

/// True when the work is done. A failure is told, and leaves the form as it is.
bool frmUnit::Attempt(const std::function<void()>& write)
{
    try {
        write();
        return true;
    } catch (const RuntimeError& error) {
        TellError(error);
        return false;
    }
}

void frmUnit::Complete(const QString& text)
{
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), text, Face::Congratulating);
    cmdCancelOperation_Click();
}

void frmUnit::cmdCancelOperation_Click()
{
    ResetVariables();
    LoadRecords();
    EnterMode(Mode::Idle);
}

void frmUnit::reject()
{
    if (mode_ != Mode::Idle)
        return cmdCancelOperation_Click();
    ResetVariables();
    QDialog::reject();
}
