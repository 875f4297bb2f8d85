#include "reports/lists_content.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/levels.h"
#include "foundation/names.h"
#include "foundation/texts.h"
#include "reference/employees_list.h"

namespace
{
QString Entitlement(const Recordset& category)
{
    if (category.Long("RequiresMonitoring") != 1)
        return T("No annual entitlement", "Aucun temps alloué");
    const float standard = category.Single("StandardEntitlement");
    return standard == 0 ? T("Varies between employees", "Varie entre employés") : DurationText(standard);
}

QStringList CategoryCells(const Recordset& category)
{
    return {category.Text(NameColumn("Category")).trimmed(), Entitlement(category),
            category.Long("CarryOverAtYearEnd") == 1 ? T("Yes", "Oui") : T("No", "Non")};
}

QString EmployeesQuery(const QString& reach)
{
    return Fill(
        "SELECT Employees_List.{org} AS Org, Employees_List.{dept} AS Dept, Employees_List.{group} AS Groupe, "
        "Employees_List.FamilyName, Employees_List.FirstName, Employees.LoginID, Employees.Password "
        "FROM Employees_List, Employees WHERE Employees_List.EmplID = Employees.RecordID "
        "AND Employees_List.FiscalYear = ? AND {reach} ORDER BY Employees_List.{org} ASC, "
        "Employees_List.{dept} ASC, Employees_List.{group} ASC, Employees_List.FamilyName ASC, "
        "Employees_List.FirstName ASC",
        {{"org", NameColumn("Org")}, {"dept", NameColumn("Dept")}, {"group", NameColumn("Group")}, {"reach", reach}});
}

QStringList EmployeeCells(const Recordset& row)
{
    QStringList cells;
    for (const char* unit : {"Org", "Dept", "Groupe"})
        cells << row.Text(unit).trimmed();
    return cells << ListedName(row) << row.Text("LoginID") << row.Text("Password");
}
} // namespace

ReferenceList ListOfCategories(DataControl& datAbsence)
{
    ReferenceList list{T("Categories list:", "Liste des catégories:"),
                       {T("Category", "Catégorie"), T("Annual entitlement", "Temps alloué annuellement"),
                        T("Balance can be carried over at the end of the fiscal year",
                          "Solde reportable à la fin de l'année fiscale")},
                       {}};
    const QString visible = SessionState.AccessToRestrictedCategory == 1 ? "" : " AND Categories.Restricted = 0";
    const Connection connection(datAbsence);
    for (const Recordset& row :
         datAbsence.Select("SELECT " + NameColumn("Category") +
                               ", RequiresMonitoring, StandardEntitlement, "
                               "CarryOverAtYearEnd FROM Categories WHERE FiscalYear = ? AND Active = 1" +
                               visible + " ORDER BY Categories." + NameColumn("Category") + " ASC",
                           SessionState.FiscalYearID))
        list.Rows.append(CategoryCells(row));
    return list;
}

ReferenceList ListOfEmployees(DataControl& datAbsence)
{
    ReferenceList list{T("Employees list:", "Liste des employés:"),
                       {T("Organization (Division)", "Organisation (Division)"), T("Department", "Département"),
                        T("Group", "Groupe"), T("Name", "Nom"), T("Username", "Nom d'usager"),
                        T("Password", "Mot-clé")},
                       {}};
    const Connection connection(datAbsence);
    ReloadEmployeesListIfFlagged(datAbsence, ListedEmployees::All);
    const auto [reach, unit] = WidestScope(Access::Read, &Level::ListColumn);
    for (const Recordset& row : datAbsence.Select(EmployeesQuery(reach), SessionState.FiscalYearID, unit))
        list.Rows.append(EmployeeCells(row));
    return list;
}
