#include "foundation/frm_login.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/log_in.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace
{
constexpr int kLogoSize = 56;
constexpr int kNameLimit = 50;
constexpr int kPasswordLimit = 15;
} // namespace

std::function<void(DataControl&)> frmLogin::UpgradeProbes;

frmLogin::frmLogin(QWidget* parent) : QDialog(parent)
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
}

void frmLogin::BuildControls()
{
    setObjectName("frmLogin");
    auto* imgLogo = Named<QLabel>("imgLogo");
    imgLogo->setPixmap(Picture("app", kLogoSize));
    lblInstructions = Named<QLabel>("lblInstructions");
    lblInstructions->setWordWrap(true);
    lblInstructions->hide();
    lblUserName = AsHead(Named<QLabel>("lblUserName"));
    lblPassword = AsHead(Named<QLabel>("lblPassword"));
    txtUserName = Named<QLineEdit>("txtUserName");
    txtUserName->setMaxLength(kNameLimit);
    txtPassword = Named<QLineEdit>("txtPassword");
    txtPassword->setMaxLength(kPasswordLimit);
    txtPassword->setEchoMode(QLineEdit::Password);
    cmdOK = AsMainButton(Named<QPushButton>("cmdOK"));
    cmdCancel = Named<QPushButton>("cmdCancel");
    lblUserName->setBuddy(txtUserName);
    lblPassword->setBuddy(txtPassword);

    auto* fields = new QGridLayout;
    fields->setColumnMinimumWidth(2, 240);
    fields->addWidget(lblInstructions, 0, 0, 1, 3);
    fields->addWidget(imgLogo, 1, 0, 2, 1, Qt::AlignCenter);
    fields->addWidget(lblUserName, 1, 1);
    fields->addWidget(txtUserName, 1, 2);
    fields->addWidget(lblPassword, 2, 1);
    fields->addWidget(txtPassword, 2, 2);
    auto* page = new QVBoxLayout(this);
    page->addWidget(MakeCard(fields));
    page->addLayout(ButtonRow({cmdCancel, cmdOK}));
}

void frmLogin::ConnectControls()
{
    FilterKeys(txtUserName, KeyFilter::LogIn);
    FilterKeys(txtPassword, KeyFilter::LogIn);
    connect(cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmLogin::cmdCancel_Click);
    cmdOK->setDefault(true);
}

void frmLogin::LoadCaptions()
{
    setWindowTitle(T("Log-in", "Identification"));
    lblUserName->setText(T("&User name:", "&Nom d'usager:"));
    lblPassword->setText(T("&Password:", "&Mot-clé:"));
    cmdOK->setText(T("OK", "OK"));
    cmdCancel->setText(T("&Cancel", "&Annuler"));
}

void frmLogin::showEvent(QShowEvent* event)
{
    Form_Load();
    QDialog::showEvent(event);
}

void frmLogin::Form_Load()
{
    lblInstructions->setVisible(ChangingYear);
    lblInstructions->setText(Fill(
        T("Your current user identification ({LoginID}) does not give you access to fiscal year {FiscalYearName}. "
          "Please login under a different user identification.",
          "Votre nom d'usager ({LoginID}) ne vous donne pas accès à l'année fiscale {FiscalYearName}. Veuillez vous "
          "enregistrer sous un autre nom d'usager."),
        {{"LoginID", SessionState.LoginID}, {"FiscalYearName", FiscalYearName}}));
    txtUserName->setFocus();
}

void frmLogin::cmdOK_Click()
{
    try {
        if (LogIn())
            accept();
    } catch (const RuntimeError& error) {
        TellError(error);
    }
}

bool frmLogin::LogIn()
{
    const Connection connection(datAbsence);
    if (UpgradeProbes)
        UpgradeProbes(datAbsence);
    if (!TakesUser()) {
        Tell(T("Access denied!...", "Accès refusé!..."),
             T("The username and password you specified are invalid!",
               "Le nom d'usager et le mot-clé que vous avez spécifiés sont invalides!"),
             Face::Warning);
        return false;
    }
    TellWhenYearIsClosed();
    return true;
}

/// Whoever is refused, or cannot be logged in for a failure, leaves the session as it was.
bool frmLogin::TakesUser()
{
    const Session before = SessionState;
    SessionState.LoginID = txtUserName->text().toUpper();
    SessionState.UserPassword = txtPassword->text().toUpper();
    try {
        if (LogInUser(datAbsence, FiscalYearID))
            return true;
    } catch (const RuntimeError&) {
        SessionState = before;
        throw;
    }
    SessionState = before;
    return false;
}

void frmLogin::cmdCancel_Click()
{
    if (!ChangingYear)
        EndProgram();
    QDialog::reject();
}
