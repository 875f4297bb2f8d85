#include "selection/frm_select_dates.h"

#include "foundation/common_services.h"
#include "foundation/texts.h"
#include "platform/clock.h"
#include "platform/controls/form_kit.h"
#include "selection/frm_weekday_boxes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <algorithm>

namespace
{
constexpr int kDateWidth = 200;

void FillWithDates(QComboBox* box, int from, int to)
{
    box->clear();
    for (int date = from; date <= to; ++date)
        box->addItem(FormatDate(date, "ddd dd-mmm-yyyy"), date);
}
} // namespace

frmSelectDates::frmSelectDates(QWidget* parent) : QDialog(parent)
{
    SessionState.AttendanceDates.clear();
    BuildControls();
    ConnectControls();
    LoadCaptions();
    LoadRecords();
}

void frmSelectDates::BuildControls()
{
    setObjectName("frmSelectDates");
    lblFrom = AsHead(Named<QLabel>("lblFrom"));
    lblTo = AsHead(Named<QLabel>("lblTo"));
    lblWeekdays = AsHead(Named<QLabel>("lblWeekdays"));
    lblCount = AsFigure(Named<QLabel>("lblCount"));
    cboFrom = Named<QComboBox>("cboFrom");
    cboTo = Named<QComboBox>("cboTo");
    boxes_ = new WeekdayBoxes;
    chkIgnoreDaysOff = Named<QCheckBox>("chkIgnoreDaysOff");
    chkIgnoreHolidays = Named<QCheckBox>("chkIgnoreHolidays");
    cmdOK = AsMainButton(Named<QPushButton>("cmdOK"));
    cmdCancel = Named<QPushButton>("cmdCancel");
    lblFrom->setBuddy(cboFrom);
    lblTo->setBuddy(cboTo);

    auto* range = new QGridLayout;
    range->setHorizontalSpacing(20);
    range->addWidget(lblFrom, 0, 0);
    range->addWidget(lblTo, 0, 1);
    range->addWidget(cboFrom, 1, 0);
    range->addWidget(cboTo, 1, 1);
    range->setColumnStretch(2, 1);
    for (QComboBox* box : {cboFrom, cboTo})
        box->setMinimumWidth(kDateWidth);
    auto* content = new QVBoxLayout;
    content->setSpacing(10);
    content->addLayout(range);
    content->addSpacing(6);
    content->addWidget(lblWeekdays);
    content->addWidget(boxes_);
    content->addSpacing(6);
    content->addWidget(chkIgnoreDaysOff);
    content->addWidget(chkIgnoreHolidays);
    QVBoxLayout* page = PageLayout(this);
    page->addWidget(MakeCard(content));
    auto* foot = ButtonRow({cmdCancel, cmdOK});
    foot->insertWidget(0, lblCount);
    page->addLayout(foot);
}

void frmSelectDates::ConnectControls()
{
    connect(cboFrom, &QComboBox::currentIndexChanged, this, &frmSelectDates::cboFrom_Click);
    connect(cboTo, &QComboBox::currentIndexChanged, this, &frmSelectDates::ShowCount);
    connect(boxes_, &WeekdayBoxes::Changed, this, &frmSelectDates::ShowCount);
    connect(chkIgnoreDaysOff, &QCheckBox::clicked, this, &frmSelectDates::chkIgnoreDaysOff_Click);
    connect(chkIgnoreHolidays, &QCheckBox::clicked, this, &frmSelectDates::chkIgnoreHolidays_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmSelectDates::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSelectDates::LoadCaptions()
{
    setWindowTitle(T("Consecutive attendance records creation", "Création d'enregistrements consécutifs"));
    lblFrom->setText(T("&From", "&Du"));
    lblTo->setText(T("&To", "&Au"));
    lblWeekdays->setText(T("Days of the week", "Jours de la semaine"));
    chkIgnoreDaysOff->setText(
        T("Ignore the days when the employee does not work", "Ignorer les jours où l'employé(e) ne travaille pas"));
    chkIgnoreHolidays->setText(T("Ignore statutory holidays", "Ignorer les congés fériés"));
    cmdOK->setText(T("&OK", "&OK"));
    cmdCancel->setText(T("&Cancel", "A&nnuler"));
}

void frmSelectDates::LoadRecords()
{
    holidays_ = LoadHolidays(datAbsence);
    {
        const LoadingGuard loading(Loading);
        FillWithDates(cboFrom, SessionState.CommencingDate, SessionState.EndingDate);
        cboFrom->setCurrentIndex(std::max(cboFrom->findData(Today()), 0));
        boxes_->SetChecked(WorkingDays(SessionState));
        chkIgnoreDaysOff->setChecked(true);
        chkIgnoreHolidays->setChecked(true);
    }
    cboFrom_Click();
}

/// The end cannot precede the start; an end that still fits is kept.
void frmSelectDates::LoadDatesTo()
{
    const LoadingGuard loading(Loading);
    const int before = cboTo->currentData().toInt();
    FillWithDates(cboTo, cboFrom->currentData().toInt(), SessionState.EndingDate);
    cboTo->setCurrentIndex(std::max(cboTo->findData(before), 0));
}

void frmSelectDates::cboFrom_Click()
{
    if (Loading)
        return;
    LoadDatesTo();
    ShowCount();
}

ConsecutiveDates frmSelectDates::Choice() const
{
    return {cboFrom->currentData().toInt(), cboTo->currentData().toInt(), boxes_->Checked(),
            chkIgnoreDaysOff->isChecked(), chkIgnoreHolidays->isChecked()};
}

void frmSelectDates::ShowCount()
{
    if (Loading)
        return;
    const auto count = ChosenDates(Choice(), SessionState, holidays_).size();
    lblCount->setText(QString::number(count) + (count == 1 ? " date" : " dates"));
}

void frmSelectDates::chkIgnoreDaysOff_Click()
{
    ConfirmClearing(
        chkIgnoreDaysOff,
        T("Removing this check mark will cause Tarvell to create attendance records for the selected employee "
          "even on weekdays when she/he may not be scheduled to work!\r\n\r\nIs this really what you want to "
          "do?",
          "Le retrait de ce crochet signifie que vous voulez enregistrer des ABSENCES durant toute la période "
          "spécifiée et ce, même les jours de la semaine où l'employé(e) sélectionné(e) ne travaille "
          "pas!\r\n\r\nEst-ce vraiment ce que vous voulez faire?"));
}

void frmSelectDates::chkIgnoreHolidays_Click()
{
    ConfirmClearing(
        chkIgnoreHolidays,
        T("Removing this check mark will cause Tarvell to create attendance records for the selected employee "
          "even on statutory holidays!\r\n\r\nIs this really what you want to do?",
          "Le retrait de ce crochet signifie que vous voulez enregistrer des ABSENCES durant toute la période "
          "spécifiée et ce, même durant les congés fériés!\r\n\r\nEst-ce vraiment ce que vous voulez faire?"));
}

void frmSelectDates::ConfirmClearing(QCheckBox* box, const QString& question)
{
    if (!box->isChecked() && !Ask(T("WARNING:", "ATTENTION:"), question, Face::Warning))
        box->setChecked(true);
    ShowCount();
}

void frmSelectDates::cmdOK_Click()
{
    if (!boxes_->SomeDayIsChecked())
        return;
    SessionState.AttendanceDates = ChosenDates(Choice(), SessionState, holidays_);
    accept();
}
