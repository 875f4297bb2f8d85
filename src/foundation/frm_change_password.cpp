#include "foundation/frm_change_password.h"

#include "foundation/common_services.h"
#include "foundation/user_profile.h"

#include <QGridLayout>

namespace
{
constexpr int kNewPasswordLimit = 15;
constexpr int kFieldWidth = 260;

void ShowStars(QLineEdit* field)
{
    field->setEchoMode(QLineEdit::Password);
    field->ensurePolished(); // the character is asked for once, when a polished field changes its style
    field->setStyleSheet("lineedit-password-character: 42");
}
} // namespace

frmChangePassword::frmChangePassword(QWidget* parent) : FormBase("frmChangePassword", parent)
{
    SetTitle(this, {"Change password", "Changement de mot-clé"});
    AskBeforeLosing();
    QGridLayout* fields = FieldGrid();
    fields->setColumnMinimumWidth(1, kFieldWidth);
    const auto add = [fields](const char* name, const Text& label) {
        return AddField(fields, name, label, KeyFilter::LogIn, kNewPasswordLimit);
    };
    auto* txtUserID = AddField(fields, "txtUserID", {"User name", "Nom d'usager"}, KeyFilter::LogIn);
    txtOldPassword = add("txtOldPassword", {"C&urrent password", "Mot-clé act&uel"});
    txtNewPassword = add("txtNewPassword", {"&New password", "&Nouveau mot-clé"});
    txtRepeatedPassword = add("txtRepeatedPassword", {"&Repeat new password", "&Répétez le nouveau mot-clé"});
    Page()->addWidget(MakeCard(fields));
    QPushButton* cmdAccept = AddMainButton("cmdAccept", {"&Accept", "&Accepter"}, [this] { cmdAccept_Click(); });
    LayFoot({AddWayOut({"&Cancel", "Annu&ler"}), cmdAccept});

    for (QLineEdit* field : {txtNewPassword, txtRepeatedPassword})
        Require(field); // before it is polished
    for (QLineEdit* field : {txtOldPassword, txtNewPassword, txtRepeatedPassword})
        ShowStars(field);
    // Nobody can log in with an empty password by accident: there must be a new one.
    const auto enable = [cmdAccept](const QString& text) {
        EnableOrExplain(cmdAccept, !text.isEmpty(),
                        {"Type the new password first", "Inscrivez d'abord le nouveau mot-clé"});
    };
    enable({});
    connect(txtNewPassword, &QLineEdit::textChanged, cmdAccept, enable);
    txtUserID->setReadOnly(true);
    txtUserID->setText(SessionState.LoginID);
    txtOldPassword->setFocus();
}

void frmChangePassword::cmdAccept_Click()
{
    if (const auto fault = FaultInPasswords())
        return ShowFault(*fault, {"UNABLE TO PROCEED!", "OPÉRATION REFUSÉE!"});
    SetUserPassword(datAbsence, txtNewPassword->text());
    Tell(T("OPERATION SUCCESSFUL:", "OPÉRATION COMPLÉTÉE AVEC SUCCÈS:"),
         T("Your new password has been accepted!", "Votre nouveau mot-clé a été enregistré!"), Face::Congratulating);
    accept();
}

std::optional<Fault> frmChangePassword::FaultInPasswords()
{
    if (!IsUserPassword(datAbsence, txtOldPassword->text()))
        return Fault{
            "txtOldPassword",
            T("The current password you specified is wrong!\r\n\r\nIf you have forgotten your current password you "
              "may get that information from your system administrator.",
              "Le mot-clé actuel que vous avez spécifié est erroné!\r\n\r\nSi vous avez oublié votre mot-clé actuel, "
              "vous pouvez l'obtenir auprès de votre administrateur du système.")};
    if (txtNewPassword->text().toUpper() != txtRepeatedPassword->text().toUpper())
        return Fault{
            "txtNewPassword",
            T("The two new passwords you specified are different!\r\n\r\nPlease re-enter your new password and click "
              "on «Accept» again.",
              "Les deux nouveaux mots-clés que vous avez spécifiés sont différents!\r\n\r\nVeuillez entrer de nouveau "
              "votre nouveau mot-clé et cliquer encore sur «Accepter».")};
    return std::nullopt;
}
