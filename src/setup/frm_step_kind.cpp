#include "setup/frm_step_kind.h"

#include "foundation/common_services.h"
#include "foundation/frm_option_caption.h"

#include <QButtonGroup>

namespace
{
constexpr int kOptionGap = 12;

struct KindText
{
    Installation Kind;
    const char* Name; ///< of the controls, behind their prefix
    Text Caption;
    Text Note;
};

constexpr KindText kKinds[] = {
    {Installation::NewAccess,
     "NewAccessDatabase",
     {"This is a new implementation of Tarvell  -  with an Access database.",
      "Ceci est une nouvelle installation de Tarvell  -  avec une banque de données Access."},
     {"Choose this option if nobody in your organization uses Tarvell yet. Your data will be kept in one file, "
      "«Tarvell.mdb», which you can leave on this computer or move to a network folder if several people are to use "
      "it.\r\n\r\nYou will then create your first fiscal year, describe four categories of attendance and name your "
      "system administrator.",
      "Choisissez cette option si personne dans votre organisation n'utilise encore Tarvell. Vos données seront "
      "conservées dans un seul fichier, «Tarvell.mdb», que vous pouvez laisser sur cet ordinateur ou déplacer dans un "
      "répertoire du réseau si plusieurs personnes doivent l'exploiter.\r\n\r\nVous créerez ensuite votre première "
      "année fiscale, décrirez quatre catégories d'absentéisme et identifierez votre administrateur du système."}},
    {Installation::NewServer,
     "NewSQLDatabase",
     {"This is a new implementation of Tarvell  -  with a SQL Server database.",
      "Ceci est une nouvelle installation de Tarvell  -  avec une banque de données SQL Server."},
     {"Choose this option if your network administrator has prepared an empty database for Tarvell on a SQL Server. "
      "You will need its IP address, its name, and the user name and password that give access to it.",
      "Choisissez cette option si votre administrateur de réseau a préparé une banque de données vide pour Tarvell sur "
      "un serveur SQL. Vous aurez besoin de son adresse IP, de son nom, ainsi que du nom d'usager et du mot-clé qui y "
      "donnent accès."}},
    {Installation::ExistingAccess,
     "ExistingAccessDatabase",
     {"A Microsoft Access database has already been set up for our organization. I just want to connect to this "
      "existing database and start using Tarvell.",
      "Une banque de données Microsoft Access a déjà été configurée pour notre organisation. Je souhaite seulement m'y "
      "connecter et commencer à utiliser Tarvell."},
     {"Choose this option if your colleagues already use Tarvell. You only have to point at the file «Tarvell.mdb» "
      "that they share; your system administrator knows in which network folder it lies.",
      "Choisissez cette option si vos collègues utilisent déjà Tarvell. Il vous suffit d'indiquer le fichier "
      "«Tarvell.mdb» qu'ils partagent; votre administrateur du système sait dans quel répertoire du réseau il se "
      "trouve."}},
    {Installation::ExistingServer,
     "ExistingSQLDatabase",
     {"A Microsoft SQL Server database has already been set up for our organization. I just want to connect to this "
      "existing database and start using Tarvell.",
      "Une banque de données Microsoft SQL Server a déjà été configurée pour notre organisation. Je souhaite seulement "
      "m'y connecter et commencer à utiliser Tarvell."},
     {"Choose this option if your colleagues already use Tarvell with a SQL Server. Your network administrator will "
      "give you the IP address and the name of the database, and the user name and password that give access to it.",
      "Choisissez cette option si vos collègues utilisent déjà Tarvell avec un serveur SQL. Votre administrateur de "
      "réseau vous fournira l'adresse IP et le nom de la banque de données, ainsi que le nom d'usager et le mot-clé "
      "qui y donnent accès."}},
};

QPushButton* InfoButton(const KindText& kind)
{
    static constexpr Text kPurpose = {"More about this option", "Plus d'information sur cette option"};
    auto* info = MakeButton(QLatin1String("cmdInfo_") + kind.Name, {"?", "?"});
    info->setProperty("look", "arrow");
    info->setFixedWidth(info->sizeHint().height());
    SetToolTip(info, kPurpose);
    FollowLanguage(info, [info, &kind] { info->setAccessibleName(T(kPurpose) + ": " + T(kind.Caption)); });
    QObject::connect(info, &QPushButton::clicked, info,
                     [&kind] { Tell(T("INFORMATION:", "INFORMATION:"), T(kind.Note)); });
    return info;
}
} // namespace

KindStep::KindStep(SetUpChoices& choices)
    : WizardStep("fraStep2", {"KIND OF INSTALLATION", "TYPE D'INSTALLATION"}, choices), options_(new QButtonGroup(this))
{
    auto* content = new QVBoxLayout(this);
    content->setSpacing(kOptionGap);
    content->addWidget(AsHead(WrappedLabel(
        "lblKind", {"Which of the following applies to you?", "Lequel des énoncés suivants s'applique à vous?"})));
    for (std::size_t index = 0; index < std::size(kKinds); ++index)
        content->addWidget(AddOption(index));
    content->addStretch();
}

QWidget* KindStep::AddOption(std::size_t index)
{
    const KindText& kind = kKinds[index];
    auto* option = Named<QRadioButton>(QLatin1String("opt") + kind.Name);
    options_->addButton(option);
    connect(option, &QRadioButton::clicked, this, [this, &kind] {
        choices_.Kind = kind.Kind;
        emit Changed();
    });
    auto* row = Beside(kOptionGap, {option});
    row->addWidget(new OptionCaption(option, kind.Caption), 1);
    row->addWidget(InfoButton(kind));
    return MakeCard(row);
}
