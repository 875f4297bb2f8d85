#pragma once

#include "platform/controls/flex_cells.h"

#include <QColor>
#include <QHash>
#include <QTableView>

#include <functional>
#include <vector>

class FlexHeads;

/// A grid of text cells in the manner of a flex grid: every cell has a text, colours, weight and alignment of its
/// own; rows carry a number; rows and columns can be hidden, cells merged, heights and widths set. 10,000 rows stay
/// quick. Rows and columns count from 0. A cell outside the grid reads as empty and is not written.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    explicit FlexGrid(QWidget* parent = nullptr);

    /// Keeps the cells that remain; merged cells fall apart.
    void SetSize(int rows, int cols);
    int Rows() const;
    int Cols() const;
    /// The first rows stay in place when the rest scrolls, and look like heads; they take no clicks.
    void SetFixedRows(int rows);
    /// Adds a row at the end; cells are separated by tabs. Returns its index.
    int AddItem(const QString& cells);
    void RemoveItem(int row);
    /// Removes all rows but the fixed ones.
    void ClearRows();

    QString TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const QString& text);
    int RowData(int row) const;
    void SetRowData(int row, int value);

    /// 0xBBGGRR, as the program stores colours. An unset colour, -1, gives the grid's own.
    int CellBackColor(int row, int col) const;
    void SetCellBackColor(int row, int col, int color);
    int CellForeColor(int row, int col) const;
    void SetCellForeColor(int row, int col, int color);
    bool CellFontBold(int row, int col) const;
    void SetCellFontBold(int row, int col, bool bold);
    void SetCellAlignment(int row, int col, Qt::Alignment alignment);
    void SetColAlignment(int col, Qt::Alignment alignment);
    /// A cell without lines around it is a title or a separator: it takes no clicks, and the arrow keys pass over it.
    void SetCellLines(int row, int col, bool lines);
    void SetCellNote(int row, int col, std::shared_ptr<const FlexNote> note);
    /// What hover text and screen readers say of a cell, a line each; nothing leaves them its text.
    void SetCellHints(std::function<QStringList(int row, int col)> hints);
    /// In fixed rows, cells merge sideways only.
    void MergeCells(int row, int col, int rowSpan, int colSpan);

    void SetColWidth(int col, int pixels);
    void SetRowHeight(int row, int pixels);
    void SetColHidden(int col, bool hidden);
    void SetRowHidden(int row, bool hidden);
    /// The column takes the width that the others leave.
    void SetColStretch(int col);
    /// Without its border the grid lies on its card like a part of it.
    void SetBordered(bool bordered);

    /// The current row and column, -1 none.
    int Row() const;
    int Col() const;
    void SelectCell(int row, int col);
    /// The whole row of the current cell is tinted; unset, only the cell is framed.
    void SetRowSelection(bool wholeRow);
    /// Where the cell stands in the viewport, to lay an entry box over it.
    QRect CellRect(int row, int col) const;

    /// Nothing repaints between the two; the grid is redrawn once at the end. Pairs may be nested.
    void BeginUpdate();
    void EndUpdate();

signals:
    /// A cell was clicked, or Space or Enter was pressed on it.
    void CellClicked(int row, int col);
    /// The mouse came over a cell.
    void CellEntered(int row, int col);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    friend class FlexHeads;
    friend class FlexDelegate;

    void StepFrom(int row, int col, int rowStep, int colStep);
    void SetCell(int row, int col, const std::function<void(FlexCell&)>& change);
    void WhenShown(int row, const std::function<void()>& change);
    void ShowFixed();
    int HeadHeight(int row) const;
    int HeadsHeight() const;

    int fixedRows_ = 0;
    int updates_ = 0; ///< how many BeginUpdate are open
    bool rowSelection_ = false;
    bool bordered_ = true;
    FlexCells* cells_;
    FlexHeads* top_;
    QHash<int, int> rowHeights_; ///< of fixed rows, which the view itself hides
    std::vector<std::function<void()>> whenShown_;
};

/// A colour as the program stores it, 0xBBGGRR.
QColor ColorOfCode(int code);
