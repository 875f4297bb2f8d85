#include "calendar/frm_main.h"
#include "calendar/frm_main_calendar.h"
#include "calendar/frm_main_grid.h"
#include "calendar/frm_main_header.h"
#include "calendar/frm_main_legend.h"
#include "calendar/frm_main_tool_bar.h"
#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "ledger/time_banks.h"
#include "platform/clock.h"
#include "platform/controls/form_kit.h"
#include "selection/frm_select_employee.h"

#include <QScopeGuard>

#include <algorithm>

namespace
{
/// A failure leaves the session as it was before, so that it goes with what the window still shows.
void WholeOrNotAtAll(const std::function<void()>& change)
{
    const Session before = SessionState;
    try {
        change();
    } catch (const RuntimeError&) {
        SessionState = before;
        throw;
    }
}

/// The session knows the system's own categories by name.
void NoteSystemCategories(const QVector<CategoryItem>& categories)
{
    Session& s = SessionState;
    struct Noted
    {
        const char* SystemName;
        QString& Name;
        int& ID;
    };
    const Noted noted[] = {{"Vacation", s.VacationName, s.VacationID},
                           {"Sick", s.SickName, s.SickID},
                           {"Personal time", s.PersonalName, s.PersonalID},
                           {"Doctor appointments", s.DoctorName, s.DoctorID}};
    for (const CategoryItem& category : categories)
        for (const Noted& system : noted)
            if (category.SystemName == QLatin1String(system.SystemName)) {
                system.Name = category.Name;
                system.ID = category.RecordID;
            }
}

template <typename Items>
bool Lists(const Items& items, int categoryID)
{
    return std::any_of(items.begin(), items.end(), [=](const auto& item) { return item.RecordID == categoryID; });
}
} // namespace

/// One query for the total and one for the records, however many days the year has.
void frmMain::LoadDates()
{
    const Connection connection(datAbsence);
    total_ = TotalForTheYear(datAbsence);
    const QVector<CalendarRecord> records = RecordsOfTheYear(datAbsence);
    holidays_ = LoadHolidays(datAbsence);
    const bool inDays = SessionState.EmployeeID != 0 && total_ != 0;
    header_->ShowTotal(DurationText(total_, inDays ? SessionState.HoursWorkedDaily : 0));
    SessionState.SelectedDate = Today();
    calendar_.LoadDates(SessionState, records, holidays_,
                        [this](int done, int all) { pane_->ShowProgress(done, all); });
    pane_->Show(calendar_);
}

QString frmMain::RecalculateTimeBank()
{
    if (SessionState.EmployeeOrganizationID == 0)
        return {};
    const Connection connection(datAbsence);
    return DurationText(TimeBankOf(datAbsence, SessionState));
}

void frmMain::ReloadCalendar()
{
    const BusyPointer hourglass;
    const Connection connection(datAbsence);
    pane_->Cover();
    const auto uncover = qScopeGuard([this] { pane_->Uncover(); });
    const QString balance = RecalculateTimeBank();
    LoadDates();
    header_->ShowTimeBank(balance);
}

void frmMain::ReloadIfAsked()
{
    if (!SessionState.ReloadCalendar)
        return;
    ReloadCalendar();
    SessionState.ReloadCalendar = false;
    header_->ShowNames();
}

/// The list goes back to the category before when the records of the new one cannot be read.
void frmMain::SelectCategory(int categoryID)
{
    const auto show = qScopeGuard([this] { ShowCategory(); });
    WholeOrNotAtAll([this, categoryID] {
        SessionState.SelectedCategoryID = categoryID;
        ReloadCalendar();
    });
}

/// Only those who may enter records need to know.
void frmMain::DoesUserKnowAboutTimeBank()
{
    if (SessionState.SelectedCategoryID == 0 || !(toolBar_->Shows("imgCreateSingle") || toolBar_->Shows("imgSubmit")))
        return;
    const LoadingGuard busy(Busy);
    try {
        ::DoesUserKnowAboutTimeBank(datAbsence, SessionState.SelectedCategoryID, header_->CategoryName());
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}

/// The legend also offers categories that the employee's department does not use.
void frmMain::ShowCategory()
{
    header_->SelectCategory(SessionState.SelectedCategoryID, legend_->NameOf(SessionState.SelectedCategoryID));
}

/// Everything is read before anything is shown anew.
void frmMain::LoadLists(Category category)
{
    Session& s = SessionState;
    const QVector<CategoryItem> categories = LoadCategoryItems(datAbsence, s.EmployeeDepartmentID);
    const QVector<LegendItem> legend = LoadLegendItems(datAbsence);
    LoadEmployeeInfo(datAbsence);
    NoteSystemCategories(categories);
    const bool listed = Lists(categories, s.SelectedCategoryID) || Lists(legend, s.SelectedCategoryID);
    if (category == Category::Forget || !listed)
        s.SelectedCategoryID = 0;
    if (CalendarLoaded)
        ReloadCalendar();
    header_->ShowCategories(categories);
    legend_->Show(legend);
    ShowCategory();
}

void frmMain::ReloadSelection(Category category)
{
    const Connection connection(datAbsence);
    LoadLists(category);
    header_->ShowNames();
    SessionState.ReloadCalendar = false;
    ActivateAllowedControls();
}

void frmMain::ReloadAfterEditing()
{
    if (!SessionState.ReloadCalendar)
        return;
    const LoadingGuard busy(Busy);
    ReloadSelection(Category::KeepIfListed);
}

/// A year that cannot be read leaves the one before, with its user and rights.
void frmMain::ChangeToYear(Neighbour direction)
{
    const LoadingGuard busy(Busy);
    const Connection connection(datAbsence);
    WholeOrNotAtAll([this, direction] {
        if (!ChangeYear(datAbsence, direction, [this](int year, const QString& name) { return LogIn(year, name); }))
            return;
        ReloadSelection();
        LoadCaptions();
        LookWhatOthersDid(); // he may be another user there
        ActivateAllowedControls();
    });
}

/// So does an employee or a unit whose records cannot be read.
void frmMain::imgUpdateSelection_Click()
{
    WholeOrNotAtAll([this] {
        frmSelectEmployee form(this);
        if (ShowModal(form) != QDialog::Accepted)
            return;
        const LoadingGuard busy(Busy);
        ReloadSelection();
        pane_->setFocus();
    });
}

void frmMain::DisplayRecords(bool approved)
{
    WholeOrNotAtAll([this, approved] {
        SessionState.ShowApproved = approved;
        ReloadCalendar();
    });
    header_->ShowNames();
    ActivateAllowedControls();
}
