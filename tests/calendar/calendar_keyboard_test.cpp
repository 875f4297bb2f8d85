#include "attendance/frm_approval.h"
#include "calendar/day_notes.h"
#include "calendar/frm_main_grid.h"
#include "calendar/main_window_fixture.h"
#include "platform/controls/theme.h"
#include "selection/frm_select_dates.h"

namespace
{
class CalendarKeys : public MainWindow
{
protected:
    /// Presses keys in the calendar and tells on which day they end, such as "12-04".
    QString After(std::initializer_list<Qt::Key> keys, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        for (const Qt::Key key : keys)
            user.Presses("flxCalendar", key, modifiers);
        return DateOfSerial(main->Calendar().StoredDate(Grid().Row(), Grid().Col())).toString("MM-dd");
    }
    QPoint Center(int month, int day)
    {
        const QPoint place = Place(month, day);
        return Grid().CellRect(place.y(), place.x()).center();
    }
    void Drags(std::pair<int, int> from, std::pair<int, int> to)
    {
        QTest::mousePress(Grid().viewport(), Qt::LeftButton, {}, Center(from.first, from.second));
        QTest::mouseMove(Grid().viewport(), Center(to.first, to.second));
        QTest::mouseRelease(Grid().viewport(), Qt::LeftButton, {}, Center(to.first, to.second));
    }
    /// What a screen reader says of a day.
    QString Said(int month, int day)
    {
        const QPoint place = Place(month, day);
        return Grid().model()->index(place.y(), place.x()).data(Qt::AccessibleTextRole).toString();
    }
    QImage Painted(int month, int day)
    {
        const QPoint place = Place(month, day);
        return Grid().viewport()->grab(Grid().CellRect(place.y(), place.x())).toImage();
    }
    /// The hint stands in the calendar, but not on the current month.
    bool HintLeavesMonthFree()
    {
        const QRect hint = main->findChild<QWidget*>("txtSelect")->geometry();
        const QRect month = dynamic_cast<CalendarGrid&>(Grid()).MonthRect(Grid().currentIndex());
        const QPoint origin = Grid().viewport()->mapTo(Grid().parentWidget(), QPoint());
        return !hint.intersects(month.translated(origin)) && Grid().parentWidget()->rect().contains(hint);
    }
    /// A marked day bears its sign on a plate of its own.
    bool BearsSign(int month, int day)
    {
        const QImage image = Painted(month, day);
        int plate = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                plate += image.pixelColor(x, y) == Paper::kRangeRing;
        return plate > 20;
    }
    QString Counted() { return user.Reads("txtSelect").section('\n', -1); }
};

TEST_F(CalendarKeys, DaysWeeksAndMonthsAreWalkedFromTodayWithinTheYear)
{
    OpensOnMarie();
    EXPECT_TRUE(user.HasFocus("flxCalendar"));
    EXPECT_EQ(After({}), "11-23");
    EXPECT_EQ(After({Qt::Key_Left, Qt::Key_Up}), "11-15");
    EXPECT_EQ(After({Qt::Key_Home, Qt::Key_Left}), "10-31") << "a month goes on in the next block";
    EXPECT_EQ(After({Qt::Key_PageUp}), "09-30");
    EXPECT_EQ(After({Qt::Key_PageDown, Qt::Key_End, Qt::Key_Down}), "11-07");
    EXPECT_EQ(After({Qt::Key_Home}, Qt::ControlModifier), "01-01");
    EXPECT_EQ(After({Qt::Key_Up, Qt::Key_PageUp}), "01-01");
    EXPECT_EQ(After({Qt::Key_End}, Qt::ControlModifier), "12-31");
    EXPECT_EQ(After({Qt::Key_Right, Qt::Key_Down}), "12-31");

    EXPECT_EQ(After({Qt::Key_Return}), "12-31");
    EXPECT_EQ(user.Reads("lblRecordsDate"), "Thu 31-Dec-2026");
    EXPECT_TRUE(Visible("fraShowRecords"));
    After({Qt::Key_Escape});
    EXPECT_FALSE(Visible("fraShowRecords"));
    house.FiscalYear("2027", 2027);
    Opens("ADMIN");
    user.Clicks("cmdNextYear");
    EXPECT_EQ(After({}), "01-01") << "where today is not";
}

TEST_F(CalendarKeys, ARangeIsMarkedWithShiftOrByDraggingAndCounted)
{
    house.Record(marie, "Sick", {2026, 12, 9}, 3);
    OpensOnMarie();
    After({Qt::Key_2}, Qt::ControlModifier);
    ASSERT_TRUE(Visible("txtSelect") && user.HasFocus("flxCalendar"));
    EXPECT_EQ(After({Qt::Key_Down, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right, Qt::Key_Right}), "12-04");
    user.WillAnswer("WARNING:", "No", "Marie Bouchard on that date!\r\n\r\nWed 09-Dec-2026\tSick\t");
    After({Qt::Key_Down}, Qt::ShiftModifier);
    EXPECT_EQ(Counted(), "5 days, 35:00") << "neither the weekend nor what was refused";
    EXPECT_TRUE(HintLeavesMonthFree()) << "also when it has grown by the count";
    After({Qt::Key_Left}, Qt::ShiftModifier);
    EXPECT_EQ(Counted(), "4 days, 28:00") << "what was refused is not asked about again";
    EXPECT_EQ(Days({{12, 4}, {12, 5}, {12, 9}, {12, 10}, {12, 11}}),
              " X ffffff, 5 ffffff, 9 ffc0c0,  X ffffff, 11 ffffff");
    EXPECT_TRUE(Said(12, 10).contains("Selected"));
    EXPECT_TRUE(BearsSign(12, 10) && !BearsSign(12, 9)) << "no code of a category";
    After({Qt::Key_Space});
    EXPECT_EQ(Counted(), "3 days, 21:00");
    After({Qt::Key_Right}, Qt::ShiftModifier);
    EXPECT_EQ(Counted(), "4 days, 28:00") << "what was taken out does not come back when the range grows";
    Drags({12, 28}, {12, 21});
    EXPECT_EQ(Counted(), "9 days, 63:00") << "Christmas is left out";
    for (int day = 14; day < 19; ++day)
        for (const char* category : {"Sick", "Vacation"})
            house.Record(marie, category, {2026, 12, day}, 2);
    user.SeesMessage = [](const Message& message) {
        EXPECT_TRUE(message.ScrollBar && message.Text.contains("14-Dec") && message.Text.contains("18-Dec"));
    };
    user.WillAnswer("WARNING:", "Yes", "on those dates!");
    Drags({12, 14}, {12, 18});
    EXPECT_EQ(Counted(), "14 days, 98:00") << "asked once";
    EXPECT_TRUE(HintLeavesMonthFree());
    user.SeesMessage = {};
    main->resize(920, 500); // below and above a month there is little room
    for (int month = 12; month > 0; --month) {
        EXPECT_TRUE(HintLeavesMonthFree()) << month;
        After({Qt::Key_PageUp});
    }
    After({Qt::Key_Escape});
    EXPECT_EQ(Days({{12, 4}, {12, 21}, {12, 28}}), "4 ffffff, 21 ffffff, 28 ffffff");
}

TEST_F(CalendarKeys, ARangeBelongsToItsToolAndBeginsWhereTheCalendarStands)
{
    OpensOnMarie();
    After({Qt::Key_PageDown, Qt::Key_Home});
    for (int time = 0; time < 2; ++time) {
        After({Qt::Key_2}, Qt::ControlModifier);
        After({Qt::Key_Right}, Qt::ShiftModifier);
        EXPECT_EQ(Counted(), "2 days, 14:00") << "a tool begins its range where the calendar stands";
        After({Qt::Key_Escape});
    }

    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    After({Qt::Key_2}, Qt::ControlModifier);
    Drags({12, 1}, {12, 2});
    Drags({12, 1}, {12, 1});
    EXPECT_EQ(Counted(), "1 jour, 07:00") << "a press and release on one day is a click";
    After({Qt::Key_Escape});
    After({Qt::Key_1}, Qt::ControlModifier);
    Drags({12, 1}, {12, 4});
    EXPECT_EQ(Days({{12, 2}}), "2 ffffff") << "one date is one date";
    After({Qt::Key_5}, Qt::ControlModifier); // does nothing while another tool is in use
    After({Qt::Key_Escape});

    Sets("AttendanceApprovedBy_Main", SessionState.UserID);
    Opens("MBOUCHARD");
    After({Qt::Key_4}, Qt::ControlModifier);
    After({Qt::Key_Right}, Qt::ShiftModifier);
    EXPECT_EQ(Counted(), "2 days, 14:00") << "a request takes a range too";
    After({Qt::Key_Escape});
}

TEST_F(CalendarKeys, EachToolHasItsDigitAndF1ListsThem)
{
    house.Record(marie, "Sick", {2026, 12, 9}, 7);
    house.Record(marie, "Vacation", {2026, 12, 10}, 7, true);
    OpensOnMarie();
    user.WillAnswer("KEYBOARD:", "OK", "Ctrl+1").Presses("flxCalendar", Qt::Key_F1);
    user.WhenOpens<frmSelectDates>([](QDialog& form) { form.reject(); });
    After({Qt::Key_3}, Qt::ControlModifier);
    user.WhenOpens<frmSelectEmployee>([](QDialog& form) { form.reject(); });
    After({Qt::Key_8}, Qt::ControlModifier);
    user.Picks("cboCategories", "Sick");
    for (const auto& [digit, hint] : {std::pair(Qt::Key_5, "wish to modify"), {Qt::Key_6, "wish to remove"}}) {
        After({digit}, Qt::ControlModifier);
        EXPECT_TRUE(user.Reads("txtSelect").contains(hint)) << qPrintable(user.Reads("txtSelect"));
        After({Qt::Key_Escape});
    }
    user.WhenOpens<frmApproval>([](QDialog& form) { form.reject(); });
    After({Qt::Key_7}, Qt::ControlModifier);
}

TEST_F(CalendarKeys, ADaySaysItsDateHolidayCategoriesAndHours)
{
    house.Record(marie, "Vacation", {2026, 7, 13}, 7);
    house.Record(marie, "Sick", {2026, 7, 14}, 2);
    house.Record(marie, "Sick", {2026, 7, 14}, 1.5F);
    house.Record(marie, "Personal time", {2026, 7, 14}, 1);
    house.Sql("UPDATE Categories SET CategoryCode = '' WHERE SystemName = 'Personal time'");
    OpensOnMarie();
    EXPECT_EQ(Said(11, 23), "Monday, November 23, 2026, Today");
    EXPECT_EQ(Said(7, 1), "Wednesday, July 1, 2026, Canada Day");
    EXPECT_EQ(Said(7, 14), "Tuesday, July 14, 2026, Sick 03:30, Personal time 01:00");
    EXPECT_EQ(Grid().model()->index(0, 0).data(Qt::AccessibleTextRole).toString(), "JANUARY 2026");

    const auto code = [this](int day) {
        const int date = SerialOfDate({2026, 7, day});
        return DayCode(main->Calendar(), date) + (IsPartOfDay(main->Calendar(), date) ? " part" : "");
    };
    EXPECT_EQ(code(13) + ", " + code(14) + ", " + code(15), "V, S+P part, ");
    const QImage plain = Painted(7, 14);
    user.ChoosesMenu("mnuSpecialCategoryCodes");
    EXPECT_NE(Painted(7, 14), plain);
    const QImage whole = Painted(7, 13);
    const auto underlined = [](const QImage& day) {
        return day.pixelColor(day.width() / 2, day.height() - 3) != day.pixelColor(day.width() - 4, day.height() - 3);
    };
    EXPECT_TRUE(underlined(Painted(11, 23)) && !underlined(whole)) << "today alone";
    for (const double hours : {3, 7}) {
        house.Sql("UPDATE Attendance SET TotalDuration = ?1, Duration = ?1 WHERE RecordDate = ?2",
                  {hours, SerialOfDate({2026, 7, 13})});
        main->LoadDates();
        EXPECT_EQ(Painted(7, 13) == whole, hours == 7) << "the triangle of a part, whose letter is the same";
    }
    user.ChoosesMenu("mnuSpecialSwitchLanguage");
    EXPECT_EQ(Said(7, 13), "lundi 13 juillet 2026, Vacances 07:00");

    OpensOnMarie();
    EXPECT_TRUE(main->findChild<QAction*>("mnuSpecialCategoryCodes")->isChecked()) << "the workstation remembers it";
    user.ChoosesMenu("mnuSpecialCategoryCodes");
    EXPECT_EQ(Painted(7, 14), plain);
    Opens("MBOUCHARD");
    EXPECT_FALSE(main->findChild<QAction*>("mnuSpecialCategoryCodes")->isChecked()) << "for each user";
    static_cast<CalendarSelection&>(SessionState) = {};
    main->LoadDates();
    EXPECT_EQ(Said(7, 13), "Monday, July 13, 2026, Vacation") << "the hours of a whole company are not summed up";
}
} // namespace
