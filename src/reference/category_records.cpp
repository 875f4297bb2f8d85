#include "reference/category_records.h"

#include "foundation/connection.h"
#include "foundation/names.h"
#include "foundation/session_rows.h"
#include "foundation/values.h"
#include "ledger/category_entitlements.h"
#include "platform/clock.h"

namespace
{
constexpr const char* kDeactivatedName = "«DEACTIVATED»";

QVector<int> DepartmentsUsing(DataControl& datAbsence, int categoryID)
{
    QVector<int> departments;
    for (const Recordset& row : datAbsence.Select("SELECT DISTINCT DepartmentID FROM CategoriesDepartments WHERE "
                                                  "CategoryID = ? AND IsUsed = 1 ORDER BY DepartmentID",
                                                  categoryID))
        departments << row.Long("DepartmentID");
    return departments;
}

/// Every department of the year uses a public category, inactive ones too; it is linked to each of them once.
void LinkToAllDepartments(DataControl& datAbsence, const CategoryRow& category)
{
    datAbsence.Execute("DELETE FROM CategoriesDepartments WHERE CategoryID = ?", category.RecordID);
    datAbsence.Execute("INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed) "
                       "SELECT FiscalYear, ?, RecordID, 1 FROM Departments WHERE FiscalYear = ?",
                       category.RecordID, category.FiscalYear);
}

void LinkToTickedDepartments(DataControl& datAbsence, const CategoryEntry& entry)
{
    QStringList ticked;
    for (const int department : entry.UsedBy)
        ticked << QString::number(department);
    datAbsence.Execute("INSERT INTO CategoriesDepartments (FiscalYear, CategoryID, DepartmentID, IsUsed) "
                       "SELECT FiscalYear, ?, RecordID, 0 FROM Departments WHERE FiscalYear = ? AND NOT EXISTS "
                       "(SELECT 1 FROM CategoriesDepartments WHERE CategoryID = ? AND DepartmentID = "
                       "Departments.RecordID)",
                       entry.RecordID, entry.FiscalYear, entry.RecordID);
    datAbsence.Execute("UPDATE CategoriesDepartments SET IsUsed = (DepartmentID IN (" + ticked.join(", ") +
                           ")) WHERE CategoryID = ?",
                       entry.RecordID);
}

void UpdateCategoriesDepartments(DataControl& datAbsence, const CategoryEntry& entry)
{
    if (entry.IsPublic == 1)
        LinkToAllDepartments(datAbsence, entry);
    else
        LinkToTickedDepartments(datAbsence, entry);
}

/// Where the hours are set anew, the columns that say so are written whatever they hold now: another workstation may
/// have changed them meanwhile.
void ForgetEntitlement(CategoryRow& category)
{
    category.RequiresMonitoring = category.CarryOverAtYearEnd = -1;
    category.StandardEntitlement = -1;
}

/// What this user did not change is as another workstation may have stored it meanwhile.
CategoryEntry AsStored(const CategoryEntry& stored, const CategoryEntry& before, CategoryEntry entry)
{
    if (!ChangesDepartments(before, entry)) {
        entry.IsPublic = stored.IsPublic;
        entry.UsedBy = stored.UsedBy;
    }
    if (!ChangesEntitlements(before, entry))
        entry.RequiresMonitoring = stored.RequiresMonitoring;
    return entry;
}

/// The columns of which only those are written in which `after` differs.
CategoryRow ReplacedBy(const CategoryEntry& after, const CategoryEntry& stored, const CategoryEntry& before)
{
    CategoryRow replaced = before;
    replaced.IsPublic = stored.IsPublic;
    replaced.RequiresMonitoring = stored.RequiresMonitoring;
    if (ChangesEntitlements(before, after))
        ForgetEntitlement(replaced);
    return replaced;
}

void UpdateLedger(DataControl& datAbsence, const CategoryEntry& before, const CategoryEntry& entry)
{
    const bool changes = ChangesEntitlements(before, entry);
    if (changes && entry.RequiresMonitoring == 0) {
        DeactivateEntitlements(datAbsence, entry);
    } else if (changes) {
        UpdateEntitlements(datAbsence, entry);
        CreateEntitlements(datAbsence, entry);
    } else if (entry.RequiresMonitoring == 1 && ChangesDepartments(before, entry)) {
        ReactivateEntitlements(datAbsence, entry);
    }
}

void RefuseFor(const std::optional<Fault>& fault)
{
    if (fault)
        throw CategoryRefused(*fault);
}

/// The calendar's lists and colours follow.
void WriteCategory(DataControl& datAbsence, const std::function<void()>& work)
{
    InOpenYear(datAbsence, work);
    SessionState.ReloadCalendar = true;
}
} // namespace

QVector<ListEntry> LoadCategoryRecords(DataControl& datAbsence, bool activeOnly)
{
    const Connection connection(datAbsence);
    const QString name = NameColumn("Category");
    QVector<ListEntry> entries;
    for (const Recordset& row :
         datAbsence.Select("SELECT RecordID, " + name + " FROM Categories WHERE FiscalYear = ?" +
                               (activeOnly ? " AND Active = 1" : "") + " ORDER BY " + name + " ASC, RecordID ASC",
                           SessionState.FiscalYearID))
        entries.append({row.Text(name).trimmed(), row.Long("RecordID")});
    return entries;
}

CategoryEntry LoadCategory(DataControl& datAbsence, int recordID)
{
    const Connection connection(datAbsence);
    const auto found = Find<CategoryRow>(datAbsence, recordID);
    if (!found)
        return {};
    CategoryEntry entry = EntryOf(*found);
    entry.UsedBy = DepartmentsUsing(datAbsence, recordID);
    return entry;
}

bool IsCategoryNameTaken(DataControl& datAbsence, const char* column, const QString& name, int recordID)
{
    const Connection connection(datAbsence);
    return datAbsence.Read(QStringLiteral("SELECT RecordID FROM Categories WHERE FiscalYear = ? AND RecordID <> ? AND "
                                          "TRIM(%1) = ? COLLATE NOCASE")
                               .arg(QLatin1String(column)),
                           SessionState.FiscalYearID, recordID, name);
}

void AddCategory(DataControl& datAbsence, CategoryEntry entry)
{
    WriteCategory(datAbsence, [&] {
        RefuseFor(FaultOfCategoryNames(datAbsence, entry));
        entry.FiscalYear = SessionState.FiscalYearID;
        entry.CanBeRemoved = entry.Active = 1;
        entry.CreatedBy = UserStamp();
        entry.CreatedDate = Today();
        entry.RecordID = Add<CategoryRow>(datAbsence, entry);
        UpdateCategoriesDepartments(datAbsence, entry);
        if (entry.RequiresMonitoring == 1)
            CreateEntitlements(datAbsence, entry);
    });
}

void ModifyCategory(DataControl& datAbsence, const CategoryEntry& before, const CategoryEntry& entry)
{
    WriteCategory(datAbsence, [&] {
        RefuseFor(FaultOfActivity(datAbsence, entry));
        RefuseFor(FaultOfCategoryNames(datAbsence, entry));
        const CategoryEntry found = LoadCategory(datAbsence, entry.RecordID);
        const CategoryEntry& stored = found.RecordID != 0 ? found : before; // the server's rows are not read
        const CategoryEntry after = AsStored(stored, before, entry);
        Change<CategoryRow>(datAbsence, ReplacedBy(after, stored, before), after);
        UpdateCategoriesDepartments(datAbsence, after);
        UpdateLedger(datAbsence, before, after);
    });
}

void DeactivateCategory(DataControl& datAbsence, const CategoryEntry& entry)
{
    WriteCategory(datAbsence, [&] {
        RefuseFor(FaultOfActivity(datAbsence, entry));
        const QString name = QString::fromUtf8(kDeactivatedName);
        Change<CategoryRow>(datAbsence, entry.RecordID,
                            {{&CategoryRow::Active, 0},
                             {&CategoryRow::CategoryFrenchName, name},
                             {&CategoryRow::CategoryEnglishName, name}});
        DeactivateEntitlements(datAbsence, entry);
    });
}
