#include "setup/frm_step_fiscal_year.h"

#include "foundation/common_services.h"
#include "platform/clock.h"
#include "platform/controls/entry_lists.h"

#include <QLocale>

namespace
{
constexpr int kNameLimit = 35;
constexpr int kYearDigits = 4;
constexpr int kYearsListed = 5; // before and after the present one
constexpr int kFieldWidth = 320;
constexpr int kRowGap = 12;
constexpr int kGroupGap = 10;
constexpr int kDatesGap = 40;
constexpr Text kFiscalYearHelp = {
    "Before you can start using Tarvell, the very first thing you need to do is create a fiscal year; the period of "
    "time during the course of which you record and monitor your employees' attendance.",
    "Avant de commencer à utiliser Tarvell, la toute première chose que vous devez faire est de créer une année "
    "fiscale; la période de temps au cours de laquelle vous enregistrez et contrôlez les absences de vos employés."};
} // namespace

FiscalYearStep::FiscalYearStep(SetUpChoices& choices)
    : WizardStep("fraStep4", {"CREATING YOUR FIRST FISCAL YEAR", "CRÉATION DE VOTRE PREMIÈRE ANNÉE FISCALE"}, choices),
      txtFiscalYearName(MakeField("txtFiscalYearName", KeyFilter::FreeText, kNameLimit)),
      cboStartMonth(Named<WalkedList>("cboStartMonth")), cboStartYear(EntryCombo("cboStartYear", kYearDigits)),
      lblFiscalYearStart(AsFigure(MakeLabel("lblFiscalYearStart"))),
      lblFiscalYearEnd(AsFigure(MakeLabel("lblFiscalYearEnd")))
{
    txtFiscalYearName->setFixedWidth(kFieldWidth);
    Require(txtFiscalYearName);
    FollowLanguage(cboStartMonth, [this] { ShowMonths(); });
    LoadYears();
    LayControls();
    ConnectControls();
}

void FiscalYearStep::LoadYears()
{
    const int year = CurrentDateTime().date().year();
    cboStartYear->lineEdit()->setMaxLength(kYearDigits);
    FilterKeys(cboStartYear, KeyFilter::WholeNumber);
    for (int listed = year - kYearsListed; listed <= year + kYearsListed; ++listed)
        cboStartYear->addItem(QString::number(listed));
    cboStartYear->setCurrentText(QString::number(year));
    SetFiscalYear(choices_, year, 1);
    ShowDates();
}

void FiscalYearStep::LayControls()
{
    QGridLayout* content = FieldGrid(kRowGap);
    setLayout(content);
    const auto add = [content](int row, int column, const Text& label, QWidget* field, int span = 1) {
        content->addWidget(AsHead(LabelOf(field, label)), row, column);
        content->addWidget(field, row, column + 1, 1, span);
    };
    content->addWidget(WrappedLabel("lblFiscalYearHelp", kFiscalYearHelp), 0, 0, 1, 5);
    content->setRowMinimumHeight(1, kGroupGap);
    add(2, 0, {"Name of the &fiscal year", "Nom de l'année &fiscale"}, txtFiscalYearName, 3);
    add(3, 0, {"Starts on the &1st of", "Débute le &1er"}, cboStartMonth);
    add(3, 2, {"&Year", "A&nnée"}, cboStartYear);
    content->setRowMinimumHeight(4, kGroupGap);
    content->addLayout(Dates(), 5, 1, 1, 4);
    content->setRowStretch(6, 1);
    content->setColumnStretch(4, 1);
}

QLayout* FiscalYearStep::Dates()
{
    auto* dates = Beside(kDatesGap);
    dates->addLayout(Stack(0, {AsCaption(MakeLabel("lblStartCaption", {"Start", "Début"})), lblFiscalYearStart}));
    dates->addLayout(Stack(0, {AsCaption(MakeLabel("lblEndCaption", {"End", "Fin"})), lblFiscalYearEnd}));
    dates->addStretch();
    return dates;
}

void FiscalYearStep::ConnectControls()
{
    connect(txtFiscalYearName, &QLineEdit::textChanged, this, [this](const QString& name) {
        choices_.FiscalYearName = name.trimmed();
        emit Changed();
    });
    connect(cboStartMonth, &QComboBox::currentIndexChanged, this, &FiscalYearStep::cboStartMonth_Click);
    connect(cboStartYear, &QComboBox::currentIndexChanged, this, &FiscalYearStep::cboStartMonth_Click);
    connect(cboStartYear, &QComboBox::editTextChanged, this, [this](const QString& year) {
        if (year.size() == kYearDigits)
            cboStartMonth_Click();
    });
    connect(cboStartYear->lineEdit(), &QLineEdit::editingFinished, this, &FiscalYearStep::cboStartMonth_Click);
}

/// The months in the user's language; the one chosen stays.
void FiscalYearStep::ShowMonths()
{
    const LoadingGuard loading(Loading);
    const int month = std::max(cboStartMonth->currentIndex(), 0);
    const QLocale language(SessionState.English ? QLocale::English : QLocale::French);
    cboStartMonth->clear();
    for (int listed = 1; listed <= 12; ++listed)
        cboStartMonth->addItem(language.standaloneMonthName(listed));
    cboStartMonth->setCurrentIndex(month);
}

void FiscalYearStep::cboStartMonth_Click()
{
    if (Loading)
        return;
    const int before = choices_.FiscalYearStart;
    const bool valid = SetFiscalYear(choices_, cboStartYear->currentText().toInt(), cboStartMonth->currentIndex() + 1);
    ShowDates();
    emit Changed();
    if (valid || before == 0)
        return;
    const LoadingGuard loading(Loading);
    Tell(T("ERROR!", "ERREUR!"),
         T("The date you just specified for the beginning of the fiscal year is invalid!",
           "La date que vous venez de spécifier pour le début de l'année fiscale est invalide!"),
         Face::Warning);
}

void FiscalYearStep::ShowDates()
{
    lblFiscalYearStart->setText(FormatDate(choices_.FiscalYearStart, "dd-mmm-yyyy"));
    lblFiscalYearEnd->setText(FormatDate(choices_.FiscalYearEnd, "dd-mmm-yyyy"));
}
