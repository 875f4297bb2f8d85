#include "foundation/frm_change_password.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "foundation/user_profile.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QGridLayout>

namespace
{
constexpr int kNewPasswordLimit = 15;
constexpr int kFieldWidth = 260;
} // namespace

frmChangePassword::frmChangePassword(QWidget* parent) : QDialog(parent)
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
    txtUserID->setText(SessionState.LoginID);
    txtOldPassword->setFocus();
}

void frmChangePassword::BuildControls()
{
    setObjectName("frmChangePassword");
    cmdAccept = AsMainButton(Named<QPushButton>("cmdAccept"));
    cmdCancel = Named<QPushButton>("cmdCancel");
    auto* fields = new QGridLayout;
    fields->setHorizontalSpacing(16);
    fields->setVerticalSpacing(10);
    struct Field
    {
        QLabel** Label;
        QLineEdit** Text;
        const char* Name;
    };
    const Field rows[] = {{&lblUserID, &txtUserID, "UserID"},
                          {&lblOldPassword, &txtOldPassword, "OldPassword"},
                          {&lblNewPassword, &txtNewPassword, "NewPassword"},
                          {&lblRepeatedPassword, &txtRepeatedPassword, "RepeatedPassword"}};
    for (const auto& [label, text, name] : rows) {
        *label = Named<QLabel>(QLatin1String("lbl") + name);
        *text = Named<QLineEdit>(QLatin1String("txt") + name);
        (*text)->setMinimumWidth(kFieldWidth);
        AddFieldRow(fields, *label, *text);
    }
    txtUserID->setReadOnly(true);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(fields));
    page->addLayout(ButtonRow({cmdCancel, cmdAccept}));
}

void frmChangePassword::ConnectControls()
{
    for (QLineEdit* field : {txtOldPassword, txtNewPassword, txtRepeatedPassword}) {
        field->setMaxLength(kNewPasswordLimit);
        field->setEchoMode(QLineEdit::Password);
        field->ensurePolished(); // the character is asked for once, when a polished field changes its style
        field->setStyleSheet("lineedit-password-character: 42");
        FilterKeys(field, KeyFilter::LogIn);
    }
    // Nobody can log in with an empty password by accident: there must be a new one.
    const auto needNewPassword = [this] { cmdAccept->setEnabled(!txtNewPassword->text().isEmpty()); };
    connect(txtNewPassword, &QLineEdit::textChanged, this, needNewPassword);
    needNewPassword();
    connect(cmdAccept, &QPushButton::clicked, this, &frmChangePassword::cmdAccept_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmChangePassword::LoadCaptions()
{
    setWindowTitle(T("Change password", "Changement de mot-clé"));
    lblUserID->setText(T("User name", "Nom d'usager"));
    lblOldPassword->setText(T("C&urrent password", "Mot-clé act&uel"));
    lblNewPassword->setText(T("&New password", "&Nouveau mot-clé"));
    lblRepeatedPassword->setText(T("&Repeat new password", "&Répétez le nouveau mot-clé"));
    cmdAccept->setText(T("&Accept", "&Accepter"));
    cmdCancel->setText(T("&Cancel", "Annu&ler"));
}

void frmChangePassword::cmdAccept_Click()
{
    if (!ArePasswordsValid())
        return;
    try {
        SetUserPassword(datAbsence, txtNewPassword->text());
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    Tell(T("OPERATION SUCCESSFUL:", "OPÉRATION COMPLÉTÉE AVEC SUCCÈS:"),
         T("Your new password has been accepted!", "Votre nouveau mot-clé a été enregistré!"), Face::Congratulating);
    accept();
}

bool frmChangePassword::ArePasswordsValid()
{
    if (!IsUserPassword(datAbsence, txtOldPassword->text())) {
        Tell(T("UNABLE TO PROCEED!", "OPÉRATION REFUSÉE!"),
             T("The current password you specified is wrong!\r\n\r\nIf you have forgotten your current password you "
               "may get that information from your system administrator.",
               "Le mot-clé actuel que vous avez spécifié est erroné!\r\n\r\nSi vous avez oublié votre mot-clé actuel, "
               "vous pouvez l'obtenir auprès de votre administrateur du système."),
             Face::Warning);
        txtOldPassword->setFocus();
        return false;
    }
    if (txtNewPassword->text().toUpper() != txtRepeatedPassword->text().toUpper()) {
        Tell(T("UNABLE TO PROCEED!", "OPÉRATION REFUSÉE!"),
             T("The two new passwords you specified are different!\r\n\r\nPlease re-enter your new password and click "
               "on «Accept» again.",
               "Les deux nouveaux mots-clés que vous avez spécifiés sont différents!\r\n\r\nVeuillez entrer de nouveau "
               "votre nouveau mot-clé et cliquer encore sur «Accepter»."),
             Face::Warning);
        txtNewPassword->setFocus();
        return false;
    }
    return true;
}
