#pragma once

#include "attendance/attendance_entry.h"
#include "calendar/year_calendar.h"
#include "foundation/list_entry.h"
#include "foundation/texts.h"

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
    /// The named tool begins: only it stays usable, and only where a second click ends it. EndTool restores what is
    /// allowed.
    virtual void BeginTool(const QString& tool, bool usable) = 0;
    virtual void EndTool() = 0;
    /// The mark of a date has changed.
    virtual void RefreshDate(int date) = 0;
    /// Opens the entry form; the calendar follows what it wrote.
    virtual void ShowAttendance(const AttendanceJob& job) = 0;
    /// Lets the user choose dates of a period; none when he leaves.
    virtual DateList ShowSelectDates() = 0;
    /// The chosen record among several, 0 none.
    virtual int SelectAttendanceRecord(const QVector<ListEntry>& lines) = 0;
    /// Cancels attendance records by their RecordIDs; the calendar shows what is left.
    virtual void CancelRecords(const QVector<int>& records) = 0;
    /// Shows the records of the session's selection anew.
    virtual void ReloadSelection() = 0;
    /// Lists the records of a date; no tool is in use.
    virtual void DisplayDailyAttendance(int date) = 0;
};

/// The two-step dialogue of the tools: pick a tool, then dates or records on the calendar. At most one is in use. What
/// it is about stands in the session's flags meanwhile.
class CalendarTools
{
public:
    explicit CalendarTools(ToolHost& host) : host_(host) {}

    /// A tool is in use.
    bool IsSelecting() const { return tool_ != nullptr; }

    /// The tool under the mouse was clicked. A tool whose multiple selection is running ends that selection.
    void imgZoom_Click(const QString& hoveredTool);
    /// A day cell of the calendar was clicked.
    void DateClicked(int date);
    /// Dates are being marked, so that a range of them can be chosen at once.
    bool TakesRanges() const;
    /// Marks the dates between two, in either order, but for holidays and the employee's days off. A further range that
    /// begins on the same date takes the place of the one before.
    void MarkRange(int from, int to);
    /// Escape: clears marks, flags and hint of a running selection. Nothing happens without one.
    void Abort();

private:
    struct Tool;
    static const Tool kTools[];

    bool CanCreate();
    bool CanSubmit();
    bool CanModify();
    bool MayModifyShownEmployee();
    bool CanRemove();
    bool CanChangeRecords(const Text& missing, const Text& nothing) const;
    void Begin(const Tool& tool);
    void End();

    void SelectSingleDate(int date);
    void SelectMultipleDates(int date);
    void SelectRecordToModify(int date);
    void SelectRecordsToCancel(int date);
    void EnterMarkedDates();
    void EnterPeriod();
    void imgRemove_Click();
    void Enter(const DateList& dates, int recordToModify = 0);

    bool AcceptsHoliday(int date) const;
    bool AcceptsDate(int date);
    bool AcceptsDayOff(int date) const;
    bool AreThereConflictingRecords(int date);
    DateList ConflictsRefused(const DateList& dates);
    bool AcceptsConflicts(const Text& question, const QStringList& lines);
    int RecordOnDate(int date, bool pending);
    bool MayChangeOwnRecords(const Text& refusal) const;
    struct Range
    {
        int From = 0; ///< 0 none
        DateList Marked;
        DateList Refused; ///< not to be asked about again
    };
    void TakeBack(int date);
    void LeaveOutside(int first, int last);
    bool IsInRange(int date) const;
    void ShowCount();
    void Mark(int date, const QString& mark);
    void Unmark(int date);

    ToolHost& host_;
    const Tool* tool_ = nullptr; ///< the one in use
    bool conflictsAccepted_ = false;
    Range range_;
    std::vector<std::pair<int, int>> markedRecords_; ///< dates and RecordIDs marked for removal
};
