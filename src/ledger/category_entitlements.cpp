#include "ledger/category_entitlements.h"

#include "foundation/connection.h"
#include "foundation/entitlement_row.h"
#include "foundation/session_state.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
/// 1 where the employee E may use the category, 0 elsewhere.
QString UsedByEmployee(const CategoryRow& category)
{
    return QStringLiteral("CASE WHEN (%1 = 0 AND E.DepartmentID = 0) OR EXISTS (SELECT 1 FROM CategoriesDepartments "
                          "AS D WHERE D.CategoryID = %2 AND D.DepartmentID = E.DepartmentID AND D.IsUsed = 0) "
                          "THEN 0 ELSE 1 END")
        .arg(category.IsPublic)
        .arg(category.RecordID);
}

/// The same of the employee whom an entitlement names.
QString UsedByOwner(const CategoryRow& category)
{
    return "COALESCE((SELECT " + UsedByEmployee(category) +
           " FROM Employees AS E WHERE E.RecordID = Entitlements.EmployeeID), 1)";
}

/// Active employees of the category's year who have no entitlement there.
QString WithoutEntitlement(const CategoryRow& category)
{
    return QStringLiteral("Employees AS E WHERE E.FiscalYear = %1 AND E.DeactivatedDate = 0 AND NOT EXISTS (SELECT 1 "
                          "FROM Entitlements WHERE CategoryID = %2 AND EmployeeID = E.RecordID)")
        .arg(category.FiscalYear)
        .arg(category.RecordID);
}

/// Those that `conditions` finds go to the audit twin; then `settings` are written with who changed them when.
void ChangeEntitlements(DataControl& datAbsence, const QString& conditions, const QString& settings,
                        const Values& values = {})
{
    CopyToAuditTwin(datAbsence, kTable<EntitlementRow>, conditions);
    datAbsence.Run("UPDATE Entitlements SET " + settings + ", ModifiedBy = ?, ModifiedDate = ? WHERE " + conditions,
                   Values(values) << UserStamp() << Today());
}

QString OfCategory(const CategoryRow& category)
{
    return QStringLiteral("CategoryID = %1").arg(category.RecordID);
}
} // namespace

void CreateEntitlements(DataControl& datAbsence, const CategoryRow& category)
{
    datAbsence.Execute(
        "INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, CarriedOver, AnnualEntitlement, "
        "MayBeCarriedOver, EnteredBy, EnteredDate, ModifiedBy, ModifiedDate, Active, Comment) SELECT ?, ?, "
        "E.RecordID, 0, ?, ?, ?, ?, '', 0, " +
            UsedByEmployee(category) + ", 'SYSTEM GENERATED' FROM " + WithoutEntitlement(category) +
            " ORDER BY E.RecordID",
        category.FiscalYear, category.RecordID, category.StandardEntitlement, category.CarryOverAtYearEnd, UserStamp(),
        Today());
}

void UpdateEntitlements(DataControl& datAbsence, const CategoryRow& category)
{
    ChangeEntitlements(datAbsence, OfCategory(category),
                       "AnnualEntitlement = ?, MayBeCarriedOver = ?, Active = " + UsedByOwner(category),
                       {category.StandardEntitlement, category.CarryOverAtYearEnd});
}

void DeactivateEntitlements(DataControl& datAbsence, const CategoryRow& category)
{
    ChangeEntitlements(datAbsence, OfCategory(category), "Active = 0");
}

void ReactivateEntitlements(DataControl& datAbsence, const CategoryRow& category)
{
    const QString used = UsedByOwner(category);
    ChangeEntitlements(datAbsence, OfCategory(category) + " AND Active <> " + used, "Active = " + used);
}

int CountActiveEmployees(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    return datAbsence.Scalar<int>("SELECT COUNT(*) FROM Employees WHERE FiscalYear = ? AND DeactivatedDate = 0",
                                  SessionState.FiscalYearID);
}

EntitledEmployees CountEntitled(DataControl& datAbsence, const CategoryRow& category)
{
    EntitledEmployees count;
    const Recordset rows = datAbsence.Select("SELECT COUNT(*) AS Listed, SUM(AnnualEntitlement <> ?) AS SetSingly FROM "
                                             "Entitlements WHERE CategoryID = ?",
                                             category.StandardEntitlement, category.RecordID);
    rows.Take("Listed", count.Listed);
    if (category.RequiresMonitoring == 1) // otherwise the hours are those that stood when it ended
        rows.Take("SetSingly", count.SetSingly);
    count.All = count.Listed + datAbsence.Scalar<int>("SELECT COUNT(*) FROM " + WithoutEntitlement(category));
    return count;
}
