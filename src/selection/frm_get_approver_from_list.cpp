#include "selection/frm_get_approver_from_list.h"

namespace
{
constexpr int kApproverListWidth = 480;
constexpr int kListHeight = 300;
constexpr int kInstructionsGap = 10;
constexpr Text kTitle = {"List of approvers", "Liste des approbateurs"};
constexpr Text kInstructions = {
    "The list below contains the names of all the employees who are allowed to approve requests for leave in your "
    "entire organization. Just select the name of the person who will appprove {employee}'s request for leave from "
    "this list and click «Select».",
    "La liste ci-dessous contient le nom de tous les employés autorisés à traiter des demandes de congé dans votre "
    "organisation. Veuillez sélectionner le nom de la personne qui traitera les demandes de congé de {employee} et "
    "cliquer sur «Sélectionner»."};
} // namespace

frmGetApproverFromList::frmGetApproverFromList(const QString& employeeName, QWidget* parent)
    : FormBase("frmGetApproverFromList", parent), lstApprovers(Named<QListWidget>("lstApprovers"))
{
    SetTitle(this, kTitle);
    auto* lblInstructions = WrappedLabel("lblInstructions");
    lblInstructions->setText(T(kInstructions, {{"employee", employeeName}}));
    lstApprovers->setMinimumSize(kApproverListWidth, kListHeight);
    SetAccessibleName(lstApprovers, kTitle);
    connect(lstApprovers, &QListWidget::itemSelectionChanged, this, &frmGetApproverFromList::lstApprovers_Click);
    connect(lstApprovers, &QListWidget::itemDoubleClicked, this, &frmGetApproverFromList::cmdSelect_Click);
    Page()->addWidget(MakeCard(Stack(kInstructionsGap, {lblInstructions, lstApprovers})));
    cmdSelect = AddMainButton("cmdSelect", {"&Select", "&Sélectionner"}, [this] { cmdSelect_Click(); });
    LayFoot({AddWayOut(), cmdSelect});
    Attempt([this] { LoadRecords(); });
    lstApprovers_Click();
}

void frmGetApproverFromList::LoadRecords()
{
    QString place;
    for (const ListedApprover& approver : LoadApproversList(datAbsence)) {
        if (approver.Place != place)
            AddHead(approver.Place);
        place = approver.Place;
        AddEntry(lstApprovers, approver.Name, approver.RecordID);
    }
}

/// The unit stands above its people in bold and cannot be chosen.
void frmGetApproverFromList::AddHead(const QString& place)
{
    auto* head = new QListWidgetItem(place, lstApprovers);
    head->setFlags(Qt::ItemIsEnabled);
    QFont bold = lstApprovers->font();
    bold.setBold(true);
    head->setFont(bold);
}

void frmGetApproverFromList::lstApprovers_Click()
{
    EnableOrExplain(cmdSelect, ChosenID(lstApprovers) != 0,
                    {"Choose an approver in the list first", "Choisissez d'abord un approbateur dans la liste"});
}

void frmGetApproverFromList::cmdSelect_Click()
{
    if (ChosenID(lstApprovers) != 0)
        accept();
}
