#include "setup/frm_step_administrator.h"

#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QGridLayout>
#include <QLineEdit>

namespace
{
constexpr int kPersonNameLimit = 35;
constexpr int kPhoneLimit = 20;
constexpr int kPasswordLimit = 15;
constexpr int kAdministratorFieldWidth = 280;
} // namespace

AdministratorStep::AdministratorStep(SetUpChoices& choices) : WizardStep("fraStep6", choices)
{
    BuildControls();
    ConnectControls();
}

void AdministratorStep::BuildControls()
{
    struct Field
    {
        QLineEdit** Control;
        const char* Name;
        int Limit;
        KeyFilter Filter;
    };
    const Field fields[] = {{&txtAdminFamilyName, "txtAdminFamilyName", kPersonNameLimit, KeyFilter::FreeText},
                            {&txtAdminFirstName, "txtAdminFirstName", kPersonNameLimit, KeyFilter::FreeText},
                            {&txtAdminPhoneNumber, "txtAdminPhoneNumber", kPhoneLimit, KeyFilter::Phone},
                            {&txtAdminUsername, "txtAdminUsername", kPasswordLimit, KeyFilter::LogIn},
                            {&txtAdminPassword, "txtAdminPassword", kPasswordLimit, KeyFilter::SetUpPassword}};
    lblAdministratorHelp = WrappedLabel("lblAdministratorHelp");
    auto* content = new QGridLayout(this);
    content->setHorizontalSpacing(16);
    content->setVerticalSpacing(12);
    content->addWidget(lblAdministratorHelp, 0, 0, 1, 3);
    content->setRowMinimumHeight(1, 10);
    int row = 0;
    for (const Field& field : fields) {
        *field.Control = Named<QLineEdit>(field.Name);
        (*field.Control)->setMaxLength(field.Limit);
        (*field.Control)->setFixedWidth(kAdministratorFieldWidth);
        FilterKeys(*field.Control, field.Filter);
        labels_[row] = new QLabel(this);
        AddFieldRow(content, labels_[row++], *field.Control);
    }
    txtAdminUsername->setText("ADMIN");
    txtAdminUsername->setReadOnly(true);
    lblOptional = AsCaption(Named<QLabel>("lblOptional"));
    lblCannotBeChanged = AsCaption(Named<QLabel>("lblCannotBeChanged"));
    content->addWidget(lblOptional, 4, 2);
    content->addWidget(lblCannotBeChanged, 5, 2);
    content->setRowStretch(row + 2, 1);
    content->setColumnStretch(2, 1);
}

void AdministratorStep::ConnectControls()
{
    for (QLineEdit* field : {txtAdminFamilyName, txtAdminFirstName, txtAdminPhoneNumber, txtAdminPassword})
        connect(field, &QLineEdit::textChanged, this, &AdministratorStep::TakeChoices);
    connect(txtAdminPassword, &QLineEdit::editingFinished, this, &AdministratorStep::txtAdminPassword_LostFocus);
}

void AdministratorStep::TakeChoices()
{
    choices_.AdminFamilyName = txtAdminFamilyName->text().trimmed();
    choices_.AdminFirstName = txtAdminFirstName->text().trimmed();
    choices_.AdminPhoneNumber = txtAdminPhoneNumber->text().trimmed();
    choices_.AdminPassword = txtAdminPassword->text().trimmed().toUpper();
    emit Changed();
}

void AdministratorStep::txtAdminPassword_LostFocus()
{
    txtAdminPassword->setText(txtAdminPassword->text().trimmed().toUpper());
}

void AdministratorStep::LoadCaptions()
{
    lblAdministratorHelp->setText(T("The system administrator has access to everything in Tarvell: he or she creates "
                                    "the units, the employees and the "
                                    "fiscal years. Keep this user name and password in a safe place.",
                                    "L'administrateur du système a accès à tout dans Tarvell: c'est lui ou elle qui "
                                    "crée les unités, les employés et "
                                    "les années fiscales. Conservez ce nom d'usager et ce mot-clé en lieu sûr."));
    labels_[0]->setText(T("&Last name", "Nom de &famille"));
    labels_[1]->setText(T("&First name", "P&rénom"));
    labels_[2]->setText(T("P&hone number", "Numéro de &téléphone"));
    labels_[3]->setText(T("User name", "Nom d'usager"));
    labels_[4]->setText(T("Pass&word", "&Mot-clé"));
    lblOptional->setText(T("optional!", "facultatif!"));
    lblCannotBeChanged->setText(T("Cannot be changed!", "Ne peut être modifié!"));
}
