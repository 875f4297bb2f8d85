#include "selection/frm_select_weekdays.h"

#include "selection/frm_weekday_boxes.h"

#include <algorithm>

namespace
{
constexpr int kBoxesGap = 12;
}

frmSelectWeekdays::frmSelectWeekdays(QWidget* parent) : FormBase("frmSelectWeekdays", parent), boxes_(new WeekdayBoxes)
{
    SetTitle(this, {"Selection of weekdays", "Sélection des jours de la semaine"});
    boxes_->SetChecked({false, true, true, true, true, true, false});
    QLabel* lblInstructions =
        MakeLabel("lblInstructions", {"Days of the week to be included:", "Jours de la semaine à inclure:"});
    Page()->addWidget(MakeCard(Stack(kBoxesGap, {AsHead(lblInstructions), boxes_})));
    LayFoot({AddWayOut(), AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { cmdOK_Click(); })});
}

void frmSelectWeekdays::cmdOK_Click()
{
    if (!boxes_->SomeDayIsChecked())
        return;
    std::ranges::copy(boxes_->Checked(), weekdays_.begin());
    SessionState.SelectedWeekdays = weekdays_;
    accept();
}

void frmSelectWeekdays::reject()
{
    SessionState.SelectedWeekdays.fill(0);
    FormBase::reject();
}
