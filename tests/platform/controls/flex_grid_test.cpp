#include "platform/controls/flex_grid.h"
#include "platform/controls/theme.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <gtest/gtest.h>

namespace
{
class Grid : public testing::Test
{
protected:
    void Show()
    {
        grid.resize(400, 300);
        grid.show();
        QApplication::setActiveWindow(&grid);
        grid.setFocus();
        QCoreApplication::processEvents();
    }
    QColor Painted(const QPoint& place) { return grid.viewport()->grab().toImage().pixelColor(place); }
    QColor Painted(int row, int col) { return Painted(grid.CellRect(row, col).topLeft() + QPoint(2, 2)); }
    void Click(const QPoint& place) { QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, place); }
    std::pair<int, int> Clicked() const { return {clicks.last().at(0).toInt(), clicks.last().at(1).toInt()}; }

    FlexGrid grid;
    QSignalSpy clicks{&grid, &FlexGrid::CellClicked};
};
} // namespace

TEST_F(Grid, RowsKeepTheirCellsAndNumbersWhenOthersGo)
{
    grid.SetSize(1, 3);
    grid.SetFixedRows(1);
    for (int i = 1; i <= 4; ++i) {
        const int row = grid.AddItem(QString("a%1\tb%1\tc%1\tbeyond").arg(i));
        grid.SetRowData(row, 100 + i);
        grid.SetCellForeColor(row, 1, i);
    }
    for (const int row : {2, 4, -1})
        grid.RemoveItem(row);
    EXPECT_EQ(grid.Rows(), 4) << "there is no row 4 any more";
    EXPECT_EQ(grid.TextMatrix(2, 2), "c3");
    EXPECT_EQ((QList{grid.RowData(2), grid.CellForeColor(2, 1), grid.CellBackColor(2, 1)}), (QList{103, 3, -1}));
    for (const auto& [row, col] : {std::pair(9, 0), {0, 3}, {-1, 0}, {0, -1}, {4, 0}}) {
        grid.SetTextMatrix(row, col, "outside");
        EXPECT_EQ(grid.TextMatrix(row, col), "");
    }
    grid.ClearRows();
    EXPECT_EQ(grid.AddItem("x"), 1);
    EXPECT_EQ(grid.CellForeColor(1, 1), -1) << "a new row starts clean";
}

TEST_F(Grid, AnUpdateIsShownOnceWithItsHeightsMergesAndHiddenRows)
{
    grid.SetSize(1, 4);
    Show();
    QSignalSpy inserted(grid.model(), &QAbstractItemModel::rowsInserted);
    QSignalSpy changed(grid.model(), &QAbstractItemModel::dataChanged);
    grid.BeginUpdate();
    for (int i = 0; i < 500; ++i) {
        grid.BeginUpdate();
        const int row = grid.AddItem("name\t1\t2\t3");
        grid.SetCellBackColor(row, 0, 255);
        grid.SetRowHeight(row, 40);
        grid.SetRowHidden(row, row == 7);
        grid.EndUpdate();
    }
    grid.MergeCells(9, 0, 1, 4);
    EXPECT_EQ(std::pair(grid.Rows(), int(inserted.size())), std::pair(501, 0));
    grid.EndUpdate();
    EXPECT_TRUE(inserted.size() == 1 && changed.isEmpty());
    EXPECT_EQ(std::pair(grid.rowHeight(300), grid.columnSpan(9, 0)), std::pair(40, 4));
    EXPECT_TRUE(grid.isRowHidden(7) && grid.updatesEnabled());
    grid.SetTextMatrix(300, 1, "later");
    EXPECT_EQ(changed.size(), 1) << "what changes afterwards is shown at once";
    grid.ClearRows();
    grid.BeginUpdate();
    grid.SetRowHidden(grid.AddItem("dropped"), true);
    grid.ClearRows();
    grid.AddItem("in its place");
    grid.EndUpdate();
    EXPECT_FALSE(grid.isRowHidden(0));
}

TEST_F(Grid, CellsArePaintedInTheirOwnColours)
{
    grid.SetSize(3, 3);
    grid.SetCellBackColor(1, 1, 0x80C0FF);
    grid.MergeCells(0, 0, 1, 3);
    grid.SetCellBackColor(0, 0, 0x800000);
    Show();
    grid.SelectCell(2, 2);
    EXPECT_EQ(Painted(1, 1), QColor(255, 192, 128));
    EXPECT_EQ(Painted(1, 2), QColor(Qt::white));
    EXPECT_EQ(grid.CellRect(0, 0).width(), grid.columnWidth(0) * 3);
    EXPECT_EQ(Painted({grid.CellRect(1, 2).center().x(), 3}), QColor(0, 0, 128)) << "over all merged columns";
    EXPECT_EQ(ColorOfCode(0x123456), QColor("#563412"));
}

TEST_F(Grid, ColoursAndLinesMeetAtEachScaleOfTheScreen)
{
    grid.SetSize(9, 9);
    grid.SetBordered(false);
    for (int each = 0; each < 81; ++each)
        grid.SetCellBackColor(each / 9, each % 9, 0x80C0FF);
    for (int each = 0; each < 9; ++each) {
        grid.SetColWidth(each, 31 + each % 3);
        grid.SetRowHeight(each, 21 + each % 3);
    }
    Show();
    grid.SelectCell(8, 8);
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        QImage image((QSizeF(288, 198) * scale).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(scale);
        image.fill(Qt::red);
        grid.viewport()->render(&image);
        // Along a cell's middle: a line wherever a cell ends, its own colour up to there.
        int lines = 0, others = 0;
        for (const bool across : {true, false})
            for (int at = 1; at < (across ? image.width() : image.height()); ++at) {
                const auto pixel = [&](int place) {
                    return across ? image.pixelColor(place, qRound(10 * scale))
                                  : image.pixelColor(qRound(10 * scale), place);
                };
                lines += pixel(at) == Paper::kLine && pixel(at - 1) != Paper::kLine;
                others += pixel(at) != Paper::kLine && pixel(at) != QColor(255, 192, 128);
            }
        EXPECT_EQ(std::pair(lines, others), std::pair(18, 0)) << scale;
    }
}

TEST_F(Grid, ATipTellsTheTextThatItsCellCuts)
{
    grid.SetSize(2, 2);
    grid.SetTextMatrix(1, 1, "Vacation");
    Show();
    const int needed = grid.fontMetrics().horizontalAdvance("Vacation") + 8;
    for (const int width : {needed, needed - 1}) {
        grid.SetColWidth(1, width);
        const QPoint place = grid.CellRect(1, 1).center();
        QHelpEvent asks(QEvent::ToolTip, place, grid.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(grid.viewport(), &asks);
        EXPECT_EQ(QToolTip::text(), width < needed ? "Vacation" : "");
    }
    QToolTip::hideText();
}

TEST_F(Grid, FixedRowsStayAtTheTopAndOnlyTheCellsBelowTakeClicks)
{
    grid.SetSize(1, 3);
    grid.SetRowHeight(0, 33);
    grid.SetFixedRows(1);
    for (int i = 1; i <= 100; ++i)
        grid.AddItem(QString::number(i));
    grid.SetRowHidden(2, true);
    Show();

    EXPECT_EQ(grid.horizontalHeader()->height(), 33);
    QTest::mouseClick(grid.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
    EXPECT_TRUE(clicks.isEmpty());
    Click({150, grid.rowHeight(1) + 5});
    EXPECT_EQ(Clicked(), std::pair(3, 1)) << "the hidden row is passed over";
    grid.verticalScrollBar()->setValue(grid.verticalScrollBar()->maximum());
    Click(grid.CellRect(100, 2).center());
    EXPECT_EQ(Clicked(), std::pair(100, 2));
    EXPECT_TRUE(grid.horizontalHeader()->isVisible());
}

TEST_F(Grid, TheKeyboardWalksTheCellsPastSeparatorsAndPressesThem)
{
    grid.SetSize(30, 5);
    for (int row = 0; row < 30; ++row)
        grid.SetCellLines(row, 2, false);
    grid.SetColHidden(3, true);
    grid.SetRowHidden(1, true);
    Show();
    const auto press = [this](std::initializer_list<Qt::Key> keys) {
        for (const Qt::Key key : keys)
            QTest::keyClick(&grid, key);
    };
    grid.SelectCell(0, 1);
    press({Qt::Key_Right, Qt::Key_Space});
    EXPECT_EQ(Clicked(), std::pair(0, 4)) << "separator and hidden column are passed over";
    press({Qt::Key_Right, Qt::Key_Up});
    EXPECT_EQ(std::pair(grid.Row(), grid.Col()), std::pair(0, 4)) << "the edge holds";
    press({Qt::Key_Down, Qt::Key_Return});
    EXPECT_EQ(Clicked(), std::pair(2, 4)) << "and the hidden row";
    press({Qt::Key_Up, Qt::Key_Left, Qt::Key_Enter});
    EXPECT_EQ(Clicked(), std::pair(0, 1));
    press({Qt::Key_Home, Qt::Key_PageDown});
    EXPECT_TRUE(grid.Col() == 0 && grid.Row() > 3);
    Click(grid.CellRect(grid.Row(), 2).center());
    EXPECT_EQ(clicks.size(), 3) << "a separator takes no click";
}
