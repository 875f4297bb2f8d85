#pragma once

#include "foundation/frm_base.h"
#include "setup/set_up_choices.h"

class QStackedWidget;
class WizardStep;

/// Runs at the first start on a workstation: it chooses the language and the database, and gives a new database its
/// first fiscal year, categories and administrator. Its end hands over to the normal start; cancelling ends the
/// program.
class frmSetUpWizard : public FormBase
{
public:
    explicit frmSetUpWizard(std::function<void()> startNormally, QWidget* parent = nullptr);
    /// Hides first: the field that loses the focus still answers to the whole form.
    ~frmSetUpWizard() override { hide(); }
    void reject() override { cmdCancel_Click(); }

private:
    void AddSteps();
    void LoadCaptions();
    void ChooseLanguage();
    WizardStep* Step() const;
    void GoToStep(int step);
    void UpdateButtons();
    int LastStep() const;
    bool IsLastStep() const;

    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdCancel_Click();
    bool ConfirmCancelling() const;
    void Finish();
    void NetworkInstallationCompleted();
    void Configure_Access();
    void Configure_SQL();
    void Configure(const QString& databaseType, void (*install)(DataControl&, const SetUpChoices&));
    bool ConfirmConfiguration(const QString& databaseType) const;
    void StartNormally();

    std::function<void()> startNormally_;
    SetUpChoices choices_;
    int CurrentStep = 1;
    bool languageChosen_ = false;
    QLabel* lblTitle;
    QLabel* lblStep;
    QStackedWidget* steps_;
    QPushButton* cmdCancel;
    QPushButton* cmdPrevious;
    QPushButton* cmdNext;
};
