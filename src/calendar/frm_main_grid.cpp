#include "calendar/frm_main_grid.h"

#include "calendar/day_notes.h"
#include "foundation/frm_captions.h"
#include "platform/clock.h"
#include "platform/controls/theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace
{
constexpr int kNoDay = 0xF8F6F5; // cells of a month block that hold no date
constexpr int kSeparatorWidth = 14;
constexpr int kSpacerHeight = 14;
constexpr int kSeparators = 3;
constexpr int kSpacers = 2;
constexpr int kDayColumns = 28;
constexpr int kTextRows = 24;

/// The pixels of part `index` when `whole` is divided into parts that differ by one pixel at most.
int Share(int whole, int parts, int index, int smallest)
{
    return std::max(smallest, whole * (index + 1) / parts - whole * index / parts);
}

/// Where a key leads from a date; the date itself for a key that leads nowhere.
int MovedBy(int key, int date)
{
    const QDate day = DateOfSerial(date);
    switch (key) {
    case Qt::Key_Left:
        return date - 1;
    case Qt::Key_Right:
        return date + 1;
    case Qt::Key_Up:
        return date - 7;
    case Qt::Key_Down:
        return date + 7;
    case Qt::Key_Home:
        return date - day.day() + 1;
    case Qt::Key_End:
        return date - day.day() + day.daysInMonth();
    case Qt::Key_PageUp:
        return SerialOfDate(day.addMonths(-1));
    case Qt::Key_PageDown:
        return SerialOfDate(day.addMonths(1));
    default:
        return date;
    }
}
} // namespace

CalendarGrid::CalendarGrid(QWidget* parent) : FlexGrid(parent)
{
    setObjectName("flxCalendar");
    SetSize(YearCalendar::kRows, YearCalendar::kCols);
    SetAccessibleName(this, {"Year calendar", "Calendrier de l'année"});
    SetBordered(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    SetRowHidden(YearCalendar::kRows - 1, true);
    BuildCells();
    SetCellHints([this](int row, int col) {
        const int date = DateAt(row, col);
        return date == 0 ? QStringList() : DayDescription(*shown_, date);
    });
}

void CalendarGrid::BuildCells()
{
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col) {
            SetCellAlignment(row, col, Qt::AlignCenter);
            const bool day = !YearCalendar::IsTitleRow(row) && !YearCalendar::IsWeekdayRow(row) &&
                             !YearCalendar::IsSpacerRow(row) && !YearCalendar::IsSeparatorColumn(col);
            SetCellLines(row, col, day);
            if (YearCalendar::IsTitleRow(row) && col % YearCalendar::kBlockCols == 0)
                MergeCells(row, col, 1, YearCalendar::kBlockCols - 1);
        }
}

/// A year that does not hold the current date goes to today, or else to its first day.
void CalendarGrid::Show(const YearCalendar& calendar)
{
    shown_ = &calendar;
    BeginUpdate();
    for (int row = 0; row < YearCalendar::kRows; ++row)
        for (int col = 0; col < YearCalendar::kCols; ++col)
            ShowCell(row, col);
    EndUpdate();
    for (const int date : {date_, Today(), calendar.FirstDate()})
        if (calendar.PlaceOf(date).x() >= 0)
            return GoTo(date);
}

void CalendarGrid::ShowCell(int row, int col)
{
    if (YearCalendar::IsSpacerRow(row) || YearCalendar::IsSeparatorColumn(col))
        return;
    const CalendarCell& cell = shown_->Cell(row, col);
    const int date = DateAt(row, col);
    const bool empty = cell.BackColor != CalendarColor::Head && date == 0;
    SetTextMatrix(row, col, cell.Text);
    SetCellBackColor(row, col, empty ? kNoDay : cell.BackColor);
    SetCellForeColor(row, col, cell.ForeColor);
    SetCellFontBold(row, col, cell.Bold);
    SetCellNote(row, col, date == 0 ? nullptr : NoteOn(date));
}

/// A marked day keeps its number beside the mark.
std::shared_ptr<const FlexNote> CalendarGrid::NoteOn(int date) const
{
    FlexNote note;
    if (shown_->IsMarked(date))
        note.Lead = QString::number(DateOfSerial(date).day());
    if (codes_) {
        note.Corner = DayCode(*shown_, date);
        note.Triangle = IsPartOfDay(*shown_, date);
        note.Line = date == Today();
    }
    const bool empty = note.Lead.isEmpty() && note.Corner.isEmpty() && !note.Line;
    return empty ? nullptr : std::make_shared<const FlexNote>(note);
}

void CalendarGrid::RefreshDate(int date)
{
    const QPoint place = shown_->PlaceOf(date);
    if (place.x() >= 0)
        ShowCell(place.y(), place.x());
}

void CalendarGrid::ShowCodes(bool shown)
{
    codes_ = shown;
    if (shown_)
        Show(*shown_);
}

/// A scroll bar takes its room from the days.
void CalendarGrid::FitInto(const QSize& room)
{
    const int lowest = fontMetrics().height();
    const int narrowest = fontMetrics().horizontalAdvance("00") + 10;
    const QSize gaps(kSeparators * kSeparatorWidth, kSpacers * kSpacerHeight);
    const bool scrolls = kTextRows * lowest > room.height() - gaps.height();
    const QSize days = room - gaps - QSize(scrolls ? verticalScrollBar()->sizeHint().width() : 0, 0);
    BeginUpdate();
    int day = 0;
    for (int col = 0; col < YearCalendar::kCols; ++col)
        SetColWidth(col, YearCalendar::IsSeparatorColumn(col) ? kSeparatorWidth
                                                              : Share(days.width(), kDayColumns, day++, narrowest));
    int text = 0;
    for (int row = 0; row < YearCalendar::kRows; ++row)
        SetRowHeight(row,
                     YearCalendar::IsSpacerRow(row) ? kSpacerHeight : Share(days.height(), kTextRows, text++, lowest));
    EndUpdate();
    ShowMonth();
}

void CalendarGrid::GoTo(int date)
{
    const QPoint place = shown_->PlaceOf(date);
    if (place.x() < 0)
        return;
    SelectCell(place.y(), place.x());
    ShowMonth();
}

std::pair<int, int> CalendarGrid::MonthRows(int row)
{
    int title = row, end = row;
    while (title > 0 && !YearCalendar::IsTitleRow(title))
        --title;
    while (end + 1 < YearCalendar::kRows && !YearCalendar::IsSpacerRow(end + 1))
        ++end;
    return {title, end};
}

QRect CalendarGrid::MonthRect(const QModelIndex& day) const
{
    const auto [title, end] = MonthRows(day.row());
    return CellRect(title, day.column()) | CellRect(end, day.column());
}

/// Scrolls the month of the current day into sight, the head of the month before its end, and the day before all.
void CalendarGrid::ShowMonth()
{
    const auto [title, end] = MonthRows(Row());
    for (const int row : {end, title, Row()})
        scrollTo(currentIndex().siblingAtRow(row));
}

/// Escape is the window's.
void CalendarGrid::keyPressEvent(QKeyEvent* event)
{
    const int date = CurrentDate();
    if (event->key() == Qt::Key_Escape)
        return event->ignore();
    if (event->modifiers() & (Qt::AltModifier | Qt::MetaModifier))
        return FlexGrid::keyPressEvent(event);
    const bool wholeYear = event->modifiers() & Qt::ControlModifier;
    if (date == 0 || (wholeYear && event->key() != Qt::Key_Home && event->key() != Qt::Key_End))
        return FlexGrid::keyPressEvent(event);
    int to = MovedBy(event->key(), date);
    if (wholeYear)
        to = event->key() == Qt::Key_Home ? shown_->FirstDate() : shown_->LastDate();
    if (to == date)
        return FlexGrid::keyPressEvent(event);
    const bool extends = event->modifiers() & Qt::ShiftModifier;
    anchor_ = !extends ? 0 : anchor_ != 0 ? anchor_ : date;
    GoTo(std::clamp(to, shown_->FirstDate(), shown_->LastDate()));
    if (extends)
        RangeChosen(anchor_, CurrentDate());
}

int CalendarGrid::DateUnder(const QPoint& place) const
{
    const QModelIndex at = indexAt(place);
    return at.isValid() ? DateAt(at.row(), at.column()) : 0;
}

void CalendarGrid::mousePressEvent(QMouseEvent* event)
{
    anchor_ = 0;
    dragFrom_ = dragTo_ = event->button() == Qt::LeftButton && TakesRanges() ? DateUnder(event->pos()) : 0;
    FlexGrid::mousePressEvent(event);
}

void CalendarGrid::mouseMoveEvent(QMouseEvent* event)
{
    const int date = DateUnder(event->pos());
    if (dragFrom_ != 0 && date != 0 && date != dragTo_) {
        dragTo_ = date;
        viewport()->update();
    }
    FlexGrid::mouseMoveEvent(event);
}

void CalendarGrid::mouseReleaseEvent(QMouseEvent* event)
{
    const bool dragged = IsDragging();
    FlexGrid::mouseReleaseEvent(event);
    const int from = std::exchange(dragFrom_, 0);
    if (!dragged)
        return;
    viewport()->update();
    RangeChosen(from, dragTo_);
}

/// The range that is being dragged.
void CalendarGrid::paintEvent(QPaintEvent* event)
{
    FlexGrid::paintEvent(event);
    if (!IsDragging())
        return;
    QPainter painter(viewport());
    painter.setPen(QPen(Paper::kRangeRing, 2));
    const auto [first, last] = std::minmax({dragFrom_, dragTo_});
    for (int date = first; date <= last; ++date)
        if (const QPoint place = shown_->PlaceOf(date); place.x() >= 0)
            painter.drawRect(CellRect(place.y(), place.x()).adjusted(1, 1, -1, -1));
}

void CalendarGrid::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    FlexGrid::currentChanged(current, previous);
    date_ = DateAt(current.row(), current.column());
    if (Moved)
        Moved();
}
