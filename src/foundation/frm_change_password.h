#pragma once

#include "platform/dao/dao.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// Lets the user change his own password.
class frmChangePassword : public QDialog
{
public:
    explicit frmChangePassword(QWidget* parent = nullptr);

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions();
    void cmdAccept_Click();
    bool ArePasswordsValid();

    DataControl datAbsence{"frmChangePassword"};
    QLabel* lblUserID = nullptr;
    QLabel* lblOldPassword = nullptr;
    QLabel* lblNewPassword = nullptr;
    QLabel* lblRepeatedPassword = nullptr;
    QLineEdit* txtUserID = nullptr;
    QLineEdit* txtOldPassword = nullptr;
    QLineEdit* txtNewPassword = nullptr;
    QLineEdit* txtRepeatedPassword = nullptr;
    QPushButton* cmdAccept = nullptr;
    QPushButton* cmdCancel = nullptr;
};
