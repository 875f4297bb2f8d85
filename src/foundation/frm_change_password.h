#pragma once

#include "foundation/frm_base.h"

#include <optional>

/// Lets the user change his own password.
class frmChangePassword : public FormBase
{
public:
    explicit frmChangePassword(QWidget* parent = nullptr);

private:
    void cmdAccept_Click();
    std::optional<Fault> FaultInPasswords();

    QLineEdit* txtOldPassword;
    QLineEdit* txtNewPassword;
    QLineEdit* txtRepeatedPassword;
};
