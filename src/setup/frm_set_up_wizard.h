#pragma once

#include "foundation/frm_base.h"
#include "setup/set_up_choices.h"

class QStackedWidget;
class WizardStep;

/// Runs at the first start on a workstation: it chooses the language and the database, and gives a new database its
/// first fiscal year, categories and administrator. It is accepted when the workstation can start normally; cancelling
/// ends the program.
class frmSetUpWizard : public FormBase
{
public:
    explicit frmSetUpWizard(QWidget* parent = nullptr);
    /// Hides first: the field that loses the focus still answers to the whole form.
    ~frmSetUpWizard() override { hide(); }
    void reject() override;

private:
    void AddSteps();
    void LoadCaptions();
    WizardStep* Step() const;
    void GoToStep(int step);
    void UpdateButtons();
    int LastStep() const;
    bool IsLastStep() const;

    void cmdNext_Click();
    bool ConfirmCancelling() const;
    void Finish();
    void Configure(const QString& databaseType, void (*install)(DataControl&, const SetUpChoices&));
    bool ConfirmConfiguration(const QString& databaseType) const;

    SetUpChoices choices_;
    int CurrentStep = 1;
    QLabel* lblTitle;
    QLabel* lblStep;
    QStackedWidget* steps_;
    QPushButton* cmdCancel;
    QPushButton* cmdPrevious;
    QPushButton* cmdNext;
};
