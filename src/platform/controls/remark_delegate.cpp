#include "platform/controls/remark_delegate.h"

#include "platform/controls/theme.h"

#include <QPainter>

namespace
{
constexpr int kRemarkGap = 9;
}

RemarkDelegate::RemarkDelegate(Part textOf, Part remarkOf, QObject* parent)
    : QStyledItemDelegate(parent), textOf_(textOf), remarkOf_(remarkOf)
{}

void RemarkDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyledItemDelegate::paint(painter, option, index);
    const bool selected = option.state.testFlag(QStyle::State_Selected);
    painter->save();
    painter->setPen(selected ? option.palette.highlightedText().color() : ThemeColor("caption"));
    painter->drawText(option.rect.adjusted(0, 0, -kRemarkGap, 0), Qt::AlignRight | Qt::AlignVCenter, remarkOf_(index));
    painter->restore();
}

void RemarkDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const int remark = option->fontMetrics.horizontalAdvance(remarkOf_(index));
    const int room = option->rect.width() - remark - 3 * kRemarkGap;
    const QString text = textOf_(index);
    option->text = room > 0 ? option->fontMetrics.elidedText(text, Qt::ElideRight, room) : text;
}
