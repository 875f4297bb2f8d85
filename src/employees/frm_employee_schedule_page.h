#pragma once

#include "employees/work_schedule_rules.h"
#include "foundation/frm_captions.h"

#include <array>

/// The tab "Working schedule": a row per weekday with the times of its two halves and its total. It works on the record
/// of the form and is silent while the form is loading.
class EmployeeSchedulePage : public QWidget
{
public:
    EmployeeSchedulePage(EmployeeRecord& record, bool& loading);

    void Show();
    /// `whyNot` is empty while the page takes entries.
    void EnableEntry(const Text& whyNot);
    /// Takes in the total that has the focus, if one has, before `button` does its work. False when it was refused,
    /// also by the press that has just moved the focus to the button: it is blank and keeps the focus.
    bool LeaveFocusedTotalFor(const QWidget* button);

private:
    using TimeRule = void (*)(EmployeeRecord&, ClockTime, int day);

    QGridLayout* Week();
    QLayout* Foot();
    void AddClearButton(QGridLayout* week, int day);
    void AddDay(QGridLayout* week, int day);
    QComboBox* MakeTimeList(const ClockTimeInfo& time, int day);
    QLineEdit* TotalField(const QString& name, int day);
    QComboBox* TimeList(ClockTime time, int day) const;
    void Time_Click(ClockTime time, int day);
    /// A person sets off a rule; the day shows what it made of the record.
    void Apply(TimeRule rule, ClockTime time, int day);
    void Enter(ClockTime time, int day);
    void Type(ClockTime time, int day, const QString& typed);
    void cmdClearDay_Click(int day);
    void cmdCopyMonday_Click();
    /// Shows that a time was copied by passing through its list, or that it was not.
    void MarkCopied(ClockTime time, int day, bool copied);
    void ForgetCopied(int day);
    void Total_Change(int day);
    bool Total_LostFocus(int day); ///< false when it was refused
    void chkIrregularHours_Click(bool checked);
    void ShowDay(int day);

    EmployeeRecord& record_;
    bool& Loading;
    std::array<std::array<QComboBox*, 7>, 4> cboTimes{}; ///< in the order of kDayTimes
    std::array<QLineEdit*, 7> txtTotalHours{};
    std::array<QLineEdit*, 7> txtTotalMinutes{};
    std::array<QPushButton*, 7> cmdClearDay{};
    QPushButton* cmdCopyMonday = nullptr;
    QCheckBox* chkIrregularHours;
    const QWidget* refusedFor_ = nullptr; ///< where the focus went from the total that was refused last
};
