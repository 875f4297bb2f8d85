#include "attendance/frm_attendance_pages.h"

#include "attendance/attendance_entry.h"
#include "foundation/texts.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"
#include "platform/controls/remark_delegate.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QListWidget>

#include <algorithm>

namespace
{
constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kHeadGap = 5;
constexpr int kListHeight = 150;
constexpr int kShortField = 110;
constexpr int kEntriesShown = 16;
constexpr int kOwnEntry = Qt::UserRole + 1; ///< marks a time that stands in the list only while it is shown

/// An entry of the list of employees: the name, and behind it the unit.
QString NameOf(const QModelIndex& entry)
{
    return entry.data().toString().section(" / ", 0, 0);
}

QString UnitOf(const QModelIndex& entry)
{
    return entry.data().toString().section(" / ", 1).trimmed();
}

QComboBox* TimeList(const QString& name)
{
    auto* times = Named<QComboBox>(name);
    times->setMaxVisibleItems(kEntriesShown);
    return times;
}

QLineEdit* DurationBox(const QString& name)
{
    auto* box = Named<QLineEdit>(name);
    box->setMaxLength(2);
    FilterKeys(box, KeyFilter::WholeNumber);
    return box;
}

/// A bold head close above the control that it names.
QVBoxLayout* Headed(QLabel* head, QWidget* control)
{
    auto* column = new QVBoxLayout;
    column->setSpacing(kHeadGap);
    column->addWidget(AsHead(head));
    column->addWidget(control, 1);
    head->setBuddy(control);
    return column;
}
} // namespace

AttendanceGeneralPage::AttendanceGeneralPage(QWidget* parent) : QWidget(parent)
{
    BuildControls();
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->setSpacing(kGap);
    page->addLayout(PeopleAndDates(), 1);
    page->addLayout(Headed(lblWhy, cboCategories));
    page->addLayout(DayParts());
    page->addLayout(TimesAndDurations());
}

void AttendanceGeneralPage::BuildControls()
{
    lblWho = Named<QLabel>("lblWho");
    lblWhen = Named<QLabel>("lblWhen");
    lblWhy = Named<QLabel>("lblWhy");
    lblEmployeeName = Named<QLabel>("lblEmployeeName");
    lstWho = Named<QListWidget>("lstWho");
    lstWho->setItemDelegate(new RemarkDelegate(NameOf, UnitOf, lstWho));
    lstWho->setUniformItemSizes(true); // one line is measured, not one for each employee
    txtWhen = Named<QPlainTextEdit>("txtWhen");
    txtWhen->setReadOnly(true);
    txtWhen->setTabChangesFocus(true);
    cboCategories = Named<QComboBox>("cboCategories");
    cboCategories->setMaxVisibleItems(kEntriesShown);
    chkWholeDay = Named<QCheckBox>("chkWholeDay");
    chkFirstHalf = Named<QCheckBox>("chkFirstHalf");
    chkSecondHalf = Named<QCheckBox>("chkSecondHalf");
    lblStartTime = Named<QLabel>("lblStartTime");
    lblEndTime = Named<QLabel>("lblEndTime");
    lblMultiplicator = Named<QLabel>("lblMultiplicator");
    lblDurationInHours = Named<QLabel>("lblDurationInHours");
    lblDurationInMinutes = Named<QLabel>("lblDurationInMinutes");
    lblTotalTime = Named<QLabel>("lblTotalTime");
    cboStartTime = TimeList("cboStartTime");
    cboEndTime = TimeList("cboEndTime");
    lstMultiplicator = TimeList("lstMultiplicator");
    txtDurationInHours = DurationBox("txtDurationInHours");
    txtDurationInMinutes = DurationBox("txtDurationInMinutes");
    txtTotalTime = AsFigure(Named<QLabel>("txtTotalTime"));
}

QGridLayout* AttendanceGeneralPage::PeopleAndDates()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->addLayout(Headed(lblWho, lstWho), 0, 0);
    grid->addLayout(Headed(lblWhen, txtWhen), 0, 1);
    grid->addWidget(AsCaption(lblEmployeeName), 0, 0, Qt::AlignTop | Qt::AlignRight);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    lstWho->setMinimumHeight(kListHeight);
    txtWhen->setMinimumHeight(kListHeight);
    return grid;
}

QHBoxLayout* AttendanceGeneralPage::DayParts()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2 * kGap);
    row->addWidget(chkWholeDay);
    row->addWidget(chkFirstHalf);
    row->addWidget(chkSecondHalf);
    row->addStretch();
    return row;
}

QGridLayout* AttendanceGeneralPage::TimesAndDurations()
{
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    grid->addLayout(Captioned(lblStartTime, cboStartTime), 0, 0);
    grid->addLayout(Captioned(lblEndTime, cboEndTime), 0, 1);
    grid->addLayout(Captioned(lblMultiplicator, lstMultiplicator), 0, 2);
    grid->addLayout(Captioned(lblDurationInHours, txtDurationInHours), 1, 0);
    grid->addLayout(Captioned(lblDurationInMinutes, txtDurationInMinutes), 1, 1);
    grid->addLayout(Captioned(lblTotalTime, txtTotalTime), 1, 2, Qt::AlignTop);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    return grid;
}

void AttendanceGeneralPage::LoadCaptions()
{
    lblWho->setText(T("Who?", "Qui?"));
    lblWhen->setText(T("When?", "Quand?"));
    lblWhy->setText(T("Why?", "Pourquoi?"));
    chkWholeDay->setText(T("&Whole day", "&Toute la journée"));
    chkFirstHalf->setText(T("&First half of the day", "&Première moitié de la journée"));
    chkSecondHalf->setText(T("&Second half of the day", "S&econde moitié de la journée"));
    lblStartTime->setText(T("Start time:", "Heure de début:"));
    lblEndTime->setText(T("End time:", "Heure de fin:"));
    lblMultiplicator->setText(T("Multiplicator", "Multiplicateur"));
    lblDurationInHours->setText(T("Attendance record duration (hours)", "Durée de l'enregistrement (heures)"));
    lblDurationInMinutes->setText(T("Attendance record duration (minutes)", "Durée de l'enregistrement (minutes)"));
    lblTotalTime->setText(T("Total duration of the attendance record:", "Durée totale des enregistrements:"));
    txtTotalTime->setAccessibleName(lblTotalTime->text());
}

AttendanceAdditionalPage::AttendanceAdditionalPage(QWidget* parent) : QWidget(parent)
{
    lblHourlyRate = Named<QLabel>("lblHourlyRate");
    lblComment = Named<QLabel>("lblComment");
    txtHourlyRate = Named<QLineEdit>("txtHourlyRate");
    txtHourlyRate->setFixedWidth(kShortField);
    FilterKeys(txtHourlyRate, KeyFilter::DecimalNumber);
    chkJustified = Named<QCheckBox>("chkJustified");
    txtComment = Named<QPlainTextEdit>("txtComment");
    txtComment->setTabChangesFocus(true);
    FilterKeys(txtComment, KeyFilter::Comment);

    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    page->setSpacing(kGap);
    page->addLayout(Captioned(lblHourlyRate, txtHourlyRate));
    page->addWidget(chkJustified);
    page->addLayout(Headed(lblComment, txtComment), 1);
}

void AttendanceAdditionalPage::LoadCaptions()
{
    lblHourlyRate->setText(T("Hourly rate:", "Taux horaire:"));
    chkJustified->setText(T("This absence is &justified", "Cette absence est &justifiée"));
    lblComment->setText(T("Comment:", "Commentaire:"));
}

void ShowClockTime(QComboBox* times, const QString& text)
{
    if (const int own = times->findData(true, kOwnEntry); own >= 0)
        times->removeItem(own);
    int index = text.isEmpty() ? -1 : times->findText(text);
    if (index < 0 && !text.isEmpty()) {
        index = 0;
        while (index < times->count() && times->itemText(index) < text)
            ++index;
        times->insertItem(index, text);
        times->setItemData(index, true, kOwnEntry);
    }
    times->setCurrentIndex(index);
}
