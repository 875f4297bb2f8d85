#include "setup/frm_step_database.h"

#include "foundation/common_services.h"
#include "foundation/database_choice.h"
#include "foundation/failure_words.h"
#include "platform/program.h"
#include "setup/database_relocation.h"
#include "setup/installation.h"

#include <QStackedLayout>

namespace
{
constexpr int kDatabaseFieldWidth = 320;
constexpr int kServerFieldLimit = 50;
constexpr int kFilePageGap = 12;
constexpr int kGapBelowHelp = 10;
constexpr int kPlaceGap = 8;

constexpr Text kHelpOnNew = {
    "Your database may stay on this computer if you are the only one to use it. If other people are to use Tarvell, "
    "move it to a network folder that all of them can reach and write to.",
    "Votre banque de données peut demeurer sur cet ordinateur si vous êtes la seule personne à l'utiliser. Si d'autres "
    "personnes doivent exploiter Tarvell, déplacez-la dans un répertoire du réseau auquel toutes ont accès, en lecture "
    "et en écriture."};
constexpr Text kHelpOnExisting = {
    "Specify the network folder where your organization keeps its database. If you do not know it, ask your network "
    "administrator.",
    "Spécifiez le répertoire du réseau où votre organisation conserve sa banque de données. Si vous ne le connaissez "
    "pas, informez-vous auprès de votre administrateur de réseau."};

void TellRelocationFailure(const RuntimeError& error)
{
    Tell(T("AN ERROR HAS OCCURRED:", "UNE ERREUR EST SURVENUE:"),
         T({"The following error has occurred as your database was being moved to its new location:\r\n\r\n"
            "{failure}\r\n\r\nPlease try again and if the problem persists, contact your network administrator.",
            "L'erreur suivante est survenue lors de la relocalisation de votre banque de données:\r\n\r\n"
            "{failure}\r\n\r\nVeuillez essayer de nouveau et si le problème persiste, contactez votre "
            "administrateur de réseau."},
           {{"failure", FailureWords(error)}}),
         Face::Ashamed);
}

/// `server` names the kind of database where it is one on a server.
void TellDatabaseNotEmpty(const QString& server = {})
{
    Tell(T("DATABASE NOT EMPTY:", "BANQUE DE DONNÉES NON VIDE:"),
         T({"If you are trying to connect to an EXISTING {server}database then you should go back one step (click "
            "«Previous») and select the appropriate option.",
            "Si vous tentez de vous connecter à une banque de données {server}EXISTANTE, vous devriez alors revenir à "
            "l'étape précédente (cliquez sur «Précédent») et sélectionner l'option appropriée."},
           {{"server", server}}),
         Face::Warning);
}

void TellDatabaseEmpty(const QString& path)
{
    Refuse(T({"The database you intend to use ({path}) is currently empty! If you are not certain where your actual "
              "database resides, please ask your network administrator.",
              "La banque de données que vous souhaitez exploiter ({path}) est présentement vide! Si vous n'êtes pas "
              "certain de l'endroit où se trouve votre banque de données, veuillez consulter votre administrateur de "
              "réseau."},
             {{"path", NativePath(path)}}));
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
} // namespace

DatabaseStep::DatabaseStep(SetUpChoices& choices)
    : WizardStep("fraStep3", {}, choices), pages_(new QStackedLayout(this))
{
    choices_.NewDatabasePath = OriginalDatabasePath();
    pages_->addWidget(MakeFilePage());
    pages_->addWidget(MakeServerPage());
}

template <typename Control>
Control* DatabaseStep::ByKind(Control* control, const Text& ofNew, const Text& ofExisting)
{
    FollowLanguage(control, [=, this] { control->setText(T(IsNew(choices_.Kind) ? ofNew : ofExisting)); });
    return control;
}

QWidget* DatabaseStep::MakeFilePage()
{
    lblDatabasePath = WrappedLabel("lblDatabasePath");
    lblDatabasePath->setTextInteractionFlags(Qt::TextSelectableByMouse);
    SetAccessibleName(lblDatabasePath, {"Location of the database", "Emplacement de la banque de données"});
    auto* cmdRelocateDatabase =
        ByKind(Named<QPushButton>("cmdRelocateDatabase"), {"&Relocate database", "&Relocaliser la banque de données"},
               {"&Specify path to existing database", "Spécifier l'&emplacement de la banque de données existante"});
    connect(cmdRelocateDatabase, &QPushButton::clicked, this, &DatabaseStep::cmdRelocateDatabase_Click);
    QLabel* lblDatabaseHead =
        MakeLabel("lblDatabaseHead", {"Location of the database", "Emplacement de la banque de données"});
    auto* place = Stack(kPlaceGap, {AsHead(lblDatabaseHead), lblDatabasePath});
    place->addSpacing(kPlaceGap);
    place->addWidget(cmdRelocateDatabase, 0, Qt::AlignLeft);
    auto* page = new QWidget;
    auto* content = new QVBoxLayout(page);
    content->setSpacing(kFilePageGap);
    content->addWidget(ByKind(WrappedLabel("lblDatabaseHelp"), kHelpOnNew, kHelpOnExisting));
    content->addSpacing(kGapBelowHelp);
    content->addWidget(MakeCard(place));
    content->addStretch();
    return page;
}

QWidget* DatabaseStep::MakeServerPage()
{
    auto* page = new QWidget;
    QGridLayout* fields = FieldGrid();
    page->setLayout(fields);
    QLabel* lblServerHead = MakeLabel("lblServerHead", {"Microsoft SQL Server connection parameters:",
                                                        "Paramètres de connexion à Microsoft SQL Server:"});
    fields->addWidget(AsHead(lblServerHead), 0, 0, 1, 2);
    txtIPAddress = AddServerField(fields, "txtIPAddress", {"&IP address", "Adresse &IP"});
    txtUserName = AddServerField(fields, "txtUserName", {"&User name", "Nom d'&usager"});
    txtPassword = AddServerField(fields, "txtPassword", {"Pass&word", "&Mot-clé"});
    txtDatabaseName = AddServerField(fields, "txtDatabaseName", {"&Database name", "Nom de la &banque de données"});
    txtPassword->setEchoMode(QLineEdit::Password);
    cmdTestConnection = MakeButton("cmdTestConnection", {"&Test connection", "&Tester la connexion"});
    connect(cmdTestConnection, &QPushButton::clicked, this, &DatabaseStep::cmdTestConnection_Click);
    fields->addWidget(cmdTestConnection, fields->rowCount(), 1, Qt::AlignLeft);
    fields->setRowStretch(fields->rowCount(), 1);
    fields->setColumnStretch(2, 1);
    return page;
}

QLineEdit* DatabaseStep::AddServerField(QGridLayout* fields, const char* name, const Text& label)
{
    QLineEdit* field = MakeField(name, KeyFilter::FreeText, kServerFieldLimit);
    field->setFixedWidth(kDatabaseFieldWidth);
    connect(field, &QLineEdit::textChanged, this, &DatabaseStep::TakeChoices);
    const int row = fields->rowCount();
    fields->addWidget(LabelOf(field, label), row, 0);
    fields->addWidget(field, row, 1);
    return field;
}

void DatabaseStep::TakeChoices()
{
    choices_.IPAddress = txtIPAddress->text().trimmed();
    choices_.UserName = txtUserName->text().trimmed();
    choices_.Password = txtPassword->text().trimmed();
    choices_.DatabaseName = txtDatabaseName->text().trimmed();
    EnableTest();
    emit Changed();
}

void DatabaseStep::EnableTest()
{
    EnableOrExplain(cmdTestConnection, IsServerComplete(choices_),
                    {"Fill in the four fields first", "Remplissez d'abord les quatre champs"});
}

QString DatabaseStep::Title() const
{
    if (IsServer(choices_.Kind))
        return T("CONNECTING TO YOUR SERVER", "CONNEXION À VOTRE SERVEUR");
    return IsNew(choices_.Kind)
               ? T("SPECIFYING WHERE THE DATABASE WILL RESIDE", "LOCALISATION DE VOTRE NOUVELLE BANQUE DE DONNÉES")
               : T("SPECIFYING WHERE THE DATABASE RESIDES", "LOCALISATION DE VOTRE BANQUE DE DONNÉES");
}

void DatabaseStep::ShowChoices()
{
    // A database located while "existing" was chosen is in use; a new one never takes its place.
    if (IsNew(choices_.Kind) && !choices_.DatabaseRelocated)
        choices_.NewDatabasePath = OriginalDatabasePath();
    pages_->setCurrentIndex(IsServer(choices_.Kind) ? 1 : 0);
    lblDatabasePath->setText(NativePath(choices_.NewDatabasePath));
    EnableTest();
}

bool DatabaseStep::IsComplete() const
{
    return !IsServer(choices_.Kind) || IsServerComplete(choices_);
}

bool DatabaseStep::IsAccepted() const
{
    if (IsServer(choices_.Kind))
        return true;
    const bool isEmpty = IsDatabaseEmpty(choices_.NewDatabasePath);
    if (isEmpty == IsNew(choices_.Kind))
        return true;
    isEmpty ? TellDatabaseEmpty(choices_.NewDatabasePath) : TellDatabaseNotEmpty();
    return false;
}

void DatabaseStep::cmdRelocateDatabase_Click()
{
    const bool isNew = IsNew(choices_.Kind);
    const QString title = isNew ? T("Move database to:", "Relocaliser la banque de données dans:")
                                : T("Locate database:", "Localisation de la banque de données:");
    const QString folder = NativePath(choices_.NewDatabasePath.chopped(kDatabaseNameLength));
    const QString path = ChooseDatabaseFile(title, folder, isNew);
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
        TellDatabaseNotEmpty("SQL Server ");
    } catch (const RuntimeError&) {
        TellInvalidStructure();
    }
    cmdTestConnection->setEnabled(true);
}
