#pragma once

#include "setup/frm_wizard_step.h"

#include <vector>

class QPushButton;
class QRadioButton;

/// The second step: a new database or one that exists, in a file or on a server. Each option has a button that
/// explains it.
class KindStep : public WizardStep
{
public:
    explicit KindStep(SetUpChoices& choices);
    void LoadCaptions() override;
    bool IsComplete() const override { return choices_.Kind != Installation::None; }

private:
    struct Option
    {
        QRadioButton* Button;
        OptionText* Text;
        QPushButton* Info;
    };

    QWidget* MakeOption(std::size_t index);
    void Choose(Installation kind);

    QLabel* lblKind;
    std::vector<Option> options_;
};
