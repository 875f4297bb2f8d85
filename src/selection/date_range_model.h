#pragma once

#include <QAbstractListModel>

/// The days of a range as the entries of a list: "ddd dd-mmm-yyyy", with the serial day in Qt::UserRole. A text is made
/// when it is shown.
class DateRangeModel : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    /// Serial days, both included; none when `to` precedes `from`.
    void SetRange(int from, int to);
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& entry, int role = Qt::DisplayRole) const override;
    /// What a person types is found with and without the weekday, the hyphens and the leading zero, in
    /// either language: "29 jun", "15 juin".
    QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                          Qt::MatchFlags flags) const override;

private:
    int from_ = 0;
    int count_ = 0;
};
