#pragma once

#include "employees/work_schedule_rules.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QStringListModel;

/// The tab "Working schedule": a row per weekday with the times of its two halves and its total. It works on the record
/// of the form and is silent while the form is loading.
class EmployeeSchedulePage : public QWidget
{
public:
    EmployeeSchedulePage(EmployeeRecord& record, bool& loading);

    void LoadCaptions();
    void LoadComboBoxes();
    void Show();
    void SetEntryEnabled(bool enabled);
    /// Takes in the total that has the focus, if one has, before `button` does its work. False when it was refused,
    /// also by the press that has just moved the focus to the button: it is blank and keeps the focus.
    bool LeaveFocusedTotalFor(const QWidget* button);

private:
    void BuildControls();
    QGridLayout* Week();
    void ConnectDay(int day);
    void ConnectTime(const ClockTimeInfo& time, int day);
    void Time_Click(ClockTime time, int day);
    void Time_Change(ClockTime time, int day);
    void Time_GotFocus(ClockTime time, int day);
    void Time_LostFocus(ClockTime time, int day);
    void Total_Change(int day);
    bool Total_LostFocus(int day); ///< false when it was refused
    void chkIrregularHours_Click(bool checked);
    void ShowDay(int day);
    QComboBox* TimeList(ClockTime time, int day) const;

    EmployeeRecord& record_;
    bool& Loading;
    QStringListModel* clockTimes_; ///< shared by the 28 lists
    QLabel* lblExplanation = nullptr;
    QLabel* lblFirstHalf = nullptr;
    QLabel* lblSecondHalf = nullptr;
    QLabel* lblTotal = nullptr;
    std::array<QLabel*, 6> columns_{}; ///< four times, hours, minutes
    std::array<QLabel*, 7> lblWeekday{};
    std::array<std::array<QComboBox*, 7>, 4> cboTimes{}; ///< in the order of kDayTimes
    std::array<QLineEdit*, 7> txtTotalHours{};
    std::array<QLineEdit*, 7> txtTotalMinutes{};
    QCheckBox* chkIrregularHours = nullptr;
    const QWidget* refusedFor_ = nullptr; ///< where the focus went from the total that was refused last
};
