#include "foundation/frm_login.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/forms.h"
#include "foundation/log_in.h"
#include "platform/program.h"

#include <QGridLayout>

namespace
{
constexpr int kLogoSize = 56;
constexpr int kNameLimit = 50;
constexpr int kPasswordLimit = 15;
constexpr int kFieldsWidth = 240;
} // namespace

frmLogin::frmLogin(int year, const QString& changingTo, QWidget* parent)
    : FormBase("frmLogin", parent), FiscalYearID(year), FiscalYearName(changingTo)
{
    SetTitle(this, {"Log-in", "Identification"});
    txtUserName = MakeField("txtUserName", KeyFilter::LogIn, kNameLimit);
    txtPassword = MakeField("txtPassword", KeyFilter::LogIn, kPasswordLimit);
    txtPassword->setEchoMode(QLineEdit::Password);
    auto* fields = new QGridLayout;
    fields->setColumnMinimumWidth(2, kFieldsWidth);
    if (!FiscalYearName.isEmpty())
        fields->addWidget(Instructions(), 0, 0, 1, 3);
    fields->addWidget(MakeLogo(kLogoSize), 1, 0, 2, 1, Qt::AlignCenter);
    fields->addWidget(AsHead(LabelOf(txtUserName, {"&User name:", "&Nom d'usager:"})), 1, 1);
    fields->addWidget(txtUserName, 1, 2);
    fields->addWidget(AsHead(LabelOf(txtPassword, {"&Password:", "&Mot-clé:"})), 2, 1);
    fields->addWidget(txtPassword, 2, 2);
    Page()->addWidget(MakeCard(fields));
    LayFoot({AddWayOut(), AddMainButton("cmdOK", {"OK", "OK"}, [this] { cmdOK_Click(); })});
    txtUserName->setFocus();
}

QLabel* frmLogin::Instructions() const
{
    QLabel* lblInstructions = WrappedLabel("lblInstructions");
    lblInstructions->setText(
        T({"Your current user identification ({LoginID}) does not give you access to fiscal year {FiscalYearName}. "
           "Please login under a different user identification.",
           "Votre nom d'usager ({LoginID}) ne vous donne pas accès à l'année fiscale {FiscalYearName}. Veuillez vous "
           "enregistrer sous un autre nom d'usager."},
          {{"LoginID", SessionState.LoginID}, {"FiscalYearName", FiscalYearName}}));
    return lblInstructions;
}

void frmLogin::cmdOK_Click()
{
    if (LogIn())
        return accept();
    txtPassword->setFocus();
    txtPassword->selectAll();
}

bool frmLogin::LogIn()
{
    const Connection connection(datAbsence);
    if (FormsAbove.UpgradeProbes)
        FormsAbove.UpgradeProbes(datAbsence);
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

void frmLogin::reject()
{
    if (FiscalYearName.isEmpty())
        EndProgram();
    QDialog::reject();
}
