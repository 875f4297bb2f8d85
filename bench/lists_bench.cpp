#include "attendance/frm_attendance.h"
#include "ledger/frm_entitlements.h"
#include "opening.h"
#include "platform/clock.h"
#include "selection/frm_select_employee.h"

namespace
{
AttendanceJob OneDate()
{
    return {SessionState, AttendanceKind::Add, {SerialOfDate({2026, 12, 31})}};
}
} // namespace

void RegisterLists(BigCompany& company)
{
    Register<Opening<frmSelectEmployee>>("Opening frmSelectEmployee", company, Floor::Statements, {0, 40});
    Register<Opening<frmAttendance, OneDate>>("Opening frmAttendance", company, Floor::Statements, {0, 40});
    Register<Opening<frmEntitlements>>("Opening frmEntitlements", company, Floor::Statements, {0, 40});
}
