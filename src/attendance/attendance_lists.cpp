#include "attendance/attendance_records.h"
#include "foundation/connection.h"
#include "foundation/texts.h"

namespace
{
constexpr int kLocationWidth = 20;

/// One of the ways in which rights reach employees.
struct Reach
{
    bool Holds;
    QString Location; ///< expression of the column Location, empty for none
    QString Join;
    QString Filter;
    QString Order;
};

QString ApprovedOr(const char* column, int unit)
{
    return QStringLiteral(" AND (Employees.%1 = %2 OR Employees.AttendanceApprovedBy_Main = %3 OR "
                          "Employees.AttendanceApprovedBy_Backup = %3)")
        .arg(QLatin1String(column))
        .arg(unit)
        .arg(SessionState.UserID);
}

/// In the order in which the rights are tested.
QVector<Reach> Reaches()
{
    const Session& s = SessionState;
    const QString organization = T("Organizations.OrganizationEnglishName", "Organizations.OrganizationFrenchName");
    const QString department = T("Departments.DepartmentEnglishName", "Departments.DepartmentFrenchName");
    // The departments stand in the order of their English names in both languages; that is kept.
    return {{s.GlobalLevelCreate == 1, organization,
             " LEFT JOIN Organizations ON Employees.OrganizationID = Organizations.RecordID", "", organization + ", "},
            {s.OrganizationLevelCreate == 1, department,
             " LEFT JOIN Departments ON Employees.DepartmentID = Departments.RecordID",
             ApprovedOr("OrganizationID", s.UserOrganizationID), "Departments.DepartmentEnglishName, "},
            {s.DepartmentLevelCreate == 1 && s.UserDepartmentID != 0, "", "",
             ApprovedOr("DepartmentID", s.UserDepartmentID), ""},
            {s.GroupLevelCreate == 1 && s.UserGroupID != 0, "", "", ApprovedOr("GroupID", s.UserGroupID), ""}};
}

QString EmployeesWithin(const Reach& reach)
{
    const QString location = reach.Location.isEmpty() ? QString() : ", " + reach.Location + " AS Location";
    const QString notOneself = SessionState.SelfLevelCreate == 1 ? "" : " AND Employees.RecordID <> ?";
    return "SELECT Employees.RecordID, Employees.FamilyName, Employees.FirstName" + location + " FROM Employees" +
           reach.Join + " WHERE Employees.FiscalYear = ? AND Employees.DeactivatedDate = 0" + notOneself +
           reach.Filter + " ORDER BY " + reach.Order + "Employees.FamilyName, Employees.FirstName";
}

Recordset SelectWithin(DataControl& datAbsence, AttendanceEntry& entry, const Reach& reach)
{
    const Session& s = SessionState;
    if (s.SelfLevelCreate == 1)
        return datAbsence.Select(EmployeesWithin(reach), s.FiscalYearID);
    if (entry.EmployeeID == s.UserID)
        entry.EmployeeID = 0;
    return datAbsence.Select(EmployeesWithin(reach), s.FiscalYearID, s.UserID);
}

QVector<ListEntry> EmployeeItems(Recordset people, bool located)
{
    QVector<ListEntry> items;
    for (; !people.AtEnd(); people.MoveNext()) {
        QString text = people.Text("FamilyName").trimmed() + ", " + people.Text("FirstName").trimmed();
        if (located && !people.IsNull("Location"))
            text += " / " + people.Text("Location").trimmed().left(kLocationWidth).rightJustified(kLocationWidth);
        items << ListEntry{text, people.Long("RecordID")};
    }
    return items;
}

/// Departments use some of the categories; an employee without a department has the public ones.
Recordset SelectCategories(DataControl& datAbsence, int department)
{
    const Session& s = SessionState;
    const QString end = (s.AccessToRestrictedCategory == 1 ? "" : " AND Categories.Restricted = 0 ") +
                        T(" ORDER BY Categories.CategoryEnglishName", " ORDER BY Categories.CategoryFrenchName");
    if (department == 0)
        return datAbsence.Select("SELECT * FROM Categories WHERE FiscalYear = ? AND Active = 1 AND IsPublic = 1" + end,
                                 s.FiscalYearID);
    return datAbsence.Select(
        "SELECT Categories.RecordID, Categories.CategoryEnglishName, Categories.CategoryFrenchName, "
        "Categories.SystemName FROM Categories, CategoriesDepartments WHERE Categories.RecordID = "
        "CategoriesDepartments.CategoryID AND CategoriesDepartments.IsUsed = 1 AND CategoriesDepartments.DepartmentID "
        "= "
        "? AND Categories.FiscalYear = ? AND Categories.Active = 1" +
            end,
        department, s.FiscalYearID);
}
} // namespace

std::optional<QVector<ListEntry>> LoadRecords(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    if (entry.Kind != AttendanceKind::Submit) {
        for (const Reach& reach : Reaches())
            if (reach.Holds)
                return EmployeeItems(SelectWithin(datAbsence, entry, reach), !reach.Location.isEmpty());
        if (SessionState.SelfLevelCreate != 1)
            return std::nullopt;
    }
    return EmployeeItems(datAbsence.Select("SELECT FamilyName, FirstName, RecordID FROM Employees WHERE RecordID = ?",
                                           SessionState.UserID),
                         false);
}

QVector<ListEntry> LoadCategories(DataControl& datAbsence, AttendanceEntry& entry)
{
    const Connection connection(datAbsence);
    QVector<ListEntry> items = {{T("(All categories)", "(Toutes les catégories)"), 0}};
    entry.TimeClaimedCategoryID = 0;
    for (Recordset rows = SelectCategories(datAbsence, entry.EmployeeDepartmentID); !rows.AtEnd(); rows.MoveNext()) {
        const int category = rows.Long("RecordID");
        items << ListEntry{rows.Text(SessionState.English ? "CategoryEnglishName" : "CategoryFrenchName").trimmed(),
                           category};
        if (rows.Text("SystemName").trimmed() == "Time claimed")
            entry.TimeClaimedCategoryID = category;
    }
    return items;
}
