#include "platform/controls/flex_cells.h"

#include <algorithm>

int FlexCells::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : shownRows_;
}

int FlexCells::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : cols_;
}

QVariant FlexCells::data(const QModelIndex& index, int role) const
{
    const FlexCell* cell = At(index.row(), index.column());
    if (!cell || (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
        return {};
    const QStringList hints =
        role == Qt::AccessibleTextRole && Hints ? Hints(index.row(), index.column()) : QStringList();
    return hints.isEmpty() ? cell->Text : hints.join(", ");
}

/// Titles and separators, the cells without lines, are nothing to pick.
Qt::ItemFlags FlexCells::flags(const QModelIndex& index) const
{
    const FlexCell* cell = At(index.row(), index.column());
    return cell && cell->Lines ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

/// Screen readers name a column by its text in the first row.
QVariant FlexCells::headerData(int section, Qt::Orientation orientation, int role) const
{
    const FlexCell* cell = orientation == Qt::Horizontal ? At(0, section) : At(section, 0);
    return cell && role == Qt::DisplayRole ? QVariant(cell->Text) : QVariant();
}

void FlexCells::Resize(int rows, int cols)
{
    beginResetModel();
    cols_ = cols;
    rows_.resize(static_cast<std::size_t>(rows));
    for (Line& line : rows_)
        line.Cells.resize(static_cast<std::size_t>(cols));
    colAlignments_.resize(static_cast<std::size_t>(cols), Qt::AlignLeft | Qt::AlignVCenter);
    shownRows_ = rows;
    endResetModel();
}

int FlexCells::Append(const QStringList& texts)
{
    Line line;
    line.Cells.resize(static_cast<std::size_t>(cols_));
    for (int col = 0; col < std::min<int>(cols_, texts.size()); ++col)
        line.Cells[static_cast<std::size_t>(col)].Text = texts[col];
    rows_.push_back(std::move(line));
    if (!silent_)
        ShowRows();
    return Rows() - 1;
}

void FlexCells::Remove(int row, int count)
{
    if (row < 0 || count <= 0 || row + count > Rows())
        return;
    ShowRows();
    beginRemoveRows({}, row, row + count - 1);
    rows_.erase(rows_.begin() + row, rows_.begin() + row + count);
    shownRows_ = Rows();
    endRemoveRows();
}

const FlexCell* FlexCells::At(int row, int col) const
{
    if (row < 0 || col < 0 || row >= Rows() || col >= cols_)
        return nullptr;
    return &rows_[static_cast<std::size_t>(row)].Cells[static_cast<std::size_t>(col)];
}

FlexCell* FlexCells::At(int row, int col)
{
    return const_cast<FlexCell*>(std::as_const(*this).At(row, col));
}

void FlexCells::Changed(int row, int col)
{
    if (!silent_)
        emit dataChanged(index(row, col), index(row, col));
}

int FlexCells::RowData(int row) const
{
    return row >= 0 && row < Rows() ? rows_[static_cast<std::size_t>(row)].Data : 0;
}

void FlexCells::SetRowData(int row, int value)
{
    if (row >= 0 && row < Rows())
        rows_[static_cast<std::size_t>(row)].Data = value;
}

Qt::Alignment FlexCells::AlignmentOf(const FlexCell& cell, int col) const
{
    return cell.Alignment ? cell.Alignment : colAlignments_[static_cast<std::size_t>(col)];
}

void FlexCells::SetColAlignment(int col, Qt::Alignment alignment)
{
    if (col < 0 || col >= cols_)
        return;
    colAlignments_[static_cast<std::size_t>(col)] = alignment;
    if (!silent_ && shownRows_ > 0)
        emit dataChanged(index(0, col), index(shownRows_ - 1, col));
}

void FlexCells::SetSilent(bool silent)
{
    silent_ = silent;
    if (!silent)
        ShowRows();
}

void FlexCells::ShowRows()
{
    if (shownRows_ == Rows())
        return;
    beginInsertRows({}, shownRows_, Rows() - 1);
    shownRows_ = Rows();
    endInsertRows();
}
