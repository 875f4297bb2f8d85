#pragma once

#include "calendar/year_calendar.h"
#include "platform/controls/flex_grid.h"

#include <functional>

/// The year as a grid of days: painted as the calendar has them, walked by date with the keyboard, told by hover text
/// and to screen readers.
class CalendarGrid : public FlexGrid
{
public:
    explicit CalendarGrid(QWidget* parent = nullptr);

    /// The dates between two were chosen, with Shift and an arrow or by dragging. `from` is where it began.
    std::function<void(int from, int to)> RangeChosen;
    /// Dates are marked at the moment: dragging chooses them.
    std::function<bool()> TakesRanges = [] { return false; };
    std::function<void()> Moved; ///< to another date

    void Show(const YearCalendar& calendar);
    void RefreshDate(int date);
    /// Days tell their categories by letters, and a part of a day by a triangle.
    void ShowCodes(bool shown);
    /// The next range begins where the calendar stands then.
    void ForgetRange() { anchor_ = 0; }
    /// Days share the room of the window; they do not get smaller than their numbers.
    void FitInto(const QSize& room);

    int DateAt(int row, int col) const { return shown_ ? shown_->StoredDate(row, col) : 0; }
    int CurrentDate() const { return DateAt(Row(), Col()); }
    void GoTo(int date);
    /// The column of a day, over the height of its month.
    QRect MonthRect(const QModelIndex& day) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void BuildCells();
    void ShowCell(int row, int col);
    std::shared_ptr<const FlexNote> NoteOn(int date) const;
    static std::pair<int, int> MonthRows(int row); ///< of the month of a row: that of the title, and the last
    void ShowMonth();
    int DateUnder(const QPoint& place) const;
    bool IsDragging() const { return dragFrom_ != 0 && dragTo_ != dragFrom_; }

    const YearCalendar* shown_ = nullptr;
    bool codes_ = false;
    int date_ = 0;     ///< the current one, 0 none
    int anchor_ = 0;   ///< where a range of the keyboard began, 0 none
    int dragFrom_ = 0; ///< where the mouse was pressed, 0 nowhere
    int dragTo_ = 0;
};
