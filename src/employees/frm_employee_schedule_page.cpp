#include "employees/frm_employee_schedule_page.h"

#include "employees/frm_employee_kit.h"
#include "foundation/texts.h"
#include "foundation/values.h"
#include "platform/controls/entry_filters.h"
#include "platform/controls/form_kit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QStringListModel>

namespace
{
constexpr int kDays = 7;
constexpr int kTotalWidth = 70;
constexpr int kGroupGap = 28; ///< between the halves of the day and the total
constexpr int kRowGap = 10;

/// Columns of the week's raster: the weekday, two halves with a gap before each, and the total.
constexpr int kTimeColumns[] = {2, 3, 5, 6};
constexpr int kHoursColumn = 8;
constexpr int kMinutesColumn = 9;

QLineEdit* TotalField(const QString& name, int day)
{
    auto* box = Named<QLineEdit>(ArrayName(name, day));
    box->setMaxLength(2);
    box->setFixedWidth(kTotalWidth);
    FilterKeys(box, KeyFilter::WholeNumber);
    return box;
}
} // namespace

EmployeeSchedulePage::EmployeeSchedulePage(EmployeeRecord& record, bool& loading)
    : record_(record), Loading(loading), clockTimes_(new QStringListModel(this))
{
    BuildControls();
    for (int day = 0; day < kDays; ++day)
        ConnectDay(day);
    connect(chkIrregularHours, &QCheckBox::clicked, this, &EmployeeSchedulePage::chkIrregularHours_Click);

    auto* content = new QVBoxLayout;
    content->setSpacing(kTabMargin);
    content->addWidget(lblExplanation);
    content->addLayout(Week());
    content->addWidget(chkIrregularHours);
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(kTabMargin, kTabMargin, kTabMargin, kTabMargin);
    page->addWidget(MakeCard(content));
    page->addStretch();
}

void EmployeeSchedulePage::BuildControls()
{
    lblExplanation = Named<QLabel>("lblScheduleExplanation");
    lblExplanation->setWordWrap(true);
    lblFirstHalf = AsHead(Named<QLabel>("lblFirstHalf"));
    lblSecondHalf = AsHead(Named<QLabel>("lblSecondHalf"));
    lblTotal = AsHead(Named<QLabel>("lblTotal"));
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_[i] = AsCaption(Named<QLabel>(ArrayName("lblScheduleColumn", static_cast<int>(i))));
    for (int day = 0; day < kDays; ++day) {
        lblWeekday[day] = Named<QLabel>(ArrayName("lblWeekday", day));
        for (std::size_t time = 0; time < kDayTimes.size(); ++time) {
            cboTimes[time][day] = EntryCombo(ArrayName(kDayTimes[time].Control, day), 6);
            cboTimes[time][day]->setModel(clockTimes_);
        }
        txtTotalHours[day] = TotalField("txtTotalHours", day);
        txtTotalMinutes[day] = TotalField("txtTotalMinutes", day);
    }
    chkIrregularHours = Named<QCheckBox>("chkIrregularHours");
}

QGridLayout* EmployeeSchedulePage::Week()
{
    auto* week = Raster();
    week->setVerticalSpacing(kRowGap);
    week->addWidget(lblFirstHalf, 0, kTimeColumns[0], 1, 2);
    week->addWidget(lblSecondHalf, 0, kTimeColumns[2], 1, 2);
    week->addWidget(lblTotal, 0, kHoursColumn, 1, 2);
    for (std::size_t time = 0; time < kDayTimes.size(); ++time)
        week->addWidget(columns_[time], 1, kTimeColumns[time]);
    week->addWidget(columns_[4], 1, kHoursColumn);
    week->addWidget(columns_[5], 1, kMinutesColumn);
    for (int day = 0; day < kDays; ++day) {
        week->addWidget(lblWeekday[day], day + 2, 0);
        for (std::size_t time = 0; time < kDayTimes.size(); ++time)
            week->addWidget(cboTimes[time][day], day + 2, kTimeColumns[time]);
        week->addWidget(txtTotalHours[day], day + 2, kHoursColumn);
        week->addWidget(txtTotalMinutes[day], day + 2, kMinutesColumn);
    }
    for (const int gap : {1, 4, 7})
        week->setColumnMinimumWidth(gap, kGroupGap);
    for (const int time : kTimeColumns)
        week->setColumnStretch(time, 1);
    return week;
}

void EmployeeSchedulePage::ConnectDay(int day)
{
    for (const ClockTimeInfo& time : kDayTimes)
        ConnectTime(time, day);
    for (QLineEdit* box : {txtTotalHours[day], txtTotalMinutes[day]}) {
        connect(box, &QLineEdit::textChanged, this, [this, day] { Total_Change(day); });
        // Enter finishes the editing too, but stays in the box and presses the main button: see LeaveFocusedTotalFor.
        connect(box, &QLineEdit::editingFinished, this, [this, box, day] {
            if (!box->hasFocus())
                Total_LostFocus(day);
        });
    }
}

void EmployeeSchedulePage::ConnectTime(const ClockTimeInfo& time, int day)
{
    QComboBox* list = TimeList(time.Time, day);
    connect(list, &QComboBox::activated, this, [this, time = time.Time, day] { Time_Click(time, day); });
    connect(list->lineEdit(), &QLineEdit::textEdited, this, [this, time = time.Time, day] { Time_Change(time, day); });
    new FocusWatch(
        list, [this, time = time.Time, day] { Time_GotFocus(time, day); },
        [this, time = time.Time, day] { Time_LostFocus(time, day); });
}

QComboBox* EmployeeSchedulePage::TimeList(ClockTime time, int day) const
{
    return cboTimes[static_cast<std::size_t>(time)][static_cast<std::size_t>(day)];
}

void EmployeeSchedulePage::LoadCaptions()
{
    lblExplanation->setText(T(
        "If the employee works according to a regular schedule, you should take the time to detail that schedule here. "
        "Providing this information greatly accelerates the process of entering attendance records. In most cases, all "
        "you will ever need to do is check a box to specify the duration of an absence.",
        "Si l'employé(e) travaille selon un horaire régulier, vous devriez prendre le temps de détailler cet horaire. "
        "En fournissant cette information dès le départ, vous réduirez considérablement le temps nécessaire à "
        "l'enregistrement des absences. Dans la plupart des cas, il vous suffira de cocher une case afin de spécifier "
        "la durée d'une absence."));
    lblFirstHalf->setText(T("First half of the day", "Première moitié de la journée"));
    lblSecondHalf->setText(T("Second half of the day", "Seconde moitié de la journée"));
    lblTotal->setText(T("Total", "Total"));
    const QString captions[] = {
        T("Start time", "Heure de début"), T("End time", "Heure de fin"), T("Start time", "Heure de début"),
        T("End time", "Heure de fin"),     T("Hours", "Heures"),          T("Minutes", "Minutes")};
    for (std::size_t i = 0; i < columns_.size(); ++i)
        columns_[i]->setText(captions[i]);
    const QString total =
        T("Total duration of the employee's working day. Values specified here can be entered by you or be calculated "
          "automatically if you specify the employee's start time and end time using the above menus",
          "Durée totale de la journée de travail de l'employé(e). Vous pouvez inscrire vous-même ces valeurs ou les "
          "laisser se calculer en spécifiant l'heure de début et l'heure de fin à l'aide des menus ci-dessus");
    for (int day = 0; day < kDays; ++day) {
        lblWeekday[day]->setText(WeekdayName(day));
        for (std::size_t time = 0; time < kDayTimes.size(); ++time)
            cboTimes[time][day]->setAccessibleName(WeekdayName(day) + ", " + captions[time]);
        txtTotalHours[day]->setToolTip(total);
        txtTotalMinutes[day]->setToolTip(total);
        txtTotalHours[day]->setAccessibleName(WeekdayName(day) + ", " + captions[4]);
        txtTotalMinutes[day]->setAccessibleName(WeekdayName(day) + ", " + captions[5]);
    }
    chkIrregularHours->setText(
        T("This employee works &irregular hours", "Cet(te) employé(e) travaille selon un horaire &irrégulier"));
}

void EmployeeSchedulePage::LoadComboBoxes()
{
    clockTimes_->setStringList(ClockTexts());
}

void EmployeeSchedulePage::Show()
{
    for (int day = 0; day < kDays; ++day)
        ShowDay(day);
    chkIrregularHours->setChecked(record_.IrregularHours);
}

void EmployeeSchedulePage::ShowDay(int day)
{
    const LoadingGuard loading(Loading);
    for (const ClockTimeInfo& time : kDayTimes)
        ShowText(TimeList(time.Time, day), ClockText(record_, time.Time, day));
    ShowText(txtTotalHours[day], record_.TotalHours[day]);
    ShowText(txtTotalMinutes[day], record_.TotalMinutes[day]);
}

void EmployeeSchedulePage::SetEntryEnabled(bool enabled)
{
    for (int day = 0; day < kDays; ++day) {
        for (const auto& lists : cboTimes)
            lists[day]->setEnabled(enabled);
        txtTotalHours[day]->setEnabled(enabled);
        txtTotalMinutes[day]->setEnabled(enabled);
    }
    chkIrregularHours->setEnabled(enabled);
}

void EmployeeSchedulePage::Time_Click(ClockTime time, int day)
{
    if (Loading)
        return;
    PickTime(record_, time, day, TimeList(time, day)->currentText());
    ShowDay(day);
}

void EmployeeSchedulePage::Time_Change(ClockTime time, int day)
{
    if (Loading)
        return;
    ClearTime(record_, time, day);
    ShowDay(day);
}

void EmployeeSchedulePage::Time_GotFocus(ClockTime time, int day)
{
    if (Loading)
        return;
    OfferTime(record_, time, day);
    ShowDay(day);
}

void EmployeeSchedulePage::Time_LostFocus(ClockTime time, int day)
{
    if (Loading)
        return;
    LeaveTime(record_, time, day);
    ShowDay(day);
}

void EmployeeSchedulePage::Total_Change(int day)
{
    if (Loading)
        return;
    refusedFor_ = nullptr;
    TypeTotal(record_, day, txtTotalHours[day]->text(), txtTotalMinutes[day]->text());
}

bool EmployeeSchedulePage::Total_LostFocus(int day)
{
    if (Loading)
        return true;
    const auto refused = LeaveTotal(record_, day);
    ShowDay(day);
    if (refused) {
        refusedFor_ = window()->focusWidget();
        KeepFocus((*refused == TotalBox::Hours ? txtTotalHours : txtTotalMinutes)[day]);
    }
    return !refused;
}

bool EmployeeSchedulePage::LeaveFocusedTotalFor(const QWidget* button)
{
    if (std::exchange(refusedFor_, nullptr) == button)
        return false; // the press of the mouse was refused: the click that it ends in does not count
    const QWidget* focused = window()->focusWidget();
    for (int day = 0; day < kDays; ++day)
        if (focused == txtTotalHours[day] || focused == txtTotalMinutes[day])
            return Total_LostFocus(day);
    return true;
}

void EmployeeSchedulePage::chkIrregularHours_Click(bool checked)
{
    if (Loading)
        return;
    record_.IrregularHours = checked && ConfirmIrregularHours(record_);
    const LoadingGuard loading(Loading);
    Show();
}
