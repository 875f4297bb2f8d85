#include "setup/frm_step_database.h"

#include "foundation/common_services.h"
#include "foundation/database_choice.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"
#include "setup/database_relocation.h"
#include "setup/installation.h"

#include <QGridLayout>
#include <QStackedLayout>

namespace
{
constexpr int kDatabaseFieldWidth = 320;
constexpr int kServerFieldLimit = 50;

void TellRelocationFailure(const RuntimeError& error)
{
    Tell(
        T("AN ERROR HAS OCCURRED:", "UNE ERREUR EST SURVENUE:"),
        Fill(
            T("The following error has occurred as your database was being moved to its new location:\r\n\r\n{number}: "
              "{description}\r\n\r\nPlease try again and if the problem persists, contact your network administrator.",
              "L'erreur suivante est survenue lors de la relocalisation de votre banque de données:\r\n\r\n{number}: "
              "{description}\r\n\r\nVeuillez essayer de nouveau et si le problème persiste, contactez votre "
              "administrateur de réseau."),
            {{"number", QString::number(error.Number)}, {"description", error.Description}}),
        Face::Ashamed);
}

void TellDatabaseNotEmpty()
{
    Tell(
        T("DATABASE NOT EMPTY:", "BANQUE DE DONNÉES NON VIDE:"),
        T("If you are trying to connect to an EXISTING SQL Server database then you should go back one step (click "
          "«Previous») and select the appropriate option.",
          "Si vous tentez de vous connecter à une banque de données SQL Server EXISTANTE, vous devriez alors revenir à "
          "l'étape précédente (cliquez sur «Précédent») et sélectionner l'option appropriée."),
        Face::Warning);
}

void TellInvalidStructure()
{
    Tell(T("INVALID DATABASE STRUCTURE:", "STRUCTURE DE BANQUE DE DONNÉES INVALIDE:"),
         T("Please confirm with your network administrator that the IP address and database name you were given are "
           "really for Tarvell.",
           "Veuillez confirmer auprès de votre administrateur de réseau que l'adresse IP et le nom de banque de "
           "données qui vous ont été fournis sont bien ceux de Tarvell."),
         Face::Warning);
}

QString FolderOf(const QString& path)
{
    return ShownPath(path.chopped(kDatabaseNameLength));
}
} // namespace

DatabaseStep::DatabaseStep(SetUpChoices& choices) : WizardStep("fraStep3", choices), pages_(new QStackedLayout(this))
{
    choices_.NewDatabasePath = OriginalDatabasePath();
    pages_->addWidget(MakeFilePage());
    pages_->addWidget(MakeServerPage());
    ConnectControls();
}

QWidget* DatabaseStep::MakeFilePage()
{
    lblDatabaseHelp = WrappedLabel("lblDatabaseHelp");
    lblDatabaseHead = AsHead(Named<QLabel>("lblDatabaseHead"));
    lblDatabasePath = WrappedLabel("lblDatabasePath");
    lblDatabasePath->setTextInteractionFlags(Qt::TextSelectableByMouse);
    cmdRelocateDatabase = Named<QPushButton>("cmdRelocateDatabase");
    auto* page = new QWidget;
    auto* content = new QVBoxLayout(page);
    content->setSpacing(12);
    content->addWidget(lblDatabaseHelp);
    content->addSpacing(10);
    auto* place = new QVBoxLayout;
    place->setSpacing(8);
    place->addWidget(lblDatabaseHead);
    place->addWidget(lblDatabasePath);
    place->addSpacing(8);
    place->addWidget(cmdRelocateDatabase, 0, Qt::AlignLeft);
    content->addWidget(MakeCard(place));
    content->addStretch();
    return page;
}

QWidget* DatabaseStep::MakeServerPage()
{
    lblServerHead = AsHead(Named<QLabel>("lblServerHead"));
    cmdTestConnection = Named<QPushButton>("cmdTestConnection");
    auto* page = new QWidget;
    auto* content = new QGridLayout(page);
    content->setHorizontalSpacing(16);
    content->setVerticalSpacing(10);
    content->addWidget(lblServerHead, 0, 0, 1, 2);
    const std::pair<QLineEdit**, const char*> fields[] = {{&txtIPAddress, "txtIPAddress"},
                                                          {&txtUserName, "txtUserName"},
                                                          {&txtPassword, "txtPassword"},
                                                          {&txtDatabaseName, "txtDatabaseName"}};
    int row = 0;
    for (const auto& [field, name] : fields) {
        *field = Named<QLineEdit>(name);
        (*field)->setMaxLength(kServerFieldLimit);
        (*field)->setFixedWidth(kDatabaseFieldWidth);
        FilterKeys(*field, KeyFilter::FreeText);
        labels_[row] = new QLabel;
        labels_[row]->setBuddy(*field);
        content->addWidget(labels_[row], row + 1, 0);
        content->addWidget(*field, row + 1, 1);
        ++row;
    }
    txtPassword->setEchoMode(QLineEdit::Password);
    content->addWidget(cmdTestConnection, row + 1, 1, Qt::AlignLeft);
    content->setRowStretch(row + 2, 1);
    content->setColumnStretch(2, 1);
    return page;
}

void DatabaseStep::ConnectControls()
{
    connect(cmdRelocateDatabase, &QPushButton::clicked, this, &DatabaseStep::cmdRelocateDatabase_Click);
    connect(cmdTestConnection, &QPushButton::clicked, this, &DatabaseStep::cmdTestConnection_Click);
    for (QLineEdit* field : {txtIPAddress, txtUserName, txtPassword, txtDatabaseName})
        connect(field, &QLineEdit::textChanged, this, [this] {
            choices_.IPAddress = txtIPAddress->text().trimmed();
            choices_.UserName = txtUserName->text().trimmed();
            choices_.Password = txtPassword->text().trimmed();
            choices_.DatabaseName = txtDatabaseName->text().trimmed();
            cmdTestConnection->setEnabled(IsServerComplete(choices_));
            emit Changed();
        });
}

QString DatabaseStep::Title() const
{
    if (IsServer(choices_.Kind))
        return T("CONNECTING TO YOUR SERVER", "CONNEXION À VOTRE SERVEUR");
    return IsNew(choices_.Kind)
               ? T("SPECIFYING WHERE THE DATABASE WILL RESIDE", "LOCALISATION DE VOTRE NOUVELLE BANQUE DE DONNÉES")
               : T("SPECIFYING WHERE THE DATABASE RESIDES", "LOCALISATION DE VOTRE BANQUE DE DONNÉES");
}

void DatabaseStep::LoadCaptions()
{
    const bool isNew = IsNew(choices_.Kind);
    lblDatabaseHelp->setText(
        isNew
            ? T("Your database may stay on this computer if you are the only one to use it. If other people are to use "
                "Tarvell, move it to a network folder that all of them can reach and write to.",
                "Votre banque de données peut demeurer sur cet ordinateur si vous êtes la seule personne à l'utiliser. "
                "Si d'autres personnes doivent exploiter Tarvell, déplacez-la dans un répertoire du réseau auquel "
                "toutes ont accès, en lecture et en écriture.")
            : T("Specify the network folder where your organization keeps its database. If you do not know it, ask "
                "your network administrator.",
                "Spécifiez le répertoire du réseau où votre organisation conserve sa banque de données. Si vous ne le "
                "connaissez pas, informez-vous auprès de votre administrateur de réseau."));
    lblDatabaseHead->setText(T("Location of the database", "Emplacement de la banque de données"));
    cmdRelocateDatabase->setText(
        isNew ? T("&Relocate database", "&Relocaliser la banque de données")
              : T("&Specify path to existing database", "Spécifier l'&emplacement de la banque de données existante"));
    lblServerHead->setText(
        T("Microsoft SQL Server connection parameters:", "Paramètres de connexion à Microsoft SQL Server:"));
    labels_[0]->setText(T("&IP address", "Adresse &IP"));
    labels_[1]->setText(T("&User name", "Nom d'&usager"));
    labels_[2]->setText(T("Pass&word", "&Mot-clé"));
    labels_[3]->setText(T("&Database name", "Nom de la &banque de données"));
    cmdTestConnection->setText(T("&Test connection", "&Tester la connexion"));
}

void DatabaseStep::ShowChoices()
{
    // A database located while "existing" was chosen is in use; a new one never takes its place.
    if (IsNew(choices_.Kind) && !choices_.DatabaseRelocated)
        choices_.NewDatabasePath = OriginalDatabasePath();
    LoadCaptions();
    pages_->setCurrentIndex(IsServer(choices_.Kind) ? 1 : 0);
    lblDatabasePath->setText(ShownPath(choices_.NewDatabasePath));
    cmdTestConnection->setEnabled(IsServerComplete(choices_));
}

bool DatabaseStep::IsComplete() const
{
    return !IsServer(choices_.Kind) || IsServerComplete(choices_);
}

void DatabaseStep::cmdRelocateDatabase_Click()
{
    const bool isNew = IsNew(choices_.Kind);
    const QString title = isNew ? T("Move database to:", "Relocaliser la banque de données dans:")
                                : T("Locate database:", "Localisation de la banque de données:");
    const QString path = ChooseDatabaseFile(title, FolderOf(choices_.NewDatabasePath), isNew);
    if (path.isEmpty())
        return;
    if (isNew)
        RelocateDatabase(path);
    else
        ConnectToExistingDatabase(path);
}

void DatabaseStep::RelocateDatabase(const QString& path)
{
    if (!MayBeRelocated(path, choices_.NewDatabasePath))
        return;
    try {
        const BusyPointer hourglass;
        CopyDatabase(OriginalDatabasePath(), path);
    } catch (const RuntimeError& error) {
        return TellRelocationFailure(error);
    }
    KeepPath(path, true);
    Tell(T("OPERATION SUCCESSFUL:", "OPÉRATION COMPLÉTÉE AVEC SUCCÈS:"),
         T("Your database was moved to the specified directory.",
           "Votre banque de données a été relocalisée dans le répertoire spécifié!"),
         Face::Congratulating);
}

void DatabaseStep::ConnectToExistingDatabase(const QString& path)
{
    if (!HasDatabaseName(path))
        return TellInvalidDatabaseName();
    if (CanBeConnectedTo(path))
        KeepPath(path, false);
}

void DatabaseStep::KeepPath(const QString& path, bool relocated)
{
    choices_.NewDatabasePath = path;
    choices_.DatabaseRelocated = relocated;
    ShowChoices();
    emit Changed();
}

/// No client carries the statement to a server, so it never fails and the database never counts as empty: the user is
/// always advised to check his choice.
void DatabaseStep::cmdTestConnection_Click()
{
    try {
        WriteDataSource(choices_);
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    cmdTestConnection->setEnabled(false);
    try {
        AskServerForFiscalYears();
        TellDatabaseNotEmpty();
    } catch (const RuntimeError&) {
        TellInvalidStructure();
    }
    cmdTestConnection->setEnabled(true);
}
