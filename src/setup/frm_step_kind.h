#pragma once

#include "setup/frm_wizard_step.h"

class QButtonGroup;

/// The second step: a new database or one that exists, in a file or on a server. Each option has a button that
/// explains it.
class KindStep : public WizardStep
{
public:
    explicit KindStep(SetUpChoices& choices);
    bool IsComplete() const override { return choices_.Kind != Installation::None; }

private:
    QWidget* AddOption(std::size_t index);

    QButtonGroup* options_; ///< each stands in a card of its own
};
