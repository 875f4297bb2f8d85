#pragma once

#include "foundation/frm_base.h"
#include "reference/holidays.h"

/// The statutory holidays of the session's fiscal year: adds one on some dates, and takes a date away. A year without
/// any offers those of the year before.
class frmHolidays : public FormBase
{
public:
    explicit frmHolidays(QWidget* parent = nullptr);

    void LoadHolidays();

protected:
    void Form_Activate() override;
    bool MayBeLeft() override;

private:
    QFrame* ExistingHolidays();
    QFrame* NewHoliday();
    HolidayEntry Read() const;
    bool Confirm(const HolidayEntry& entry);
    void ShowRefusal(const Fault& fault);
    void Reset();
    void OfferYearBefore();

    void cboHolidayName_Click();
    void cmdAdd_Click();
    void cmdRemove_Click();

    QVector<Holiday> holidays_;
    QComboBox* cboHolidayName;
    QPushButton* cmdRemove;
    QLineEdit* txtHolidayName;
    QListWidget* lstHolidayDates; ///< every day of the year; those that are marked are the new holiday's
};
