#include "ledger/frm_entitlement_editor.h"

#include "foundation/common_services.h"
#include "foundation/frm_captions.h"
#include "platform/controls/flex_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace
{
constexpr int kHourDigits = 4;
constexpr int kMinuteDigits = 2;
constexpr int kMostMinutes = 59;
constexpr int kFlagIndent = 30;

QString SignText(bool owedToEmployee)
{
    return owedToEmployee ? " + " : " - ";
}

QString CarryOverText(bool mayBeCarriedOver)
{
    return mayBeCarriedOver ? T("YES", "OUI") : T("NO", "NON");
}
} // namespace

QStringList CellsOf(const EntitlementLine& line)
{
    const EntitlementEntry entry(line);
    return {entry.Category,     entry.Carried.Hours,  entry.Carried.Minutes,    SignText(entry.OwedToEmployee),
            entry.Annual.Hours, entry.Annual.Minutes, DurationText(line.Total), CarryOverText(line.MayBeCarriedOver)};
}

EntitlementEditor::EntitlementEditor(FlexGrid* grid) : QWidget(grid->viewport()), grid_(grid)
{
    setAutoFillBackground(true);
    BuildControls();
    ConnectControls();
    FollowGrid();
    hide();
}

void EntitlementEditor::BuildControls()
{
    txtCategory = MakeBox("txtCategory", kCategoryColumn, 0);
    txtCarriedOver_Hours = MakeBox("txtCarriedOver_Hours", kCarriedHoursColumn, kHourDigits);
    txtCarriedOver_Minutes = MakeBox("txtCarriedOver_Minutes", kCarriedMinutesColumn, kMinuteDigits);
    cmdPositiveNegative = Named<QPushButton>("cmdPositiveNegative");
    cmdPositiveNegative->setProperty("look", "arrow");
    cmdPositiveNegative->setAutoDefault(false);
    constexpr Text kSigns = {"«+»: Owed TO employee, «-»: Owed BY employee",
                             "«+»: Temps dû À l'employé(e), «-»: Temps dû PAR l'employé(e)"};
    SetToolTip(cmdPositiveNegative, kSigns);
    SetAccessibleName(cmdPositiveNegative, kSigns);
    Lay(kSignColumn, cmdPositiveNegative);
    txtEntitlement_Hours = MakeBox("txtEntitlement_Hours", kAnnualHoursColumn, kHourDigits);
    txtEntitlement_Minutes = MakeBox("txtEntitlement_Minutes", kAnnualMinutesColumn, kMinuteDigits);
    txtTotalEntitlement = MakeBox("txtTotalEntitlement", kTotalColumn, 0);
    chkCarryOver = Named<QCheckBox>("chkCarryOver");
    SetAccessibleName(chkCarryOver, {"Carry over?", "Transférable?"});
    Lay(kCarryOverColumn, chkCarryOver);
}

/// A box without digits only shows something.
QLineEdit* EntitlementEditor::MakeBox(const char* name, EntitlementColumn column, int digits)
{
    QLineEdit* box = MakeField(name, KeyFilter::WholeNumber, digits > 0 ? digits : kUnlimited);
    box->setAlignment(column == kCategoryColumn ? Qt::AlignLeft : Qt::AlignCenter);
    const int group = digits == kMinuteDigits ? column - 1 : column; // hours and minutes stand below one head
    box->setAccessibleName(grid_->TextMatrix(0, group) + " " + grid_->TextMatrix(1, column));
    if (digits == 0) {
        box->setReadOnly(true);
        box->setFocusPolicy(Qt::NoFocus);
    }
    Lay(column, box);
    return box;
}

void EntitlementEditor::Lay(EntitlementColumn column, QWidget* control)
{
    control->setParent(this);
    control->installEventFilter(this);
    controls_[column] = control;
}

void EntitlementEditor::ConnectControls()
{
    for (QLineEdit* box :
         {txtCarriedOver_Hours, txtCarriedOver_Minutes, txtEntitlement_Hours, txtEntitlement_Minutes}) {
        connect(box, &QLineEdit::textChanged, this, [this, box] {
            if (Loading)
                return;
            if (box == txtCarriedOver_Minutes || box == txtEntitlement_Minutes)
                LimitMinutes(box);
            figuresChanged_ = true;
            Touch();
        });
        connect(box, &QLineEdit::editingFinished, this, &EntitlementEditor::Recalculate);
    }
    connect(cmdPositiveNegative, &QPushButton::clicked, this, &EntitlementEditor::cmdPositiveNegative_Click);
    connect(chkCarryOver, &QCheckBox::toggled, this, [this](bool checked) {
        entry_.MayBeCarriedOver = checked;
        chkCarryOver->setText(CarryOverText(checked));
        if (!Loading)
            Touch();
    });
}

/// Stays over its row when the grid is scrolled or its columns change.
void EntitlementEditor::FollowGrid()
{
    const auto place = [this] { Place(); };
    connect(grid_->verticalScrollBar(), &QScrollBar::valueChanged, this, place);
    connect(grid_->horizontalScrollBar(), &QScrollBar::valueChanged, this, place);
    connect(grid_->horizontalHeader(), &QHeaderView::sectionResized, this, place);
}

void EntitlementEditor::Open(int row, int col, const EntitlementLine& line)
{
    row_ = row;
    entry_ = EntitlementEntry(line);
    dirty_ = figuresChanged_ = false;
    Show();
    Place();
    show();
    QWidget* box = controls_[static_cast<std::size_t>(std::clamp(col, 0, kEntitlementColumns - 1))];
    (box->focusPolicy() == Qt::NoFocus ? txtEntitlement_Hours : box)->setFocus();
}

void EntitlementEditor::Close()
{
    const bool focused = isAncestorOf(window()->focusWidget());
    row_ = -1;
    dirty_ = false;
    hide();
    if (focused)
        grid_->setFocus();
}

const EntitlementLine& EntitlementEditor::Line()
{
    Recalculate();
    return entry_;
}

void EntitlementEditor::Place()
{
    if (!IsOpen())
        return;
    const QRect row = grid_->CellRect(row_, kCategoryColumn).united(grid_->CellRect(row_, kCarryOverColumn));
    setGeometry(row);
    for (int col = 0; col < kEntitlementColumns; ++col)
        controls_[static_cast<std::size_t>(col)]->setGeometry(
            grid_->CellRect(row_, col)
                .translated(-row.topLeft())
                .adjusted(col == kCarryOverColumn ? kFlagIndent : 0, 0, -1, -1));
}

void EntitlementEditor::Show()
{
    const LoadingGuard loading(Loading);
    txtCategory->setText(entry_.Category);
    txtCategory->setCursorPosition(0);
    txtCarriedOver_Hours->setText(entry_.Carried.Hours);
    txtCarriedOver_Minutes->setText(entry_.Carried.Minutes);
    cmdPositiveNegative->setText(SignText(entry_.OwedToEmployee));
    txtEntitlement_Hours->setText(entry_.Annual.Hours);
    txtEntitlement_Minutes->setText(entry_.Annual.Minutes);
    txtTotalEntitlement->setText(DurationText(entry_.Total));
    chkCarryOver->setChecked(entry_.MayBeCarriedOver);
    chkCarryOver->setText(CarryOverText(entry_.MayBeCarriedOver));
}

void EntitlementEditor::ReadBoxes()
{
    entry_.Carried = {txtCarriedOver_Hours->text(), txtCarriedOver_Minutes->text()};
    entry_.Annual = {txtEntitlement_Hours->text(), txtEntitlement_Minutes->text()};
}

void EntitlementEditor::Recalculate()
{
    if (!figuresChanged_)
        return;
    figuresChanged_ = false;
    ReadBoxes();
    RecalculateEntitlement(entry_);
    txtTotalEntitlement->setText(DurationText(entry_.Total));
}

void EntitlementEditor::Touch()
{
    dirty_ = true;
    Changed();
}

void EntitlementEditor::LimitMinutes(QLineEdit* box)
{
    if (box->text().toInt() <= kMostMinutes)
        return;
    const LoadingGuard loading(Loading);
    box->setText("0");
}

void EntitlementEditor::cmdPositiveNegative_Click()
{
    entry_.OwedToEmployee = !entry_.OwedToEmployee;
    cmdPositiveNegative->setText(SignText(entry_.OwedToEmployee));
    figuresChanged_ = true;
    Recalculate();
    Touch();
}

bool EntitlementEditor::eventFilter(QObject* target, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !IsOpen())
        return QWidget::eventFilter(target, event);
    return TakeKey(static_cast<QKeyEvent*>(event)->key());
}

/// Up, Down and Enter stay in their column; Tab goes on at the end of a row.
bool EntitlementEditor::TakeKey(int key)
{
    switch (key) {
    case Qt::Key_Up:
        Moves(row_ - 1, ColumnInFocus());
        return true;
    case Qt::Key_Down:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Moves(row_ + 1, ColumnInFocus());
        return true;
    case Qt::Key_Tab:
        return TakeTab(false);
    case Qt::Key_Backtab:
        return TakeTab(true);
    case Qt::Key_Escape:
        Abandoned();
        return true;
    default:
        return false;
    }
}

bool EntitlementEditor::TakeTab(bool back)
{
    const int edge = back ? kCarriedHoursColumn : kCarryOverColumn;
    const int next = back ? row_ - 1 : row_ + 1;
    if (ColumnInFocus() != edge || next >= grid_->Rows() || grid_->CellRect(next, 0).isEmpty())
        return false;
    Moves(next, back ? kCarryOverColumn : kCarriedHoursColumn);
    return true;
}

int EntitlementEditor::ColumnInFocus() const
{
    const auto* found = std::find(controls_.begin(), controls_.end(), window()->focusWidget());
    return found == controls_.end() ? kAnnualHoursColumn : static_cast<int>(found - controls_.begin());
}
