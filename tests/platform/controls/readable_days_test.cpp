#include "calendar/year_calendar.h"
#include "platform/controls/flex_grid.h"
#include "platform/ink.h"
#include "reference/category_colors.h"

#include <gtest/gtest.h>

namespace
{
/// A number on a colour, as the calendar paints it.
class PaintedNumber
{
public:
    PaintedNumber(int back, int fore, bool bold)
    {
        grid_.SetSize(1, 1);
        grid_.SetBordered(false);
        grid_.SetColWidth(0, 44);
        grid_.SetTextMatrix(0, 0, "28");
        grid_.SetCellBackColor(0, 0, back);
        grid_.SetCellForeColor(0, 0, fore);
        grid_.SetCellFontBold(0, 0, bold);
        image_ = grid_.viewport()->grab(grid_.CellRect(0, 0).adjusted(2, 2, -2, -2)).toImage();
    }
    int Count(const std::function<bool(const QColor&)>& matches) const
    {
        int count = 0;
        for (int y = 0; y < image_.height(); ++y)
            for (int x = 0; x < image_.width(); ++x)
                count += matches(image_.pixelColor(x, y));
        return count;
    }

private:
    FlexGrid grid_;
    QImage image_;
};

TEST(ReadableDays, EveryNumberStandsOutFromEveryColourAndKeepsItsOwn)
{
    QList<int> backs(kCategoryColors.begin(), kCategoryColors.end());
    backs << CalendarColor::White << CalendarColor::NoColor << CalendarColor::SeveralCategories
          << CalendarColor::TimeBank << 0x800000 << 0x000080 << 0x008000 << 0x808080 << 0xFF0000 << 0x0000FF << 0;
    const std::tuple<const char*, int, bool> numbers[] = {{"plain", CalendarColor::Black, false},
                                                          {"today", CalendarColor::Today, false},
                                                          {"holiday", CalendarColor::Holiday, true},
                                                          {"holiday today", CalendarColor::Today, true}};
    for (const int code : backs)
        for (const auto& [name, fore, bold] : numbers) {
            const PaintedNumber number(code, fore, bold);
            const QColor own = ColorOfCode(fore), plate = ReadableInk(own, ColorOfCode(code)).Plate;
            const QColor back = plate.isValid() ? plate : ColorOfCode(code);
            EXPECT_GE(number.Count([&](const QColor& pixel) { return pixel == back; }), 60) << name << " on " << code;
            const int readable = number.Count([&](const QColor& pixel) { return Contrast(pixel, back) >= kReadable; });
            EXPECT_GE(readable, 16) << name << " on " << qPrintable(back.name());
            const auto near = [&](const QColor& pixel) {
                return std::abs(pixel.red() - own.red()) + std::abs(pixel.blue() - own.blue()) < 160;
            };
            EXPECT_TRUE(fore == CalendarColor::Black || number.Count(near) > 0) << name << " on " << code;
        }
    EXPECT_EQ(ReadableInk(Qt::black, QColor(0, 0, 0x80)).Fill, QColor(Qt::white));
    EXPECT_EQ(ReadableInk(Qt::blue, Qt::white).Fill, QColor(Qt::blue)) << "what can be read stays as it is";
    EXPECT_NEAR(Contrast(Qt::red, Qt::white), 4.0, 0.01);
}
} // namespace
