#pragma once

#include "ledger/entitlements.h"

#include <QWidget>

#include <array>
#include <functional>

class FlexGrid;
class QCheckBox;
class QLineEdit;
class QPushButton;

/// The columns of the grid of entitlements.
enum EntitlementColumn
{
    kCategoryColumn,
    kCarriedHoursColumn,
    kCarriedMinutesColumn,
    kSignColumn,
    kAnnualHoursColumn,
    kAnnualMinutesColumn,
    kTotalColumn,
    kCarryOverColumn,
    kEntitlementColumns
};
/// What the cells of a line show, in the order of the columns.
QStringList CellsOf(const EntitlementLine& line);

/// The boxes that lie over one row of the grid while it is edited.
class EntitlementEditor : public QWidget
{
public:
    explicit EntitlementEditor(FlexGrid* grid);

    std::function<void()> Changed;               ///< a box or a flag was changed
    std::function<void(int row, int col)> Moves; ///< a key leads to another row
    std::function<void()> Abandoned;             ///< by Escape

    /// Lies over `row`, the focus in the box of `col`.
    void Open(int row, int col, const EntitlementLine& line);
    void Close();
    bool IsOpen() const { return row_ >= 0; }
    int Row() const { return row_; }
    /// Something was changed since the editor was opened.
    bool IsDirty() const { return dirty_; }
    /// What the boxes say, the figures brought up to date.
    const EntitlementLine& Line();

protected:
    bool eventFilter(QObject* target, QEvent* event) override;

private:
    QLineEdit* MakeBox(const char* name, EntitlementColumn column, int digits);
    void BuildControls();
    void ConnectControls();
    void Lay(EntitlementColumn column, QWidget* control);
    void FollowGrid();
    void Place();
    void Show();
    void ReadBoxes();
    void Recalculate();
    void Touch();
    void LimitMinutes(QLineEdit* box);
    void cmdPositiveNegative_Click();
    bool TakeKey(int key);
    bool TakeTab(bool back);
    int ColumnInFocus() const;

    FlexGrid* grid_;
    std::array<QWidget*, kEntitlementColumns> controls_{};
    QLineEdit* txtCategory;
    QLineEdit* txtCarriedOver_Hours;
    QLineEdit* txtCarriedOver_Minutes;
    QPushButton* cmdPositiveNegative;
    QLineEdit* txtEntitlement_Hours;
    QLineEdit* txtEntitlement_Minutes;
    QLineEdit* txtTotalEntitlement;
    QCheckBox* chkCarryOver;
    EntitlementEntry entry_;
    int row_ = -1;
    bool dirty_ = false;
    bool figuresChanged_ = false; ///< since they were last taken from the boxes
    bool Loading = false;
};
