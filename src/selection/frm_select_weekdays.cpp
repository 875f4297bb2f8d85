#include "selection/frm_select_weekdays.h"

#include "foundation/session_state.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"
#include "selection/frm_weekday_boxes.h"

#include <QLabel>
#include <QPushButton>

#include <algorithm>

frmSelectWeekdays::frmSelectWeekdays(QWidget* parent) : QDialog(parent), boxes_(new WeekdayBoxes)
{
    setObjectName("frmSelectWeekdays");
    setWindowTitle(T("Selection of weekdays", "Sélection des jours de la semaine"));
    boxes_->SetChecked({false, true, true, true, true, true, false});
    auto* lblInstructions = AsHead(
        Named<QLabel>("lblInstructions", T("Days of the week to be included:", "Jours de la semaine à inclure:")));
    auto* cmdOK = AsMainButton(Named<QPushButton>("cmdOK", T("&OK", "&OK")));
    auto* cmdCancel = Named<QPushButton>("cmdCancel", T("&Cancel", "&Annuler"));
    connect(cmdOK, &QPushButton::clicked, this, &frmSelectWeekdays::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmSelectWeekdays::reject);

    auto* content = new QVBoxLayout;
    content->setSpacing(12);
    content->addWidget(lblInstructions);
    content->addWidget(boxes_);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdCancel, cmdOK}));
}

void frmSelectWeekdays::cmdOK_Click()
{
    if (!boxes_->SomeDayIsChecked())
        return;
    const std::array<bool, 7> checked = boxes_->Checked();
    std::copy(checked.begin(), checked.end(), SessionState.SelectedWeekdays.begin());
    accept();
}

void frmSelectWeekdays::reject()
{
    SessionState.SelectedWeekdays.fill(0);
    QDialog::reject();
}
