#include "calendar/frm_main.h"
#include "foundation/connection.h"
#include "foundation/log_in.h"
#include "measuring.h"
#include "platform/controls/flex_grid.h"

#include <QCoreApplication>
#include <QPixmap>

namespace
{
/// The calendar of a selection: records, model, and the whole grid painted.
class CalendarOf : public Measured
{
public:
    CalendarOf(BigCompany& company, int employee) : Measured(company)
    {
        company.LogIn("U0001");
        main_.show();
        main_.Form_Load();
        main_.timAbsence_Timer();
        QCoreApplication::processEvents();
        SessionState.EmployeeID = employee;
        SessionState.EmployeeGroupID = 0;
        SessionState.EmployeeDepartmentID = 0;
        SessionState.EmployeeOrganizationID = 0;
    }

    void Work() override
    {
        main_.LoadDates();
        main_.findChild<FlexGrid*>("flxCalendar")->grab();
    }

private:
    frmMain main_;
};

class CalendarOfOneEmployee : public CalendarOf
{
public:
    explicit CalendarOfOneEmployee(BigCompany& company) : CalendarOf(company, BigCompany::kEmployee) {}
};

class CalendarOfTheCompany : public CalendarOf
{
public:
    explicit CalendarOfTheCompany(BigCompany& company) : CalendarOf(company, 0) {}
};

/// From the accepted log-in to the painted first calendar; the second that the timer waits is left out.
class LogInToFirstCalendar : public Measured
{
public:
    explicit LogInToFirstCalendar(BigCompany& company) : Measured(company) { company.LogIn("U0001"); }

    void Work() override
    {
        {
            const Connection connection(datAbsence);
            LogInUser(datAbsence, SessionState.FiscalYearID);
        }
        main_ = std::make_unique<frmMain>();
        main_->show();
        main_->Form_Load();
        QCoreApplication::processEvents();
        main_->timAbsence_Timer();
        QCoreApplication::processEvents();
    }

    void CleanUp() override { main_.reset(); }

private:
    DataControl datAbsence{"tarvell_bench"};
    std::unique_ptr<frmMain> main_;
};
} // namespace

void RegisterCalendar(BigCompany& company)
{
    Register<CalendarOfOneEmployee>("Calendar of one employee", company, Floor::Statements, {0, 6});
    Register<CalendarOfTheCompany>("Calendar of the whole company", company, Floor::Statements, {1.5, 10});
    Register<LogInToFirstCalendar>("Log-in to first calendar", company, Floor::Statements, {0, 50});
}
