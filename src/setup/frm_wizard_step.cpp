#include "setup/frm_wizard_step.h"

WizardStep::WizardStep(const QString& name, const Text& title, SetUpChoices& choices) : choices_(choices), title_(title)
{
    setObjectName(name);
}
