#pragma once

#include <QStyledItemDelegate>

/// List entries with a remark set off in grey at the right edge; the text itself is elided before it would touch the
/// remark. What remark an entry has is told by `remarkOf`, and what stands before it by `textOf`.
class RemarkDelegate : public QStyledItemDelegate
{
public:
    using Part = QString (*)(const QModelIndex&);

    RemarkDelegate(Part textOf, Part remarkOf, QObject* parent);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

private:
    const Part textOf_;
    const Part remarkOf_;
};
