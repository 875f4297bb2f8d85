#include "setup/frm_step_fiscal_year.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QLocale>

namespace
{
constexpr int kNameLimit = 35;
constexpr int kYearDigits = 4;
constexpr int kYearsListed = 5; // before and after the present one
constexpr int kFieldWidth = 320;
} // namespace

FiscalYearStep::FiscalYearStep(SetUpChoices& choices) : WizardStep("fraStep4", choices)
{
    BuildControls();
    ConnectControls();
    const int year = CurrentDateTime().date().year();
    const LoadingGuard loading(Loading);
    for (int listed = year - kYearsListed; listed <= year + kYearsListed; ++listed)
        cboStartYear->addItem(QString::number(listed));
    cboStartYear->setCurrentText(QString::number(year));
    SetFiscalYear(choices_, year, 1);
}

void FiscalYearStep::BuildControls()
{
    lblFiscalYearHelp = WrappedLabel("lblFiscalYearHelp");
    lblFiscalYearName = AsHead(Named<QLabel>("lblFiscalYearName"));
    lblStartMonth = AsHead(Named<QLabel>("lblStartMonth"));
    lblStartYear = AsHead(Named<QLabel>("lblStartYear"));
    lblStartCaption = AsCaption(Named<QLabel>("lblStartCaption"));
    lblEndCaption = AsCaption(Named<QLabel>("lblEndCaption"));
    lblFiscalYearStart = AsFigure(Named<QLabel>("lblFiscalYearStart"));
    lblFiscalYearEnd = AsFigure(Named<QLabel>("lblFiscalYearEnd"));
    txtFiscalYearName = Named<QLineEdit>("txtFiscalYearName");
    txtFiscalYearName->setMaxLength(kNameLimit);
    txtFiscalYearName->setFixedWidth(kFieldWidth);
    cboStartMonth = Named<QComboBox>("cboStartMonth");
    cboStartYear = Named<QComboBox>("cboStartYear");
    cboStartYear->setEditable(true);
    cboStartYear->setInsertPolicy(QComboBox::NoInsert);
    cboStartYear->lineEdit()->setMaxLength(kYearDigits);
    lblFiscalYearName->setBuddy(txtFiscalYearName);
    lblStartMonth->setBuddy(cboStartMonth);
    lblStartYear->setBuddy(cboStartYear);

    auto* content = new QGridLayout(this);
    content->setHorizontalSpacing(16);
    content->setVerticalSpacing(12);
    content->addWidget(lblFiscalYearHelp, 0, 0, 1, 5);
    content->setRowMinimumHeight(1, 10);
    content->addWidget(lblFiscalYearName, 2, 0);
    content->addWidget(txtFiscalYearName, 2, 1, 1, 3);
    content->addWidget(lblStartMonth, 3, 0);
    content->addWidget(cboStartMonth, 3, 1);
    content->addWidget(lblStartYear, 3, 2);
    content->addWidget(cboStartYear, 3, 3);
    content->setRowMinimumHeight(4, 10);
    auto* dates = new QGridLayout;
    dates->setHorizontalSpacing(40);
    dates->addWidget(lblStartCaption, 0, 0);
    dates->addWidget(lblEndCaption, 0, 1);
    dates->addWidget(lblFiscalYearStart, 1, 0);
    dates->addWidget(lblFiscalYearEnd, 1, 1);
    dates->setColumnStretch(2, 1);
    content->addLayout(dates, 5, 1, 1, 4);
    content->setRowStretch(6, 1);
    content->setColumnStretch(4, 1);
}

void FiscalYearStep::ConnectControls()
{
    FilterKeys(txtFiscalYearName, KeyFilter::FreeText);
    FilterKeys(cboStartYear, KeyFilter::WholeNumber);
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

void FiscalYearStep::LoadCaptions()
{
    lblFiscalYearHelp->setText(
        T("Before you can start using Tarvell, the very first thing you need to do is create a fiscal year; the period "
          "of time during the course of which you record and monitor your employees' attendance.",
          "Avant de commencer à utiliser Tarvell, la toute première chose que vous devez faire est de créer une année "
          "fiscale; la période de temps au cours de laquelle vous enregistrez et contrôlez les absences de vos "
          "employés."));
    lblFiscalYearName->setText(T("Name of the &fiscal year", "Nom de l'année &fiscale"));
    lblStartMonth->setText(T("Starts on the &1st of", "Débute le &1er"));
    lblStartYear->setText(T("&Year", "A&nnée"));
    lblStartCaption->setText(T("Start", "Début"));
    lblEndCaption->setText(T("End", "Fin"));
    const LoadingGuard loading(Loading);
    const int month = std::max(cboStartMonth->currentIndex(), 0);
    cboStartMonth->clear();
    const QLocale language(SessionState.English ? QLocale::English : QLocale::French);
    for (int listed = 1; listed <= 12; ++listed)
        cboStartMonth->addItem(language.standaloneMonthName(listed));
    cboStartMonth->setCurrentIndex(month);
    ShowDates();
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
