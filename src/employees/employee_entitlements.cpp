#include "employees/employee_entitlements.h"

#include "foundation/entitlement_row.h"
#include "foundation/names.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
constexpr int kMostCategories = 1000;
constexpr int kMostReminders = 25;

/// The categories of the year that are no part of the time bank. `UsedHere` says whether they are offered in the
/// department, or to those who have none.
Recordset SelectCategories(DataControl& datAbsence, int department)
{
    const QString select = "SELECT Categories.RecordID, Active, RequiresMonitoring, StandardEntitlement, Restricted, "
                           "CarryOverAtYearEnd, " +
                           NameColumn("Category") + " AS CategoryName, ";
    if (department == 0)
        return datAbsence.Select(select + "IsPublic AS UsedHere FROM Categories WHERE FiscalYear = ? AND "
                                          "TimeBankRelated = 0",
                                 SessionState.FiscalYearID);
    return datAbsence.Select(select + "IsUsed AS UsedHere FROM Categories, CategoriesDepartments WHERE "
                                      "Categories.RecordID = CategoriesDepartments.CategoryID AND "
                                      "CategoriesDepartments.DepartmentID = ? AND Categories.FiscalYear = ? AND "
                                      "Categories.TimeBankRelated = 0",
                             department, SessionState.FiscalYearID);
}

int IsMonitored(const Recordset& category)
{
    const bool offered = category.Long("Active") != 0 && category.Long("UsedHere") != 0;
    return offered ? category.Long("RequiresMonitoring") : 0;
}

bool NeedsReminder(const Recordset& category)
{
    return category.Single("StandardEntitlement") == 0 && IsMonitored(category) == 1 &&
           category.Long("Restricted") == 0;
}

EntitlementRow NewEntitlement(const Recordset& category, int employee)
{
    EntitlementRow row;
    row.FiscalYear = SessionState.FiscalYearID;
    row.CategoryID = category.Long("RecordID");
    row.EmployeeID = employee;
    row.AnnualEntitlement = category.Single("StandardEntitlement");
    row.MayBeCarriedOver = category.Long("CarryOverAtYearEnd");
    row.EnteredBy = UserStamp();
    row.EnteredDate = Today();
    row.Active = IsMonitored(category);
    row.Comment = "SYSTEM GENERATED";
    return row;
}
} // namespace

QStringList CreateEntitlements(DataControl& datAbsence, const EmployeeRecord& record, int employee)
{
    QStringList reminders;
    Recordset category = SelectCategories(datAbsence, record.DepartmentID);
    for (int held = 0; !category.AtEnd() && held < kMostCategories; category.MoveNext(), ++held) {
        if (NeedsReminder(category) && reminders.size() < kMostReminders)
            reminders << category.Text("CategoryName").trimmed();
        Add(datAbsence, NewEntitlement(category, employee));
    }
    return reminders;
}

void DeactivateEntitlements(DataControl& datAbsence, int employee)
{
    datAbsence.Execute("UPDATE Entitlements SET Active = 0, ModifiedBy = ?, ModifiedDate = ? WHERE EmployeeID = ?",
                       UserStamp(), Today(), employee);
}
