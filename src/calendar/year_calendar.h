#pragma once

#include "calendar/calendar_records.h"
#include "foundation/session_state.h"
#include "reference/holidays.h"

#include <QPoint>

#include <array>
#include <functional>
#include <span>

/// The calendar's colours, 0xBBGGRR.
namespace CalendarColor
{
constexpr int White = 0xFFFFFF;
constexpr int Black = 0;
constexpr int Head = 0x800000;
constexpr int Holiday = 0xFF0000;
constexpr int Today = 255;
constexpr int NoColor = 65535; ///< a record of a category without a colour
constexpr int SeveralCategories = 0x80C0FF;
constexpr int TimeBank = 0xC0C0C0;
} // namespace CalendarColor

struct CalendarCell
{
    QString Text;
    int BackColor = CalendarColor::White;
    int ForeColor = CalendarColor::Black;
    bool Bold = false;
};

/// The year as a grid: twelve month blocks, four across and three down. A block is seven columns wide, Sunday first,
/// with a narrow separator to its right; it has a title row, a weekday row, six week rows and a thin spacer. Its twin,
/// flxStoreDates, holds the serial date of each day cell, 0 elsewhere.
class YearCalendar
{
public:
    static constexpr int kRows = 27;
    static constexpr int kCols = 31;
    static constexpr int kBandRows = 9;
    static constexpr int kBlockCols = 8;

    static bool IsTitleRow(int row) { return row % kBandRows == 0; }
    static bool IsWeekdayRow(int row) { return row % kBandRows == 1; }
    static bool IsSpacerRow(int row) { return row % kBandRows == kBandRows - 1; }
    static bool IsSeparatorColumn(int col) { return col % kBlockCols == kBlockCols - 1; }

    /// Titles, weekdays, days, records, holidays and today of a fiscal year. `progress` is told the number
    /// of records painted so far and the number of all.
    void LoadDates(const FiscalYear& year, const QVector<CalendarRecord>& records, const QVector<Holiday>& holidays,
                   const std::function<void(int, int)>& progress = {});

    const CalendarCell& Cell(int row, int col) const { return cells_[row][col]; }
    int StoredDate(int row, int col) const { return flxStoreDates[row][col]; }
    /// Column (x) and row (y) of a date; x is -1 for a date outside the calendar.
    QPoint PlaceOf(int date) const;

    /// Writes a mark such as " X" over the day of a date; an empty mark restores the day number.
    void Mark(int date, const QString& mark);
    bool IsMarked(int date) const;
    bool IsHoliday(int date) const;
    QString HolidayOn(int date) const { return HolidayName(holidays_, date); }
    /// What was painted on a date.
    std::span<const CalendarRecord> RecordsOn(int date) const;

    int FirstDate() const { return commencingDate_; }
    int LastDate() const { return endingDate_; }

private:
    QPoint ComputedPlace(int date) const;
    void PaintFrame();
    void PaintDay(int date);
    void PaintRecords(const QVector<CalendarRecord>& records, const std::function<void(int, int)>& progress);
    CalendarCell* At(int date);

    int commencingDate_ = 0;
    int endingDate_ = 0;
    QVector<CalendarRecord> records_;
    QVector<Holiday> holidays_;
    std::array<std::array<CalendarCell, kCols>, kRows> cells_;
    std::array<std::array<int, kCols>, kRows> flxStoreDates{};
};
