#pragma once

#include "platform/dao/dao.h"
#include "setup/set_up_choices.h"

#include <QDialog>

#include <functional>

class DatabaseStep;
class QLabel;
class QPushButton;
class QStackedWidget;
class WizardStep;

/// Runs at the first start on a workstation: it chooses the language and the database, and gives a new database its
/// first fiscal year, categories and administrator. Its end hands over to the normal start; cancelling ends the
/// program.
class frmSetUpWizard : public QDialog
{
public:
    explicit frmSetUpWizard(std::function<void()> startNormally, QWidget* parent = nullptr);
    /// Hides first: the field that loses the focus still answers to the whole form.
    ~frmSetUpWizard() override { hide(); }
    void reject() override { cmdCancel_Click(); }

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions();
    void ChooseLanguage();

    void ShowStep_01();
    void ShowStep_02();
    void ShowStep_03();
    void ShowStep_04();
    void ShowStep_05();
    void ShowStep_06();
    void ShowStep(int step, const QString& title);
    void GoToStep(int step);
    void UpdateButtons();
    int LastStep() const;
    bool IsLastStep() const;

    void cmdNext_Click();
    void cmdPrevious_Click();
    void cmdCancel_Click();
    bool ConfirmCancelling() const;
    bool IsDatabaseAccepted();
    void Finish();
    void NetworkInstallationCompleted();
    void Configure_Access();
    void Configure_SQL();
    void Configure(const QString& databaseType, void (*install)(DataControl&, const SetUpChoices&));
    bool ConfirmConfiguration(const QString& databaseType) const;
    void StartNormally();

    std::function<void()> startNormally_;
    SetUpChoices choices_;
    DataControl datAbsence{"frmSetUpWizard"};
    int CurrentStep = 1;
    bool languageChosen_ = false;
    QLabel* lblTitle = nullptr;
    QLabel* lblStep = nullptr;
    QStackedWidget* steps_ = nullptr;
    DatabaseStep* databaseStep_ = nullptr;
    QPushButton* cmdCancel = nullptr;
    QPushButton* cmdPrevious = nullptr;
    QPushButton* cmdNext = nullptr;
};
