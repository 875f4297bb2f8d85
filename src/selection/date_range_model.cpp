#include "selection/date_range_model.h"

#include "foundation/texts.h"
#include "platform/clock.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>

namespace
{
constexpr char kShownDate[] = "ddd dd-mmm-yyyy";

QString Plain(const QString& date)
{
    static const QRegularExpression kAccentOrPoint("[\\p{Mn}.]");
    return date.normalized(QString::NormalizationForm_D).toLower().replace(' ', '-').remove(kAccentOrPoint);
}

/// How people of either language write a day, whatever that of the system.
QStringList Written(int date)
{
    const auto in = [date](QLocale::Language language) {
        return Plain(QLocale(language).toString(DateOfSerial(date), "dd-MMMM-yyyy"));
    };
    const QString shown = Plain(FormatDate(date, kShownDate));
    return {shown, shown.section('-', 1), in(QLocale::English), in(QLocale::French)};
}

bool Reads(int date, const QString& typed)
{
    const QStringList days = Written(date);
    return std::any_of(days.begin(), days.end(), [&typed](const QString& day) {
        return day.startsWith(typed) || (day.startsWith('0') && day.mid(1).startsWith(typed));
    });
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
        return FormatDate(date, kShownDate);
    return role == Qt::UserRole ? date : QVariant();
}

QModelIndexList DateRangeModel::match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                      Qt::MatchFlags flags) const
{
    if (role != Qt::DisplayRole || (flags & Qt::MatchTypeMask) != Qt::MatchStartsWith)
        return QAbstractListModel::match(start, role, value, hits, flags);
    QModelIndexList found;
    const QString typed = Plain(value.toString());
    const int rows = flags.testFlag(Qt::MatchWrap) ? count_ : count_ - start.row();
    for (int passed = 0; passed < rows && (hits < 0 || found.size() < hits); ++passed)
        if (const QModelIndex entry = index((start.row() + passed) % count_);
            Reads(entry.data(Qt::UserRole).toInt(), typed))
            found << entry;
    return found;
}
