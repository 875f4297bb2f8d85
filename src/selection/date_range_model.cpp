#include "selection/date_range_model.h"

#include "foundation/texts.h"

#include <algorithm>

void DateRangeModel::SetRange(int from, int to)
{
    beginResetModel();
    from_ = from;
    count_ = std::max(to - from + 1, 0);
    endResetModel();
}

int DateRangeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count_;
}

QVariant DateRangeModel::data(const QModelIndex& entry, int role) const
{
    const int date = from_ + entry.row();
    if (role == Qt::DisplayRole)
        return FormatDate(date, "ddd dd-mmm-yyyy");
    return role == Qt::UserRole ? date : QVariant();
}
