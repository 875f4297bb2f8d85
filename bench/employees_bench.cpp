#include "employees/frm_employees.h"
#include "foundation/common_services.h"
#include "opening.h"
#include "reference/employees_list.h"
#include "selection/frm_select_employee.h"

#include <QListWidget>

namespace
{
/// The employee file with one employee of the year on the screen: Work loads him or saves him.
class EmployeeFile : public Measured
{
public:
    explicit EmployeeFile(BigCompany& company) : Measured(company)
    {
        company.LogIn("U0001");
        SetMessagePresenter([](const Message&) { return MessageCode::Yes; });
    }

    void Prepare() override { user_.Opens<frmEmployees>(); }
    void CleanUp() override
    {
        user_.Leaves();
        Company().Sql("DELETE FROM Employees_Modifications");
    }

protected:
    void LoadOne()
    {
        user_.WhenOpens<frmSelectEmployee>([this](frmSelectEmployee& form) {
            auto* employees = form.findChild<QListWidget*>("lstEmployees");
            employees->setCurrentRow(employees->count() / 2);
            user_.Clicks("cmdSelect");
        });
        user_.Clicks("cmdModify");
    }
    User user_;
};

class Loading : public EmployeeFile
{
public:
    using EmployeeFile::EmployeeFile;
    void Work() override { LoadOne(); }
};

class Saving : public EmployeeFile
{
public:
    using EmployeeFile::EmployeeFile;
    void Prepare() override
    {
        EmployeeFile::Prepare();
        LoadOne();
        user_.Types("txtComment", "Measured");
    }
    void Work() override
    {
        user_.Clicks("cmdModify");
        if (user_.CanUse("cmdCancelOperation"))
            Complain("the employee was not saved: " + SessionState.MessageText);
    }
};

class Rebuilding : public Measured
{
public:
    explicit Rebuilding(BigCompany& company) : Measured(company) { company.LogIn("U0001"); }
    void Work() override { ReloadEmployeesList(datAbsence, ListedEmployees::All); }

private:
    DataControl datAbsence{"frmEmployees"};
};
} // namespace

void RegisterEmployees(BigCompany& company)
{
    Register<Opening<frmEmployees>>("Opening frmEmployees", company, Floor::Statements, {0, 40});
    Register<Loading>("Employee loaded", company, Floor::Statements, {0, 100});
    Register<Saving>("Employee saved", company, Floor::Commit, {1, 100});
    Register<Rebuilding>("Employees_List rebuilt", company, Floor::Commit, {1, 300});
}
