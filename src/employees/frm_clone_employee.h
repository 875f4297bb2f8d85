#pragma once

#include "employees/clone_source.h"
#include "foundation/frm_base.h"

/// Offers a colleague's record as a template for a new one. Leaving the form without a template changes nothing.
class frmCloneEmployee : public FormBase
{
public:
    /// `record`: the new employee, filled from the source chosen.
    explicit frmCloneEmployee(EmployeeRecord& record, QWidget* parent = nullptr);

private:
    void cmdCloneEmployee_Click();

    EmployeeRecord& record_;
    QListWidget* lstCloneEmployees;
};
