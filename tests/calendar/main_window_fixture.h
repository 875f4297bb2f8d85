#pragma once

#include "calendar/frm_main.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"
#include "selection/frm_select_employee.h"
#include "support/main_window.h"

#include <QAction>
#include <QTest>

#include <gtest/gtest.h>

/// The main window on 23 November 2026, and Marie, who assembles.
class MainWindow : public testing::Test
{
protected:
    MainWindow()
    {
        house.Configured().Company().Today(2026, 11, 23);
        marie = house.Hire({"MBOUCHARD", "Marie", "Bouchard", "Production", "Assembly", {"SelfLevelRead"}, 1});
    }
    void Opens(const QString& loginID) { main = &user.OpensMain(loginID); }
    void OpensOnMarie()
    {
        Opens("ADMIN");
        Selects("lstEmployees", "Bouchard, Marie");
    }
    void Selects(const QString& list, const QString& entry)
    {
        user.WhenOpens<frmSelectEmployee>(
            [this, list, entry](frmSelectEmployee&) { user.Picks(list, entry).Clicks("cmdSelect"); });
        user.Clicks("imgUpdateSelection");
    }
    /// Changes Marie's record.
    void Sets(const QString& column, int value)
    {
        house.Sql("UPDATE Employees SET " + column + " = ? WHERE RecordID = ?", {value, marie});
    }
    void Cancels(int record) { house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?", {record}); }
    FlexGrid& Grid() { return *main->findChild<FlexGrid*>("flxCalendar"); }
    QPoint Place(int month, int day) { return main->Calendar().PlaceOf(SerialOfDate({2026, month, day})); }
    /// Days of 2026 as they stand on the calendar: text, colour, colour of the text if it is not black, "bold".
    QString Days(std::initializer_list<std::pair<int, int>> days)
    {
        QStringList shown;
        for (const auto& [month, day] : days) {
            const QPoint place = Place(month, day);
            const int color = Grid().CellForeColor(place.y(), place.x());
            shown << Grid().TextMatrix(place.y(), place.x()) + " " +
                         QString::number(Grid().CellBackColor(place.y(), place.x()), 16) +
                         (color != 0 ? " " + QString::number(color, 16) : "") +
                         (Grid().CellFontBold(place.y(), place.x()) ? " bold" : "");
        }
        return shown.join(", ");
    }
    void ClicksDay(int month, int day) { user.ClicksDay({2026, month, day}); }
    /// Year, category, whom the calendar shows, the total and the balance of the bank.
    QString Figures()
    {
        return user.ReadsAll(
                   {"lblFiscalYear", "cboCategories", "lblCurrentSelection_DISPLAY", "lblTotalForTheYear_DISPLAY"}) +
               "|" + (Visible("fraTimeBank") ? user.Reads("txtTimeBanked") : "no bank");
    }
    /// The tools and the buttons that may be used now.
    QString Tools()
    {
        QStringList usable;
        for (const char* name : {"cmdPreviousYear", "cmdNextYear", "imgCreateSingle", "imgCreateMultiple", "imgSubmit",
                                 "imgModify", "imgRemove", "imgUpdateSelection", "cboCategories"})
            if (user.CanUse(name))
                usable << QString(name).mid(3);
        return usable.join(' ');
    }
    bool Enabled(const char* menu) { return main->findChild<QAction*>(menu)->isEnabled(); }
    bool Visible(const QString& control) { return main->findChild<QWidget*>(control)->isVisible(); }

    House house;
    MainUser user;
    frmMain* main = nullptr;
    int marie = 0;
};
