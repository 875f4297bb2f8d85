#include "selection/frm_approver_choice.h"

namespace
{
constexpr QSize kApproverList(480, 300);
constexpr int kInstructionsGap = 10;
} // namespace

ApproverChoice::ApproverChoice(const char* name, const Text& title, QLabel* instructions, const Text& select,
                               QWidget* parent)
    : FormBase(name, parent), lstApprovers(Named<QListWidget>("lstApprovers"))
{
    SetTitle(this, title);
    lstApprovers->setMinimumSize(kApproverList);
    SetAccessibleName(lstApprovers, title);
    connect(lstApprovers, &QListWidget::itemSelectionChanged, this, &ApproverChoice::lstApprovers_Click);
    connect(lstApprovers, &QListWidget::itemDoubleClicked, this, &ApproverChoice::cmdSelect_Click);
    Page()->addWidget(MakeCard(Stack(kInstructionsGap, {instructions, lstApprovers})));
    cmdSelect = AddMainButton("cmdSelect", select, [this] { cmdSelect_Click(); });
    LayFoot({AddWayOut(), cmdSelect});
    lstApprovers_Click();
}

void ApproverChoice::lstApprovers_Click()
{
    EnableOrExplain(cmdSelect, ChosenID(lstApprovers) != 0,
                    {"Choose an approver in the list first", "Choisissez d'abord un approbateur dans la liste"});
}

void ApproverChoice::cmdSelect_Click()
{
    if (ChosenID(lstApprovers) != 0)
        accept();
}
