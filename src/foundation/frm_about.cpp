#include "foundation/frm_about.h"

#include "foundation/common_services.h"
#include "foundation/deployment.h"
#include "platform/system_information.h"

namespace
{
constexpr int kAboutLogoSize = 72;
constexpr int kAboutTextWidth = 400;

QLabel* Paragraph(const QString& name, const Text& text)
{
    auto* label = WrappedLabel(name, text);
    label->setMinimumWidth(kAboutTextWidth);
    return label;
}

QVBoxLayout* AboutTexts()
{
    auto* lblVersion = Named<QLabel>("lblVersion", "Version " + Deployment::Version());
    auto* texts = Stack(8, {AsFigure(MakeLabel("lblTitle", {"Tarvell", "Tarvell"})), AsCaption(lblVersion)});
    texts->addSpacing(6);
    texts->addWidget(Paragraph(
        "lblDescription", {"Attendance, leave and time banks of the employees of an organization, on one calendar per "
                           "employee.",
                           "Les absences, les congés et les banques de temps des employés d'une organisation, sur un "
                           "calendrier par employé."}));
    texts->addWidget(AsCaption(
        Paragraph("lblDisclaimer",
                  {"Warning: this program is protected by copyright law. It may be copied and distributed only as its "
                   "licence allows.",
                   "Avertissement: ce programme est protégé par la loi sur le droit d'auteur. Il ne peut être copié "
                   "et distribué que selon les termes de sa licence."})));
    return texts;
}
} // namespace

frmAbout::frmAbout(QWidget* parent) : FormBase("frmAbout", parent)
{
    SetTitle(this, {"About Tarvell", "À propos de Tarvell"});
    auto* content = Beside(18);
    content->addWidget(MakeLogo(kAboutLogoSize), 0, Qt::AlignTop);
    content->addLayout(AboutTexts(), 1);
    Page()->addWidget(MakeCard(content));
    LayFoot({AddButton("cmdSysInfo", {"&System information...", "&Information système..."}, cmdSysInfo_Click),
             AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { accept(); })});
}

void frmAbout::cmdSysInfo_Click()
{
    if (!StartSystemInformation())
        Tell(T("SYSTEM INFORMATION:", "INFORMATION SYSTÈME:"),
             T("System Information Is Unavailable At This Time",
               "L'information système n'est pas disponible présentement"),
             Face::Sad);
}
