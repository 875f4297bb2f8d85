#pragma once

#include "platform/dao/dao.h"
#include "reference/unit_records.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class UnitPage;

/// Adds, modifies, deactivates and reactivates the units of one level: a button's first press opens its mode, the
/// second does the work. A form whose units would have no unit above them says so when it is shown, and closes.
class frmUnit : public QDialog
{
public:
    void LoadRecords();
    void LoadActiveRecords();
    /// In a mode it only leaves the mode.
    void reject() override;

protected:
    /// `page`: what this level has besides its names; the form takes it over.
    frmUnit(const UnitKind& kind, UnitPage* page, QWidget* parent);
    void showEvent(QShowEvent* event) override;

private:
    enum class Mode
    {
        Idle,
        Adding,
        Modifying,
        Deactivating
    };

    void BuildControls();
    void BuildPage();
    QHBoxLayout* Names();
    QHBoxLayout* Buttons();
    void ConnectControls();
    void LoadCaptions();
    void Form_Activate();

    void ShowRecords(const QVector<UnitItem>& items);
    void ShowUnit(const UnitEntry& unit);
    UnitEntry ReadForm() const;
    void EnterMode(Mode mode);
    void ShowButtons();
    void FocusFirstField();
    void ResetVariables();

    void cboRecords_Click(int index);
    void cmdAdd_Click();
    void cmdModify_Click();
    void cmdDeactivate_Click();
    void cmdCancelOperation_Click();
    bool Reactivate(const UnitEntry& unit);
    bool Validate(UnitEntry& unit);
    bool ConfirmAddition(const UnitEntry& unit) const;
    bool ConfirmModification(const UnitEntry& unit) const;
    bool ConfirmDeactivation() const;
    bool RefuseWhileEmployed();
    bool Attempt(const std::function<void()>& write);
    void Complete(const QString& text);

    const UnitKind& kind_;
    UnitPage* page_;
    DataControl datAbsence;
    Mode mode_ = Mode::Idle;
    UnitEntry unit_; ///< the record chosen, as it is stored

    QLabel* lblRecords = nullptr;
    QComboBox* cboRecords = nullptr;
    QWidget* fields_ = nullptr;
    QLabel* lblEnglishName = nullptr;
    QLineEdit* txtEnglishName = nullptr;
    QLabel* lblFrenchName = nullptr;
    QLineEdit* txtFrenchName = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdModify = nullptr;
    QPushButton* cmdDeactivate = nullptr;
    QPushButton* cmdCancelOperation = nullptr;
    QPushButton* cmdQuit = nullptr;
};
