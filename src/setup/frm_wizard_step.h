#pragma once

#include "setup/set_up_choices.h"

#include <QFrame>
#include <QLabel>

class QAbstractButton;

/// One step of the set-up wizard: a frame whose fields read from the user's choices and write into them.
class WizardStep : public QFrame
{
    Q_OBJECT

public:
    WizardStep(const QString& name, SetUpChoices& choices);

    /// Sets all texts in the session's language.
    virtual void LoadCaptions() = 0;
    /// Shows the choices as they stand when the step comes up.
    virtual void ShowChoices() {}
    /// True when the answers suffice to go on.
    virtual bool IsComplete() const = 0;

signals:
    /// An answer has changed.
    void Changed();

protected:
    SetUpChoices& choices_;
};

/// A label that explains, with wrapped lines.
QLabel* WrappedLabel(const QString& name);

/// The text of an option as a wrapped label beside it; a click on the text is a click on the option.
class OptionText : public QLabel
{
public:
    explicit OptionText(QAbstractButton* option);
    void SetText(const QString& text);

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    QAbstractButton* option_;
};
