#include "mail/mail_set_up.h"

#include "foundation/common_services.h"
#include "foundation/deployment.h"
#include "foundation/texts.h"
#include "mail/mail_component.h"
#include "platform/browser.h"
#include "platform/program.h"

#include <QFile>
#include <QRegularExpression>

namespace
{
constexpr int kChooseProgramNext = 333;
constexpr int kDone = 666;

constexpr Text kMailerTitle = {"SENDING E-MAIL USING TARVELL:", "ENVOI DE COURRIELS AVEC TARVELL:"};
constexpr Text kMailerQuestion = {
    "TARVELL has built-in e-mailing capabilities to allow you to:\r\n - Send or receive reports by e-mail\r\n - Submit "
    "requests for leave by e-mail\r\n - Etc...\r\n\r\nHowever, for those features to work, TARVELL needs to know which "
    "mailer program your computer is currently using.\r\n\r\nPlease select your mailer program from the following "
    "options...",
    "TARVELL exploite le courrier électronique pour les fonctions suivantes:\r\n - Envoi et réception de rapports\r\n "
    "- Soumissions de demande de congé\r\n - Etc...\r\n\r\nCependant, si vous comptez tirer avantage de ces fonctions, "
    "TARVELL doit d'abord savoir quel gestionnaire de courrier électronique votre ordinateur utilise.\r\n\r\nVeuillez "
    "spécifier le programme dont vous vous servez afin d'envoyer et de recevoir du courrier électronique..."};

constexpr Text kWelcomeTitle = {"WELCOME TO VERSION {major}.{minor} OF TARVELL!",
                                "BIENVENUE À LA VERSION {major}.{minor} DE TARVELL!"};
constexpr Text kDownloadOffer = {
    "You have just upgraded from an earlier version of TARVELL. The version you were using before did not include a "
    "component which this version requires in order to send e-mail.\r\n\r\nIf you intend to use the e-mailing "
    "capabilities of TARVELL to distribute reports or to submit requests for leave, it is recommended that you "
    "download a component called «Redemption» from our Web site and install it on your machine.\r\n\r\nDo you wish to "
    "download and install the missing component from our Web site now?",
    "Vous venez de remplacer une version antérieure de TARVELL. La version que vous utilisiez auparavant ne comprenait "
    "pas une composante dont cette version a besoin afin d'envoyer du courrier électronique.\r\n\r\nSi vous comptez "
    "exploiter le courrier électronique de TARVELL pour distribuer des rapports ou pour soumettre des demandes de "
    "congé, il est recommandé de télécharger de notre site Web une composante appelée «Redemption» et de l'installer "
    "sur votre ordinateur.\r\n\r\nSouhaitez-vous télécharger et installer maintenant la composante manquante de notre "
    "site Web?"};
constexpr Text kReminder = {
    "The missing component is not installed yet. Once the download is completed, locate the file «Redemption.exe» on "
    "your machine and double-click it.",
    "La composante manquante n'est pas encore installée. Une fois le téléchargement terminé, localisez le fichier "
    "«Redemption.exe» sur votre ordinateur et double-cliquez-le."};
constexpr Text kStillThere = {
    "An earlier version of the component «Redemption» is still installed on this workstation, and TARVELL was not able "
    "to remove it.\r\n\r\nPlease remove «Redemption.dll» by hand and contact technical support: {support}",
    "Une version antérieure de la composante «Redemption» est toujours installée sur ce poste de travail et TARVELL "
    "n'a pas été en mesure de l'enlever.\r\n\r\nVeuillez enlever «Redemption.dll» manuellement et communiquer avec le "
    "soutien technique: {support}"};

const QStringList kFolders = {"C:\\PROGRAM FILES\\REDEMPTION", "C:\\WINDOWS\\SYSTEM", "C:\\WINDOWS\\SYSTEM32",
                              "C:\\WINNT\\SYSTEM", "C:\\WINNT\\SYSTEM32"};

EarlierComponent& Component()
{
    static EarlierComponent component;
    return component;
}

QString InFolder(const QString& name)
{
    return NativePath(JoinPath(ProgramFolder(), name));
}

/// The path that the installer has noted, between quotation marks or at the end of its line; empty for none.
QString InstalledPath()
{
    QFile log(InFolder("St6unst.log"));
    if (!log.open(QIODevice::ReadOnly))
        return {};
    while (!log.atEnd()) {
        const QString line = QString::fromUtf8(log.readLine()).trimmed();
        if (line.contains("Redemption.dll", Qt::CaseInsensitive))
            return line.contains('"') ? line.section('"', 1, 1) : line.mid(line.indexOf(":\\") - 1);
    }
    return {};
}

QStringList DeletedPlaces()
{
    QStringList places;
    for (const QString& folder : kFolders)
        places << JoinPath(folder, "REDEMPTION.DLL");
    if (const QString installed = InstalledPath(); !installed.isEmpty())
        places << installed;
    places.removeIf([](const QString& path) { return !Component().Delete(path); });
    return places;
}

void WriteMarker(const QStringList& lines)
{
    QFile marker(InFolder("rdwrwnd.upg"));
    if (!lines.isEmpty() && marker.open(QIODevice::WriteOnly | QIODevice::Append))
        marker.write((lines.join("\r\n") + "\r\n").toUtf8());
}

/// True when the user says that the component is there now.
bool DownloadAndInstall()
{
    OpenInBrowser("http://" + Deployment::WebHost + "/clients/upgrades/Redemption.exe");
    const QString title = T("CONFIRM:", "VEUILLEZ CONFIRMER:");
    if (!Ask(title, T(" Did you successfully DOWNLOAD the missing component?",
                      "Avez-vous TÉLÉCHARGÉ la composante manquante?")))
        return false;
    if (Ask(title,
            T(" Did you successfully INSTALL the missing component?", "Avez-vous INSTALLÉ la composante manquante?")))
        return true;
    Tell(T("REMINDER!...", "RAPPEL!..."), T(kReminder));
    return false;
}

QString WelcomeTitle()
{
    return T(kWelcomeTitle,
             {{"major", QString::number(Deployment::Major)}, {"minor", QString::number(Deployment::Minor)}});
}
} // namespace

void SpecifyMailerComponent()
{
    const int answer = ShowMessage({
        .Text = T(kMailerQuestion),
        .Title = T(kMailerTitle),
        .Set = Buttons::Custom3,
        .Picture = Face::Presenting,
        .Captions = {"Outlook 98 / 2000 / 2002", T("Outlook Express or others", "Outlook Express ou autres"),
                     T("Do not specify at this time", "Ne pas spécifier maintenant")},
    });
    if (answer != MessageCode::First && answer != MessageCode::Second)
        return;
    SessionState.MailConfigured = answer == MessageCode::First;
    SignOffMail();
    SaveMailConfiguration(kDone);
}

void DownloadRedemption()
{
    const bool isThere = Ask(WelcomeTitle(), T(kDownloadOffer)) && DownloadAndInstall();
    SaveMailConfiguration(isThere ? kChooseProgramNext : kDone);
}

void UpgradeMailerDLL()
{
    if (QFile::exists(InFolder("rdwrwnd.upg")))
        return;
    QStringList lines = DeletedPlaces();
    lines.replaceInStrings(QRegularExpression("^"), "DLL successfully deleted from its location: ");
    const bool stillThere = Component().CanBeCreated();
    if (!stillThere)
        lines << "Redemption DLL was never installed or was successfully removed from this workstation";
    WriteMarker(lines);
    if (stillThere)
        Tell("IMPORTANT!", T(kStillThere, {{"support", Deployment::SupportAddress}}), Face::Warning);
}

void SetEarlierComponent(const EarlierComponent& component)
{
    Component() = component;
}
