#pragma once

#include "foundation/user_profile.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

/// The administrator's name, telephone number and e-mail address.
class frmUpdateAdminInfo : public QDialog
{
public:
    explicit frmUpdateAdminInfo(QWidget* parent = nullptr);

private:
    void BuildControls();
    void ConnectControls();
    void LoadCaptions();
    void LoadRecords();
    AdministratorInfo Info() const;
    bool ValidateRecord(const AdministratorInfo& info);
    void cmdSave_Click();

    DataControl datAbsence{"frmUpdateAdminInfo"};
    QLabel* lblFirstName = nullptr;
    QLabel* lblFamilyName = nullptr;
    QLabel* lblPhoneOffice = nullptr;
    QLabel* lblEMailAddress = nullptr;
    QLineEdit* txtFirstName = nullptr;
    QLineEdit* txtFamilyName = nullptr;
    QLineEdit* txtPhoneOffice = nullptr;
    QLineEdit* txtEMailAddress = nullptr;
    QPushButton* cmdSave = nullptr;
    QPushButton* cmdCancel = nullptr;
};
