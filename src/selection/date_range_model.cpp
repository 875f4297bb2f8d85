#include "selection/date_range_model.h"

#include "foundation/texts.h"

#include <algorithm>

namespace
{
constexpr int kHowMatched = 0x0F; // of the toolkit's flags

QString Plain(const QString& date)
{
    return date.toLower().replace(' ', '-').remove('.');
}

bool Reads(const QString& date, const QString& typed)
{
    const QString day = date.section('-', 1);
    return date.startsWith(typed) || day.startsWith(typed) || (day.startsWith('0') && day.mid(1).startsWith(typed));
}
} // namespace

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

QModelIndexList DateRangeModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                      Qt::MatchFlags flags) const
{
    if (role != Qt::DisplayRole || (flags.toInt() & kHowMatched) != Qt::MatchStartsWith)
        return QAbstractListModel::match(start, role, value, hits, flags);
    QModelIndexList found;
    const QString typed = Plain(value.toString());
    const int rows = flags.testFlag(Qt::MatchWrap) ? count_ : count_ - start.row();
    for (int passed = 0; passed < rows && (hits < 0 || found.size() < hits); ++passed)
        if (const QModelIndex entry = index((start.row() + passed) % count_);
            Reads(Plain(entry.data().toString()), typed))
            found << entry;
    return found;
}
