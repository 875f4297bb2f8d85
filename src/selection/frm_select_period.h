#pragma once

#include "foundation/frm_base.h"
#include "selection/period_choice.h"

class QButtonGroup;

/// Lets the user choose a period of the fiscal year, or the one day from which a change counts.
class frmSelectPeriod : public FormBase
{
public:
    explicit frmSelectPeriod(PeriodMode mode = PeriodMode::Range, QWidget* parent = nullptr);

    /// Serial days; 0 when the form was left without OK. Of a single date both are that day.
    int PeriodStart() const { return chosen_.Start; }
    int PeriodEnd() const { return chosen_.End; }

protected:
    void Form_Activate() override { setFixedSize(size()); }

private:
    QLayout* Dates();
    QLayout* Months();
    QRadioButton* AddOption(const QString& name, const Text& caption, const Period& period);
    void HideUnasked();
    Period Shown() const;
    void Show(const Period& period);
    void ClearOptions();
    void cboFrom_Click();
    void cboTo_Click();
    void cmdOK_Click();

    const PeriodMode mode_;
    Period chosen_;
    QComboBox* cboFrom;
    QComboBox* cboTo;
    QButtonGroup* options_; ///< the entire year, and its months
};
