#include "selection/frm_select_period.h"

#include "foundation/common_services.h"
#include "platform/controls/entry_lists.h"
#include "selection/date_range_model.h"

#include <QButtonGroup>

namespace
{
constexpr int kPeriodDateLength = 17;
constexpr int kPeriodDatesGap = 20;
constexpr int kPeriodPartsGap = 10;
constexpr int kOptionsGap = 4;
constexpr int kMonthColumns = 4;

struct ModeTexts
{
    Text Title;
    Text Instructions;
    Text From;
};

/// In the order of PeriodMode.
constexpr ModeTexts kModes[] = {
    {{"Specifying a period for the report", "Période du rapport"},
     {"Specify the period covered by the report", "Spécifiez la période couverte par le rapport"},
     {"&Start date", "&Date de début:"}},
    {{"Specifying an effective date", "Date d'entrée en vigueur"},
     {"Specify the date when the change becomes effective", "Spécifiez la date d'entrée en vigueur du changement"},
     {"Effective &date", "&Date d'entrée en vigueur:"}},
    {{"Specifying a period for the schedule", "Période de l'horaire"},
     {"Specify the period covered by the schedule", "Spécifiez la période couverte par l'horaire"},
     {"&Start date", "&Date de début:"}},
};

constexpr Text kMonths[] = {{"January", "Janvier"}, {"February", "Février"},  {"March", "Mars"},
                            {"April", "Avril"},     {"May", "Mai"},           {"June", "Juin"},
                            {"July", "Juillet"},    {"August", "Août"},       {"September", "Septembre"},
                            {"October", "Octobre"}, {"November", "Novembre"}, {"December", "Décembre"}};
} // namespace

frmSelectPeriod::frmSelectPeriod(PeriodMode mode, QWidget* parent)
    : FormBase("frmSelectPeriod", parent), mode_(mode), cboFrom(Named<WalkedList>("cboFrom")),
      cboTo(Named<WalkedList>("cboTo")), options_(new QButtonGroup(this))
{
    const ModeTexts& texts = kModes[static_cast<int>(mode)];
    SetTitle(this, texts.Title);
    AskBeforeLosing();
    auto* content = Stack(kPeriodPartsGap, {AsHead(MakeLabel("lblInstructions", texts.Instructions))});
    content->addLayout(Dates());
    content->addSpacing(kOptionsGap);
    content->addWidget(
        AddOption("optEntireYear", {"ENTIRE FISCAL &YEAR", "Du début à la fin de &l'année fiscale"}, EntireYear()));
    content->addWidget(
        AsCaption(MakeLabel("lblMonths", {"One month of the fiscal year", "Un mois de l'année fiscale"})));
    content->addLayout(Months());
    Page()->addWidget(MakeCard(content));
    LayFoot({AddWayOut(), AddMainButton("cmdOK", {"&OK", "&OK"}, [this] { cmdOK_Click(); })});
    HideUnasked();
}

QLayout* frmSelectPeriod::Dates()
{
    auto* days = new DateRangeModel(this);
    days->SetRange(EntireYear().Start, EntireYear().End);
    for (QComboBox* dates : {cboFrom, cboTo}) {
        MakeRoomFor(dates, kPeriodDateLength);
        dates->setModel(days);
    }
    Show(FirstPeriod(mode_));
    connect(cboFrom, &QComboBox::currentIndexChanged, this, &frmSelectPeriod::cboFrom_Click);
    connect(cboTo, &QComboBox::currentIndexChanged, this, &frmSelectPeriod::cboTo_Click);
    auto* row = Beside(kPeriodDatesGap);
    row->addLayout(Captioned(kModes[static_cast<int>(mode_)].From, cboFrom));
    row->addLayout(Captioned({"&End date", "Date de &fin:"}, cboTo));
    row->addStretch();
    return row;
}

QLayout* frmSelectPeriod::Months()
{
    auto* months = Raster();
    for (int month = 0; month < 12; ++month)
        months->addWidget(AddOption(ArrayName("optMonth", month), kMonths[month], MonthOfYear(month)),
                          month / kMonthColumns, month % kMonthColumns);
    return months;
}

/// The option of a period that the fiscal year does not have cannot be chosen.
QRadioButton* frmSelectPeriod::AddOption(const QString& name, const Text& caption, const Period& period)
{
    QRadioButton* option = MakeButton<QRadioButton>(name, caption);
    options_->addButton(option);
    EnableOrExplain(option, period != Period(),
                    {"The fiscal year does not have this month", "L'année fiscale ne comporte pas ce mois"});
    option->setChecked(period == Shown());
    connect(option, &QRadioButton::clicked, this, [this, period] { Show(period); });
    return option;
}

/// Only a report may cover the entire year; a single date has no end and no months.
void frmSelectPeriod::HideUnasked()
{
    if (mode_ == PeriodMode::Range)
        return;
    findChild<QWidget*>("optEntireYear")->hide();
    if (mode_ == PeriodMode::Schedule)
        return;
    for (const char* name : {"lblTo", "cboTo", "lblMonths"})
        findChild<QWidget*>(name)->hide();
    for (QAbstractButton* option : options_->buttons())
        option->hide();
}

Period frmSelectPeriod::Shown() const
{
    const int start = cboFrom->currentData().toInt();
    return {start, mode_ == PeriodMode::SingleDate ? start : cboTo->currentData().toInt()};
}

void frmSelectPeriod::Show(const Period& period)
{
    const LoadingGuard loading(Loading);
    cboFrom->setCurrentIndex(cboFrom->findData(period.Start));
    cboTo->setCurrentIndex(cboTo->findData(period.End));
}

/// A date picked by hand belongs to none of the options any more.
void frmSelectPeriod::ClearOptions()
{
    options_->setExclusive(false);
    for (QAbstractButton* option : options_->buttons())
        option->setChecked(false);
    options_->setExclusive(true);
}

/// The end cannot precede the start: whichever date is picked, the other follows.
void frmSelectPeriod::cboFrom_Click()
{
    if (Loading)
        return;
    ClearOptions();
    Show({Shown().Start, std::max(Shown().Start, Shown().End)});
}

void frmSelectPeriod::cboTo_Click()
{
    if (Loading)
        return;
    ClearOptions();
    Show({std::min(Shown().Start, Shown().End), Shown().End});
}

void frmSelectPeriod::cmdOK_Click()
{
    if (mode_ == PeriodMode::Schedule && !FitsSchedule(Shown()))
        return Refuse(T("The period covered by a schedule cannot exceed 31 days!",
                        "La période spécifiée pour la préparation d'un horaire ne peut excéder 31 jours!"));
    chosen_ = Shown();
    accept();
}
