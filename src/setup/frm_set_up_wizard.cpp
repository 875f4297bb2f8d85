#include "setup/frm_set_up_wizard.h"

#include "foundation/common_services.h"
#include "platform/program.h"
#include "setup/frm_step_administrator.h"
#include "setup/frm_step_categories.h"
#include "setup/frm_step_database.h"
#include "setup/frm_step_fiscal_year.h"
#include "setup/frm_step_kind.h"
#include "setup/frm_step_language.h"
#include "setup/installation.h"

#include <QScopeGuard>
#include <QStackedWidget>

namespace
{
constexpr int kDatabaseStep = 3;
constexpr int kLastStep = 6;
constexpr int kNameInSummary = 20; // characters of the fiscal year's name
constexpr QSize kSize(940, 480);

constexpr Text kTitle = {"Initial configuration", "Configuration initiale"};
constexpr Text kStep = {"Step {n} of {last}", "Étape {n} de {last}"};
constexpr Text kCancel = {"&Cancel", "&Annuler"};
constexpr Text kPrevious = {"&Previous", "&Précédent"};
constexpr Text kNext = {"&Next", "&Suivant"};
constexpr Text kFinish = {"FINISH", "TERMINER"};

/// Until a language is chosen the wizard speaks both.
QString Bilingual(const Text& text, const char* between = "  -  ")
{
    return QString::fromUtf8(text.English) + between + QString::fromUtf8(text.French);
}

/// The first field of a step, or its option that is chosen; nothing when it has neither.
QWidget* FirstField(const QWidget* step)
{
    QWidget* first = nullptr;
    for (QWidget* field : step->findChildren<QWidget*>()) {
        const auto* option = qobject_cast<QRadioButton*>(field);
        if (!field->isVisibleTo(step) || !(option || qobject_cast<QLineEdit*>(field)))
            continue;
        if (option && option->isChecked())
            return field;
        first = first ? first : field;
    }
    return first;
}

} // namespace

frmSetUpWizard::frmSetUpWizard(QWidget* parent)
    : FormBase("frmSetUpWizard", parent), lblTitle(AsFigure(WrappedLabel("lblTitle"))),
      lblStep(AsCaption(MakeLabel("lblStep"))), steps_(new QStackedWidget)
{
    auto* head = new QHBoxLayout;
    head->addWidget(lblTitle, 1);
    head->addWidget(lblStep, 0, Qt::AlignBottom);
    Page()->addLayout(head);
    AddSteps();
    Page()->addWidget(MakeCard(Stack(0, {steps_})), 1);
    cmdCancel = AddWayOut(kCancel);
    cmdPrevious = AddButton("cmdPrevious", kPrevious, [this] { GoToStep(CurrentStep - 1); });
    cmdNext = AddMainButton("cmdNext", kNext, [this] { cmdNext_Click(); });
    LayFoot({cmdPrevious}, {cmdCancel, cmdNext});
    SetSize(kSize);
    GoToStep(1);
}

void frmSetUpWizard::AddSteps()
{
    auto* language = new LanguageStep(choices_);
    connect(language, &WizardStep::Changed, this, &frmSetUpWizard::LoadCaptions);
    for (WizardStep* step : std::initializer_list<WizardStep*>{
             language, new KindStep(choices_), new DatabaseStep(choices_), new FiscalYearStep(choices_),
             new CategoriesStep(choices_), new AdministratorStep(choices_)}) {
        steps_->addWidget(step);
        connect(step, &WizardStep::Changed, this, &frmSetUpWizard::UpdateButtons);
    }
}

void frmSetUpWizard::LoadCaptions()
{
    const auto text = [this](const Text& caption) { return choices_.LanguageChosen ? T(caption) : Bilingual(caption); };
    Retranslate(this);
    setWindowTitle(text(kTitle));
    cmdCancel->setText(text(kCancel));
    cmdPrevious->setText(text(kPrevious));
    cmdNext->setText(text(IsLastStep() ? kFinish : kNext));
    lblStep->setText(Fill(text(kStep), {{"n", QString::number(CurrentStep)}, {"last", QString::number(LastStep())}}));
}

WizardStep* frmSetUpWizard::Step() const
{
    return static_cast<WizardStep*>(steps_->currentWidget());
}

void frmSetUpWizard::GoToStep(int step)
{
    CurrentStep = step;
    steps_->setCurrentIndex(step - 1);
    lblTitle->setText(Step()->Title());
    LoadCaptions();
    Step()->ShowChoices();
    UpdateButtons();
    QWidget* field = FirstField(Step());
    (field ? field : cmdNext)->setFocus();
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
    EnableOrExplain(cmdNext, Step()->IsComplete(),
                    {"Answer what this step asks first", "Répondez d'abord à ce que cette étape demande"});
}

void frmSetUpWizard::cmdNext_Click()
{
    // The button's letter leaves the focus in the field: it must have its say before the step is left.
    cmdNext->setFocus();
    if (!cmdNext->isEnabled() || !Step()->IsAccepted())
        return;
    if (IsLastStep())
        Finish();
    else
        GoToStep(CurrentStep + 1);
}

void frmSetUpWizard::reject()
{
    if (ConfirmCancelling())
        EndProgram();
}

bool frmSetUpWizard::ConfirmCancelling() const
{
    constexpr Text kQuestion = {
        "If you interrupt the configuration now, it will start from the beginning the next time you start "
        "Tarvell.\r\n\r\nDo you really want to interrupt the initial configuration of Tarvell?",
        "Si vous interrompez la configuration maintenant, elle reprendra du début la prochaine fois que vous "
        "démarrerez Tarvell.\r\n\r\nSouhaitez-vous vraiment interrompre la configuration initiale de Tarvell?"};
    constexpr Text kWarning = {"WARNING:", "ATTENTION:"};
    if (choices_.LanguageChosen)
        return AskCarefully(T(kWarning), T(kQuestion), Face::Warning);
    return ShowMessage({.Text = Bilingual(kQuestion, "\r\n\r\n"),
                        .Title = Bilingual(kWarning),
                        .Set = Buttons::Custom2,
                        .Captions = {"Yes  -  Oui", "No  -  Non"},
                        .DefaultButton = 1}) == MessageCode::First;
}

void frmSetUpWizard::Finish()
{
    switch (choices_.Kind) {
    case Installation::NewAccess:
        return Configure("Microsoft Access", InstallDatabase);
    case Installation::NewServer:
        return Configure("Microsoft SQL Server", InstallOnServer);
    default:
        ConfigureWorkstation(choices_);
        accept();
    }
}

void frmSetUpWizard::Configure(const QString& databaseType, void (*install)(DataControl&, const SetUpChoices&))
{
    if (!ConfirmConfiguration(databaseType))
        return;
    {
        setEnabled(false);
        const auto enable = qScopeGuard([this] { setEnabled(true); });
        const BusyPointer hourglass;
        install(datAbsence, choices_);
    }
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
    accept();
}

bool frmSetUpWizard::ConfirmConfiguration(const QString& databaseType) const
{
    return Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
               T({"Is the configuration of your database completed?\r\n\r\n"
                  "Database type:\t{type}\r\n"
                  "Fiscal year:  \t{name}  Start: {start}  End: {end}\r\n"
                  "Administrator:\t{first} {family}\r\n"
                  "Username:     \tADMIN    Password: {password}",
                  "La configuration de votre banque de données est-elle complétée?\r\n\r\n"
                  "Type de banque de données:\t{type}\r\n"
                  "Année fiscale:\t{name}  Début: {start}  Fin: {end}\r\n"
                  "Administrateur:\t{first} {family}\r\n"
                  "Nom d'usager:\tADMIN    Mot-clé: {password}"},
                 {{"type", databaseType},
                  {"name", choices_.FiscalYearName.left(kNameInSummary)},
                  {"start", FormatDate(choices_.FiscalYearStart, "dd-mmm-yyyy")},
                  {"end", FormatDate(choices_.FiscalYearEnd, "dd-mmm-yyyy")},
                  {"first", choices_.AdminFirstName},
                  {"family", choices_.AdminFamilyName},
                  {"password", choices_.AdminPassword}}));
}
