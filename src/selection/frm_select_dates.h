#pragma once

#include "platform/dao/dao.h"
#include "selection/consecutive_dates.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;
class WeekdayBoxes;

/// Lets the user choose a range of dates of the fiscal year for the employee shown in the calendar. OK fills
/// SessionState.AttendanceDates; leaving the form otherwise leaves it empty.
class frmSelectDates : public QDialog
{
public:
    explicit frmSelectDates(QWidget* parent = nullptr);

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions();
    void LoadRecords();
    void LoadDatesTo();
    ConsecutiveDates Choice() const;
    void ShowCount();
    void cboFrom_Click();
    void chkIgnoreDaysOff_Click();
    void chkIgnoreHolidays_Click();
    void ConfirmClearing(QCheckBox* box, const QString& question);
    void cmdOK_Click();

    DataControl datAbsence{"frmSelectDates"};
    QVector<Holiday> holidays_;
    bool Loading = false;
    QLabel* lblFrom = nullptr;
    QLabel* lblTo = nullptr;
    QLabel* lblWeekdays = nullptr;
    QLabel* lblCount = nullptr; ///< "5 dates"
    QComboBox* cboFrom = nullptr;
    QComboBox* cboTo = nullptr;
    WeekdayBoxes* boxes_ = nullptr;
    QCheckBox* chkIgnoreDaysOff = nullptr;
    QCheckBox* chkIgnoreHolidays = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
