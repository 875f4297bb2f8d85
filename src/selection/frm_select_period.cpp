#include "selection/frm_select_period.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/controls/form_kit.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QGridLayout>
#include <QRadioButton>

namespace
{
constexpr int kPeriodDateWidth = 190;
constexpr int kMonthColumns = 4;
} // namespace

frmSelectPeriod::frmSelectPeriod(PeriodMode mode, QWidget* parent) : QDialog(parent), mode_(mode)
{
    BuildControls();
    BuildOptions();
    LayControls();
    ConnectControls();
    LoadCaptions();
    LoadRecords();
}

void frmSelectPeriod::BuildControls()
{
    setObjectName("frmSelectPeriod");
    lblInstructions = AsHead(Named<QLabel>("lblInstructions"));
    lblFrom = Named<QLabel>("lblFrom");
    lblTo = Named<QLabel>("lblTo");
    lblMonths = AsCaption(Named<QLabel>("lblMonths"));
    cboFrom = Named<QComboBox>("cboFrom");
    cboTo = Named<QComboBox>("cboTo");
    for (QComboBox* box : {cboFrom, cboTo})
        box->setMinimumWidth(kPeriodDateWidth);
    cmdOK = AsMainButton(Named<QPushButton>("cmdOK"));
    cmdCancel = Named<QPushButton>("cmdCancel");
}

void frmSelectPeriod::BuildOptions()
{
    options_ = new QButtonGroup(this);
    optEntireYear = Named<QRadioButton>("optEntireYear");
    options_->addButton(optEntireYear);
    for (int month = 0; month < 12; ++month) {
        optMonth[month] = Named<QRadioButton>(ArrayName("optMonth", month));
        options_->addButton(optMonth[month]);
    }
}

void frmSelectPeriod::LayControls()
{
    auto* dates = new QHBoxLayout;
    dates->setSpacing(20);
    dates->addLayout(Captioned(lblFrom, cboFrom));
    dates->addLayout(Captioned(lblTo, cboTo));
    dates->addStretch();
    auto* months = Raster();
    for (int month = 0; month < 12; ++month)
        months->addWidget(optMonth[month], month / kMonthColumns, month % kMonthColumns);
    auto* content = new QVBoxLayout;
    content->setSpacing(10);
    content->addWidget(lblInstructions);
    content->addLayout(dates);
    content->addSpacing(4);
    content->addWidget(optEntireYear);
    content->addWidget(lblMonths);
    content->addLayout(months);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    page->addLayout(ButtonRow({cmdCancel, cmdOK}));
    page->setSizeConstraint(QLayout::SetFixedSize);
    const bool single = mode_ == PeriodMode::SingleDate;
    optEntireYear->setVisible(mode_ == PeriodMode::Range);
    for (QWidget* control : std::initializer_list<QWidget*>{lblTo, cboTo, lblMonths})
        control->setVisible(!single);
    for (QRadioButton* option : optMonth)
        option->setVisible(!single);
}

void frmSelectPeriod::ConnectControls()
{
    connect(cboFrom, &QComboBox::currentIndexChanged, this, &frmSelectPeriod::cboFrom_Click);
    connect(cboTo, &QComboBox::currentIndexChanged, this, &frmSelectPeriod::cboTo_Click);
    connect(optEntireYear, &QRadioButton::clicked, this, [this] { Show(EntireYear()); });
    for (int month = 0; month < 12; ++month)
        connect(optMonth[month], &QRadioButton::clicked, this, [this, month] { Show(MonthOfYear(month)); });
    connect(cmdOK, &QPushButton::clicked, this, &frmSelectPeriod::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSelectPeriod::LoadCaptions()
{
    const bool single = mode_ == PeriodMode::SingleDate;
    const bool schedule = mode_ == PeriodMode::Schedule;
    setWindowTitle(single     ? T("Specifying an effective date", "Date d'entrée en vigueur")
                   : schedule ? T("Specifying a period for the schedule", "Période de l'horaire")
                              : T("Specifying a period for the report", "Période du rapport"));
    lblInstructions->setText(
        single     ? T("Specify the date when the change becomes effective",
                       "Spécifiez la date d'entrée en vigueur du changement")
        : schedule ? T("Specify the period covered by the schedule", "Spécifiez la période couverte par l'horaire")
                   : T("Specify the period covered by the report", "Spécifiez la période couverte par le rapport"));
    lblFrom->setText(single ? T("Effective &date", "&Date d'entrée en vigueur:") : T("&Start date", "&Date de début:"));
    lblTo->setText(T("&End date", "Date de &fin:"));
    lblMonths->setText(T("One month of the fiscal year", "Un mois de l'année fiscale"));
    optEntireYear->setText(T("ENTIRE FISCAL &YEAR", "Du début à la fin de &l'année fiscale"));
    for (int month = 0; month < 12; ++month)
        optMonth[month]->setText(MonthNames()[month]);
    cmdOK->setText(T("&OK", "&OK"));
    cmdCancel->setText(T("&Cancel", "&Annuler"));
}

void frmSelectPeriod::LoadRecords()
{
    const LoadingGuard loading(Loading);
    for (int date = EntireYear().Start; date <= EntireYear().End; ++date)
        for (QComboBox* box : {cboFrom, cboTo})
            box->addItem(FormatDate(date, "ddd dd-mmm-yyyy"), date);
    Show(FirstPeriod(mode_));
    for (int month = 0; month < 12; ++month) {
        optMonth[month]->setEnabled(MonthOfYear(month) != Period());
        optMonth[month]->setChecked(MonthOfYear(month) == Shown());
    }
    optEntireYear->setChecked(EntireYear() == Shown());
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
        return Tell(T("ERROR:", "ERREUR:"),
                    T("The period covered by a schedule cannot exceed 31 days!",
                      "La période spécifiée pour la préparation d'un horaire ne peut excéder 31 jours!"),
                    Face::Warning);
    chosen_ = Shown();
    accept();
}
