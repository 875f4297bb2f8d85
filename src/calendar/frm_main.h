#pragma once

#include "calendar/calendar_tools.h"
#include "calendar/frm_main_menus.h"
#include "calendar/minute_work.h"
#include "calendar/year_change.h"

#include <QMainWindow>

#include <memory>

class CalendarPane;
class LegendPane;
class MainHeader;
class QTimer;
class ToolBar;
class UnsentLine;

/// The workspace: the year calendar of the selection, its tools, and the menus from which all other forms open.
class frmMain : public QMainWindow, private ToolHost
{
public:
    explicit frmMain(QWidget* parent = nullptr);

    /// Captions, lists, rights: all but the calendar itself, which the first tick of the timer draws.
    void Form_Load();
    void LoadCaptions();

    /// Rebuilds the whole calendar from the records within the scope.
    void LoadDates();
    /// The balance as it is shown, empty where there is none to show.
    QString RecalculateTimeBank();
    /// The log-in for a year in which the user has no record; false when it was cancelled.
    bool LogIn(int year, const QString& name);

    void timAbsence_Timer();
    void timTimeOut_Timer();

    // What the commands do.
    void cmdQuit_Click();
    void DisplayRecords(bool approved); ///< or the pending ones
    void mnuSpecialSwitchLanguage_Click();
    void mnuSpecialUpdateAdminInfo_Click();
    void mnuSpecialDeniedRequests_Click();
    void mnuSpecialCategoryCodes_Click();
    /// This user wants the days to tell their categories by letters.
    static bool ShowsCodes();
    void imgUpdateSelection_Click();
    void imgApprove_Click();
    void UseTool(const QString& tool);
    void ChangeToYear(Neighbour direction);
    /// Shows what a form has changed, if it has; the category stays chosen where it is still on offer. The window is
    /// busy only meanwhile: a form left open must not keep an idle program alive.
    void ReloadAfterEditing();

    bool Busy = false;      ///< a long command runs; timers stand still
    bool TimerBusy = false; ///< the timer itself runs a step
    int IdleSeconds = 0;

    /// Where other floors leave the work of the timer's steps.
    MinuteWork& BackgroundWork() { return minuteWork_; }
    YearCalendar& Calendar() override { return calendar_; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* target, QEvent* event) override;
    bool event(QEvent* event) override;

private:
    void BuildControls();
    void ConnectControls();
    void Run(const Command& command);

    void ReloadCalendar();
    void ReloadIfAsked();
    enum class Category
    {
        Forget,
        KeepIfListed
    };
    void ReloadSelection(Category category);
    void LoadLists(Category category);
    void SelectCategory(int categoryID);
    void DoesUserKnowAboutTimeBank();
    void ShowCategory();
    void ActivateAllowedControls();
    void DeactivateAllControls(const QString& toolInUse = {}, bool usable = false);

    void LookWhatOthersDid();
    /// Asks about requests that are new to the user; Yes opens the form that settles them.
    void AreThereRequestsToApprove();
    void RunMinuteWork();
    bool MayLeaveUnsent();

    void RestorePlace();
    void KeepPlace() const;

    DataControl& Data() override { return datAbsence; }
    bool NothingRecorded() const override { return total_ == 0; }
    void ShowHint(const QString& hint) override;
    void BeginTool(const QString& tool, bool usable) override;
    void EndTool() override;
    void RefreshDate(int date) override;
    void ShowAttendance(const AttendanceJob& job) override;
    DateList ShowSelectDates() override;
    int SelectAttendanceRecord(const QVector<ListEntry>& lines) override;
    void CancelRecords(const QVector<int>& records) override;
    void ReloadSelection() override { ReloadSelection(Category::Forget); }
    void DisplayDailyAttendance(int date) override;

    DataControl datAbsence{"frmMain"};
    YearCalendar calendar_;
    QVector<Holiday> holidays_;
    CalendarTools tools_{*this};
    MinuteWork minuteWork_;
    bool newRequests_ = false; ///< somebody has asked the user for leave, who has not been told, in an open year
    float total_ = 0;
    bool CalendarLoaded = false;

    std::unique_ptr<MainMenus> menus_;
    ToolBar* toolBar_;
    UnsentLine* unsent_;
    MainHeader* header_;
    CalendarPane* pane_;
    LegendPane* legend_;
    QTimer* timAbsence;
    QTimer* timTimeOut;
};
