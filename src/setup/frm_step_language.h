#pragma once

#include "setup/frm_wizard_step.h"

class QRadioButton;

/// The first step: English or French. The choice takes effect at once, in SessionState.English.
class LanguageStep : public WizardStep
{
    Q_OBJECT

public:
    explicit LanguageStep(SetUpChoices& choices);
    void LoadCaptions() override;
    bool IsComplete() const override;

signals:
    void LanguageChosen();

private:
    QLabel* lblWelcome;
    QRadioButton* optEnglish;
    QRadioButton* optFrench;
};
