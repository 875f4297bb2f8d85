#include "reference/frm_unit.h"

#include "platform/controls/entry_lists.h"
#include "platform/controls/remark_delegate.h"

namespace
{
constexpr int kNameLimit = 75;
constexpr int kFieldsWidth = 660;
constexpr int kCardGap = 14;
constexpr int kListHeight = 130;
constexpr int kRemark = Qt::UserRole + 1;

/// Where an address field stands in a grid of six columns.
struct Place
{
    int Row;
    int Column;
    int Span;
};
constexpr std::array<Place, kAddressLines> kPlaces = {
    {{0, 0, 3}, {0, 3, 3}, {1, 0, 1}, {1, 1, 2}, {1, 3, 3}, {2, 0, 3}, {2, 3, 3}}};

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
} // namespace

frmUnit::frmUnit(const UnitKind& kind, QWidget* parent) : EditingForm(kind.FormName, parent), kind_(kind)
{
    SetTitle(this, kind.Texts.Caption);
    BuildList();
    auto* column = new QVBoxLayout;
    column->setSpacing(kCardGap);
    column->addLayout(Names());
    column->addLayout(kind.HasAddress ? Address() : Parents(), 1);
    fields_ = MakeCard(column);
    fields_->setMinimumWidth(kFieldsWidth);
    Page()->addWidget(fields_, 1);
    LayCommands();
    cmdCancelOperation_Click();
}

void frmUnit::BuildList()
{
    cboRecords = Named<WalkedList>("cboRecords");
    cboRecords->setItemDelegate(new RemarkDelegate(NameOf, RemarkOf, cboRecords));
    SetPlaceholder(cboRecords, kind_.Texts.ListPrompt);
    connect(cboRecords, &QComboBox::activated, this, &frmUnit::cboRecords_Click);
    auto* lblRecords = MakeLabel("lblRecords");
    lblRecords->setText(T(kind_.Texts.ListLabel, {{"FiscalYearName", SessionState.FiscalYearName}}));
    Page()->addWidget(MakeCard(Captioned(lblRecords, cboRecords)));
}

/// The name that the user's language requires comes first.
QHBoxLayout* frmUnit::Names()
{
    txtEnglishName = MakeField("txtEnglishName", KeyFilter::FreeText, kNameLimit);
    txtFrenchName = MakeField("txtFrenchName", KeyFilter::FreeText, kNameLimit);
    auto* names = new QHBoxLayout;
    names->setSpacing(kCardGap);
    Require(SessionState.English ? txtEnglishName : txtFrenchName);
    names->addLayout(Captioned(kind_.Texts.EnglishNameLabel, txtEnglishName), 1);
    names->insertLayout(SessionState.English ? 1 : 0, Captioned(kind_.Texts.FrenchNameLabel, txtFrenchName), 1);
    return names;
}

QLayout* frmUnit::Address()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(kCardGap);
    for (int column = 0; column < 6; ++column)
        grid->setColumnStretch(column, 1);
    for (int line = 0; line < kAddressLines; ++line) {
        const AddressField& field = kAddressFields[line];
        address_ << MakeField(field.Control, KeyFilter::FreeText, field.Limit);
        if (!field.Missing.IsEmpty())
            Require(address_.last());
        const auto& [row, column, span] = kPlaces[line];
        grid->addLayout(Captioned(field.Label, address_.last()), row, column, 1, span);
    }
    grid->setRowStretch(3, 1);
    QLineEdit* txtZipCode = address_.last();
    connect(txtZipCode, &QLineEdit::editingFinished, this,
            [txtZipCode] { txtZipCode->setText(txtZipCode->text().toUpper()); });
    return grid;
}

QLayout* frmUnit::Parents()
{
    lstParents = Named<QListWidget>(kind_.ParentList);
    lstParents->setFixedHeight(kListHeight);
    Require(lstParents);
    return Captioned(kind_.Texts.ParentLabel, lstParents);
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
    cboRecords->setCurrentIndex(cboRecords->findData(record_.RecordID));
}

void frmUnit::Show(const UnitRow& unit)
{
    txtEnglishName->setText(unit.EnglishName);
    txtFrenchName->setText(unit.FrenchName);
    for (int line = 0; line < address_.size(); ++line)
        address_[line]->setText(unit.*kAddressFields[line].Line);
}

/// The units above are read when a unit is chosen; while it is edited their list keeps its mark.
void frmUnit::ChooseUnit(const UnitRow& unit)
{
    record_ = unit;
    cboRecords->setCurrentIndex(cboRecords->findData(unit.RecordID));
    Show(unit);
    if (!lstParents)
        return;
    lstParents->clear();
    for (const UnitItem& parent : LoadParentItems(datAbsence, kind_, ParentOf(kind_, unit)))
        AddEntry(lstParents, parent.Name, parent.RecordID);
    Choose(lstParents, ParentOf(kind_, unit));
}

/// The zip code may not have been left yet: a mnemonic presses a button without moving the focus.
UnitRow frmUnit::Read() const
{
    UnitRow unit = record_;
    unit.EnglishName = txtEnglishName->text();
    unit.FrenchName = txtFrenchName->text();
    for (int line = 0; line < address_.size(); ++line)
        unit.*kAddressFields[line].Line = address_[line]->text();
    unit.ZipCode = unit.ZipCode.toUpper();
    if (lstParents)
        unit.*kind_.Parent->ID = ChosenID(lstParents);
    return unit;
}

void frmUnit::EnableControls()
{
    EnableUnless(fields_, WhyNoEntry());
    EnableUnless(cboRecords, WhyNoChoice());
}

bool frmUnit::Begin(EditingMode mode)
{
    if (mode == EditingMode::Adding)
        ChooseUnit({});
    if (mode == EditingMode::Deactivating)
        LoadActiveRecords();
    if (fields_->isEnabled())
        FocusFirstField();
    else
        cboRecords->setFocus();
    return true;
}

void frmUnit::FocusFirstField()
{
    (SessionState.English ? txtEnglishName : txtFrenchName)->setFocus();
}

void frmUnit::ResetVariables()
{
    ChooseUnit({});
    LoadRecords();
}

/// A unit that cannot be read is not chosen: the list names the one that would be changed.
void frmUnit::cboRecords_Click(int index)
{
    if (!Attempt([&] { TakeListed(cboRecords->itemData(index).toInt()); }))
        cboRecords->setCurrentIndex(cboRecords->findData(record_.RecordID));
}

void frmUnit::TakeListed(int recordID)
{
    UnitRow unit = LoadUnit(datAbsence, kind_, recordID);
    if (unit.RecordID != 0 && unit.Active != 1 && !Reactivate(unit))
        unit = {};
    ChooseUnit(unit);
    ShowMode();
    if (fields_->isEnabled())
        FocusFirstField();
}

/// True when the unit is active again.
bool frmUnit::Reactivate(const UnitRow& unit)
{
    const UnitTexts& texts = kind_.Texts;
    if (!Ask(T(texts.InactiveTitle), T(texts.ReactivateQuestion, {{"name", ShownName(unit)}}), Face::Warning))
        return false;
    if (!Attempt([&] { ReactivateUnit(datAbsence, kind_, unit.RecordID); }))
        return false;
    SessionState.ReloadCalendar = true;
    LoadRecords();
    return true;
}

std::optional<Fault> frmUnit::Validate(UnitRow& unit)
{
    return ValidateRecord(datAbsence, kind_, unit);
}

void frmUnit::Finish(EditingMode mode)
{
    if (mode == EditingMode::Deactivating && CountActiveEmployees(datAbsence, kind_, record_.RecordID) != 0)
        return Tell(T("OPERATION NOT ALLOWED:", "OPÉRATION REFUSÉE:"),
                    T(kind_.Texts.StillEmployed, {{"name", ShownName(record_)}}), Face::Warning);
    EditingForm::Finish(mode);
}

bool frmUnit::Confirm(EditingMode mode, const UnitRow& unit)
{
    if (mode == EditingMode::Deactivating)
        return ConfirmDeactivation();
    if (mode == EditingMode::Adding)
        return ConfirmEntry(kind_.Texts.AddQuestion, unit);
    return ConfirmEntry(
               {"Record the following modifications?", "Souhaitez-vous sauvegarder les modifications suivantes:"},
               unit) &&
           ConfirmMove(unit);
}

bool frmUnit::ConfirmEntry(const Text& question, const UnitRow& unit) const
{
    const QString names = T(kind_.Texts.Names, {{"english", unit.EnglishName}, {"french", unit.FrenchName}});
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T(question) + "\r\n\r\n" + names);
}

bool frmUnit::ConfirmMove(const UnitRow& unit) const
{
    return ParentOf(kind_, unit) == ParentOf(kind_, record_) ||
           Ask(T("WARNING:", "AVERTISSEMENT:"),
               T(kind_.Texts.MoveQuestion, {{"name", ShownName(unit)}, {"parent", ChosenText(lstParents)}}),
               Face::Warning);
}

bool frmUnit::ConfirmDeactivation() const
{
    return Ask(T("WARNING:", "MISE EN GARDE:"), T(kind_.Texts.DeactivateQuestion, {{"name", ShownName(record_)}}),
               Face::Warning);
}

void frmUnit::Write(EditingMode mode, const UnitRow& unit)
{
    if (mode == EditingMode::Adding)
        AddUnit(datAbsence, kind_, unit);
    else if (mode == EditingMode::Modifying)
        ModifyUnit(datAbsence, kind_, record_, unit);
    else
        DeactivateUnit(datAbsence, kind_, unit.RecordID);
}

void frmUnit::TellDone(EditingMode mode, const UnitRow& /*unit*/)
{
    const Text done[] = {{},
                         kind_.Texts.Added,
                         {"All modifications have been recorded.", "Toutes les modifications ont été enregistrées."},
                         kind_.Texts.Deactivated};
    Tell(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), T(done[static_cast<int>(mode)]), Face::Congratulating);
}
