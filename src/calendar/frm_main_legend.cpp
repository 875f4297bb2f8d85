#include "calendar/frm_main_legend.h"

#include "calendar/year_calendar.h"
#include "foundation/frm_captions.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace
{
constexpr int kShiftStep = 160;
constexpr int kRowHeight = 30;

/// A label on its colour, its text dark or light, whichever is easier to read there.
QString LabelStyle(int colorCode)
{
    const QColor color = ColorOfCode(colorCode);
    const bool dark = qGray(color.rgb()) < 110;
    return QStringLiteral("background: %1; color: %2; border: 1px solid %3; border-radius: 3px; padding: 3px 12px;")
        .arg(color.name(), dark ? QStringLiteral("white") : Paper::kHeadText.name(), color.darker(115).name());
}

QLabel* ColorLabel(const QString& name, int colorCode, const Text& text)
{
    auto* label = MakeLabel(name, text);
    label->setStyleSheet(LabelStyle(colorCode));
    return label;
}

} // namespace

LegendPane::LegendPane(QWidget* parent) : QFrame(parent)
{
    setObjectName("fraLegendCard");
    setProperty("look", "card");
    fraLegend = Named<QFrame>("fraLegend");
    fraLegend->setFixedHeight(kRowHeight);
    row_ = new QWidget(fraLegend);
    auto* labels = new QHBoxLayout(row_);
    labels->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < kMostLabels; ++index) {
        auto* label = Named<QPushButton>(ArrayName("lblLegend", index));
        label->setFlat(true);
        label->setCursor(Qt::PointingHandCursor);
        label->hide();
        connect(label, &QPushButton::clicked, this, [this, index] { CategoryClicked(items_[index].RecordID); });
        labels->addWidget(label);
        lblLegend.push_back(label);
    }
    cmdPreviousCategories =
        MakeArrow("cmdPreviousCategories", "shift-left", {"Previous categories", "Catégories précédentes"});
    cmdNextCategories = MakeArrow("cmdNextCategories", "shift-right", {"Next categories", "Catégories suivantes"});
    connect(cmdPreviousCategories, &QPushButton::clicked, this, [this] { Shift(-1); });
    connect(cmdNextCategories, &QPushButton::clicked, this, [this] { Shift(1); });

    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(10, 5, 10, 5);
    all->addWidget(cmdPreviousCategories);
    all->addWidget(fraLegend, 1);
    all->addWidget(cmdNextCategories);
    all->addSpacing(12);
    all->addWidget(ColorLabel("lblTimeBank", CalendarColor::TimeBank, {"Time bank", "Banque de temps"}));
    all->addWidget(
        ColorLabel("lblMultiple", CalendarColor::SeveralCategories, {"Several categories", "Plusieurs catégories"}));
}

void LegendPane::Show(const QVector<LegendItem>& items)
{
    items_ = items.mid(0, kMostLabels);
    for (int index = 0; index < kMostLabels; ++index)
        lblLegend[index]->setVisible(index < items_.size());
    for (int index = 0; index < items_.size(); ++index) {
        const LegendItem& item = items_[index];
        lblLegend[index]->setText(QString(item.Text).replace("&", "&&"));
        lblLegend[index]->setToolTip(T("Show this category alone", "Afficher cette catégorie seulement"));
        lblLegend[index]->setStyleSheet(LabelStyle(item.Color > 0 ? item.Color : CalendarColor::NoColor));
    }
    offset_ = 0;
    row_->layout()->activate();
    EnableShifting();
}

QString LegendPane::NameOf(int categoryID) const
{
    const auto is = [categoryID](const LegendItem& item) { return item.RecordID == categoryID; };
    const auto found = std::find_if(items_.begin(), items_.end(), is);
    return found == items_.end() ? QString() : found->Name;
}

void LegendPane::SetUsable(bool usable)
{
    row_->setEnabled(usable);
}

int LegendPane::RoomBeyond() const
{
    return std::max(0, row_->sizeHint().width() - fraLegend->width());
}

void LegendPane::Shift(int direction)
{
    offset_ += direction * kShiftStep;
    EnableShifting();
}

/// The row stays within the frame's edges; a button is enabled only while labels lie beyond its edge.
void LegendPane::EnableShifting()
{
    offset_ = std::clamp(offset_, 0, RoomBeyond());
    row_->resize(row_->sizeHint().width(), kRowHeight);
    row_->move(-offset_, 0);
    cmdPreviousCategories->setEnabled(offset_ > 0);
    cmdNextCategories->setEnabled(offset_ < RoomBeyond());
}

void LegendPane::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    EnableShifting();
}
