#include "employees/frm_employee_schedule_page.h"

#include "foundation/values.h"
#include "platform/controls/entry_lists.h"

#include <QFocusEvent>

#include <span>

namespace
{
constexpr int kDays = 7;
constexpr int kTotalWidth = 58;
constexpr int kTimeCharacters = 6;
constexpr int kGroupGap = 12; ///< between the halves of the day and the total
constexpr int kRowGap = 10;

/// The raster of the week: the weekday, two halves and the total, with a gap before each.
struct WeekColumn
{
    int Column;
    Text Caption;
    Text Head;
};
constexpr Text kFirstHalf = {"First half of the day", "Première moitié de la journée"};
constexpr Text kSecondHalf = {"Second half of the day", "Seconde moitié de la journée"};
constexpr Text kTotal = {"Total", "Total"};
constexpr WeekColumn kTimeColumns[] = {{2, {"Start time", "Heure de début"}, kFirstHalf},
                                       {3, {"End time", "Heure de fin"}, kFirstHalf},
                                       {5, {"Start time", "Heure de début"}, kSecondHalf},
                                       {6, {"End time", "Heure de fin"}, kSecondHalf}};
constexpr WeekColumn kTotalColumns[] = {{8, {"Hours", "Heures"}, kTotal}, {9, {"Minutes", "Minutes"}, kTotal}};
constexpr Text kPassedThrough = {"Copied as you passed through: pick another time, or clear this one with Delete",
                                 "Copiée au passage: choisissez une autre heure, ou effacez celle-ci avec Suppr"};
constexpr int kClearColumn = 11;
constexpr int kFirstDayRow = 2;
constexpr int kMonday = 1;
constexpr int kFriday = 5;

/// Calls back when a person brings the focus to a control or takes it away, not when a list drops down or another
/// window comes to the front.
class FocusWatch : public QObject
{
public:
    FocusWatch(QWidget* control, std::function<void()> entered, std::function<void()> left)
        : QObject(control), entered_(std::move(entered)), left_(std::move(left))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject* target, QEvent* event) override
    {
        const bool entering = event->type() == QEvent::FocusIn;
        if (entering || event->type() == QEvent::FocusOut) {
            const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
            if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
                entering ? entered_() : left_();
        }
        return QObject::eventFilter(target, event);
    }

private:
    const std::function<void()> entered_;
    const std::function<void()> left_;
};

void AddHeads(QGridLayout* week)
{
    week->addWidget(AsHead(MakeLabel("lblFirstHalf", kFirstHalf)), 0, 2, 1, 2);
    week->addWidget(AsHead(MakeLabel("lblSecondHalf", kSecondHalf)), 0, 5, 1, 2);
    week->addWidget(AsHead(MakeLabel("lblTotal", kTotal)), 0, 8, 1, 2);
    int number = 0;
    for (const auto& columns : {std::span<const WeekColumn>(kTimeColumns), std::span<const WeekColumn>(kTotalColumns)})
        for (const auto& [column, caption, head] : columns)
            week->addWidget(AsCaption(MakeLabel(ArrayName("lblScheduleColumn", number++), caption)), 1, column);
}

/// A screen reader says the weekday and the heads of the column.
void Place(QGridLayout* week, QWidget* control, int day, const WeekColumn& column)
{
    week->addWidget(control, day + kFirstDayRow, column.Column);
    control->setAccessibleName(WeekdayName(day) + ", " + T(column.Head) + ", " + T(column.Caption));
}
} // namespace

EmployeeSchedulePage::EmployeeSchedulePage(EmployeeRecord& record, bool& loading) : record_(record), Loading(loading)
{
    setObjectName(kScheduleTab);
    chkIrregularHours =
        MakeButton<QCheckBox>("chkIrregularHours", {"This employee works &irregular hours",
                                                    "Cet(te) employé(e) travaille selon un horaire &irrégulier"});
    connect(chkIrregularHours, &QCheckBox::clicked, this, &EmployeeSchedulePage::chkIrregularHours_Click);

    auto* content = new QVBoxLayout;
    content->addWidget(WrappedLabel(
        "lblScheduleExplanation",
        {"If the employee works according to a regular schedule, you should take the time to detail that schedule "
         "here. Providing this information greatly accelerates the process of entering attendance records. In most "
         "cases, all you will ever need to do is check a box to specify the duration of an absence.",
         "Si l'employé(e) travaille selon un horaire régulier, vous devriez prendre le temps de détailler cet horaire. "
         "En fournissant cette information dès le départ, vous réduirez considérablement le temps nécessaire à "
         "l'enregistrement des absences. Dans la plupart des cas, il vous suffira de cocher une case afin de spécifier "
         "la durée d'une absence."}));
    content->addLayout(Week());
    content->addLayout(Foot());
    QVBoxLayout* page = TabLayout(this);
    content->setSpacing(page->spacing());
    page->addWidget(MakeCard(content));
    page->addStretch();
}

QLayout* EmployeeSchedulePage::Foot()
{
    cmdCopyMonday = MakeButton("cmdCopyMonday", {"Co&py Monday to Friday", "Co&pier le lundi jusqu'au vendredi"});
    SetToolTip(cmdCopyMonday, {"Tuesday to Friday take over the times and the total of Monday",
                               "Mardi à vendredi reprennent les heures et le total du lundi"});
    connect(cmdCopyMonday, &QPushButton::clicked, this, &EmployeeSchedulePage::cmdCopyMonday_Click);
    auto* lblCopied =
        MakeLabel("lblCopied", {"Times in a dashed blue frame were copied as you passed through their list. "
                                "They count until you pick or clear them.",
                                "Les heures encadrées de tirets bleus ont été copiées au passage dans leur liste. "
                                "Elles comptent jusqu'à ce que vous les changiez ou les effaciez."});
    auto* row = Row({chkIrregularHours});
    row->addWidget(cmdCopyMonday);
    auto* foot = Stack(kRowGap);
    foot->addWidget(AsCaption(lblCopied));
    foot->addLayout(row);
    return foot;
}

QGridLayout* EmployeeSchedulePage::Week()
{
    auto* week = Raster();
    week->setVerticalSpacing(kRowGap);
    AddHeads(week);
    for (int day = 0; day < kDays; ++day)
        AddDay(week, day);
    for (const int gap : {1, 4, 7, 10})
        week->setColumnMinimumWidth(gap, kGroupGap);
    for (const WeekColumn& time : kTimeColumns)
        week->setColumnStretch(time.Column, 1);
    std::vector<QComboBox*> lists;
    for (const auto& time : cboTimes)
        lists.insert(lists.end(), time.begin(), time.end());
    ShareEntries(lists, ClockTexts());
    return week;
}

void EmployeeSchedulePage::AddDay(QGridLayout* week, int day)
{
    auto* lblWeekday = Named<QLabel>(ArrayName("lblWeekday", day));
    lblWeekday->setText(WeekdayName(day));
    week->addWidget(lblWeekday, day + kFirstDayRow, 0);
    for (std::size_t time = 0; time < kDayTimes.size(); ++time)
        Place(week, cboTimes[time][day] = MakeTimeList(kDayTimes[time], day), day, kTimeColumns[time]);
    Place(week, txtTotalHours[day] = TotalField("txtTotalHours", day), day, kTotalColumns[0]);
    Place(week, txtTotalMinutes[day] = TotalField("txtTotalMinutes", day), day, kTotalColumns[1]);
    AddClearButton(week, day);
}

void EmployeeSchedulePage::AddClearButton(QGridLayout* week, int day)
{
    constexpr Text kClear = {"Clear this day", "Effacer ce jour"};
    auto* button = cmdClearDay[day] = MakeButton(ArrayName("cmdClearDay", day), {"Clear", "Effacer"});
    button->setProperty("look", "arrow");
    button->setAccessibleName(WeekdayName(day) + ", " + T(kClear));
    SetToolTip(button, kClear);
    connect(button, &QPushButton::clicked, this, [this, day] { cmdClearDay_Click(day); });
    week->addWidget(button, day + kFirstDayRow, kClearColumn);
}

QComboBox* EmployeeSchedulePage::MakeTimeList(const ClockTimeInfo& info, int day)
{
    QComboBox* list = EntryCombo(ArrayName(info.Control, day), kTimeCharacters);
    const ClockTime time = info.Time;
    connect(list, &QComboBox::activated, this, [this, time, day] { Time_Click(time, day); });
    connect(list->lineEdit(), &QLineEdit::textEdited, this,
            [this, time, day](const QString& typed) { Type(time, day, typed); });
    new FocusWatch(
        list, [this, time, day] { Enter(time, day); }, [this, time, day] { Apply(LeaveTime, time, day); });
    return list;
}

QLineEdit* EmployeeSchedulePage::TotalField(const QString& name, int day)
{
    auto* box = MakeField(ArrayName(name, day), KeyFilter::WholeNumber, 2);
    box->setFixedWidth(kTotalWidth);
    SetToolTip(box, {"Total duration of the employee's working day. Values specified here can be entered by you or be "
                     "calculated automatically if you specify the employee's start time and end time using the above "
                     "menus",
                     "Durée totale de la journée de travail de l'employé(e). Vous pouvez inscrire vous-même ces "
                     "valeurs ou les laisser se calculer en spécifiant l'heure de début et l'heure de fin à l'aide des "
                     "menus ci-dessus"});
    connect(box, &QLineEdit::textChanged, this, [this, day] { Total_Change(day); });
    // Enter finishes the editing too, but stays in the box and presses the main button: see LeaveFocusedTotalFor.
    connect(box, &QLineEdit::editingFinished, this, [this, box, day] {
        if (!box->hasFocus())
            Total_LostFocus(day);
    });
    return box;
}

QComboBox* EmployeeSchedulePage::TimeList(ClockTime time, int day) const
{
    return cboTimes[static_cast<std::size_t>(time)][static_cast<std::size_t>(day)];
}

void EmployeeSchedulePage::Show()
{
    for (int day = 0; day < kDays; ++day) {
        ForgetCopied(day);
        ShowDay(day);
    }
    chkIrregularHours->setChecked(record_.IrregularHours);
}

void EmployeeSchedulePage::ShowDay(int day)
{
    const LoadingGuard loading(Loading);
    for (const ClockTimeInfo& time : kDayTimes)
        ShowText(TimeList(time.Time, day), ClockText((record_.*time.Member)[day]));
    ShowText(txtTotalHours[day], record_.TotalHours[day]);
    ShowText(txtTotalMinutes[day], record_.TotalMinutes[day]);
}

void EmployeeSchedulePage::EnableEntry(const Text& whyNot)
{
    for (int day = 0; day < kDays; ++day) {
        for (const auto& lists : cboTimes)
            EnableUnless(lists[day], whyNot);
        EnableUnless(txtTotalHours[day], whyNot);
        EnableUnless(txtTotalMinutes[day], whyNot);
        EnableUnless(cmdClearDay[day], whyNot);
    }
    EnableUnless(cmdCopyMonday, whyNot);
    EnableUnless(chkIrregularHours, whyNot);
}

void EmployeeSchedulePage::Time_Click(ClockTime time, int day)
{
    if (Loading)
        return;
    PickTime(record_, time, day, TimeList(time, day)->currentText());
    MarkCopied(time, day, false);
    ShowDay(day);
}

void EmployeeSchedulePage::Enter(ClockTime time, int day)
{
    if (Loading)
        return;
    const QString before = TimeList(time, day)->currentText();
    Apply(OfferTime, time, day);
    if (before != TimeList(time, day)->currentText())
        MarkCopied(time, day, true);
}

/// A time is not typed; a digit drops the list down where it leads.
void EmployeeSchedulePage::Type(ClockTime time, int day, const QString& typed)
{
    Apply(ClearTime, time, day);
    MarkCopied(time, day, false);
    if (!typed.isEmpty() && typed.back().isDigit())
        DropDownAt(TimeList(time, day), typed.back());
}

void EmployeeSchedulePage::cmdClearDay_Click(int day)
{
    ClearDay(record_, day);
    ForgetCopied(day);
    ShowDay(day);
}

void EmployeeSchedulePage::cmdCopyMonday_Click()
{
    CopyDay(record_, kMonday, kFriday);
    for (int day = kMonday; day <= kFriday; ++day) {
        ForgetCopied(day);
        ShowDay(day);
    }
}

void EmployeeSchedulePage::MarkCopied(ClockTime time, int day, bool copied)
{
    QComboBox* list = TimeList(time, day);
    SetLook(list, copied ? "copied" : "");
    SetToolTip(list, copied ? kPassedThrough : Text());
}

void EmployeeSchedulePage::ForgetCopied(int day)
{
    for (const ClockTimeInfo& time : kDayTimes)
        if (TimeList(time.Time, day)->property("look") == "copied")
            MarkCopied(time.Time, day, false);
}

void EmployeeSchedulePage::Apply(TimeRule rule, ClockTime time, int day)
{
    if (Loading)
        return;
    rule(record_, time, day);
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
