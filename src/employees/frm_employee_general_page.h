#pragma once

#include "employees/employee_record.h"
#include "selection/unit_lists.h"

#include <QWidget>

#include <array>
#include <vector>

class QBoxLayout;
class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

/// The tab "General information": who the employee is, where he works, how he is reached.
class EmployeeGeneralPage : public QWidget
{
public:
    EmployeeGeneralPage();

    void LoadCaptions();
    void LoadComboBoxes();
    /// Fills the three unit lists.
    void LoadUnits(const std::array<QVector<Unit>, 3>& units);

    /// Shows the fields of a record, and its units without reporting a choice.
    void Show(const EmployeeRecord& record);
    void Read(EmployeeRecord& record) const;
    void SetEntryEnabled(bool enabled);
    void SetUnitsEnabled(bool organizations, bool departments, bool groups);
    /// The selected text of a list; empty when nothing is selected.
    QString SelectedUnit(UnitList list) const;

    QLineEdit* txtName = nullptr;
    std::array<QListWidget*, 3> lstUnits{}; ///< lstOrganizations, lstDepartments, lstGroups

private:
    struct DateCombos
    {
        QComboBox* Year = nullptr;
        QComboBox* Month = nullptr;
        QComboBox* Day = nullptr;
    };

    void BuildControls();
    DateCombos BuildDate(const QString& kind);
    QBoxLayout* Field(int index) const;
    QBoxLayout* DateField(QLabel* caption, const DateCombos& combos);
    QWidget* PersonCard();
    QWidget* ContactCard();
    QWidget* UnitsCard();
    QWidget* CommentCard();
    void Normalise();
    void ShowTexts(const EmployeeRecord& record);
    static void ShowDate(const DateCombos& combos, const DateEntry& entry);
    static DateEntry ReadDate(const DateCombos& combos);

    std::vector<QLineEdit*> fields_; ///< in the order of the table of fields
    std::vector<QLabel*> captions_;
    DateCombos birth_;
    DateCombos hire_;
    QPlainTextEdit* txtComment = nullptr;
    QLabel* lblPerson = nullptr;
    QLabel* lblContact = nullptr;
    QLabel* lblUnits = nullptr;
    QLabel* lblComment = nullptr;
    QLabel* lblBirth = nullptr;
    QLabel* lblHire = nullptr;
    std::array<QLabel*, 3> unitCaptions_{};
};
