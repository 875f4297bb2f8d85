#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// What a cell may show besides its text.
struct FlexNote
{
    QString Corner;        ///< small, at the upper right
    QString Lead;          ///< at the left; the text then is a sign at the right
    bool Triangle = false; ///< at the lower right
    bool Line = false;     ///< below the text
};

/// What a cell of a flex grid shows.
struct FlexCell
{
    QString Text;
    int Back = -1; ///< 0xBBGGRR, -1 the grid's own
    int Fore = -1;
    Qt::Alignment Alignment; ///< none: that of the column
    bool Bold = false;
    bool Lines = true;
    std::shared_ptr<const FlexNote> Note = nullptr; ///< null for none
};

/// The cells of a flex grid. During a silent time, changes are told to the view all at once at its end.
class FlexCells : public QAbstractTableModel
{
public:
    explicit FlexCells(QObject* parent) : QAbstractTableModel(parent) {}

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    int Rows() const { return static_cast<int>(rows_.size()); }
    int Cols() const { return cols_; }
    void Resize(int rows, int cols);
    int Append(const QStringList& texts);
    void Remove(int row, int count);

    /// nullptr outside the grid.
    const FlexCell* At(int row, int col) const;
    FlexCell* At(int row, int col);
    void Changed(int row, int col);
    int RowData(int row) const;
    void SetRowData(int row, int value);
    Qt::Alignment AlignmentOf(const FlexCell& cell, int col) const;
    void SetColAlignment(int col, Qt::Alignment alignment);

    /// What hover text and screen readers say of a cell, a line each; its text where that is empty.
    std::function<QStringList(int row, int col)> Hints;

    void SetSilent(bool silent);
    /// Tells the view of rows that were added during a silent time.
    void ShowRows();
    int ShownRows() const { return shownRows_; }

private:
    struct Line
    {
        std::vector<FlexCell> Cells;
        int Data = 0;
    };

    std::vector<Line> rows_;
    std::vector<Qt::Alignment> colAlignments_;
    int cols_ = 0;
    int shownRows_ = 0; ///< what the view knows of
    bool silent_ = false;
};
