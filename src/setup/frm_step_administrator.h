#pragma once

#include "setup/frm_wizard_step.h"

/// The last step: who the system administrator is, and his password.
class AdministratorStep : public WizardStep
{
public:
    explicit AdministratorStep(SetUpChoices& choices);
    bool IsComplete() const override { return IsAdministratorComplete(choices_); }

private:
    QLayout* Fields();
    void TakeChoices();
    void txtAdminPassword_LostFocus();

    QLineEdit* txtAdminFamilyName;
    QLineEdit* txtAdminFirstName;
    QLineEdit* txtAdminPhoneNumber;
    QLineEdit* txtAdminPassword;
};
