#include "employees/employee_entitlements.h"

#include "foundation/rows.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "platform/clock.h"
#include "reference/category_list.h"

namespace
{
constexpr int kMostCategories = 1000;
constexpr int kMostReminders = 25;

/// The categories of the year that are no part of the time bank. `UsedHere` says whether they are offered in the
/// department, or to those who have none.
Recordset SelectCategories(DataControl& datAbsence, int department)
{
    if (department == 0)
        return datAbsence.Select("SELECT *, IsPublic AS UsedHere FROM Categories WHERE FiscalYear = ? AND "
                                 "TimeBankRelated = 0",
                                 SessionState.FiscalYearID);
    return datAbsence.Select("SELECT Categories.*, CategoriesDepartments.IsUsed AS UsedHere FROM Categories, "
                             "CategoriesDepartments WHERE Categories.RecordID = CategoriesDepartments.CategoryID AND "
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

RowValues NewEntitlement(const Recordset& category, int employee)
{
    return {{"FiscalYear", SessionState.FiscalYearID},
            {"CategoryID", category.Long("RecordID")},
            {"EmployeeID", employee},
            {"CarriedOver", 0},
            {"AnnualEntitlement", category.Single("StandardEntitlement")},
            {"MayBeCarriedOver", category.Long("CarryOverAtYearEnd")},
            {"EnteredBy", Who()},
            {"EnteredDate", Today()},
            {"ModifiedBy", QString("")},
            {"ModifiedDate", 0},
            {"Active", IsMonitored(category)},
            {"Comment", QString("SYSTEM GENERATED")}};
}
} // namespace

QStringList CreateEntitlements(DataControl& datAbsence, const EmployeeRecord& record, int employee)
{
    QStringList reminders;
    Recordset category = SelectCategories(datAbsence, record.DepartmentID);
    for (int held = 0; !category.AtEnd() && held < kMostCategories; category.MoveNext(), ++held) {
        if (NeedsReminder(category) && reminders.size() < kMostReminders)
            reminders << category.Text(CategoryNameColumn()).trimmed();
        AddRow(datAbsence, "Entitlements", NewEntitlement(category, employee));
    }
    return reminders;
}

void DeactivateEntitlements(DataControl& datAbsence, int employee)
{
    if (SessionState.SQL_Server)
        return SendToServer(QStringLiteral("UPDATE Entitlements SET Active = 0, ModifiedBy = '%1', ModifiedDate = %2 "
                                           "WHERE EmployeeID = %3")
                                .arg(Who(), QString::number(Today()), QString::number(employee)));
    datAbsence.Execute("UPDATE Entitlements SET Active = 0, ModifiedBy = ?, ModifiedDate = ? WHERE EmployeeID = ?",
                       Who(), Today(), employee);
}
