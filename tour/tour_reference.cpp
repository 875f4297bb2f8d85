#include "attendance/frm_attendance.h"
#include "calendar/frm_main.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/flex_grid.h"
#include "reference/frm_categories.h"
#include "reference/frm_holidays.h"
#include "reference/frm_select_color.h"
#include "reports/frm_lists.h"
#include "tour.h"

#include <QListWidget>
#include <QTabWidget>

/// Holidays and categories of attendance, by their forms alone.

namespace
{
const QDate kHiddenDay(2026, 11, 30);

QString HiddenCategory()
{
    return T("Special leave", "Congé spécial");
}
} // namespace

void Tour::AddHolidays()
{
    Say("Three statutory holidays, one of two dates");
    AddHoliday(T("Canada Day", "Fête du Canada"), {{2026, 7, 1}});
    AddHoliday(T("Labour Day", "Fête du Travail"), {{2026, 9, 7}});
    AddHoliday(T("Christmas", "Noël"), {{2026, 12, 25}, {2026, 12, 26}});
}

void Tour::AddHoliday(const QString& name, const QVector<QDate>& dates)
{
    user_.WhenOpens<frmHolidays>([this, name, dates](frmHolidays&) {
        user_.Types("txtHolidayName", name);
        for (const QDate& date : dates)
            user_.Picks("lstHolidayDates", FormatDate(SerialOfDate(date), "ddd dd-mmm-yyyy"));
        Photo("holidays");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"));
        user_.WillAnswer(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), "OK").Clicks("cmdAdd").Clicks("cmdQuit");
    });
    Choose("mnuFileHolidays");
}

void Tour::MaintainCategories()
{
    Say("Vacation gets its other name and a code; training is for sales alone, special leave for discreet eyes");
    user_.WhenOpens<frmCategories>([this](frmCategories& form) {
        user_.Clicks("cmdModify").Picks("cboRecords", T("Vacation", "Vacances"));
        user_.Types(T("txtFrenchName", "txtEnglishName"), english_ ? "Vacances" : "Vacation");
        user_.Types("txtCategoryCode", "v");
        Photo("categories");
        RecordCategory("cmdModify");

        StartCategory("Training", "Formation", "F", "lblColor(7)");
        user_.Clicks("optEntitlementVaries").Checks("chkCategoryIsPublic", false);
        form.findChild<QTabWidget*>("sstCategories")->setCurrentIndex(1);
        auto* departments = form.findChild<QListWidget*>("lstUserDepartments");
        departments->findItems(T("Sales", "Ventes"), Qt::MatchStartsWith).constFirst()->setCheckState(Qt::Checked);
        Photo("categories_departments");
        RecordCategory("cmdAdd");

        StartCategory("Special leave", "Congé spécial", "X", "lblColor(9)");
        user_.Clicks("optStandardEntitlement").Types("txtAnnualEntitlement_Hours", "21").Checks("chkHiddenCategory");
        RecordCategory("cmdAdd");

        user_.WhenOpens<frmLists>([this](frmLists&) {
            Photo("lists_categories");
            user_.Clicks("cmdOK");
        });
        user_.Clicks("cmdListRecords").Clicks("cmdQuit");
    });
    Choose("mnuFileCategories");
}

void Tour::StartCategory(const QString& english, const QString& french, const QString& code, const QString& color)
{
    user_.Clicks("cmdAdd").Types("txtEnglishName", english).Types("txtFrenchName", french);
    user_.Types("txtCategoryCode", code).WhenOpens<frmSelectColor>([this, color](frmSelectColor&) {
        user_.Clicks(color);
        Photo("select_color");
        user_.Clicks("cmdOK");
    });
    user_.Clicks("cmdColorAssigned");
}

void Tour::RecordCategory(const QString& button)
{
    user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui"));
    user_.WillAnswer(T("OPERATION COMPLETED:", "OPÉRATION COMPLÉTÉE:"), "OK").Clicks(button);
}

void Tour::TakeHiddenLeave()
{
    Say("A day of special leave, which the administrator sees");
    user_.Clicks("imgCreateSingle");
    user_.WhenOpens<frmAttendance>([this](frmAttendance&) {
        user_.Picks("cboCategories", HiddenCategory()).Checks("chkWholeDay");
        user_.WillAnswer(T("CONFIRM:", "VEUILLEZ CONFIRMER:"), T("Yes", "Oui")).Clicks("cmdAddOrUpdate");
    });
    ClickDays(kHiddenDay.month(), {kHiddenDay.day()});
    ExpectHidden(false);
    Photo("main_window_hidden_seen");
}

/// Whether the hidden day is white and its category in no list.
void Tour::ExpectHidden(bool hidden)
{
    const QPoint place = main_->Calendar().PlaceOf(SerialOfDate(kHiddenDay));
    const bool white =
        main_->findChild<FlexGrid*>("flxCalendar")->CellBackColor(place.y(), place.x()) == CalendarColor::White;
    if (white != hidden || user_.Entries("cboCategories").contains(HiddenCategory()) == hidden)
        Complain(hidden ? "the hidden leave is seen" : "the hidden leave is not seen");
}
