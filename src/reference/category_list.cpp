#include "reference/category_list.h"

#include "foundation/connection.h"
#include "foundation/names.h"

namespace
{
QString CategoriesQuery(int department)
{
    const QString usable =
        department != 0
            ? "SELECT Categories.RecordID, Categories.CategoryEnglishName, Categories.CategoryFrenchName, "
              "Categories.SystemName FROM Categories, CategoriesDepartments WHERE "
              "Categories.RecordID = CategoriesDepartments.CategoryID AND CategoriesDepartments.IsUsed = 1 AND "
              "CategoriesDepartments.DepartmentID = ?1 AND Categories.FiscalYear = ?2 AND Categories.Active = 1"
            : "SELECT RecordID, CategoryEnglishName, CategoryFrenchName, SystemName FROM Categories WHERE ?1 = 0 AND "
              "FiscalYear = ?2 AND Active = 1 AND IsPublic = 1";
    const QString visible = SessionState.AccessToRestrictedCategory == 1 ? "" : " AND Categories.Restricted = 0";
    return usable + visible + " ORDER BY Categories." + NameColumn("Category") + " ASC";
}

QString LegendQuery()
{
    const QString visible = SessionState.AccessToRestrictedCategory == 0 ? "AND Restricted = 0 " : "";
    return "SELECT RecordID, CategoryEnglishName, CategoryFrenchName, CategoryCode, CategoryColorCode FROM Categories "
           "WHERE FiscalYear = ? AND Active = 1 AND TimeBankRelated = 0 " +
           visible + "ORDER BY SystemName DESC, " + NameColumn("Category") + " ASC";
}
} // namespace

QString AllCategories()
{
    return T("(All categories)", "(Toutes les catégories)");
}

QVector<CategoryItem> LoadCategoryItems(DataControl& datAbsence, int department)
{
    const Connection connection(datAbsence);
    QVector<CategoryItem> items;
    for (const Recordset& row : datAbsence.Select(CategoriesQuery(department), department, SessionState.FiscalYearID))
        items.append(
            {row.Long("RecordID"), row.Text(NameColumn("Category")).trimmed(), row.Text("SystemName").trimmed()});
    return items;
}

QVector<LegendItem> LoadLegendItems(DataControl& datAbsence)
{
    const Connection connection(datAbsence);
    QVector<LegendItem> items;
    for (const Recordset& row : datAbsence.Select(LegendQuery(), SessionState.FiscalYearID)) {
        const QString code = row.Text("CategoryCode").trimmed();
        const QString name = row.Text(NameColumn("Category")).trimmed();
        items.append(
            {row.Long("RecordID"), code.isEmpty() ? name : code + "  " + name, row.Long("CategoryColorCode"), name});
    }
    return items;
}
