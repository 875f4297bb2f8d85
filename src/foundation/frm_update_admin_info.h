#pragma once

#include "foundation/frm_base.h"
#include "foundation/user_profile.h"

/// The administrator's name, telephone number and e-mail address.
class frmUpdateAdminInfo : public FormBase
{
public:
    explicit frmUpdateAdminInfo(QWidget* parent = nullptr);

private:
    void LoadRecords();
    AdministratorInfo Info() const;
    void cmdSave_Click();

    QLineEdit* txtFirstName;
    QLineEdit* txtFamilyName;
    QLineEdit* txtPhoneOffice;
    QLineEdit* txtEMailAddress;
};
