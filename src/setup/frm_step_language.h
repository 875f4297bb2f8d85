#pragma once

#include "setup/frm_wizard_step.h"

/// The first step: English or French. The choice takes effect at once, in SessionState.English.
class LanguageStep : public WizardStep
{
    Q_OBJECT

public:
    explicit LanguageStep(SetUpChoices& choices);
    bool IsComplete() const override;

signals:
    void LanguageChosen();

private:
    QRadioButton* AddLanguage(QVBoxLayout* languages, const char* name, const char* caption, bool english);

    QRadioButton* optEnglish;
    QRadioButton* optFrench;
};
