#include "attendance/frm_attendance_pages.h"

#include "foundation/frm_captions.h"
#include "platform/controls/elided_label.h"
#include "platform/controls/entry_lists.h"
#include "platform/controls/remark_delegate.h"

#include <QFontDatabase>

namespace
{
constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kListHeight = 150;
constexpr int kShortField = 110;
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

/// A head above a control, and a small grey text that ends at the control's right edge.
QVBoxLayout* Remarked(const Text& head, QLabel* remark, QWidget* control)
{
    constexpr int kGapBelowHead = 5;
    auto* line = Row({AsHead(LabelOf(control, head))});
    line->addWidget(AsCaption(remark), 1, Qt::AlignRight);
    QVBoxLayout* column = Stack(kGapBelowHead, {control});
    column->insertLayout(0, line);
    return column;
}
} // namespace

AttendanceGeneralPage::AttendanceGeneralPage()
{
    chkWholeDay = MakeButton<QCheckBox>("chkWholeDay", {"&Whole day", "&Toute la journée"});
    chkFirstHalf = MakeButton<QCheckBox>("chkFirstHalf", {"&First half of the day", "&Première moitié de la journée"});
    chkSecondHalf =
        MakeButton<QCheckBox>("chkSecondHalf", {"&Second half of the day", "S&econde moitié de la journée"});
    auto* parts = Row({chkWholeDay, chkFirstHalf, chkSecondHalf});
    parts->setSpacing(2 * kGap);
    auto* page = TabLayout(this);
    page->addLayout(PeopleAndDates(), 1);
    page->addLayout(Category());
    page->addLayout(parts);
    page->addLayout(TimesAndDurations());
}

QGridLayout* AttendanceGeneralPage::PeopleAndDates()
{
    lstWho = Named<QListWidget>("lstWho");
    lstWho->setItemDelegate(new RemarkDelegate(NameOf, UnitOf, lstWho));
    lstWho->setUniformItemSizes(true); // one line is measured, not one for each employee
    lstWho->setMinimumHeight(kListHeight);
    Require(lstWho);
    txtWhen = Named<QPlainTextEdit>("txtWhen");
    txtWhen->setReadOnly(true);
    txtWhen->setTabChangesFocus(true);
    txtWhen->setMinimumHeight(kListHeight);
    txtWhen->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont)); // the dates stand one below the other
    lblEmployeeName = Named<ElidedLabel>("lblEmployeeName");
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->addLayout(Remarked({"Who?", "Qui?"}, lblEmployeeName, lstWho), 0, 0);
    grid->addLayout(Headed({"When?", "Quand?"}, txtWhen), 0, 1);
    grid->setColumnStretch(0, 3);
    grid->setColumnStretch(1, 2);
    return grid;
}

QVBoxLayout* AttendanceGeneralPage::Category()
{
    cboCategories = Named<WalkedList>("cboCategories");
    Require(cboCategories);
    lblBalance = MakeLabel("lblBalance");
    return Remarked({"Why?", "Pourquoi?"}, lblBalance, cboCategories);
}

QGridLayout* AttendanceGeneralPage::TimesAndDurations()
{
    constexpr int kDigits = 2;
    cboStartTime = Named<WalkedList>("cboStartTime");
    cboEndTime = Named<WalkedList>("cboEndTime");
    for (QComboBox* times : {cboStartTime, cboEndTime})
        FindTimesByDigits(times);
    lstMultiplicator = Named<WalkedList>("lstMultiplicator");
    txtDurationInHours = MakeField("txtDurationInHours", KeyFilter::WholeNumber, kDigits);
    txtDurationInMinutes = MakeField("txtDurationInMinutes", KeyFilter::WholeNumber, kDigits);
    Require(txtDurationInHours, txtDurationInMinutes);
    txtTotalTime = AsFigure(MakeLabel("txtTotalTime"));
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(kMargin);
    grid->setVerticalSpacing(kGap);
    const auto add = [grid](int row, int column, const Text& caption, QWidget* control, Qt::Alignment alignment = {}) {
        grid->addLayout(Captioned(caption, control), row, column, alignment);
        grid->setColumnStretch(column, 1);
    };
    add(0, 0, {"Start time:", "Heure de début:"}, cboStartTime);
    add(0, 1, {"End time:", "Heure de fin:"}, cboEndTime);
    add(0, 2, {"Multiplicator", "Multiplicateur"}, lstMultiplicator);
    add(1, 0, {"Attendance record duration (hours)", "Durée de l'enregistrement (heures)"}, txtDurationInHours);
    add(1, 1, {"Attendance record duration (minutes)", "Durée de l'enregistrement (minutes)"}, txtDurationInMinutes);
    add(1, 2, {"Total duration of the attendance record:", "Durée totale des enregistrements:"}, txtTotalTime,
        Qt::AlignTop);
    return grid;
}

AttendanceAdditionalPage::AttendanceAdditionalPage()
{
    txtHourlyRate = MakeField("txtHourlyRate", KeyFilter::DecimalNumber);
    txtHourlyRate->setFixedWidth(kShortField);
    chkJustified =
        MakeButton<QCheckBox>("chkJustified", {"This absence is &justified", "Cette absence est &justifiée"});
    txtComment = Named<QPlainTextEdit>("txtComment");
    txtComment->setTabChangesFocus(true);
    FilterKeys(txtComment, KeyFilter::Comment);
    auto* page = TabLayout(this);
    page->addLayout(Captioned({"Hourly rate:", "Taux horaire:"}, txtHourlyRate));
    page->addWidget(chkJustified);
    page->addLayout(Headed({"Comment:", "Commentaire:"}, txtComment), 1);
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
