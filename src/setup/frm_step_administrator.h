#pragma once

#include "setup/frm_wizard_step.h"

#include <array>

class QLineEdit;

/// The last step: who the system administrator is, and his password.
class AdministratorStep : public WizardStep
{
public:
    explicit AdministratorStep(SetUpChoices& choices);
    void LoadCaptions() override;
    bool IsComplete() const override { return IsAdministratorComplete(choices_); }

private:
    void BuildControls();
    void ConnectControls();
    void TakeChoices();
    void txtAdminPassword_LostFocus();

    QLabel* lblAdministratorHelp = nullptr;
    std::array<QLabel*, 5> labels_{};
    QLabel* lblOptional = nullptr;
    QLabel* lblCannotBeChanged = nullptr;
    QLineEdit* txtAdminFamilyName = nullptr;
    QLineEdit* txtAdminFirstName = nullptr;
    QLineEdit* txtAdminPhoneNumber = nullptr;
    QLineEdit* txtAdminUsername = nullptr;
    QLineEdit* txtAdminPassword = nullptr;
};
