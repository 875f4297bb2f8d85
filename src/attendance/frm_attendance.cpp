#include "attendance/frm_attendance.h"

#include "attendance/attendance_messages.h"
#include "attendance/attendance_records.h"
#include "attendance/frm_attendance_pages.h"
#include "foundation/frm_explained.h"
#include "foundation/values.h"

#include <QTabWidget>

namespace
{
constexpr QSize kSize(760, 610);
constexpr int kCommentLimit = 500; // the column holds no more

constexpr Text kActions[] = {{"&Add new attendance record(s)", "&Ajouter nouveaux enregistrements"},
                             {"Su&bmit new attendance record(s)", "S&oumettre nouveaux enregistrements"},
                             {"&Record modifications", "En&registrer modifications"}}; // in the order of AttendanceKind
constexpr Text kNotInSchedule = {"The employee's schedule does not tell these hours: specify the duration",
                                 "L'horaire de l'employé(e) n'indique pas ces heures: spécifiez la durée"};
} // namespace

frmAttendance::frmAttendance(const AttendanceJob& job, QWidget* parent) : FormBase("frmAttendance", parent), entry_(job)
{
    BuildControls();
    ConnectControls();
    LoadComboBoxes();
    LoadJob();
}

/// Hiding takes the focus from its field, whose handler needs the form whole.
frmAttendance::~frmAttendance()
{
    hide();
}

void frmAttendance::BuildControls()
{
    SetTitle(this, {"Attendance records", "Mise à jour des absences"});
    AskBeforeLosing();
    general_ = new AttendanceGeneralPage;
    additional_ = new AttendanceAdditionalPage;
    sstAttendance = Named<QTabWidget>("sstAttendance");
    Page()->addWidget(sstAttendance, 1);
    AddTab(sstAttendance, general_, {"General information", "Information générale"});
    AddTab(sstAttendance, additional_, {"Additional information", "Information additionnelle"});
    cmdAddOrUpdate =
        AddMainButton("cmdAddOrUpdate", kActions[static_cast<int>(entry_.Kind)], [this] { cmdAddOrUpdate_Click(); });
    cmdQuit = AddWayOut({"&Close", "&Sortir"}, "cmdQuit");
    LayFoot({cmdQuit, cmdAddOrUpdate});
    lblApprovers = AsNotice(WrappedLabel("lblApprovers"));
    Page()->addWidget(lblApprovers);
    lblApprovers->hide();
    SetSize(kSize);
}

void frmAttendance::ConnectControls()
{
    connect(general_->lstWho, &QListWidget::itemSelectionChanged, this, &frmAttendance::lstWho_Click);
    connect(general_->cboCategories, &QComboBox::currentIndexChanged, this, &frmAttendance::cboCategories_Click);
    const std::pair<QCheckBox*, DayPart> parts[] = {{general_->chkWholeDay, DayPart::WholeDay},
                                                    {general_->chkFirstHalf, DayPart::FirstHalf},
                                                    {general_->chkSecondHalf, DayPart::SecondHalf}};
    for (const auto& [box, part] : parts)
        connect(box, &QCheckBox::toggled, this, [this, part = part](bool checked) { DayPart_Click(part, checked); });
    ConnectTimesAndDurations();
    ExplainFigure(general_->lblBalance, [this] { return ExplainBalance(datAbsence, entry_); });
    connect(additional_->txtHourlyRate, &QLineEdit::editingFinished, this, &frmAttendance::txtHourlyRate_LostFocus);
    LimitLength(additional_->txtComment, kCommentLimit);
}

void frmAttendance::ConnectTimesAndDurations()
{
    connect(general_->cboStartTime, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { Time_Click(ChooseStartTime, text); });
    connect(general_->cboEndTime, &QComboBox::currentTextChanged, this,
            [this](const QString& text) { Time_Click(ChooseEndTime, text); });
    connect(general_->lstMultiplicator, &QComboBox::currentIndexChanged, this, &frmAttendance::lstMultiplicator_Click);
    for (QLineEdit* box : {general_->txtDurationInHours, general_->txtDurationInMinutes}) {
        connect(box, &QLineEdit::textChanged, this, &frmAttendance::Duration_Change);
        // Enter finishes the editing too, but stays in the box and presses the main button.
        connect(box, &QLineEdit::editingFinished, this, [this, box] {
            if (!box->hasFocus())
                LeaveDurationBoxes();
        });
    }
}

void frmAttendance::LoadComboBoxes()
{
    const LoadingGuard loading(Loading);
    general_->cboStartTime->addItems(ClockTexts());
    general_->cboEndTime->addItems(ClockTexts());
    for (const Multiplicator& factor : kMultiplicators)
        general_->lstMultiplicator->addItem(factor.Text);
    QStringList dates;
    for (const int date : entry_.Dates)
        dates << FormatDate(date, "ddd   dd-mmm-yyyy");
    general_->txtWhen->setPlainText(dates.join('\n'));
}

void frmAttendance::LoadJob()
{
    LoadEmployees();
    if (entry_.EmployeeID >= 1)
        LoadEmployeeInfo(datAbsence, entry_);
    LoadCategoryList();
    if (IsModifying())
        ReloadRecord(datAbsence, entry_);
    ShowEntry();
    LookUpApprovers();
    EnableOrExplain(general_->lstWho, !IsModifying() && !entry_.EmployeeLocked,
                    {"These records are this employee's", "Ces enregistrements sont ceux de cet(te) employé(e)"});
    (general_->lstWho->isEnabled() ? static_cast<QWidget*>(general_->lstWho) : general_->cboCategories)->setFocus();
}

void frmAttendance::LookUpApprovers()
{
    if (entry_.Kind != AttendanceKind::Submit)
        return;
    GetApprovalNames(datAbsence, entry_);
    lblApprovers->setText(ApproversOutOfReach(entry_));
    lblApprovers->setVisible(!lblApprovers->text().isEmpty());
}

/// The question comes once the form can be seen.
void frmAttendance::Form_Activate()
{
    WarnOfMissingEntitlement();
}

void frmAttendance::LoadEmployees()
{
    const LoadingGuard loading(Loading);
    const auto employees = LoadRecords(datAbsence, entry_);
    AddEntries(general_->lstWho, employees.value_or(QVector<ListEntry>()));
    MarkEmployee();
    mayAdd_ = employees.has_value() && MayEnterForEmployee();
    SetButtonsEnabled(true);
}

/// The calendar shows whom the user may view; who is not listed here is beyond his rights to enter records. A new
/// record can still be for somebody else.
bool frmAttendance::MayEnterForEmployee()
{
    if (ChosenID(general_->lstWho) != 0)
        return true;
    if (!IsModifying())
        entry_.EmployeeID = 0;
    return !IsModifying();
}

/// Marks the entry's employee, also after a click with Ctrl has taken the mark away.
void frmAttendance::MarkEmployee()
{
    const LoadingGuard loading(Loading);
    Choose(general_->lstWho, entry_.EmployeeID);
}

void frmAttendance::LoadCategoryList()
{
    const LoadingGuard loading(Loading);
    QComboBox* list = general_->cboCategories;
    list->clear();
    for (const ListEntry& category : LoadCategories(datAbsence, entry_))
        list->addItem(category.Text, category.RecordID);
    list->setCurrentIndex(std::max(list->findData(entry_.SelectedCategoryID), 0));
    EnterCategory();
}

/// The category shown becomes that of the entry.
void frmAttendance::EnterCategory()
{
    entry_.SelectedCategoryID = general_->cboCategories->currentData().toInt();
    ReadCategory(datAbsence, entry_);
    entry_.CategoryName = general_->cboCategories->currentText();
}

void frmAttendance::ReadForm()
{
    entry_.Comment = additional_->txtComment->toPlainText();
    entry_.Justified = additional_->chkJustified->isChecked();
    entry_.HourlyRateText = additional_->txtHourlyRate->text();
}

void frmAttendance::ShowEntry()
{
    const LoadingGuard loading(Loading);
    ShowParts();
    general_->lblEmployeeName->setText(entry_.EmployeeName);
    general_->lblBalance->setText(BalanceText(entry_));
    general_->lblBalance->setVisible(!general_->lblBalance->text().isEmpty());
    ShowClockTime(general_->cboStartTime, entry_.StartTimeText);
    ShowClockTime(general_->cboEndTime, entry_.EndTimeText);
    general_->txtDurationInHours->setText(entry_.HoursText);
    general_->txtDurationInMinutes->setText(entry_.MinutesText);
    general_->lstMultiplicator->setCurrentIndex(std::max(MultiplicatorIndex(entry_.TimeMultiplicator), 0));
    general_->txtTotalTime->setText(entry_.TotalTimeText);
    additional_->txtHourlyRate->setText(entry_.HourlyRateText);
    additional_->chkJustified->setChecked(entry_.Justified);
    if (additional_->txtComment->toPlainText() != entry_.Comment)
        additional_->txtComment->setPlainText(entry_.Comment);
}

void frmAttendance::ShowParts()
{
    EnableOrExplain(general_->chkWholeDay, entry_.WholeDayEnabled(), kNotInSchedule);
    EnableOrExplain(general_->chkFirstHalf, entry_.FirstHalfEnabled, kNotInSchedule);
    EnableOrExplain(general_->chkSecondHalf, entry_.SecondHalfEnabled, kNotInSchedule);
    general_->chkWholeDay->setChecked(entry_.Part == DayPart::WholeDay);
    general_->chkFirstHalf->setChecked(entry_.Part == DayPart::FirstHalf);
    general_->chkSecondHalf->setChecked(entry_.Part == DayPart::SecondHalf);
}

/// The list shows the entry's category, or nothing when it bears no name.
void frmAttendance::ShowCategory()
{
    const LoadingGuard loading(Loading);
    general_->cboCategories->setCurrentIndex(general_->cboCategories->findText(entry_.CategoryName));
}

/// False when the user will not go on without an entitlement: no category is chosen any more.
bool frmAttendance::WarnOfMissingEntitlement()
{
    if (!LacksEntitlement(entry_) || AcceptMissingEntitlement(entry_))
        return true;
    BlankCategory();
    return false;
}

void frmAttendance::BlankCategory()
{
    entry_.SelectedCategoryID = 0;
    ReadCategory(datAbsence, entry_);
    entry_.CategoryName.clear();
    ShowCategory();
}

void frmAttendance::lstWho_Click()
{
    if (Loading)
        return;
    const int employee = ChosenID(general_->lstWho);
    if (employee == 0)
        return MarkEmployee();
    ReadForm();
    if (!Attempt([&] { EnterEmployee(employee); })) {
        entry_.EmployeeID = 0; // without his units and his rate he has to be chosen anew
        MarkEmployee();
    }
    ShowEntry();
    WarnOfMissingEntitlement();
}

/// The employee becomes that of the entry, which begins afresh.
void frmAttendance::EnterEmployee(int employee)
{
    const bool another = employee != entry_.EmployeeID;
    entry_.EmployeeID = employee;
    ClearEntryFields(entry_);
    LoadEmployeeInfo(datAbsence, entry_);
    LookUpApprovers();
    if (another) {
        entry_.ConflictsAccepted = false;
        entry_.SelectedCategoryID = 0;
        LoadCategoryList();
    } else {
        ReadCategory(datAbsence, entry_);
    }
}

/// Something was entered by the user; what the form itself puts into its controls is not.
void frmAttendance::Change(const std::function<void()>& change)
{
    if (Loading)
        return;
    ReadForm();
    change();
    ShowEntry();
}

void frmAttendance::cboCategories_Click(int index)
{
    if (index < 0)
        return;
    Change([this] {
        if (!Attempt([this] { EnterCategory(); }))
            return BlankCategory(); // without its limits it has to be chosen anew
        if (WarnOfMissingEntitlement())
            RecalculateTotalTime(entry_);
    });
}

void frmAttendance::DayPart_Click(DayPart part, bool checked)
{
    Change([&] {
        ChooseDayPart(entry_, part, checked);
        durationChanged_ = false;
    });
}

void frmAttendance::Time_Click(void (*choose)(AttendanceEntry&, const QString&), const QString& text)
{
    if (text.isEmpty())
        return;
    Change([&] {
        choose(entry_, text);
        durationChanged_ = false;
    });
}

void frmAttendance::lstMultiplicator_Click(int index)
{
    if (index < 0)
        return;
    Change([&] {
        entry_.TimeMultiplicator = kMultiplicators[static_cast<size_t>(index)].Value;
        RecalculateTotalTime(entry_);
    });
}

void frmAttendance::Duration_Change()
{
    Change([this] {
        TypeDuration(entry_, general_->txtDurationInHours->text(), general_->txtDurationInMinutes->text());
        durationChanged_ = true;
    });
}

/// False when a box was refused, blanked and given the focus again.
bool frmAttendance::LeaveDurationBoxes()
{
    if (Loading || !durationChanged_)
        return true;
    durationChanged_ = false;
    ReadForm();
    const auto refused = TakeDuration(entry_);
    ShowEntry();
    if (refused)
        KeepFocus(refused == &AttendanceEntry::HoursText ? general_->txtDurationInHours
                                                         : general_->txtDurationInMinutes);
    return !refused;
}

void frmAttendance::txtHourlyRate_LostFocus()
{
    QLineEdit* rate = additional_->txtHourlyRate;
    if (!rate->text().isEmpty())
        rate->setText(FormatNumber(static_cast<float>(Val(rate->text())), 2));
}
