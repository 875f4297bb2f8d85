#pragma once

#include "calendar/year_calendar.h"

#include <QString>

#include <utility>
#include <vector>

/// What the tools need of the window that they work in.
class ToolHost
{
public:
    virtual ~ToolHost() = default;

    virtual YearCalendar& Calendar() = 0;
    virtual DataControl& Data() = 0;
    /// The total shown for the year is 0.
    virtual bool NothingRecorded() const = 0;
    /// The floating hint; empty hides it.
    virtual void ShowHint(const QString& hint) = 0;
    /// A tool begins: only the named tool stays usable ("" none). EndTool restores what is allowed.
    virtual void BeginTool(const QString& usableTool) = 0;
    virtual void EndTool() = 0;
    /// The mark of a date has changed.
    virtual void RefreshDate(int date) = 0;
    /// Opens the entry form and, when it changed something, reloads the calendar afterwards.
    virtual void ShowAttendance(int recordToModify, bool conflictsAccepted) = 0;
    /// True when dates came back in SessionState.AttendanceDates.
    virtual bool ShowSelectDates() = 0;
    /// The chosen record among several, 0 none.
    virtual int SelectAttendanceRecord(const std::vector<std::pair<QString, int>>& lines) = 0;
    virtual void ShowApproval() = 0;
    virtual void RemoveMarkedRecords() = 0;
    /// Shows the records of the session's selection anew.
    virtual void ReloadSelection() = 0;
    /// Lists the records of a date; no tool is in use.
    virtual void DisplayDailyAttendance(int date) = 0;
};

/// The two-step dialogue of the tools: pick a tool, then dates or records on the calendar. The flags of the session
/// tell the entry form what is going on.
class CalendarTools
{
public:
    explicit CalendarTools(ToolHost& host) : host_(host) {}

    bool SelectingSingle = false;
    bool SelectingMultiple = false;
    QString HoveredTool;            ///< the image under the mouse, empty none
    std::vector<int> MarkedRecords; ///< RecordIDs marked for removal

    bool IsSelecting() const { return SelectingSingle || SelectingMultiple; }

    /// The tool under the mouse was clicked. A tool whose multiple selection is running ends that selection.
    void imgZoom_Click();
    /// A day cell of the calendar was clicked.
    void DateClicked(int date);
    /// Escape: clears marks, flags and hint of a running selection. Nothing happens without one.
    void Abort();

private:
    bool CanCreate() const;
    bool CanChangeRecords(const QString& missing, const QString& nothing) const;
    void Begin(bool multiple, const QString& usableTool, const QString& hint);
    void End();
    void StartCreateSingle();
    void StartCreateMultiple();
    void StartCreateConsecutive();
    void StartSubmit();
    void StartModify();
    void StartRemove();
    void EndMultipleSelection();
    void imgRemove_Click();

    bool AcceptsDate(int date);
    bool AcceptsDayOff(int date) const;
    bool AreThereConflictingRecords(int date);
    void SelectSingleDate(int date);
    void SelectMultipleDates(int date);
    void SelectRecordToModify(int date);
    void SelectRecordsToCancel(int date);
    int RecordOnDate(int date, bool pending);
    bool MayChangeOwnRecords(const char* english, const char* french) const;
    void Mark(int date, const QString& mark);
    void Unmark(int date);
    void ClearMarks();

    ToolHost& host_;
    bool conflictsAccepted_ = false;
    std::vector<std::pair<int, int>> removals_; // date and RecordID
};
