#include "foundation/frm_splash_screen.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/deployment.h"
#include "foundation/forms.h"
#include "foundation/frm_login.h"
#include "foundation/start_up.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"

#include <QFile>

namespace
{
constexpr int kReadableSeconds = 2;
constexpr int kSplashLogoSize = 96;

void EndWithoutFiscalYear()
{
    Tell(T("A FATAL ERROR HAS OCCURRED:", "UNE ERREUR FATALE EST SURVENUE:"),
         T({"No fiscal year could be found in your database! Please contact the software distributor at the "
            "following e-mail address: {SupportAddress}",
            "Aucune année fiscale n'a pu être trouvée dans votre banque de données! Veuillez contacter le "
            "distributeur du logiciel au courriel suivant: {SupportAddress}"},
           {{"SupportAddress", Deployment::SupportAddress}}),
         Face::Paniquing);
    EndProgram();
}
} // namespace

frmSplashScreen::frmSplashScreen(QWidget* parent) : QDialog(parent, Qt::SplashScreen)
{
    setObjectName("frmSplashScreen");
    setWindowTitle("Tarvell");
    auto* lblTitle = Named<QLabel>("lblTitle", QStringLiteral("Tarvell"));
    auto* lblVersion = Named<QLabel>("lblVersion", "Version " + Deployment::Version());
    const auto labels = {MakeLogo(kSplashLogoSize), AsFigure(lblTitle), AsCaption(lblVersion)};
    auto* content = Stack(12);
    for (QLabel* label : labels)
        content->addWidget(label, 0, Qt::AlignCenter);
    auto* page = new QVBoxLayout(this);
    page->addWidget(MakeCard(content));
    resize(sizeHint());
    CentreOnScreen(this);
}

void frmSplashScreen::Form_Activate()
{
    Wait(kReadableSeconds);
    CleanUpProgramFolder();
    if (!LoadConfiguration()) {
        close();
        return FormsAbove.ShowSetUpWizard();
    }
    ConnectAndChooseYear();
    QFile::remove(NativePath(JoinPath(ProgramFolder(), "Restart.bat")));
    DisconnectFromDatabase(datAbsence);

    frmLogin login(SessionState.FiscalYearID, {}, this);
    ShowModal(login);
    const BusyPointer hourglass;
    FormsAbove.ShowMain();
    close();
}

bool frmSplashScreen::LoadConfiguration()
{
    try {
        return ReadConfiguration();
    } catch (const RuntimeError& error) {
        EndOnFailedConnection(error);
    }
}

void frmSplashScreen::ConnectAndChooseYear()
{
    const bool LocateNewDatabase = ConnectOrAskForAnotherDatabase(datAbsence);
    if (LocateNewDatabase)
        LocateDatabase(datAbsence, [] { OpenAbove(FormsAbove.ShowServerConnection); });
    if (!ChooseCurrentFiscalYear(datAbsence))
        EndWithoutFiscalYear();
    FindNeighbouringYears(datAbsence);
}
