#include "setup/frm_wizard_step.h"

#include "platform/controls/form_kit.h"

#include <QAbstractButton>

WizardStep::WizardStep(const QString& name, SetUpChoices& choices) : choices_(choices)
{
    setObjectName(name);
}

QLabel* WrappedLabel(const QString& name)
{
    auto* label = Named<QLabel>(name);
    label->setWordWrap(true);
    return label;
}

OptionText::OptionText(QAbstractButton* option) : option_(option)
{
    setWordWrap(true);
}

void OptionText::SetText(const QString& text)
{
    setText(text);
    option_->setAccessibleName(text);
}

void OptionText::mousePressEvent(QMouseEvent* /*event*/)
{
    option_->setFocus(Qt::MouseFocusReason);
    option_->click();
}
