#pragma once

#include "setup/frm_wizard_step.h"

#include <vector>

/// The second step: a new database or one that exists, in a file or on a server. Each option has a button that
/// explains it.
class KindStep : public WizardStep
{
public:
    explicit KindStep(SetUpChoices& choices);
    bool IsComplete() const override { return choices_.Kind != Installation::None; }

private:
    QWidget* AddOption(std::size_t index);
    void Choose(Installation kind);

    std::vector<QRadioButton*> options_; ///< in the order of the kinds of installation
};
