#include "foundation/frm_about.h"

#include "foundation/common_services.h"
#include "foundation/deployment.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "platform/system_information.h"

namespace
{
constexpr int kAboutLogoSize = 72;
constexpr int kAboutTextWidth = 400;

QLabel* Paragraph(const QString& name, const QString& text)
{
    auto* label = Named<QLabel>(name, text);
    label->setWordWrap(true);
    label->setMinimumWidth(kAboutTextWidth);
    return label;
}
} // namespace

frmAbout::frmAbout(QWidget* parent) : QDialog(parent)
{
    BuildControls();
}

void frmAbout::BuildControls()
{
    setObjectName("frmAbout");
    setWindowTitle(T("About Tarvell", "À propos de Tarvell"));
    auto* imgLogo = Named<QLabel>("imgLogo");
    imgLogo->setPixmap(Picture("app", kAboutLogoSize));
    auto* cmdSysInfo = Named<QPushButton>("cmdSysInfo", T("&System information...", "&Information système..."));
    auto* cmdOK = AsMainButton(Named<QPushButton>("cmdOK", T("&OK", "&OK")));
    connect(cmdSysInfo, &QPushButton::clicked, this, &frmAbout::cmdSysInfo_Click);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(8);
    texts->addWidget(AsFigure(Named<QLabel>("lblTitle", QStringLiteral("Tarvell"))));
    texts->addWidget(AsCaption(Named<QLabel>("lblVersion", "Version " + Deployment::Version())));
    texts->addSpacing(6);
    texts->addWidget(Paragraph(
        "lblDescription", T("Attendance, leave and time banks of the employees of an organization, on one calendar per "
                            "employee.",
                            "Les absences, les congés et les banques de temps des employés d'une organisation, sur un "
                            "calendrier par employé.")));
    texts->addWidget(AsCaption(
        Paragraph("lblDisclaimer",
                  T("Warning: this program is protected by copyright law. It may be copied and distributed only as its "
                    "licence allows.",
                    "Avertissement: ce programme est protégé par la loi sur le droit d'auteur. Il ne peut être copié "
                    "et distribué que selon les termes de sa licence."))));
    auto* content = new QHBoxLayout;
    content->setSpacing(18);
    content->addWidget(imgLogo, 0, Qt::AlignTop);
    content->addLayout(texts, 1);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdSysInfo, cmdOK}));
}

void frmAbout::cmdSysInfo_Click()
{
    if (!StartSystemInformation())
        Tell(T("SYSTEM INFORMATION:", "INFORMATION SYSTÈME:"),
             T("System Information Is Unavailable At This Time",
               "L'information système n'est pas disponible présentement"),
             Face::Sad);
}
