#pragma once

#include "foundation/frm_captions.h"
#include "setup/set_up_choices.h"

/// One step of the set-up wizard: a frame whose fields read from the user's choices and write into them.
class WizardStep : public QFrame
{
    Q_OBJECT

public:
    WizardStep(const QString& name, const Text& title, SetUpChoices& choices) : choices_(choices), title_(title)
    {
        setObjectName(name);
    }

    /// The line over the step.
    virtual QString Title() const { return T(title_); }
    /// Shows the choices as they stand when the step comes up.
    virtual void ShowChoices() {}
    /// True when the answers suffice to go on.
    virtual bool IsComplete() const = 0;
    /// False, and told why, when the answers turn out to be wrong as the step is left. Throws RuntimeError when that
    /// cannot be found out.
    virtual bool IsAccepted() const { return true; }

signals:
    /// An answer has changed.
    void Changed();

protected:
    SetUpChoices& choices_;

private:
    const Text title_;
};
