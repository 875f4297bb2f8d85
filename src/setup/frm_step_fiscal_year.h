#pragma once

#include "setup/frm_wizard_step.h"

/// The fourth step: name and first month of the first fiscal year.
class FiscalYearStep : public WizardStep
{
public:
    explicit FiscalYearStep(SetUpChoices& choices);
    bool IsComplete() const override { return IsFiscalYearComplete(choices_); }

private:
    void LayControls();
    QLayout* Dates();
    void LoadYears();
    void ConnectControls();
    void ShowMonths();
    void cboStartMonth_Click();
    void ShowDates();

    bool Loading = false;
    QLineEdit* txtFiscalYearName;
    QComboBox* cboStartMonth;
    QComboBox* cboStartYear; ///< a year that is not listed can be typed
    QLabel* lblFiscalYearStart;
    QLabel* lblFiscalYearEnd;
};
