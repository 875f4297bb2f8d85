#include "selection/frm_get_approver_from_list.h"

#include "selection/approvers_of_year.h"

namespace
{
constexpr Text kInstructions = {
    "The list below contains the names of all the employees who are allowed to approve requests for leave in your "
    "entire organization. Just select the name of the person who will appprove {employee}'s request for leave from "
    "this list and click «Select».",
    "La liste ci-dessous contient le nom de tous les employés autorisés à traiter des demandes de congé dans votre "
    "organisation. Veuillez sélectionner le nom de la personne qui traitera les demandes de congé de {employee} et "
    "cliquer sur «Sélectionner»."};

QLabel* InstructionsAbout(const QString& employeeName)
{
    QLabel* label = WrappedLabel("lblInstructions");
    label->setText(T(kInstructions, {{"employee", employeeName}}));
    return label;
}
} // namespace

frmGetApproverFromList::frmGetApproverFromList(const QString& employeeName, QWidget* parent)
    : ApproverChoice("frmGetApproverFromList", {"List of approvers", "Liste des approbateurs"},
                     InstructionsAbout(employeeName), {"&Select", "&Sélectionner"}, parent)
{
    Attempt([this] { LoadRecords(); });
}

void frmGetApproverFromList::LoadRecords()
{
    QString place;
    for (const ListedApprover& approver : LoadApproversList(datAbsence)) {
        if (approver.Place != place)
            AddHead(approver.Place);
        place = approver.Place;
        AddEntry(List(), approver.Name, approver.RecordID);
    }
}

/// The unit stands above its people in bold and cannot be chosen.
void frmGetApproverFromList::AddHead(const QString& place)
{
    auto* head = new QListWidgetItem(place, List());
    head->setFlags(Qt::ItemIsEnabled);
    QFont bold = List()->font();
    bold.setBold(true);
    head->setFont(bold);
}
