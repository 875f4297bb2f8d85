#pragma once

#include "employees/transfer_employee.h"
#include "foundation/frm_base.h"
#include "platform/controls/entry_lists.h"

/// Moves employees of the session's year to another organization, department or group, one after the other: the form
/// stays open for the next transfer.
class frmTransferEmployees : public FormBase
{
public:
    explicit frmTransferEmployees(QWidget* parent = nullptr);

    /// Somebody was transferred while the form was open.
    bool Transferred() const { return transferred_; }

private:
    /// One side of the screen: its data and its lists of units.
    struct UnitLists
    {
        TransferSide Data;
        std::array<ChoiceList*, 3> Lists{}; ///< lstFromOrganization, lstFromDepartment, ...
    };

    QVBoxLayout* BuildSide(UnitLists& side, const QString& name);
    QWidget* FromCard();
    QWidget* ToCard();
    void ConnectSide(UnitLists& side, const std::function<void()>& chosen);
    void LoadListBoxes();
    void ShowSide(UnitLists& side);
    void FillList(UnitLists& side, UnitList list);
    void HighlightChoice(const UnitLists& side);
    void ChooseInSide(UnitLists& side, UnitList list, int row);
    void LoadEmployees();
    void lstFromEmployee_Click();
    void ShowEverybody();
    void ShowPlaceOf(int employee);
    void cmdProcess_Click();

    UnitLists from_;
    UnitLists to_;
    bool transferred_ = false;
    QListWidget* lstFromEmployee;
};
