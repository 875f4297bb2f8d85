#include "setup/frm_step_administrator.h"

namespace
{
constexpr int kPersonNameLimit = 35;
constexpr int kPhoneLimit = 20;
constexpr int kPasswordLimit = 15;
constexpr int kAdministratorFieldWidth = 280;
constexpr int kFieldsGap = 12;
constexpr int kHelpGap = 16;
constexpr Text kHelp = {
    "The system administrator has access to everything in Tarvell: he or she creates the units, the employees and the "
    "fiscal years. Keep this user name and password in a safe place.",
    "L'administrateur du système a accès à tout dans Tarvell: c'est lui ou elle qui crée les unités, les employés et "
    "les années fiscales. Conservez ce nom d'usager et ce mot-clé en lieu sûr."};
} // namespace

AdministratorStep::AdministratorStep(SetUpChoices& choices)
    : WizardStep("fraStep6", {"SYSTEM ADMINISTRATOR IDENTIFICATION", "IDENTIFICATION DE L'ADMINISTRATEUR DU SYSTÈME"},
                 choices)
{
    auto* content = new QVBoxLayout(this);
    content->addWidget(WrappedLabel("lblAdministratorHelp", kHelp));
    content->addSpacing(kHelpGap);
    content->addLayout(Fields());
    content->addStretch();
    for (QLineEdit* field : {txtAdminFamilyName, txtAdminFirstName, txtAdminPassword})
        Require(field);
    for (QLineEdit* field : {txtAdminFamilyName, txtAdminFirstName, txtAdminPhoneNumber, txtAdminPassword})
        connect(field, &QLineEdit::textChanged, this, &AdministratorStep::TakeChoices);
    connect(txtAdminPassword, &QLineEdit::editingFinished, this, &AdministratorStep::txtAdminPassword_LostFocus);
}

QLayout* AdministratorStep::Fields()
{
    QGridLayout* fields = FieldGrid(kFieldsGap);
    fields->setColumnMinimumWidth(1, kAdministratorFieldWidth);
    fields->setColumnStretch(2, 1);
    const auto add = [fields](const char* name, const Text& label, int limit, KeyFilter filter) {
        return AddField(fields, name, label, filter, limit);
    };
    const auto remark = [fields](const char* name, const Text& text) {
        fields->addWidget(AsCaption(MakeLabel(name, text)), fields->rowCount() - 1, 2);
    };
    txtAdminFamilyName =
        add("txtAdminFamilyName", {"&Last name", "Nom de &famille"}, kPersonNameLimit, KeyFilter::FreeText);
    txtAdminFirstName = add("txtAdminFirstName", {"&First name", "P&rénom"}, kPersonNameLimit, KeyFilter::FreeText);
    txtAdminPhoneNumber =
        add("txtAdminPhoneNumber", {"P&hone number", "Numéro de &téléphone"}, kPhoneLimit, KeyFilter::Phone);
    remark("lblOptional", {"optional!", "facultatif!"});
    auto* txtAdminUsername = add("txtAdminUsername", {"User name", "Nom d'usager"}, kPasswordLimit, KeyFilter::LogIn);
    txtAdminUsername->setText("ADMIN");
    txtAdminUsername->setReadOnly(true);
    txtAdminUsername->setFocusPolicy(Qt::ClickFocus);
    remark("lblCannotBeChanged", {"Cannot be changed!", "Ne peut être modifié!"});
    txtAdminPassword = add("txtAdminPassword", {"Pass&word", "&Mot-clé"}, kPasswordLimit, KeyFilter::SetUpPassword);
    return fields;
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
