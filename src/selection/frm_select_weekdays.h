#pragma once

#include "foundation/frm_base.h"

#include <array>

class WeekdayBoxes;

/// Lets the user choose weekdays, Monday to Friday to begin with. The choice is in SessionState.SelectedWeekdays too.
class frmSelectWeekdays : public FormBase
{
public:
    explicit frmSelectWeekdays(QWidget* parent = nullptr);

    /// 1 for each chosen weekday, Sunday first; none when the form was left without OK.
    const std::array<int, 7>& Weekdays() const { return weekdays_; }
    void reject() override;

private:
    void cmdOK_Click();

    WeekdayBoxes* boxes_;
    std::array<int, 7> weekdays_{};
};
