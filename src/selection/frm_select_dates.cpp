#include "selection/frm_select_dates.h"

#include "foundation/common_services.h"
#include "platform/clock.h"
#include "platform/controls/entry_lists.h"
#include "selection/frm_weekday_boxes.h"

#include <algorithm>

namespace
{
constexpr int kDateLength = 17;
constexpr int kDatesGap = 20;
constexpr int kPartsGap = 10;
constexpr int kGroupGap = 6;

constexpr Text kDaysOffWarning = {
    "Removing this check mark will cause Tarvell to create attendance records for the selected employee even on "
    "weekdays when she/he may not be scheduled to work!\r\n\r\nIs this really what you want to do?",
    "Le retrait de ce crochet signifie que vous voulez enregistrer des ABSENCES durant toute la période spécifiée et "
    "ce, même les jours de la semaine où l'employé(e) sélectionné(e) ne travaille pas!\r\n\r\nEst-ce vraiment ce que "
    "vous voulez faire?"};
constexpr Text kHolidaysWarning = {
    "Removing this check mark will cause Tarvell to create attendance records for the selected employee even on "
    "statutory holidays!\r\n\r\nIs this really what you want to do?",
    "Le retrait de ce crochet signifie que vous voulez enregistrer des ABSENCES durant toute la période spécifiée et "
    "ce, même durant les congés fériés!\r\n\r\nEst-ce vraiment ce que vous voulez faire?"};
} // namespace

frmSelectDates::frmSelectDates(const Period& period, const WorkSchedule& schedule, QWidget* parent)
    : FormBase("frmSelectDates", parent), period_(period), schedule_(schedule), daysFrom_(new DateRangeModel(this)),
      daysTo_(new DateRangeModel(this)), boxes_(new WeekdayBoxes)
{
    SetTitle(this, {"Consecutive attendance records creation", "Création d'enregistrements consécutifs"});
    AskBeforeLosing();
    auto* range = new QGridLayout;
    range->setHorizontalSpacing(kDatesGap);
    range->setColumnStretch(2, 1);
    cboFrom = AddDates(range, 0, "cboFrom", {"&From", "&Du"}, daysFrom_);
    cboTo = AddDates(range, 1, "cboTo", {"&To", "&Au"}, daysTo_);
    auto* content = Stack(kPartsGap);
    content->addLayout(range);
    content->addSpacing(kGroupGap);
    content->addWidget(AsHead(MakeLabel("lblWeekdays", {"Days of the week", "Jours de la semaine"})));
    content->addWidget(boxes_);
    content->addSpacing(kGroupGap);
    chkIgnoreDaysOff = AddExclusion(
        content, "chkIgnoreDaysOff",
        {"Ignore the days when the employee does not work", "Ignorer les jours où l'employé(e) ne travaille pas"},
        kDaysOffWarning);
    chkIgnoreHolidays = AddExclusion(content, "chkIgnoreHolidays",
                                     {"Ignore statutory holidays", "Ignorer les congés fériés"}, kHolidaysWarning);
    Page()->addWidget(MakeCard(content));
    lblCount = AsFigure(MakeLabel("lblCount"));
    LayFoot({lblCount},
            {AddWayOut({"&Cancel", "A&nnuler"}), AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { cmdOK_Click(); })});
    SessionState.AttendanceDates = dates_;
    LoadRecords();
}

QComboBox* frmSelectDates::AddDates(QGridLayout* range, int column, const char* name, const Text& label,
                                    DateRangeModel* days)
{
    auto* dates = Named<WalkedList>(name);
    MakeRoomFor(dates, kDateLength);
    dates->setModel(days);
    range->addLayout(Headed(label, dates), 0, column);
    return dates;
}

QCheckBox* frmSelectDates::AddExclusion(QVBoxLayout* content, const char* name, const Text& caption,
                                        const Text& warning)
{
    QCheckBox* box = MakeButton<QCheckBox>(name, caption);
    box->setChecked(true);
    connect(box, &QCheckBox::clicked, this, [this, box, warning] { Exclusion_Click(box, warning); });
    content->addWidget(box);
    return box;
}

void frmSelectDates::LoadRecords()
{
    holidays_ = LoadHolidays(datAbsence);
    daysFrom_->SetRange(period_.Start, period_.End);
    cboFrom->setCurrentIndex(std::max(cboFrom->findData(Today()), 0));
    boxes_->SetChecked(WorkingDays(schedule_));
    connect(cboFrom, &QComboBox::currentIndexChanged, this, &frmSelectDates::cboFrom_Click);
    connect(cboTo, &QComboBox::activated, this, [this] { endPicked_ = true; });
    connect(cboTo, &QComboBox::currentIndexChanged, this, &frmSelectDates::ShowCount);
    connect(boxes_, &WeekdayBoxes::Changed, this, &frmSelectDates::ShowCount);
    cboFrom_Click();
}

/// The end follows the start until somebody picks it; from then on it is kept where it does not precede the start.
void frmSelectDates::LoadDatesTo()
{
    const LoadingGuard loading(Loading);
    const int before = endPicked_ ? cboTo->currentData().toInt() : 0;
    daysTo_->SetRange(cboFrom->currentData().toInt(), period_.End);
    cboTo->setCurrentIndex(std::max(cboTo->findData(before), 0));
}

void frmSelectDates::cboFrom_Click()
{
    LoadDatesTo();
    ShowCount();
}

DateList frmSelectDates::Chosen() const
{
    return ChosenDates({cboFrom->currentData().toInt(), cboTo->currentData().toInt(), boxes_->Checked(),
                        chkIgnoreDaysOff->isChecked(), chkIgnoreHolidays->isChecked()},
                       schedule_, holidays_);
}

void frmSelectDates::ShowCount()
{
    if (Loading)
        return;
    const auto count = Chosen().size();
    const bool single = count == 1 || (count == 0 && !SessionState.English);
    lblCount->setText(QString::number(count) + (single ? " date" : " dates"));
}

void frmSelectDates::Exclusion_Click(QCheckBox* box, const Text& warning)
{
    if (!box->isChecked() && !Ask(T("WARNING:", "ATTENTION:"), T(warning), Face::Warning))
        box->setChecked(true);
    ShowCount();
}

void frmSelectDates::cmdOK_Click()
{
    if (!boxes_->SomeDayIsChecked())
        return;
    dates_ = Chosen();
    SessionState.AttendanceDates = dates_;
    accept();
}
