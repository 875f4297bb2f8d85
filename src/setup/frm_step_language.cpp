#include "setup/frm_step_language.h"

#include "foundation/session_state.h"
#include "platform/controls/form_kit.h"

#include <QRadioButton>

namespace
{
constexpr int kLogoSize = 72;
}

LanguageStep::LanguageStep(SetUpChoices& choices)
    : WizardStep("fraStep1", choices), lblWelcome(WrappedLabel("lblWelcome")),
      optEnglish(Named<QRadioButton>("optEnglish", QStringLiteral("I wish to use Tarvell in &English"))),
      optFrench(Named<QRadioButton>("optFrench", QStringLiteral("Je compte utiliser Tarvell en &français")))
{
    auto* imgLogo = Named<QLabel>("imgLogo");
    imgLogo->setPixmap(Picture("app", kLogoSize));
    auto* content = new QVBoxLayout(this);
    content->setSpacing(14);
    content->addStretch(1);
    content->addWidget(imgLogo, 0, Qt::AlignHCenter);
    content->addWidget(lblWelcome);
    content->addSpacing(12);
    auto* languages = new QVBoxLayout;
    languages->setSpacing(12);
    languages->addWidget(optEnglish);
    languages->addWidget(optFrench);
    auto* centred = new QHBoxLayout;
    centred->addStretch();
    centred->addLayout(languages);
    centred->addStretch();
    content->addLayout(centred);
    content->addStretch(2);
    lblWelcome->setAlignment(Qt::AlignHCenter);
    const auto choose = [this] {
        SessionState.English = optEnglish->isChecked();
        emit LanguageChosen();
    };
    connect(optEnglish, &QRadioButton::clicked, this, choose);
    connect(optFrench, &QRadioButton::clicked, this, choose);
}

/// This step speaks both languages whatever was chosen: a wrong choice must be easy to mend.
void LanguageStep::LoadCaptions()
{
    lblWelcome->setText("In which language would you like to work?\r\nDans quelle langue souhaitez-vous travailler?");
}

bool LanguageStep::IsComplete() const
{
    return optEnglish->isChecked() || optFrench->isChecked();
}
