#pragma once

#include "foundation/frm_base.h"
#include "platform/controls/entry_lists.h"
#include "selection/employee_reach.h"

/// Lets the user choose a unit or an employee among those that his rights reach. Choosing an entry narrows the lists
/// below it. For the calendar the choice goes to the session when it is selected; for an employee's record an employee
/// must be chosen, and the caller reads him from ChosenEmployeeID. Leaving the form changes nothing.
class frmSelectEmployee : public FormBase
{
public:
    enum class Purpose
    {
        Calendar,
        EmployeeRecord
    };
    explicit frmSelectEmployee(QWidget* parent = nullptr, Purpose purpose = Purpose::Calendar);

    /// Employees.RecordID of the employee selected; 0 when the form was left, or for a whole unit.
    int ChosenEmployeeID() const { return result() == Accepted ? choice_.EmployeeID : 0; }
    /// The shown name of what was selected; empty when the form was left.
    QString ChosenName() const { return result() == Accepted ? choice_.CurrentSelection : QString(); }

private:
    void AddList(QGridLayout* content, ReachList list);
    void LoadListBoxes();
    void LoadList(ReachList list);
    void Choose(ReachList list, int entry);
    void HighlightChoice(ReachList upTo);
    void NameStartingUnit();
    void ShowChoice();
    bool CanBeSelected() const;
    void cmdSelect_Click();

    const Purpose purpose_;
    CalendarSelection choice_; ///< the ids below the one chosen are 0, and all are 0 for none
    std::array<QVector<ReachEntry>, kReachLists> entries_;
    std::array<ChoiceList*, kReachLists> lists_; ///< lstOrganizations, lstDepartments, lstGroups, lstEmployees
    QLabel* lblChoice;
    QPushButton* cmdSelect;
};
