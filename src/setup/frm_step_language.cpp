#include "setup/frm_step_language.h"

namespace
{
constexpr int kLogoSize = 72;
constexpr int kWelcomeGap = 14;
constexpr int kLanguagesGap = 12;
/// This step speaks both languages whatever was chosen: a wrong choice must be easy to mend.
constexpr const char* kWelcome = "WELCOME TO Tarvell  -  BIENVENUE À Tarvell";
constexpr const char* kQuestion =
    "In which language would you like to work?\r\nDans quelle langue souhaitez-vous travailler?";
} // namespace

LanguageStep::LanguageStep(SetUpChoices& choices) : WizardStep("fraStep1", {kWelcome, kWelcome}, choices)
{
    QLabel* lblWelcome = WrappedLabel("lblWelcome", {kQuestion, kQuestion});
    lblWelcome->setAlignment(Qt::AlignHCenter);
    auto* languages = Stack(kLanguagesGap);
    AddLanguage(languages, "optEnglish", "I wish to use Tarvell in &English", true);
    AddLanguage(languages, "optFrench", "Je compte utiliser Tarvell en &français", false);
    auto* centred = new QHBoxLayout;
    centred->addStretch();
    centred->addLayout(languages);
    centred->addStretch();
    auto* content = new QVBoxLayout(this);
    content->setSpacing(kWelcomeGap);
    content->addStretch(1);
    content->addWidget(MakeLogo(kLogoSize), 0, Qt::AlignHCenter);
    content->addWidget(lblWelcome);
    content->addSpacing(kLanguagesGap);
    content->addLayout(centred);
    content->addStretch(2);
}

void LanguageStep::AddLanguage(QVBoxLayout* languages, const char* name, const char* caption, bool english)
{
    QRadioButton* option = MakeButton<QRadioButton>(name, {caption, caption});
    languages->addWidget(option);
    connect(option, &QRadioButton::clicked, this, [this, english] {
        SessionState.English = english;
        choices_.LanguageChosen = true;
        emit Changed();
    });
}
