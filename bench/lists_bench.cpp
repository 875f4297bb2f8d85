#include "attendance/frm_attendance.h"
#include "opening.h"
#include "selection/frm_select_employee.h"

void RegisterLists(BigCompany& company)
{
    Register<Opening<frmSelectEmployee>>("Opening frmSelectEmployee", company, Floor::Statements, {0, 100});
    Register<Opening<frmAttendance>>("Opening frmAttendance", company, Floor::Statements, {0, 100});
}
