#include "platform/controls/flex_grid.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace
{
QPair<int, int> Cell(const QSignalSpy& spy)
{
    return spy.isEmpty() ? qMakePair(-1, -1) : qMakePair(spy.last().at(0).toInt(), spy.last().at(1).toInt());
}

void Show(FlexGrid& grid)
{
    grid.resize(400, 300);
    grid.show();
    QApplication::setActiveWindow(&grid);
    grid.setFocus();
    QCoreApplication::processEvents();
}

QColor Painted(FlexGrid& grid, int row, int col)
{
    return grid.viewport()->grab().toImage().pixelColor(grid.CellRect(row, col).topLeft() + QPoint(2, 2));
}
} // namespace

TEST(FlexGrid, RowsKeepTheirCellsAndNumbersWhenOthersGo)
{
    FlexGrid grid;
    grid.SetSize(1, 3);
    grid.SetFixedRows(1);
    for (int i = 1; i <= 4; ++i) {
        const int row = grid.AddItem(QString("a%1\tb%1\tc%1\tbeyond").arg(i));
        grid.SetRowData(row, 100 + i);
        grid.SetCellForeColor(row, 1, i);
    }
    grid.RemoveItem(2);
    EXPECT_EQ(grid.Rows(), 4);
    EXPECT_EQ(grid.TextMatrix(2, 2), "c3");
    EXPECT_EQ(grid.RowData(2), 103);
    EXPECT_EQ(grid.CellForeColor(2, 1), 3);
    EXPECT_EQ(grid.CellBackColor(2, 1), -1);

    grid.SetTextMatrix(9, 9, "outside");
    EXPECT_EQ(grid.TextMatrix(9, 9), "");
    grid.ClearRows();
    EXPECT_EQ(grid.Rows(), 1);
    EXPECT_EQ(grid.AddItem("x"), 1);
    EXPECT_EQ(grid.CellForeColor(1, 1), -1) << "a new row starts clean";
}

TEST(FlexGrid, AnUpdateIsShownOnceWithItsHeightsMergesAndHiddenRows)
{
    FlexGrid grid;
    grid.SetSize(1, 4);
    Show(grid);
    QSignalSpy inserted(grid.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(grid.model(), &QAbstractItemModel::dataChanged);
    grid.BeginUpdate();
    for (int i = 0; i < 500; ++i) {
        grid.BeginUpdate();
        const int row = grid.AddItem("name\t1\t2\t3");
        grid.SetCellBackColor(row, 0, 255);
        grid.SetRowHeight(row, 40);
        grid.SetRowHidden(row, row == 7);
        if (row == 9)
            grid.MergeCells(row, 0, 1, 4);
        grid.EndUpdate();
    }
    EXPECT_EQ(grid.Rows(), 501);
    EXPECT_TRUE(inserted.isEmpty());
    grid.EndUpdate();

    EXPECT_EQ(inserted.size(), 1);
    EXPECT_TRUE(changed.isEmpty());
    EXPECT_EQ(grid.rowHeight(300), 40);
    EXPECT_TRUE(grid.isRowHidden(7));
    EXPECT_EQ(grid.columnSpan(9, 0), 4);
    EXPECT_TRUE(grid.updatesEnabled());
}

TEST(FlexGrid, CellsArePaintedInTheirOwnColours)
{
    FlexGrid grid;
    grid.SetSize(3, 3);
    grid.SetCellBackColor(1, 1, 0x80C0FF);
    grid.MergeCells(0, 0, 1, 3);
    grid.SetCellBackColor(0, 0, 0x800000);
    Show(grid);
    grid.SelectCell(2, 2);
    EXPECT_EQ(Painted(grid, 1, 1), QColor(255, 192, 128));
    EXPECT_EQ(Painted(grid, 1, 2), QColor(Qt::white));
    EXPECT_EQ(grid.CellRect(0, 0).width(), grid.columnWidth(0) * 3);
    const QColor merged = grid.viewport()->grab().toImage().pixelColor(grid.CellRect(1, 2).center().x(), 3);
    EXPECT_EQ(merged, QColor(0, 0, 128));
    grid.SetRowSelection(true);
    EXPECT_NE(Painted(grid, 2, 0), QColor(Qt::white)) << "the current row is tinted";
    EXPECT_EQ(CodeOfColor(ColorOfCode(0x123456)), 0x123456);
}

TEST(FlexGrid, FixedRowsStayAtTheTopAndOnlyTheCellsBelowTakeClicks)
{
    FlexGrid grid;
    grid.SetSize(1, 3);
    grid.SetRowHeight(0, 33);
    grid.SetFixedRows(1);
    grid.BeginUpdate();
    for (int i = 1; i <= 100; ++i)
        grid.AddItem(QString::number(i));
    grid.EndUpdate();
    grid.SetRowHidden(2, true);
    Show(grid);
    QSignalSpy clicks(&grid, &FlexGrid::CellClicked);

    EXPECT_EQ(grid.horizontalHeader()->height(), 33);
    QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_TRUE(clicks.isEmpty());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, QPoint(150, grid.rowHeight(1) + 5));
    EXPECT_EQ(Cell(clicks), qMakePair(3, 1)) << "the hidden row is passed over";
    grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->maximum());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.CellRect(100, 2).center());
    EXPECT_EQ(Cell(clicks), qMakePair(100, 2));
    EXPECT_TRUE(grid.horizontalHeader()->isVisible());
}

TEST(FlexGrid, TheKeyboardWalksTheCellsPastSeparatorsAndPressesThem)
{
    FlexGrid grid;
    grid.SetSize(30, 5);
    for (int row = 0; row < 30; ++row)
        grid.SetCellLines(row, 2, false);
    grid.SetColHidden(3, true);
    Show(grid);
    QSignalSpy clicks(&grid, &FlexGrid::CellClicked);
    grid.SelectCell(0, 1);
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(Cell(clicks), qMakePair(0, 4)) << "separator and hidden column are passed over";
    QTest::keyClick(&grid, Qt::Key_Right);
    QTest::keyClick(&grid, Qt::Key_Up);
    EXPECT_EQ(qMakePair(grid.Row(), grid.Col()), qMakePair(0, 4)) << "the edge holds";
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Return);
    EXPECT_EQ(Cell(clicks), qMakePair(1, 4));
    QTest::keyClick(&grid, Qt::Key_Home);
    EXPECT_EQ(grid.Col(), 0);
    QTest::keyClick(&grid, Qt::Key_PageDown);
    EXPECT_GT(grid.Row(), 3);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.CellRect(grid.Row(), 2).center());
    EXPECT_EQ(clicks.size(), 2) << "a separator takes no click";
}
