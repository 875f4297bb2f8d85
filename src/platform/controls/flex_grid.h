#pragma once

#include <QColor>
#include <QTableView>
#include <functional>

/// A grid of text cells in the manner of a flex grid: every cell has a text, colours, weight and alignment of its
/// own; rows carry a number; rows and columns can be hidden, cells merged, heights and widths set. 10,000 rows stay
/// quick. Rows and columns count from 0.
class FlexGrid : public QTableView
{
    Q_OBJECT

public:
    explicit FlexGrid(QWidget* parent = nullptr);

    void SetSize(int rows, int cols);
    int Rows() const;
    int Cols() const;
    /// The first rows and columns stay in place when the rest scrolls, and look like heads.
    void SetFixedRows(int rows);
    void SetFixedCols(int cols);
    /// Adds a row at the end; cells are separated by tabs. Returns its index.
    int AddItem(const QString& cells);
    void RemoveItem(int row);
    void ClearRows();

    QString TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const QString& text);
    int RowData(int row) const;
    void SetRowData(int row, int value);

    /// 0xBBGGRR, as the program stores colours. An unset colour gives the grid's own.
    int CellBackColor(int row, int col) const; // -1 unset
    void SetCellBackColor(int row, int col, int color);
    int CellForeColor(int row, int col) const; // -1 unset
    void SetCellForeColor(int row, int col, int color);
    bool CellFontBold(int row, int col) const;
    void SetCellFontBold(int row, int col, bool bold);
    void SetCellAlignment(int row, int col, Qt::Alignment alignment);
    void SetColAlignment(int col, Qt::Alignment alignment);
    void MergeCells(int row, int col, int rowSpan, int colSpan);

    void SetColWidth(int col, int pixels);
    void SetRowHeight(int row, int pixels);
    void SetColHidden(int col, bool hidden);
    void SetRowHidden(int row, bool hidden);

    /// The current row and column, -1 none.
    int Row() const;
    int Col() const;
    void SelectCell(int row, int col);

    /// Nothing repaints between the two; the grid is redrawn once at the end.
    void BeginUpdate();
    void EndUpdate();

signals:
    /// A cell was clicked, or Space or Enter was pressed on it.
    void CellClicked(int row, int col);
    void CellDoubleClicked(int row, int col);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    class Model;
    Model* model_;
};

/// A colour as the program stores it (0xBBGGRR), and back.
QColor ColorOfCode(int code);
int CodeOfColor(const QColor& color);
