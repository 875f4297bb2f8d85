#pragma once

#include "setup/frm_wizard_step.h"

class QComboBox;
class QLineEdit;

/// The fourth step: name and first month of the first fiscal year.
class FiscalYearStep : public WizardStep
{
public:
    explicit FiscalYearStep(SetUpChoices& choices);
    void LoadCaptions() override;
    bool IsComplete() const override { return IsFiscalYearComplete(choices_); }

private:
    void BuildControls();
    void ConnectControls();
    void cboStartMonth_Click();
    void ShowDates();

    bool Loading = false;
    QLabel* lblFiscalYearHelp = nullptr;
    QLabel* lblFiscalYearName = nullptr;
    QLabel* lblStartMonth = nullptr;
    QLabel* lblStartYear = nullptr;
    QLabel* lblStartCaption = nullptr;
    QLabel* lblEndCaption = nullptr;
    QLabel* lblFiscalYearStart = nullptr;
    QLabel* lblFiscalYearEnd = nullptr;
    QLineEdit* txtFiscalYearName = nullptr;
    QComboBox* cboStartMonth = nullptr;
    QComboBox* cboStartYear = nullptr; ///< a year that is not listed can be typed
};
