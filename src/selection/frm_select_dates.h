#pragma once

#include "foundation/frm_base.h"
#include "selection/consecutive_dates.h"
#include "selection/date_range_model.h"
#include "selection/period_choice.h"

class WeekdayBoxes;

/// Lets the user choose dates of a period for an employee: a range, its weekdays, without his days off and without the
/// holidays of the fiscal year. The choice is in SessionState.AttendanceDates too.
class frmSelectDates : public FormBase
{
public:
    frmSelectDates(const Period& period, const WorkSchedule& schedule, QWidget* parent = nullptr);

    /// The dates chosen; none when the form was left without OK.
    const DateList& Dates() const { return dates_; }

private:
    QComboBox* AddDates(QGridLayout* range, int column, const char* name, const Text& label, DateRangeModel* days);
    QCheckBox* AddExclusion(QVBoxLayout* content, const char* name, const Text& caption, const Text& warning);
    void LoadRecords();
    void LoadDatesTo();
    DateList Chosen() const;
    void ShowCount();
    void cboFrom_Click();
    void Exclusion_Click(QCheckBox* box, const Text& warning);
    void cmdOK_Click();

    const Period period_;
    const WorkSchedule schedule_;
    QVector<Holiday> holidays_;
    DateList dates_{};
    bool endPicked_ = false;
    DateRangeModel* daysFrom_;
    DateRangeModel* daysTo_;
    QComboBox* cboFrom;
    QComboBox* cboTo;
    WeekdayBoxes* boxes_;
    QCheckBox* chkIgnoreDaysOff;
    QCheckBox* chkIgnoreHolidays;
    QLabel* lblCount; ///< "5 dates"
};
