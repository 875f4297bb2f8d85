#pragma once

#include "foundation/frm_base.h"

/// Asks for one line of text. What would break a statement is filtered as in the message box.
class frmInputBox : public FormBase
{
public:
    frmInputBox(const QString& title, const QString& prompt, QWidget* parent = nullptr);

    /// What was typed, without blanks around it; empty until the form is left with OK.
    QString Answer() const;

private:
    QLineEdit* txtInput;
};

/// Shows the input box modally and returns what was typed; empty when it was cancelled or left empty.
QString AskForText(const QString& title, const QString& prompt, QWidget* parent = nullptr);
