#pragma once

#include "foundation/frm_base.h"
#include "ledger/frm_entitlement_editor.h"

class FlexGrid;

/// Adjusts what the employees may use of each category, one employee at a time, in a grid that is edited in place. A
/// row that was changed is red until it is recorded.
class frmEntitlements : public FormBase
{
public:
    explicit frmEntitlements(QWidget* parent = nullptr);

    /// Escape and the window's own button ask before red rows are lost; `cmdQuit` does not, as required.
    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildList();
    void BuildGrid();
    void BuildHeads();
    void BuildEditor();
    void BuildButtons();
    void Form_Activate() override;
    void LoadEmployees();

    void cboRecords_Click(int index);
    void LoadEntitlements();
    void flxEntitlements_Click(int row, int col);
    void EditRow(int row, int col);
    void CommitEditor();
    void ShowLine(int row);
    EntitlementLine& LineAt(int row) { return lines_[row - kHeads]; }
    bool IsRed(int row) const;
    QVector<EntitlementLine> RedLines();
    bool HasChanges() const;
    void EnableButtons();

    void cmdUpdateEntitlements_Click();
    void cmdCancelOperation_Click();
    void cmdHistory_Click();
    void Clear();

    static constexpr int kHeads = 2;
    QVector<EntitlementLine> lines_; ///< in the order of the rows below the heads
    bool loaded_ = false;            ///< the employees could be read
    QComboBox* cboRecords;
    FlexGrid* flxEntitlements;
    EntitlementEditor* editor_;
    QPushButton* cmdUpdateEntitlements = nullptr;
    QPushButton* cmdCancelOperation;
    QPushButton* cmdHistory;
};
