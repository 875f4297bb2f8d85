#include "opening.h"
#include "reference/category_records.h"
#include "reference/frm_categories.h"
#include "reference/frm_holidays.h"

namespace
{
/// A monitored category of the whole company: its 1,000 entitlements are written with it.
class CategoryAdded : public Measured
{
public:
    explicit CategoryAdded(BigCompany& company) : Measured(company) { company.LogIn("U0001"); }

    void Work() override { AddCategory(datAbsence, Monitored(NewCategory())); }
    void CleanUp() override
    {
        Company().Sql("DELETE FROM Entitlements WHERE CategoryID IN (SELECT RecordID FROM Categories WHERE "
                      "CategoryEnglishName = 'Measured')");
        Company().Sql("DELETE FROM CategoriesDepartments WHERE CategoryID IN (SELECT RecordID FROM Categories WHERE "
                      "CategoryEnglishName = 'Measured')");
        Company().Sql("DELETE FROM Categories WHERE CategoryEnglishName = 'Measured'");
    }

protected:
    static CategoryEntry Monitored(CategoryEntry entry)
    {
        entry.CategoryEnglishName = entry.CategoryFrenchName = "Measured";
        entry.Kind = EntitlementKind::Standard;
        entry.RequiresMonitoring = 1;
        entry.StandardEntitlement = 35;
        return entry;
    }

    DataControl datAbsence{"frmCategories"};
};

/// Its standard hours are changed: each entitlement goes to the audit twin and is set anew.
class KindChanged : public CategoryAdded
{
public:
    using CategoryAdded::CategoryAdded;

    void Prepare() override
    {
        CategoryAdded::Work();
        const int added = Company().Number("SELECT MAX(RecordID) FROM Categories");
        before_ = LoadCategory(datAbsence, added);
    }
    void Work() override
    {
        CategoryEntry entry = before_;
        entry.Kind = EntitlementKind::Varies;
        entry.StandardEntitlement = 0;
        ModifyCategory(datAbsence, before_, entry);
    }
    void CleanUp() override
    {
        CategoryAdded::CleanUp();
        Company().Sql("DELETE FROM Entitlements_Modifications");
        Company().Sql("DELETE FROM Categories_Modifications");
    }

private:
    CategoryEntry before_;
};
} // namespace

void RegisterCategories(BigCompany& company)
{
    Register<Opening<frmCategories>>("Opening frmCategories", company, Floor::Statements, {0, 40});
    Register<Opening<frmHolidays>>("Opening frmHolidays", company, Floor::Statements, {0, 40});
    Register<CategoryAdded>("Category added", company, Floor::Commit, {0, 1000});
    Register<KindChanged>("Kind of category changed", company, Floor::Commit, {0, 1000});
}
