#pragma once

#include "foundation/frm_base.h"

/// Asks for the text of the message that goes out with a report. Accepted with a text.
class frmMail : public FormBase
{
public:
    /// `reportFile` is the report that is going to be attached; without one the text starts empty.
    explicit frmMail(const QString& reportFile, QWidget* parent = nullptr);

    QString Contents() const { return txtContents->toPlainText(); }

private:
    void txtContents_Change();

    QPlainTextEdit* txtContents;
    QPushButton* cmdOK;
};
