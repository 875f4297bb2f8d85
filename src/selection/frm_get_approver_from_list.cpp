#include "selection/frm_get_approver_from_list.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QListWidget>

namespace
{
constexpr int kApproverListWidth = 480;
constexpr int kListHeight = 300;
} // namespace

frmGetApproverFromList::frmGetApproverFromList(const QString& employeeName, QWidget* parent) : QDialog(parent)
{
    BuildControls();
    ConnectControls();
    LoadCaptions(employeeName);
    LoadRecords();
}

void frmGetApproverFromList::BuildControls()
{
    setObjectName("frmGetApproverFromList");
    lblInstructions = Named<QLabel>("lblInstructions");
    lblInstructions->setTextFormat(Qt::PlainText);
    lblInstructions->setWordWrap(true);
    lstApprovers = Named<QListWidget>("lstApprovers");
    lstApprovers->setMinimumSize(kApproverListWidth, kListHeight);
    cmdSelect = AsMainButton(Named<QPushButton>("cmdSelect"));
    cmdCancel = Named<QPushButton>("cmdCancel");

    auto* content = new QVBoxLayout;
    content->setSpacing(10);
    content->addWidget(lblInstructions);
    content->addWidget(lstApprovers, 1);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdCancel, cmdSelect}));
}

void frmGetApproverFromList::ConnectControls()
{
    connect(lstApprovers, &QListWidget::itemSelectionChanged, this, &frmGetApproverFromList::lstApprovers_Click);
    connect(lstApprovers, &QListWidget::itemDoubleClicked, this, &frmGetApproverFromList::cmdSelect_Click);
    connect(cmdSelect, &QPushButton::clicked, this, &frmGetApproverFromList::cmdSelect_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmGetApproverFromList::LoadCaptions(const QString& employeeName)
{
    setWindowTitle(T("List of approvers", "Liste des approbateurs"));
    lblInstructions->setText(Fill(
        T("The list below contains the names of all the employees who are allowed to approve requests for leave in "
          "your entire organization. Just select the name of the person who will appprove {employee}'s request for "
          "leave from this list and click «Select».",
          "La liste ci-dessous contient le nom de tous les employés autorisés à traiter des demandes de congé dans "
          "votre organisation. Veuillez sélectionner le nom de la personne qui traitera les demandes de congé de "
          "{employee} et cliquer sur «Sélectionner»."),
        {{"employee", employeeName}}));
    lstApprovers->setAccessibleName(windowTitle());
    cmdSelect->setText(T("&Select", "&Sélectionner"));
    cmdCancel->setText(T("&Cancel", "&Annuler"));
}

void frmGetApproverFromList::LoadRecords()
{
    try {
        approvers_ = LoadApproversList(datAbsence);
    } catch (const RuntimeError& error) {
        TellError(error);
    }
    QString place;
    for (int i = 0; i < approvers_.size(); ++i) {
        if (approvers_[i].Place != place)
            AddHead(approvers_[i].Place);
        place = approvers_[i].Place;
        auto* line = new QListWidgetItem(approvers_[i].Name, lstApprovers);
        line->setData(Qt::UserRole, i);
    }
    lstApprovers_Click();
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
    cmdSelect->setEnabled(!lstApprovers->selectedItems().isEmpty());
}

void frmGetApproverFromList::cmdSelect_Click()
{
    if (lstApprovers->selectedItems().isEmpty())
        return;
    chosen_ = approvers_[lstApprovers->selectedItems().first()->data(Qt::UserRole).toInt()];
    accept();
}
