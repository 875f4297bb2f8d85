#pragma once

#include "calendar/year_calendar.h"

#include <QWidget>

#include <functional>

class CalendarGrid;
class QFrame;
class QLabel;
class QPlainTextEdit;
class QProgressBar;

/// The year grid of the main window, with the cover and progress bar that hide it while it fills, the list of a day's
/// records, and the floating hint of the tools.
class CalendarPane : public QWidget
{
public:
    explicit CalendarPane(QWidget* parent = nullptr);

    std::function<void(int date)> DateClicked; ///< a cell with a date was clicked
    /// The days as such: ranges of dates are chosen there.
    CalendarGrid& Days() { return *flxCalendar; }

    void Show(const YearCalendar& calendar);

    void Cover();
    void Uncover();
    void ShowProgress(int done, int all);

    /// The records of a day below its title; it closes when the mouse or the cursor moves on.
    void ShowRecords(const QString& title, const QString& records);
    /// False when none were shown.
    bool HideRecords();
    void ShowHint(const QString& hint);
    void ResizeScreen();

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    void BuildGrid();
    void BuildOverlays();
    void PlaceRecords();
    void PlaceHint(const QModelIndex& day);
    void FollowCursor();

    CalendarGrid* flxCalendar = nullptr;
    QFrame* fraHideCalendar = nullptr;
    QProgressBar* pgrLoadingCalendar = nullptr;
    QFrame* fraShowRecords = nullptr;
    QLabel* lblRecordsDate = nullptr;
    QPlainTextEdit* txtAttendanceRecords = nullptr;
    QLabel* txtSelect = nullptr;
};
