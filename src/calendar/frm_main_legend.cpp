#include "calendar/frm_main_legend.h"

#include "calendar/frm_main_command_table.h"
#include "calendar/year_calendar.h"
#include "foundation/frm_captions.h"
#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"
#include "platform/ink.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace
{
constexpr int kRowHeight = 30; ///< at least

/// A label on its colour, its text dark or light, whichever is easier to read there.
QString LabelStyle(int colorCode)
{
    const QColor color = ColorOfCode(colorCode);
    return QStringLiteral(".QPushButton, .QLabel { background: %1; color: %2; border: 1px solid %3; border-radius: "
                          "3px; padding: 3px 12px; }"
                          ".QPushButton:focus { border: 2px solid %4; padding: 2px 11px; }")
        .arg(color.name(), ReadableInk(Qt::black, color).Fill.name(), color.darker(115).name(),
             ThemeColor("head").name());
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
    fraLegend->installEventFilter(this);
    row_ = new QWidget(fraLegend);
    auto* labels = new QHBoxLayout(row_);
    labels->setContentsMargins(0, 0, 0, 0);
    for (int index = 0; index < kMostLabels; ++index) {
        auto* label = Named<QPushButton>(ArrayName("lblLegend", index));
        label->setFlat(true);
        label->setCursor(Qt::PointingHandCursor);
        SetToolTip(label, {"Show this category alone", "Afficher cette catégorie seulement"});
        label->hide();
        connect(label, &QPushButton::clicked, this, [this, index] { CategoryClicked(items_[index].RecordID); });
        labels->addWidget(label);
        lblLegend.push_back(label);
    }
    cmdPreviousCategories =
        MakeArrow("cmdPreviousCategories", "shift-left", {"Previous categories", "Catégories précédentes"});
    cmdNextCategories = MakeArrow("cmdNextCategories", "shift-right", {"Next categories", "Catégories suivantes"});
    connect(cmdPreviousCategories, &QPushButton::clicked, this, &LegendPane::cmdPreviousCategories_Click);
    connect(cmdNextCategories, &QPushButton::clicked, this, &LegendPane::cmdNextCategories_Click);

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
    for (int index = 0; index < items_.size(); ++index) {
        const LegendItem& item = items_[index];
        const QString style = LabelStyle(item.Color > 0 ? item.Color : CalendarColor::NoColor);
        lblLegend[index]->setText(QString(item.Text).replace("&", "&&"));
        if (lblLegend[index]->styleSheet() != style) // or it is polished for nothing
            lblLegend[index]->setStyleSheet(style);
    }
    first_ = 0;
    ShowRow();
}

QString LegendPane::NameOf(int categoryID) const
{
    const auto is = [categoryID](const LegendItem& item) { return item.RecordID == categoryID; };
    const auto found = std::find_if(items_.begin(), items_.end(), is);
    return found == items_.end() ? QString() : found->Name;
}

void LegendPane::SetUsable(bool usable)
{
    for (QPushButton* label : lblLegend)
        EnableOrExplain(label, usable, kAnotherInProgress);
}

void LegendPane::cmdPreviousCategories_Click()
{
    const int end = first_;
    while (first_ > 0 && EndOfRow(first_ - 1) >= end)
        --first_;
    ShowRow();
}

void LegendPane::cmdNextCategories_Click()
{
    first_ = EndOfRow(first_);
    ShowRow();
}

/// Behind the last label that stands whole in a row that begins with `first`; one label always counts.
int LegendPane::EndOfRow(int first) const
{
    int end = first;
    for (int room = fraLegend->width(); end < items_.size(); ++end) {
        room -= lblLegend[end]->sizeHint().width();
        if (room < 0 && end > first)
            break;
        room -= row_->layout()->spacing();
    }
    return end;
}

/// The last labels never leave room for one before them. A button is enabled only while it leads to more of them.
void LegendPane::ShowRow()
{
    constexpr Text kAtStart = {"The first categories are shown", "Les premières catégories sont affichées"};
    constexpr Text kAtEnd = {"The last categories are shown", "Les dernières catégories sont affichées"};
    while (first_ > 0 && EndOfRow(first_ - 1) == items_.size())
        --first_;
    const int end = EndOfRow(first_);
    for (int index = 0; index < kMostLabels; ++index)
        lblLegend[index]->setVisible(index >= first_ && index < end);
    row_->layout()->activate();
    const QSize room = row_->sizeHint().expandedTo({0, kRowHeight});
    row_->resize(room);
    fraLegend->setFixedHeight(room.height());
    EnableOrExplain(cmdPreviousCategories, first_ > 0, kAtStart);
    EnableOrExplain(cmdNextCategories, end < items_.size(), kAtEnd);
}

/// The words beside the labels change with the language, and leave them more or less room.
bool LegendPane::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        ShowRow();
    return QFrame::eventFilter(target, event);
}
