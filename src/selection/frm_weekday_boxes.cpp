#include "selection/frm_weekday_boxes.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QCheckBox>

#include <algorithm>

WeekdayBoxes::WeekdayBoxes(QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(14);
    for (int day = 0; day < 7; ++day) {
        chkWeekday[day] = Named<QCheckBox>(ArrayName("chkWeekday", day), WeekdayName(day));
        row->addWidget(chkWeekday[day]);
        connect(chkWeekday[day], &QCheckBox::toggled, this, &WeekdayBoxes::Changed);
    }
    row->addStretch();
}

void WeekdayBoxes::SetChecked(const std::array<bool, 7>& weekdays)
{
    for (std::size_t day = 0; day < weekdays.size(); ++day)
        chkWeekday[day]->setChecked(weekdays[day]);
}

std::array<bool, 7> WeekdayBoxes::Checked() const
{
    std::array<bool, 7> weekdays{};
    for (std::size_t day = 0; day < weekdays.size(); ++day)
        weekdays[day] = chkWeekday[day]->isChecked();
    return weekdays;
}

bool WeekdayBoxes::SomeDayIsChecked() const
{
    if (std::any_of(chkWeekday.begin(), chkWeekday.end(), [](const QCheckBox* box) { return box->isChecked(); }))
        return true;
    Tell(T("ERROR!", "ERREUR!"),
         T("You must check at least one day of the week!", "Vous devez cocher au moins une journée de la semaine!"),
         Face::Warning);
    return false;
}
