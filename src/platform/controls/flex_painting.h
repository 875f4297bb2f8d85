#pragma once

#include "platform/controls/flex_cells.h"

#include <QHeaderView>
#include <QStyledItemDelegate>

class FlexGrid;

/// Paints the cells of a flex grid in their own colours, and shows the whole text of a cell too narrow for it.
class FlexDelegate : public QStyledItemDelegate
{
public:
    explicit FlexDelegate(FlexGrid* grid);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    FlexGrid* grid_;
};

/// The fixed rows above the scrolled cells of a flex grid.
class FlexHeads : public QHeaderView
{
public:
    explicit FlexHeads(FlexGrid* grid);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void PaintRow(QPainter& painter, int row, int top, int height) const;

    FlexGrid* grid_;
};
