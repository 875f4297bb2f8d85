#include "platform/controls/flex_painting.h"

#include "platform/controls/flex_grid.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

namespace
{
constexpr int kPadding = 4;
const QColor kLine(0xd9, 0xde, 0xe7);
const QColor kText(0x1b, 0x23, 0x30);
const QColor kHeadText(0x14, 0x21, 0x3d);
const QColor kHeadBack(0xee, 0xf1, 0xf5);
const QColor kTint(0xe3, 0xec, 0xfb);
const QColor kRing(0x2f, 0x6f, 0xde);

void PaintText(QPainter& painter, const QRect& rect, const QString& text, bool bold, Qt::Alignment alignment)
{
    if (text.isEmpty())
        return;
    if (painter.font().bold() != bold) {
        QFont font = painter.font();
        font.setBold(bold);
        painter.setFont(font);
    }
    painter.drawText(rect.adjusted(kPadding, 0, -kPadding, 0), static_cast<int>(alignment), text);
}

/// Lines stand at the right and the foot of a cell, inside it.
void PaintLines(QPainter& painter, const QRect& rect, bool left, bool top)
{
    painter.setPen(kLine);
    painter.drawLine(rect.topRight(), rect.bottomRight());
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    if (left)
        painter.drawLine(rect.topLeft(), rect.bottomLeft());
    if (top)
        painter.drawLine(rect.topLeft(), rect.topRight());
}

bool HasLines(const FlexCell* cell, bool outside)
{
    return cell ? cell->Lines : !outside;
}

QColor ColorOr(int code, const QColor& own)
{
    return code < 0 ? own : ColorOfCode(code);
}

void PaintHead(QPainter& painter, const QRect& rect, const FlexCell& cell, Qt::Alignment alignment)
{
    painter.fillRect(rect, ColorOr(cell.Back, kHeadBack));
    if (cell.Lines)
        PaintLines(painter, rect, false, false);
    painter.setPen(ColorOr(cell.Fore, kHeadText));
    PaintText(painter, rect, cell.Text, true, alignment);
}
} // namespace

FlexDelegate::FlexDelegate(FlexGrid* grid) : QStyledItemDelegate(grid), grid_(grid) {}

void FlexDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const int row = index.row(), col = index.column();
    const FlexCells& cells = *grid_->cells_;
    const FlexCell& cell = *cells.At(row, col);
    const bool tinted = grid_->rowSelection_ && row == grid_->currentIndex().row();
    const QRect& rect = option.rect;
    if (cell.Back >= 0 || tinted)
        painter->fillRect(rect, ColorOr(cell.Back, kTint));
    if (cell.Lines) {
        const bool outside = !grid_->bordered_;
        PaintLines(*painter, rect, !HasLines(cells.At(row, col - 1), outside),
                   !HasLines(cells.At(row - 1, col), outside));
    }
    painter->setPen(ColorOr(cell.Fore, kText));
    PaintText(*painter, rect, cell.Text, cell.Bold, cells.AlignmentOf(cell, col));
    if (!grid_->rowSelection_ && grid_->hasFocus() && index == grid_->currentIndex()) {
        painter->setPen(QPen(kRing, 2));
        painter->drawRect(rect.adjusted(1, 1, -2, -2));
    }
}

bool FlexDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                             const QModelIndex& index)
{
    const FlexCell* cell = grid_->cells_->At(index.row(), index.column());
    if (event->type() != QEvent::ToolTip || !cell || !view->toolTip().isEmpty())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QSize needed = option.fontMetrics.size(0, cell->Text);
    const QRect rect = view->visualRect(index);
    const bool cut = needed.width() > rect.width() - 2 * kPadding || needed.height() > rect.height();
    QToolTip::showText(event->globalPos(), cut ? cell->Text : QString(), view);
    return true;
}

FlexHeads::FlexHeads(FlexGrid* grid) : QHeaderView(Qt::Horizontal, grid), grid_(grid)
{
    setMinimumSectionSize(0);
    setHighlightSections(false);
    setSectionResizeMode(QHeaderView::Interactive);
}

QSize FlexHeads::sizeHint() const
{
    return {0, grid_->HeadsHeight()};
}

void FlexHeads::paintEvent(QPaintEvent* event)
{
    QPainter painter(viewport());
    painter.fillRect(event->rect(), kHeadBack);
    int top = 0;
    for (int row = 0; row < grid_->fixedRows_; ++row) {
        PaintRow(painter, row, top, grid_->HeadHeight(row));
        top += grid_->HeadHeight(row);
    }
}

void FlexHeads::PaintRow(QPainter& painter, int row, int top, int height) const
{
    for (int col = 0; col < grid_->cells_->Cols();) {
        const int span = grid_->columnSpan(row, col);
        int width = 0;
        for (int part = col; part < col + span; ++part)
            width += sectionSize(part);
        const QRect rect(sectionViewportPosition(col), top, width, height);
        const FlexCell& cell = *grid_->cells_->At(row, col);
        if (width > 0)
            PaintHead(painter, rect, cell, grid_->cells_->AlignmentOf(cell, col));
        col += span;
    }
}
