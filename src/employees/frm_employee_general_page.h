#pragma once

#include "employees/employee_record.h"
#include "foundation/frm_captions.h"
#include "platform/controls/entry_lists.h"
#include "selection/unit_lists.h"

#include <array>

/// The tab "General information": who the employee is, where he works, how he is reached.
class EmployeeGeneralPage : public QWidget
{
public:
    EmployeeGeneralPage();

    /// Fills the three unit lists.
    void LoadUnits(const std::array<QVector<Unit>, 3>& units);

    /// Shows the fields of a record, and its units.
    void Show(const EmployeeRecord& record);
    void Read(EmployeeRecord& record) const;
    /// `whyNot` is empty while the page takes entries.
    void EnableEntry(const Text& whyNot);

    QLineEdit* txtName = nullptr;
    std::array<ChoiceList*, 3> lstUnits{}; ///< lstOrganizations, lstDepartments, lstGroups

private:
    /// Where a field stands on its card.
    struct Place
    {
        int Row;
        int Column;
        int Columns = 1;
    };
    struct DateCombos
    {
        QComboBox* Year;
        QComboBox* Month;
        QComboBox* Day;
    };

    QWidget* PersonCard();
    QWidget* ContactCard();
    QWidget* UnitsCard();
    QWidget* CommentCard();
    void AddField(QGridLayout* raster, const Place& place, const QString& name, QString EmployeeRecord::*member,
                  const Text& caption, KeyFilter filter, int limit = kUnlimited);
    QVBoxLayout* DateField(const Text& caption, DateCombos& date, const QString& name, const QStringList& years);
    void ShowTexts(const EmployeeRecord& record);

    std::vector<std::pair<QLineEdit*, QString EmployeeRecord::*>> fields_;
    DateCombos birth_{};
    DateCombos hire_{};
    QPlainTextEdit* txtComment = nullptr;
};
