#pragma once

#include "setup/frm_wizard_step.h"

/// The first step: English or French. The choice takes effect at once, in SessionState.English.
class LanguageStep : public WizardStep
{
public:
    explicit LanguageStep(SetUpChoices& choices);
    bool IsComplete() const override { return choices_.LanguageChosen; }

private:
    void AddLanguage(QVBoxLayout* languages, const char* name, const char* caption, bool english);
};
