#include "calendar/year_calendar.h"

#include "foundation/texts.h"
#include "platform/clock.h"

#include <algorithm>

namespace
{
constexpr int kMonths = 12;
constexpr int kBlocksAcross = 4;

QString MonthName(int month)
{
    static const char* const english[] = {"JANUARY ", "FEBRUARY ", "MARCH ",     "APRIL ",   "MAY ",      "JUNE ",
                                          "JULY ",    "AUGUST ",   "SEPTEMBER ", "OCTOBER ", "NOVEMBER ", "DECEMBER "};
    static const char* const french[] = {"JANVIER ", "FÉVRIER ", "MARS ",      "AVRIL ",   "MAI ",      "JUIN ",
                                         "JUILLET ", "AOÛT ",    "SEPTEMBRE ", "OCTOBRE ", "NOVEMBRE ", "DÉCEMBRE "};
    return T(english[month - 1], french[month - 1]);
}

CalendarCell HeadCell(const QString& text)
{
    return {text, CalendarColor::Head, CalendarColor::White, true};
}
} // namespace

QPoint YearCalendar::ComputedPlace(int date) const
{
    const QDate first = DateOfSerial(commencingDate_);
    const QDate day = DateOfSerial(date);
    const int block = (day.year() - first.year()) * kMonths + day.month() - first.month();
    if (block < 0 || block >= kMonths)
        return {-1, -1};
    const int firstWeekday = WeekdayIndex(date - day.day() + 1);
    const int week = (firstWeekday + day.day() - 1) / 7;
    return {block % kBlocksAcross * kBlockCols + WeekdayIndex(date), block / kBlocksAcross * kBandRows + 2 + week};
}

QPoint YearCalendar::PlaceOf(int date) const
{
    const QPoint place = ComputedPlace(date);
    const bool shown = place.x() >= 0 && flxStoreDates[place.y()][place.x()] == date;
    return shown ? place : QPoint(-1, -1);
}

CalendarCell* YearCalendar::At(int date)
{
    const QPoint place = PlaceOf(date);
    return place.x() < 0 ? nullptr : &cells_[place.y()][place.x()];
}

void YearCalendar::LoadDates(const FiscalYear& year, const QVector<CalendarRecord>& records,
                             const QVector<Holiday>& holidays, const std::function<void(int, int)>& progress)
{
    commencingDate_ = year.CommencingDate;
    endingDate_ = year.EndingDate;
    records_ = records;
    holidays_ = holidays;
    PaintFrame();
    for (int date = year.CommencingDate; date <= year.EndingDate; ++date)
        PaintDay(date);
    PaintRecords(records, progress);
    if (CalendarCell* today = At(Today()))
        today->ForeColor = CalendarColor::Today;
    for (const Holiday& holiday : holidays)
        if (CalendarCell* cell = At(holiday.Date)) {
            cell->ForeColor = CalendarColor::Holiday;
            cell->Bold = true;
        }
}

void YearCalendar::PaintFrame()
{
    for (auto& row : cells_)
        row.fill(CalendarCell());
    for (auto& row : flxStoreDates)
        row.fill(0);
    const QDate first = DateOfSerial(commencingDate_);
    for (int block = 0; block < kMonths; ++block) {
        const QDate month = first.addMonths(block);
        const int row = block / kBlocksAcross * kBandRows;
        const int col = block % kBlocksAcross * kBlockCols;
        for (int weekday = 0; weekday < 7; ++weekday) {
            cells_[row][col + weekday] = HeadCell(MonthName(month.month()) + QString::number(month.year()));
            cells_[row + 1][col + weekday] = HeadCell(WeekdayName(weekday).left(2));
        }
    }
}

void YearCalendar::PaintDay(int date)
{
    const QPoint place = ComputedPlace(date);
    if (place.x() < 0)
        return;
    flxStoreDates[place.y()][place.x()] = date;
    cells_[place.y()][place.x()].Text = QString::number(DateOfSerial(date).day());
}

/// The records come in order of date: one on a date paints it in the category's colour, a second one marks the date
/// as having several categories.
void YearCalendar::PaintRecords(const QVector<CalendarRecord>& records, const std::function<void(int, int)>& progress)
{
    const int count = static_cast<int>(records.size());
    for (int index = 0; index < count; ++index) {
        const CalendarRecord& record = records[index];
        const bool several = index > 0 && records[index - 1].RecordDate == record.RecordDate;
        const int color = record.Color > 0 ? record.Color : CalendarColor::NoColor;
        if (CalendarCell* cell = At(record.RecordDate))
            cell->BackColor = several ? CalendarColor::SeveralCategories : color;
        if (progress)
            progress(index + 1, count);
    }
}

void YearCalendar::Mark(int date, const QString& mark)
{
    if (CalendarCell* cell = At(date))
        cell->Text = mark.isEmpty() ? QString::number(DateOfSerial(date).day()) : mark;
}

bool YearCalendar::IsMarked(int date) const
{
    const QPoint place = PlaceOf(date);
    return place.x() >= 0 && cells_[place.y()][place.x()].Text.contains('X');
}

bool YearCalendar::IsHoliday(int date) const
{
    const QPoint place = PlaceOf(date);
    return place.x() >= 0 && cells_[place.y()][place.x()].ForeColor == CalendarColor::Holiday;
}

std::span<const CalendarRecord> YearCalendar::RecordsOn(int date) const
{
    struct ByDate
    {
        bool operator()(const CalendarRecord& record, int date) const { return record.RecordDate < date; }
        bool operator()(int date, const CalendarRecord& record) const { return date < record.RecordDate; }
    };
    const auto [first, last] = std::equal_range(records_.begin(), records_.end(), date, ByDate());
    return {first, last};
}
