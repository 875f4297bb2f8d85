#pragma once

#include "foundation/frm_editing.h"
#include "reference/unit_records.h"

/// Adds, modifies, deactivates and reactivates the units of one level. A form whose units would have no unit above them
/// says so when it is shown, and closes.
class frmUnit : public EditingForm<UnitRow>
{
public:
    void LoadRecords();
    void LoadActiveRecords();

protected:
    frmUnit(const UnitKind& kind, QWidget* parent);

    void Form_Activate() override;
    bool Begin(EditingMode mode) override;
    void Finish(EditingMode mode) override;
    void ResetVariables() override;
    bool HasRecord() const override { return record_.RecordID != 0; }
    void EnableControls() override;
    void Show(const UnitRow& unit) override;
    UnitRow Read() const override;
    std::optional<Fault> Validate(UnitRow& unit) override;
    bool Confirm(EditingMode mode, const UnitRow& unit) override;
    void Write(EditingMode mode, const UnitRow& unit) override;
    void TellDone(EditingMode mode, const UnitRow& unit) override;

private:
    void BuildList();
    QHBoxLayout* Names();
    QLayout* Address();
    QLayout* Parents();
    void ShowRecords(const QVector<UnitItem>& items);
    void ChooseUnit(const UnitRow& unit);
    void FocusFirstField();

    void cboRecords_Click(int index);
    void TakeListed(int recordID);
    bool Reactivate(const UnitRow& unit);
    bool ConfirmEntry(const Text& question, const UnitRow& unit) const;
    bool ConfirmMove(const UnitRow& unit) const;
    bool ConfirmDeactivation() const;

    const UnitKind& kind_;
    QComboBox* cboRecords;
    QWidget* fields_;
    QLineEdit* txtEnglishName;
    QLineEdit* txtFrenchName;
    QVector<QLineEdit*> address_;      ///< in the order of kAddressFields; empty for a level without address
    QListWidget* lstParents = nullptr; ///< the units above; nullptr at the top
};

/// The organizations, with their addresses, of the fiscal year.
class frmOrganizations : public frmUnit
{
public:
    explicit frmOrganizations(QWidget* parent = nullptr) : frmUnit(kOrganizations, parent) {}
};

/// The departments, each under its organization, of the fiscal year.
class frmDepartments : public frmUnit
{
public:
    explicit frmDepartments(QWidget* parent = nullptr) : frmUnit(kDepartments, parent) {}
};

/// The groups, each under its department, of the fiscal year.
class frmGroups : public frmUnit
{
public:
    explicit frmGroups(QWidget* parent = nullptr) : frmUnit(kGroups, parent) {}
};
