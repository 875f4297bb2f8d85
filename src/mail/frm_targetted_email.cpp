#include "mail/frm_targetted_email.h"

#include "foundation/common_services.h"

#include <QTabWidget>

namespace
{
constexpr QSize kEMailSize(720, 620);
constexpr QSize kRecipientsSize(560, 180);
constexpr int kAddressLimit = 75;
constexpr int kAddress = Qt::UserRole;
constexpr int kEmployee = Qt::UserRole + 1;
constexpr int kEMailGap = 10;

constexpr Text kUnannouncedClosing = {
    "If you proceed with the closing of a fiscal year without notifying your community, you run the risk that a lot of "
    "information will go missing (attendance records that were not entered or modified in time, employee entitlements "
    "which should have been updated, etc.)\r\n\r\nDo you really want to proceed with the closing of fiscal year "
    "{FiscalYearName} without notifying your community?",
    "Si vous fermez une année fiscale sans en aviser les utilisateurs, vous courez le risque que beaucoup "
    "d'informations soient manquantes (absences qui n'ont pas été enregistrées ou modifiées à temps, temps alloué aux "
    "employés qui aurait dû être mis à jour, etc.)\r\n\r\nSouhaitez-vous vraiment fermer l'année fiscale "
    "{FiscalYearName} sans en aviser les utilisateurs de TARVELL?"};
} // namespace

frmTargettedEMail::frmTargettedEMail(TargettedEMail job, QWidget* parent)
    : FormBase("frmTargettedEMail", parent), job_(std::move(job)), sstEMailInfo(Named<QTabWidget>("sstEMailInfo")),
      lblProgress(AsCaption(MakeLabel("lblProgress")))
{
    SetTitle(this, {"Send an e-mail", "Envoyer un courriel"});
    SetSize(kEMailSize);
    AskBeforeLosing();
    Page()->addWidget(sstEMailInfo, 1);
    AddTab(sstEMailInfo, RecipientsPage(), {"Recipients list", "Liste des destinataires"});
    AddTab(sstEMailInfo, ContentsPage(), {"E-mail contents", "Contenu du courriel"});
    cmdCancel = AddWayOut();
    cmdSend = AddMainButton("cmdSend", {"&Send", "&Envoyer"}, [this] { cmdSend_Click(); });
    LayFoot({lblProgress}, {cmdCancel, cmdSend});
    Attempt([this] { LoadRecords(); });
}

QWidget* frmTargettedEMail::RecipientsPage()
{
    auto* lblInstructions = WrappedLabel("lblInstructions");
    FollowLanguage(lblInstructions, [this, lblInstructions] { lblInstructions->setText(InstructionsOf(job_)); });
    lstEmailAddresses = Named<QListWidget>("lstEmailAddresses");
    lstEmailAddresses->setSelectionMode(QAbstractItemView::MultiSelection);
    lstEmailAddresses->setMinimumSize(kRecipientsSize);
    SetAccessibleName(lstEmailAddresses, {"Recipients", "Destinataires"});
    connect(lstEmailAddresses, &QListWidget::itemSelectionChanged, this, &frmTargettedEMail::lstEmailAddresses_Click);
    optSelectAll = MakeButton<QRadioButton>("optSelectAll", {"Select &all", "&Tout sélectionner"});
    optDeselectAll = MakeButton<QRadioButton>("optDeselectAll", {"&Deselect all", "Tout &désélectionner"});
    connect(optSelectAll, &QRadioButton::clicked, this, [this] { SelectAll(true); });
    connect(optDeselectAll, &QRadioButton::clicked, this, [this] { SelectAll(false); });

    auto* page = new QWidget;
    QVBoxLayout* layout = TabLayout(page);
    layout->addWidget(lblInstructions);
    layout->addWidget(lstEmailAddresses, 1);
    layout->addLayout(Row({optSelectAll, optDeselectAll}));
    layout->addLayout(NewRecipientRow());
    return page;
}

QLayout* frmTargettedEMail::NewRecipientRow()
{
    txtNewName = MakeField("txtNewName", KeyFilter::FreeText, kAddressLimit);
    txtNewEMail = MakeField("txtNewEMail", KeyFilter::FreeText, kAddressLimit);
    for (QLineEdit* field : {txtNewName, txtNewEMail})
        connect(field, &QLineEdit::textChanged, this, &frmTargettedEMail::txtNew_Change);
    cmdAdd = AddButton("cmdAdd", {"A&dd to the list", "A&jouter à la liste"}, [this] { cmdAdd_Click(); });
    txtNew_Change();
    auto* row = Beside(kEMailGap);
    row->addLayout(Captioned({"&Name of a new recipient", "&Nom d'un nouveau destinataire"}, txtNewName), 1);
    row->addLayout(Captioned({"E-&mail address", "&Courriel"}, txtNewEMail), 1);
    row->addWidget(cmdAdd, 0, Qt::AlignBottom);
    return row;
}

QWidget* frmTargettedEMail::ContentsPage()
{
    txtSubject = Named<QLineEdit>("txtSubject");
    txtMessage = Named<QPlainTextEdit>("txtMessage");
    txtMessage->setTabChangesFocus(true);
    auto* page = new QWidget;
    QVBoxLayout* layout = TabLayout(page);
    layout->addLayout(Headed({"S&ubject", "Su&jet"}, txtSubject));
    layout->addLayout(Headed({"&Text of the e-mail", "&Texte du courriel"}, txtMessage), 1);
    return page;
}

void frmTargettedEMail::LoadRecords()
{
    txtSubject->setText(SubjectOf(job_));
    txtMessage->setPlainText(BodyOf(job_).replace("\r\n", "\n"));
    for (const Recipient& person : LoadEMailAddresses(datAbsence, job_))
        AddRecipient(person);
}

void frmTargettedEMail::AddRecipient(const Recipient& person)
{
    const LoadingGuard loading(Loading);
    auto* line = new QListWidgetItem(person.Line(), lstEmailAddresses);
    line->setData(kAddress, person.EMailAddress);
    line->setData(kEmployee, person.EmployeeID);
    line->setSelected(person.Selected);
}

void frmTargettedEMail::SelectAll(bool selected)
{
    const LoadingGuard loading(Loading);
    if (selected)
        lstEmailAddresses->selectAll();
    else
        lstEmailAddresses->clearSelection();
}

/// Neither option tells any longer what is selected.
void frmTargettedEMail::lstEmailAddresses_Click()
{
    if (!Loading)
        ClearOptions({optSelectAll, optDeselectAll});
}

/// Enter adds whoever has been typed in before it sends.
void frmTargettedEMail::txtNew_Change()
{
    const bool complete = !txtNewName->text().trimmed().isEmpty() && !txtNewEMail->text().trimmed().isEmpty();
    EnableOrExplain(cmdAdd, complete, {"Enter a name and an address first", "Entrez d'abord un nom et une adresse"});
    if (cmdSend)
        (complete ? cmdAdd : cmdSend)->setDefault(true);
}

void frmTargettedEMail::cmdAdd_Click()
{
    const Recipient person{txtNewName->text().trimmed(), txtNewEMail->text()};
    AddRecipient(person);
    lstEmailAddresses->scrollToBottom();
    if (newPeople_.size() < kMostNewRecipients)
        newPeople_.append(person);
    txtNewName->clear();
    txtNewEMail->clear();
    txtNewName->setFocus();
}

QVector<Notice> frmTargettedEMail::Messages() const
{
    QVector<Notice> messages;
    for (int row = 0; row < lstEmailAddresses->count(); ++row)
        if (const QListWidgetItem* line = lstEmailAddresses->item(row); line->isSelected())
            messages.append({.Address = line->data(kAddress).toString(),
                             .Subject = txtSubject->text(),
                             .Body = txtMessage->toPlainText(),
                             .AddressType = "SMTP:",
                             .EmployeeID = line->data(kEmployee).toInt()});
    return messages;
}

void frmTargettedEMail::Send(const QVector<Notice>& messages)
{
    const BusyPointer busy;
    for (QPushButton* button : {cmdAdd, cmdSend, cmdCancel})
        button->setEnabled(false);
    SendNotices(messages, 0, [&](int number) {
        lblProgress->setText(
            Fill(T("Sending message {number} of {count}...", "Envoi du courriel {number} de {count}..."),
                 {{"number", QString::number(number + 1)}, {"count", QString::number(messages.size())}}));
        lblProgress->repaint();
    });
    lblProgress->clear();
    cmdSend->setEnabled(true);
    cmdCancel->setEnabled(true);
    txtNew_Change();
}

void frmTargettedEMail::OfferAddressBook()
{
    const QVector<Recipient> people = std::exchange(newPeople_, {});
    if (!people.isEmpty() &&
        Ask("TARVELL",
            T("Do you wish to add the names and e-mail addresses of the new recipients to your address book?",
              "Souhaitez-vous sauvegarder le nom et le courriel des nouveaux destinataires dans votre "
              "carnet d'adresse?")))
        UpdateAddressBook(datAbsence, people);
}

/// A failure of the address book is told, and does not hold back the form whose messages are on their way.
void frmTargettedEMail::cmdSend_Click()
{
    if (!Ask(T("CONFIRM:", "VEUILLEZ CONFIRMER:"),
             T("Do you wish to e-mail this message to the selected people?",
               "Souhaitez-vous envoyer ce courriel aux personnes sélectionnées?")))
        return;
    const QVector<Notice> messages = Messages();
    Send(messages);
    Attempt([this] { OfferAddressBook(); });
    if (!messages.isEmpty())
        accept();
}

/// The closing of a year has a question of its own, whichever way the form is left.
bool frmTargettedEMail::MayBeLeft()
{
    return !job_.IsSchedule() || FormBase::MayBeLeft();
}

void frmTargettedEMail::reject()
{
    if (job_.IsSchedule() || Ask(T("WARNING:", "ATTENTION:"),
                                 T(kUnannouncedClosing, {{"FiscalYearName", job_.FiscalYearToClose}}), Face::Warning))
        FormBase::reject();
}
