#include "reference/frm_unit_pages.h"

#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"
#include "reference/unit_records.h"

#include <QGridLayout>
#include <QListWidget>

namespace
{
constexpr int kListHeight = 130;
constexpr int kFieldGap = 14;

/// Where an address field stands in a raster of six columns.
struct Place
{
    int Row;
    int Column;
    int Span;
};
constexpr std::array<Place, kAddressLines> kPlaces = {
    {{0, 0, 3}, {0, 3, 3}, {1, 0, 1}, {1, 1, 2}, {1, 3, 3}, {2, 0, 3}, {2, 3, 3}}};
} // namespace

UnitAddressPage::UnitAddressPage()
{
    auto* raster = Raster();
    raster->setContentsMargins(0, 0, 0, 0);
    raster->setSpacing(kFieldGap);
    for (int column = 0; column < 6; ++column)
        raster->setColumnStretch(column, 1);
    for (int line = 0; line < kAddressLines; ++line) {
        labels_[line] = new QLabel(this);
        fields_[line] = Named<QLineEdit>(kAddressFields[line].Control);
        fields_[line]->setMaxLength(kAddressFields[line].Limit);
        FilterKeys(fields_[line], KeyFilter::FreeText);
        const auto& [row, column, span] = kPlaces[line];
        raster->addLayout(Captioned(labels_[line], fields_[line]), row, column, 1, span);
    }
    raster->setRowStretch(3, 1);
    setLayout(raster);
    QLineEdit* txtZipCode = fields_.back();
    connect(txtZipCode, &QLineEdit::editingFinished, this,
            [txtZipCode] { txtZipCode->setText(txtZipCode->text().toUpper()); });
}

void UnitAddressPage::LoadCaptions()
{
    for (int line = 0; line < kAddressLines; ++line)
        labels_[line]->setText(T(kAddressFields[line].Label));
}

void UnitAddressPage::Show(DataControl& /*datAbsence*/, const UnitEntry& unit)
{
    for (int line = 0; line < kAddressLines; ++line)
        fields_[line]->setText(unit.Address[line]);
}

/// The zip code may not have been left yet: a mnemonic presses a button without moving the focus.
void UnitAddressPage::Read(UnitEntry& unit) const
{
    for (int line = 0; line < kAddressLines; ++line)
        unit.Address[line] = fields_[line]->text();
    unit.Address.back() = unit.Address.back().toUpper();
}

UnitParentPage::UnitParentPage(const UnitKind& kind) : kind_(kind)
{
    lblParent = new QLabel(this);
    lstParents = Named<QListWidget>(kind.ParentList);
    lstParents->setFixedHeight(kListHeight);
    auto* column = Captioned(lblParent, lstParents);
    column->setContentsMargins(0, 0, 0, 0);
    setLayout(column);
}

void UnitParentPage::LoadCaptions()
{
    lblParent->setText(T(kind_.Texts.ParentLabel));
    lstParents->setAccessibleName(lblParent->text());
}

void UnitParentPage::Show(DataControl& datAbsence, const UnitEntry& unit)
{
    lstParents->clear();
    for (const UnitItem& parent : LoadParentItems(datAbsence, kind_, unit.ParentID)) {
        auto* item = new QListWidgetItem(parent.Name, lstParents);
        item->setData(Qt::UserRole, parent.RecordID);
        if (parent.RecordID == unit.ParentID)
            lstParents->setCurrentItem(item);
    }
}

/// Nothing is chosen while nothing is marked: a list that takes the focus makes its first entry current unmarked.
void UnitParentPage::Read(UnitEntry& unit) const
{
    const auto marked = lstParents->selectedItems();
    unit.ParentID = marked.isEmpty() ? 0 : marked.first()->data(Qt::UserRole).toInt();
}

QString UnitParentPage::ChosenParent() const
{
    const auto marked = lstParents->selectedItems();
    return marked.isEmpty() ? QString() : marked.first()->text();
}
