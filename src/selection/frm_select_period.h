#pragma once

#include "selection/period_choice.h"

#include <QDialog>

#include <array>

class QButtonGroup;
class QComboBox;
class QLabel;
class QPushButton;
class QRadioButton;

/// Lets the user choose a period of the fiscal year, or the one day from which a change counts.
class frmSelectPeriod : public QDialog
{
public:
    explicit frmSelectPeriod(PeriodMode mode = PeriodMode::Range, QWidget* parent = nullptr);

    /// Serial days; 0 when the form was left without OK. Of a single date both are that day.
    int PeriodStart() const { return chosen_.Start; }
    int PeriodEnd() const { return chosen_.End; }

private:
    void BuildControls();
    void BuildOptions();
    void LayControls();
    void ConnectControls();
    void LoadCaptions();
    void LoadRecords();
    Period Shown() const;
    void Show(const Period& period);
    void ClearOptions();
    void cboFrom_Click();
    void cboTo_Click();
    void cmdOK_Click();

    const PeriodMode mode_;
    Period chosen_;
    bool Loading = false;
    QLabel* lblInstructions = nullptr;
    QLabel* lblFrom = nullptr;
    QLabel* lblTo = nullptr;
    QLabel* lblMonths = nullptr;
    QComboBox* cboFrom = nullptr;
    QComboBox* cboTo = nullptr;
    QButtonGroup* options_ = nullptr;
    QRadioButton* optEntireYear = nullptr;
    std::array<QRadioButton*, 12> optMonth{}; ///< 0 January
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
