#include "mail/frm_mail.h"

#include "mail/mail_component.h"

namespace
{
constexpr QSize kContentsSize(520, 220);
constexpr Text kContents = {"Specify the contents of the message which will be sent together with the report.",
                            "Spécifiez le texte du courriel qui sera envoyé avec le rapport dans la case ci-dessous"};
constexpr Text kReportAttached = {
    "The attached report has been generated and sent to you by «{user}». Please review its contents and notify the "
    "responsible person of any error you may find.",
    "Le rapport ci-joint a été généré et vous a été acheminé par «{user}». Veuillez en réviser le contenu et aviser la "
    "personne responsable de toute erreur que vous y trouveriez."};
} // namespace

frmMail::frmMail(const QString& reportFile, QWidget* parent)
    : FormBase("frmMail", parent), txtContents(Named<QPlainTextEdit>("txtContents"))
{
    SetTitle(this, {"Report by e-mail", "Rapport par courriel"});
    txtContents->setMinimumSize(kContentsSize);
    txtContents->setTabChangesFocus(true);
    auto* content = new QVBoxLayout;
    content->addLayout(Headed(kContents, txtContents));
    Page()->addWidget(MakeCard(content), 1);
    cmdOK = AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { accept(); });
    LayFoot({AddWayOut(), cmdOK});
    connect(txtContents, &QPlainTextEdit::textChanged, this, &frmMail::txtContents_Change);
    if (!reportFile.isEmpty())
        txtContents->setPlainText(T(kReportAttached, {{"user", SenderName()}}));
    txtContents->selectAll();
    txtContents->setFocus();
    txtContents_Change();
    AskBeforeLosing();
}

void frmMail::txtContents_Change()
{
    EnableOrExplain(cmdOK, !txtContents->toPlainText().isEmpty(), {"Write a text first", "Écrivez d'abord un texte"});
}
