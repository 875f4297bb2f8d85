#include "reference/frm_select_color.h"

#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"
#include "reference/category_colors.h"

#include <QButtonGroup>
#include <QPainter>

#include <algorithm>

namespace
{
constexpr QSize kSwatchSize(52, 40);
constexpr int kSwatchGap = 6;
constexpr int kSwatchRounding = 5;

/// A colour as the calendar shows it, with the number of a day.
class ColorSwatch : public QAbstractButton
{
public:
    explicit ColorSwatch(int position) : position_(position)
    {
        setObjectName(ArrayName("lblColor", position));
        setCheckable(true);
        setFixedSize(kSwatchSize);
        setCursor(Qt::PointingHandCursor);
        FollowLanguage(this, [this] {
            setAccessibleName(ColorName(position_));
            setToolTip(ColorName(position_));
        });
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor color = ColorOfCode(kCategoryColors[static_cast<std::size_t>(position_)]);
        const QColor frame = ThemeColor(hasFocus() ? "accent" : "head");
        painter.setPen(isChecked() || hasFocus() ? QPen(frame, 3) : QPen(color.darker(115)));
        painter.setBrush(color);
        painter.drawRoundedRect(QRectF(rect()).adjusted(2, 2, -2, -2), kSwatchRounding, kSwatchRounding);
        painter.setPen(Qt::black);
        painter.drawText(rect(), Qt::AlignCenter, (isChecked() ? "✓ " : "") + QString::number(position_ + 1));
    }

    /// The arrows mark the colour that they reach.
    void keyPressEvent(QKeyEvent* event) override
    {
        QAbstractButton::keyPressEvent(event);
        if (auto* reached = dynamic_cast<ColorSwatch*>(window()->focusWidget()); reached && reached != this)
            reached->setChecked(true);
    }

private:
    const int position_;
};
} // namespace

frmSelectColor::frmSelectColor(int color, const QString& name, QWidget* parent)
    : FormBase("frmSelectColor", parent), color_(color)
{
    SetTitle(this, {"Color selection", "Choix d'une couleur"});
    auto* lblInstructions = WrappedLabel("lblInstructions");
    lblInstructions->setText(
        T({"Select the color you wish to assign to the category «{name}» from the following color palette.",
           "Sélectionnez la couleur que vous souhaitez assigner à la catégorie «{name}» parmi les choix suivants."},
          {{"name", name}}));
    Page()->addWidget(lblInstructions);
    Page()->addWidget(Palette());
    LayFoot({AddWayOut(), AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { accept(); })});
    if (QAbstractButton* marked = swatches_->checkedButton())
        marked->setFocus();
}

/// Clicking a colour marks it; the arrows move from one to the next.
QWidget* frmSelectColor::Palette()
{
    swatches_ = new QButtonGroup(this);
    auto* grid = new QGridLayout;
    grid->setSpacing(kSwatchGap);
    for (int position = 0; position < static_cast<int>(kCategoryColors.size()); ++position) {
        auto* lblColor = new ColorSwatch(position);
        lblColor->setChecked(kCategoryColors[static_cast<std::size_t>(position)] == color_);
        swatches_->addButton(lblColor, position);
        grid->addWidget(lblColor, position / kColorTones, position % kColorTones);
    }
    return MakeCard(grid);
}

int frmSelectColor::Color() const
{
    const int marked = swatches_->checkedId();
    return marked < 0 ? color_ : kCategoryColors[static_cast<std::size_t>(marked)];
}
