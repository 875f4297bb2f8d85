#include "platform/controls/flex_painting.h"

#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"
#include "platform/ink.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QToolTip>

namespace
{
constexpr int kPadding = 4;
constexpr int kCornerMargin = 3;
constexpr double kCornerShare = 0.7; ///< of the font that the cell has

void SetBold(QPainter& painter, bool bold)
{
    if (painter.font().bold() == bold)
        return;
    QFont font = painter.font();
    font.setBold(bold);
    painter.setFont(font);
}

void PaintPlate(QPainter& painter, const QRect& text, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(text.adjusted(-3, 0, 3, 0), 3, 3);
    painter.restore();
}

void PaintText(QPainter& painter, const QRect& rect, const QString& text, Qt::Alignment alignment, const Ink& ink)
{
    if (text.isEmpty())
        return;
    const QRect inside = rect.adjusted(kPadding, 0, -kPadding, 0);
    if (ink.Plate.isValid())
        PaintPlate(painter, painter.fontMetrics().boundingRect(inside, static_cast<int>(alignment), text) & inside,
                   ink.Plate);
    painter.setPen(ink.Fill);
    painter.drawText(inside, static_cast<int>(alignment), text);
}

QFont CornerFont(QFont font)
{
    font.setBold(false);
    font.setPointSizeF(kCornerShare * font.pointSizeF());
    return font;
}

/// As much of the corner's text as there is room for beside a number: all of it, or its first letter.
QString FittingCorner(const QPainter& painter, const QRect& rect, const QString& text)
{
    const QFontMetrics small(CornerFont(painter.font()));
    const int room = rect.width() - painter.fontMetrics().horizontalAdvance("00") - 2 * kPadding;
    return small.horizontalAdvance(text) <= room ? text : text.contains('+') ? QStringLiteral("+") : text.left(1);
}

void PaintCorner(QPainter& painter, const QRect& rect, const QString& text, const QColor& color)
{
    painter.save();
    painter.setFont(CornerFont(painter.font()));
    painter.setPen(color);
    painter.drawText(rect.adjusted(0, 1, -kCornerMargin, 0), Qt::AlignRight | Qt::AlignTop, text);
    painter.restore();
}

/// At the foot, away from the letters in the corner.
void PaintTriangle(QPainter& painter, const QRect& rect, const QColor& color)
{
    const int side = std::max(6, rect.height() * 2 / 5);
    const QPoint corner = rect.bottomLeft() + QPoint(1, -1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(QPolygon({corner, corner + QPoint(side, 0), corner - QPoint(0, side)}));
    painter.restore();
}

/// What a note leaves of the cell for its text.
QRect PaintNote(QPainter& painter, const QRect& rect, const FlexNote& note, const Ink& ink, const QColor& back)
{
    const QColor small = ReadableInk(Qt::black, back).Fill;
    if (note.Line)
        painter.fillRect(QRect(rect.center().x() - rect.width() / 5, rect.bottom() - 2, 2 * rect.width() / 5, 2),
                         small);
    if (note.Triangle)
        PaintTriangle(painter, rect, small);
    PaintText(painter, rect.adjusted(-kPadding / 2, 0, 0, 0), note.Lead, Qt::AlignLeft | Qt::AlignVCenter, ink);
    if (note.Corner.isEmpty() || !note.Lead.isEmpty())
        return rect;
    const QString corner = FittingCorner(painter, rect, note.Corner);
    PaintCorner(painter, rect, corner, small);
    const int taken = QFontMetrics(CornerFont(painter.font())).horizontalAdvance(corner) + kCornerMargin;
    return rect.adjusted(0, 0, -std::min(taken, rect.width() / 3), 0);
}

/// Beside a number; on a plate, or a letter would pass for a code.
void PaintSign(QPainter& painter, const QRect& rect, const QString& sign)
{
    painter.save();
    painter.setFont(CornerFont(painter.font()));
    PaintText(painter, rect.adjusted(0, 0, 1, 0), sign, Qt::AlignRight | Qt::AlignVCenter,
              {Qt::white, Paper::kRangeRing});
    painter.restore();
}

/// A cell in whole pixels of the screen, also where a pixel of the program is one and a quarter of them: neighbours
/// share their edge, and lines lie on it.
class CellPixels
{
public:
    CellPixels(QPainter& painter, const QRect& cell)
        : painter_(painter), line_(std::max(1, static_cast<int>(painter.deviceTransform().m11()))),
          cell_(CornerOf(cell.topLeft()), CornerOf(cell.bottomRight() + QPoint(1, 1)) - QPoint(1, 1))
    {}

    void Fill(const QColor& color) const { Fill(cell_, color); }

    /// Lines stand at the right and the foot of a cell, inside it.
    void PaintLines(bool left, bool top) const
    {
        const QSize upright(line_, cell_.height()), flat(cell_.width(), line_);
        Fill({cell_.topRight() - QPoint(line_ - 1, 0), upright}, Paper::kLine);
        Fill({cell_.bottomLeft() - QPoint(0, line_ - 1), flat}, Paper::kLine);
        if (left)
            Fill({cell_.topLeft(), upright}, Paper::kLine);
        if (top)
            Fill({cell_.topLeft(), flat}, Paper::kLine);
    }

    /// The cell with the focus: two rings inside the lines, of which one stands out on any colour.
    void PaintRing() const
    {
        const QRect inside = cell_.adjusted(0, 0, -line_, -line_);
        const int ring = qRound(2 * painter_.deviceTransform().m11());
        PaintFrame(inside, ring, Paper::kRing);
        PaintFrame(inside.marginsRemoved(QMargins() + ring), line_, Qt::white);
    }

private:
    QPoint CornerOf(const QPoint& point) const { return painter_.deviceTransform().map(QPointF(point)).toPoint(); }

    void Fill(const QRect& pixels, const QColor& color) const
    {
        painter_.fillRect(painter_.deviceTransform().inverted().mapRect(QRectF(pixels)), color);
    }

    void PaintFrame(const QRect& around, int width, const QColor& color) const
    {
        for (const QRect& side : QRegion(around) - around.marginsRemoved(QMargins() + width))
            Fill(side, color);
    }

    QPainter& painter_;
    int line_;
    QRect cell_;
};

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
    const CellPixels pixels(painter, rect);
    pixels.Fill(ColorOr(cell.Back, Paper::kHeadBack));
    if (cell.Lines)
        pixels.PaintLines(false, false);
    SetBold(painter, true);
    PaintText(painter, rect, cell.Text, alignment, {ColorOr(cell.Fore, Paper::kHeadText), {}});
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
    const QColor back = ColorOr(cell.Back, tinted ? Paper::kTint : Qt::white);
    const CellPixels pixels(*painter, rect);
    if (cell.Back >= 0 || tinted || option.state & QStyle::State_Selected)
        pixels.Fill(back); // also over the toolkit's colour of what is chosen
    if (cell.Lines) {
        const bool outside = !grid_->bordered_;
        pixels.PaintLines(!HasLines(cells.At(row, col - 1), outside), !HasLines(cells.At(row - 1, col), outside));
    }
    if (!grid_->rowSelection_ && grid_->hasFocus() && index == grid_->currentIndex())
        pixels.PaintRing(); // below the text: in a low row it would cut it
    const Ink ink = ReadableInk(ColorOr(cell.Fore, Paper::kText), back);
    SetBold(*painter, cell.Bold);
    const QRect room = cell.Note ? PaintNote(*painter, rect, *cell.Note, ink, back) : rect;
    if (cell.Note && !cell.Note->Lead.isEmpty())
        PaintSign(*painter, room, cell.Text.trimmed());
    else
        PaintText(*painter, room, cell.Text, cells.AlignmentOf(cell, col), ink);
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
    const FlexCells& cells = *grid_->cells_;
    const QStringList hints = cells.Hints ? cells.Hints(index.row(), index.column()) : QStringList();
    const QString tip = !hints.isEmpty() ? hints.join('\n') : cut ? cell->Text : QString();
    QToolTip::showText(event->globalPos(), tip, view);
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
    painter.fillRect(event->rect(), Paper::kHeadBack);
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
