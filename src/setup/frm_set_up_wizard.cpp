#include "setup/frm_set_up_wizard.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "platform/program.h"
#include "setup/database_relocation.h"
#include "setup/frm_step_administrator.h"
#include "setup/frm_step_categories.h"
#include "setup/frm_step_database.h"
#include "setup/frm_step_fiscal_year.h"
#include "setup/frm_step_kind.h"
#include "setup/frm_step_language.h"
#include "setup/installation.h"

#include <QRadioButton>
#include <QStackedWidget>

namespace
{
constexpr int kDatabaseStep = 3;
constexpr int kLastStep = 6;
constexpr int kNameInSummary = 20; // characters of the fiscal year's name
constexpr QSize kSize(940, 480);

/// Until a language is chosen the wizard speaks both.
QString Bilingual(const char* english, const char* french, const char* between = "  -  ")
{
    return QString::fromUtf8(english) + between + QString::fromUtf8(french);
}
/// The first field of a step, if it has one.
QWidget* FirstField(const QWidget* step)
{
    for (QWidget* field : step->findChildren<QWidget*>())
        if (field->isVisibleTo(step) && (qobject_cast<QLineEdit*>(field) || qobject_cast<QRadioButton*>(field)))
            return field;
    return nullptr;
}
} // namespace

frmSetUpWizard::frmSetUpWizard(std::function<void()> startNormally, QWidget* parent)
    : QDialog(parent), startNormally_(std::move(startNormally))
{
    BuildControls();
    ConnectControls();
    LoadCaptions();
    GoToStep(1);
}

void frmSetUpWizard::BuildControls()
{
    setObjectName("frmSetUpWizard");
    lblTitle = AsFigure(WrappedLabel("lblTitle"));
    lblStep = AsCaption(Named<QLabel>("lblStep"));
    steps_ = new QStackedWidget;
    databaseStep_ = new DatabaseStep(choices_);
    for (WizardStep* step : std::initializer_list<WizardStep*>{
             new LanguageStep(choices_), new KindStep(choices_), databaseStep_, new FiscalYearStep(choices_),
             new CategoriesStep(choices_), new AdministratorStep(choices_)})
        steps_->addWidget(step);
    cmdCancel = Named<QPushButton>("cmdCancel");
    cmdPrevious = Named<QPushButton>("cmdPrevious");
    cmdNext = AsMainButton(Named<QPushButton>("cmdNext"));

    auto* head = new QHBoxLayout;
    head->addWidget(lblTitle, 1);
    head->addWidget(lblStep, 0, Qt::AlignBottom);
    auto* card = new QVBoxLayout;
    card->addWidget(steps_);
    auto* foot = ButtonRow({cmdPrevious, cmdNext});
    foot->insertWidget(0, cmdCancel);
    QVBoxLayout* page = PageLayout(this);
    page->addLayout(head);
    page->addWidget(MakeCard(card), 1);
    page->addLayout(foot);
    resize(kSize);
}

void frmSetUpWizard::ConnectControls()
{
    connect(cmdNext, &QPushButton::clicked, this, &frmSetUpWizard::cmdNext_Click);
    connect(cmdPrevious, &QPushButton::clicked, this, &frmSetUpWizard::cmdPrevious_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmSetUpWizard::cmdCancel_Click);
    for (WizardStep* step : steps_->findChildren<WizardStep*>())
        connect(step, &WizardStep::Changed, this, &frmSetUpWizard::UpdateButtons);
    connect(steps_->findChild<LanguageStep*>(), &LanguageStep::LanguageChosen, this, &frmSetUpWizard::ChooseLanguage);
}

void frmSetUpWizard::ChooseLanguage()
{
    languageChosen_ = true;
    LoadCaptions();
    UpdateButtons();
}

void frmSetUpWizard::LoadCaptions()
{
    const auto text = [this](const char* english, const char* french) {
        return languageChosen_ ? T(english, french) : Bilingual(english, french);
    };
    setWindowTitle(text("Initial configuration", "Configuration initiale"));
    cmdCancel->setText(text("&Cancel", "&Annuler"));
    cmdPrevious->setText(text("&Previous", "&Précédent"));
    lblStep->setText(Fill(text("Step {n} of {last}", "Étape {n} de {last}"),
                          {{"n", QString::number(CurrentStep)}, {"last", QString::number(LastStep())}}));
    cmdNext->setText(IsLastStep() ? text("FINISH", "TERMINER") : text("&Next", "&Suivant"));
    for (WizardStep* step : steps_->findChildren<WizardStep*>())
        step->LoadCaptions();
}

void frmSetUpWizard::ShowStep_01()
{
    ShowStep(1, Bilingual("WELCOME TO Tarvell", "BIENVENUE À Tarvell"));
}

void frmSetUpWizard::ShowStep_02()
{
    ShowStep(2, T("KIND OF INSTALLATION", "TYPE D'INSTALLATION"));
}

void frmSetUpWizard::ShowStep_03()
{
    ShowStep(kDatabaseStep, databaseStep_->Title());
}

void frmSetUpWizard::ShowStep_04()
{
    ShowStep(4, T("CREATING YOUR FIRST FISCAL YEAR", "CRÉATION DE VOTRE PREMIÈRE ANNÉE FISCALE"));
}

void frmSetUpWizard::ShowStep_05()
{
    ShowStep(5, T("BASIC CATEGORIES OF ATTENDANCE", "CATÉGORIES D'ABSENTÉISME DE BASE"));
}

void frmSetUpWizard::ShowStep_06()
{
    ShowStep(kLastStep, T("SYSTEM ADMINISTRATOR IDENTIFICATION", "IDENTIFICATION DE L'ADMINISTRATEUR DU SYSTÈME"));
}

void frmSetUpWizard::ShowStep(int step, const QString& title)
{
    CurrentStep = step;
    lblTitle->setText(title);
    steps_->setCurrentIndex(step - 1);
    LoadCaptions();
    static_cast<WizardStep*>(steps_->currentWidget())->ShowChoices();
    UpdateButtons();
    QWidget* field = FirstField(steps_->currentWidget());
    (field ? field : cmdNext)->setFocus();
}

void frmSetUpWizard::GoToStep(int step)
{
    constexpr void (frmSetUpWizard::*show[kLastStep])() = {&frmSetUpWizard::ShowStep_01, &frmSetUpWizard::ShowStep_02,
                                                           &frmSetUpWizard::ShowStep_03, &frmSetUpWizard::ShowStep_04,
                                                           &frmSetUpWizard::ShowStep_05, &frmSetUpWizard::ShowStep_06};
    (this->*show[step - 1])();
}

/// An existing database needs no rows of the wizard's.
int frmSetUpWizard::LastStep() const
{
    return choices_.Kind == Installation::None || IsNew(choices_.Kind) ? kLastStep : kDatabaseStep;
}

bool frmSetUpWizard::IsLastStep() const
{
    return CurrentStep == LastStep();
}

void frmSetUpWizard::UpdateButtons()
{
    cmdPrevious->setVisible(CurrentStep > 1);
    cmdNext->setEnabled(static_cast<WizardStep*>(steps_->currentWidget())->IsComplete());
}

void frmSetUpWizard::cmdNext_Click()
{
    // The button's letter leaves the focus in the field: it must have its say before the step is left.
    cmdNext->setFocus();
    if (!cmdNext->isEnabled())
        return;
    if (CurrentStep == kDatabaseStep && !IsDatabaseAccepted())
        return;
    if (IsLastStep())
        Finish();
    else
        GoToStep(CurrentStep + 1);
}

void frmSetUpWizard::cmdPrevious_Click()
{
    GoToStep(CurrentStep - 1);
}

void frmSetUpWizard::cmdCancel_Click()
{
    if (ConfirmCancelling())
        EndProgram();
}

bool frmSetUpWizard::ConfirmCancelling() const
{
    const char* english =
        "If you interrupt the configuration now, it will start from the beginning the next time you start "
        "Tarvell.\r\n\r\nDo you really want to interrupt the initial configuration of Tarvell?";
    const char* french =
        "Si vous interrompez la configuration maintenant, elle reprendra du début la prochaine fois que vous "
        "démarrerez Tarvell.\r\n\r\nSouhaitez-vous vraiment interrompre la configuration initiale de Tarvell?";
    if (languageChosen_)
        return Ask(T("WARNING:", "ATTENTION:"), T(english, french), Face::Warning);
    return ShowMessage({.Text = Bilingual(english, french, "\r\n\r\n"),
                        .Title = Bilingual("WARNING:", "ATTENTION:"),
                        .Set = Buttons::Custom2,
                        .Captions = {"Yes  -  Oui", "No  -  Non"}}) == MessageCode::First;
}

/// An existing database must have a fiscal year, and a new one must not: its rows would mix with those of others.
bool frmSetUpWizard::IsDatabaseAccepted()
{
    if (IsServer(choices_.Kind))
        return true;
    try {
        const bool isEmpty = IsDatabaseEmpty(choices_.NewDatabasePath);
        if (isEmpty == IsNew(choices_.Kind))
            return true;
        if (isEmpty)
            Tell(T("ERROR:", "ERREUR:"),
                 Fill(T("The database you intend to use ({path}) is currently empty! If you are not certain where your "
                        "actual database resides, please ask your network administrator.",
                        "La banque de données que vous souhaitez exploiter ({path}) est présentement vide! Si vous "
                        "n'êtes pas certain de l'endroit où se trouve votre banque de données, veuillez consulter "
                        "votre administrateur de réseau."),
                      {{"path", ShownPath(choices_.NewDatabasePath)}}),
                 Face::Warning);
        else
            Tell(T("DATABASE NOT EMPTY:", "BANQUE DE DONNÉES NON VIDE:"),
                 T("If you are trying to connect to an EXISTING database then you should go back one step (click "
                   "«Previous») and select the appropriate option.",
                   "Si vous tentez de vous connecter à une banque de données EXISTANTE, vous devriez alors revenir à "
                   "l'étape précédente (cliquez sur «Précédent») et sélectionner l'option appropriée."),
                 Face::Warning);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
    return false;
}

void frmSetUpWizard::Finish()
{
    switch (choices_.Kind) {
    case Installation::NewAccess:
        return Configure_Access();
    case Installation::NewServer:
        return Configure_SQL();
    default:
        NetworkInstallationCompleted();
    }
}

void frmSetUpWizard::NetworkInstallationCompleted()
{
    try {
        ConfigureWorkstation(choices_);
    } catch (const RuntimeError& error) {
        return TellError(error);
    }
    StartNormally();
}

void frmSetUpWizard::Configure_Access()
{
    Configure("Microsoft Access", InstallDatabase);
}

void frmSetUpWizard::Configure_SQL()
{
    Configure("Microsoft SQL Server", InstallOnServer);
}

void frmSetUpWizard::Configure(const QString& databaseType, void (*install)(DataControl&, const SetUpChoices&))
{
    if (!ConfirmConfiguration(databaseType))
        return;
    setEnabled(false);
    try {
        const BusyPointer hourglass;
        install(datAbsence, choices_);
    } catch (const RuntimeError& error) {
        setEnabled(true);
        return TellError(error);
    }
    setEnabled(true);
    Tell(T("CONFIGURATION COMPLETED SUCCESSFULLY:", "CONFIGURATION INITIALE COMPLÉTÉE:"),
         T("You have successfully completed the initial configuration of Tarvell. Before you can start using the "
           "software to record absences, you will be required to: \r\n\r\n - Identify the various organizations "
           "(divisions) within your business or institution\r\n - Subdivide your organizations or divisions into "
           "departments\r\n - Subdivide your departments into functional groups (optional)\r\n - Identify your "
           "employees\r\n - Create your own categories of attendance (optional)",
           "Vous avez complété avec succès la configuration initiale de Tarvell. Avant de pouvoir utiliser le logiciel "
           "pour enregistrer des absences, vous devrez: \r\n\r\n - Identifier les diverses organisations (divisions) "
           "de votre entreprise ou institution\r\n - Subdiviser vos organisations ou divisions en départements\r\n - "
           "Subdiviser vos départements en groupes fonctionnels (facultatif)\r\n - Identifier vos employés\r\n - Créer "
           "vos propres catégories d'absentéisme (facultatif)"),
         Face::Congratulating);
    StartNormally();
}

bool frmSetUpWizard::ConfirmConfiguration(const QString& databaseType) const
{
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
               Fill(T("Is the configuration of your database completed?\r\n\r\n"
                      "Database type:\t{type}\r\n"
                      "Fiscal year:  \t{name}  Start: {start}  End: {end}\r\n"
                      "Administrator:\t{first} {family}\r\n"
                      "Username:     \tADMIN    Password: {password}",
                      "La configuration de votre banque de données est-elle complétée?\r\n\r\n"
                      "Type de banque de données:\t{type}\r\n"
                      "Année fiscale:\t{name}  Début: {start}  Fin: {end}\r\n"
                      "Administrateur:\t{first} {family}\r\n"
                      "Nom d'usager:\tADMIN    Mot-clé: {password}"),
                    {{"type", databaseType},
                     {"name", choices_.FiscalYearName.left(kNameInSummary)},
                     {"start", FormatDate(choices_.FiscalYearStart, "dd-mmm-yyyy")},
                     {"end", FormatDate(choices_.FiscalYearEnd, "dd-mmm-yyyy")},
                     {"first", choices_.AdminFirstName},
                     {"family", choices_.AdminFamilyName},
                     {"password", choices_.AdminPassword}}));
}

void frmSetUpWizard::StartNormally()
{
    accept();
    startNormally_();
}
