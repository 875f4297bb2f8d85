#pragma once

#include "foundation/frm_editing.h"
#include "reference/category_rules.h"

class CategoryConfigurationPage;
class CategoryDepartmentsPage;

/// The categories of attendance of the session's fiscal year: adds, modifies and deactivates them, one at a time. What
/// that means for the departments and for everybody's entitlement is written with the category.
class frmCategories : public EditingForm<CategoryEntry>
{
public:
    explicit frmCategories(QWidget* parent = nullptr);

    void LoadRecords();
    void LoadActiveRecords();

protected:
    bool Begin(EditingMode mode) override;
    void Finish(EditingMode mode) override;
    void ResetVariables() override;
    bool HasRecord() const override { return record_.RecordID != 0; }
    void EnableControls() override;
    void cmdCancelOperation_Click() override;
    bool MayBeLeft() override { return true; } // cancelling asks
    void Show(const CategoryEntry& entry) override;
    CategoryEntry Read() const override;
    std::optional<Fault> Validate(CategoryEntry& entry) override;
    bool Confirm(EditingMode mode, const CategoryEntry& entry) override;
    void Write(EditingMode mode, const CategoryEntry& entry) override;
    void TellDone(EditingMode mode, const CategoryEntry& entry) override;

private:
    void BuildList();
    void AddTabs();
    void ChooseCategory(const CategoryEntry& entry);
    void TakeListed(int recordID);
    bool ConfirmDeactivation() const;
    bool HasChanges() const;

    void cboRecords_Click(int index);
    void cmdColorAssigned_Click();
    void cmdListRecords_Click();

    CategoryEntry shown_; ///< what the fields held when the record was taken
    QComboBox* cboRecords;
    CategoryConfigurationPage* configuration_;
    CategoryDepartmentsPage* departments_;
};
