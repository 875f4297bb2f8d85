#pragma once

#include <QDialog>

class WeekdayBoxes;

/// Lets the user choose weekdays, Monday to Friday to begin with. OK sets SessionState.SelectedWeekdays, leaving the
/// form otherwise clears it.
class frmSelectWeekdays : public QDialog
{
public:
    explicit frmSelectWeekdays(QWidget* parent = nullptr);
    void reject() override;

private:
    void cmdOK_Click();

    WeekdayBoxes* boxes_;
};
