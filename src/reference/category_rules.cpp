#include "reference/category_rules.h"

#include "foundation/common_services.h"
#include "foundation/connection.h"
#include "foundation/texts.h"
#include "ledger/category_entitlements.h"
#include "reference/category_colors.h"
#include "reference/category_records.h"

namespace
{
/// Standard hours as the two boxes show them.
std::pair<QString, QString> TimeOf(float hours)
{
    if (hours == 0)
        return {};
    const QString text = DurationText(hours);
    return {text.chopped(3), text.right(2)};
}

void TidyTexts(CategoryRow& category)
{
    for (QString CategoryRow::*text :
         {&CategoryRow::CategoryEnglishName, &CategoryRow::CategoryFrenchName, &CategoryRow::CategoryCode})
        category.*text = (category.*text).trimmed();
    if (category.CategoryEnglishName.isEmpty())
        category.CategoryEnglishName = category.CategoryFrenchName;
    if (category.CategoryFrenchName.isEmpty())
        category.CategoryFrenchName = category.CategoryEnglishName;
}

void TakeEntitlement(CategoryEntry& entry)
{
    entry.RequiresMonitoring = entry.Kind == EntitlementKind::Standard || entry.Kind == EntitlementKind::Varies;
    if (entry.Kind != EntitlementKind::Standard)
        entry.StandardEntitlement = 0;
    else if (TimeOf(entry.StandardEntitlement) != std::pair(entry.Hours, entry.Minutes))
        entry.StandardEntitlement = DecimalHours(entry.Hours.toFloat(), entry.Minutes.toFloat());
}

Fault InYear(const char* control, const Text& text)
{
    return {control, T(text, {{"FiscalYearName", SessionState.FiscalYearName}})};
}

std::optional<Fault> FaultOfEntitlement(const CategoryEntry& entry)
{
    if (entry.Kind == EntitlementKind::NotChosen)
        return Fault{"optStandardEntitlement",
                     T("You must specify whether or not an annual entitlement applies for this category!",
                       "Vous devez spécifier si oui ou non un temps alloué annuellement s'applique à cette "
                       "catégorie!")};
    if (entry.Kind == EntitlementKind::Standard && entry.StandardEntitlement == 0)
        return Fault{"txtAnnualEntitlement_Hours",
                     T({"You must specify an annual entitlement for the category «{name}»!",
                        "Vous devez spécifier le temps alloué annuellement pour la catégorie «{name}»!"},
                       {{"name", ShownName(entry)}})};
    return {};
}

QString EntitlementFact(const CategoryEntry& entry)
{
    if (entry.Kind == EntitlementKind::Varies)
        return T(" - The annual entitlement for this category varies between employees",
                 " - Le temps alloué annuellement pour cette catégorie varie selon les employés");
    if (entry.Kind == EntitlementKind::None)
        return T(" - There is no annual entitlement for this category",
                 " - Aucun temps n'est alloué annuellement pour cette catégorie");
    return T({" - Every employee is entitled to {h} hours and {m} minutes for this category",
              " - Chaque employé a droit à {h} heures et {m} minutes pour cette catégorie"},
             {{"h", QString::number(entry.Hours.toInt())}, {"m", QString::number(entry.Minutes.toInt())}});
}

QString CarryFact(bool carries)
{
    return carries ? T(" - Balance of annual entitlement can be carried over into the new fiscal year",
                       " - Le solde du temps alloué annuellement est transférable à la fin de l'année fiscale")
                   : T(" - Balance of annual entitlement cannot be carried over into the new fiscal year",
                       " - Le solde du temps alloué N'EST PAS  transférable à la fin de l'année fiscale");
}

QString AbsenceFact(bool absence)
{
    return absence ? T(" - Attendance records under this category are absences",
                       " - Les enregistrements sous cette catégorie sont des absences")
                   : T(" - Attendance records under this category are NOT absences",
                       " - Les enregistrements sous cette catégorie ne sont pas des absences");
}

QString HiddenFact(bool hidden, bool modifying)
{
    if (modifying)
        return hidden ? T("Records under this category of attendance are «hidden»",
                          " - Les enregistrements sous cette catégorie sont «dissimulés»")
                      : T("Records under this category of attendance are «public»",
                          " - Les enregistrements sous cette catégorie sont «publics»");
    return hidden ? T("Records under this category of attendance are only visible to authorized users",
                      " - Les enregistrements sous cette catégorie ne sont visibles qu'aux personnes autorisées")
                  : T("Records under this category of attendance can be seen by all users",
                      " - Les enregistrements sous cette catégorie ne sont pas dissimulés");
}
} // namespace

CategoryEntry NewCategory()
{
    CategoryEntry entry;
    entry.ConstitutesAnAbsence = entry.IsPublic = 1;
    entry.CategoryColorCode = QString::number(kNoCategoryColor);
    return entry;
}

CategoryEntry EntryOf(const CategoryRow& category)
{
    CategoryEntry entry{category, EntitlementKind::Varies, {}, {}, {}};
    TidyTexts(entry);
    std::tie(entry.Hours, entry.Minutes) = TimeOf(category.StandardEntitlement);
    if (category.RequiresMonitoring != 1)
        entry.Kind = EntitlementKind::None;
    else if (category.StandardEntitlement != 0)
        entry.Kind = EntitlementKind::Standard;
    return entry;
}

QString ShownName(const CategoryRow& category)
{
    return SessionState.English ? category.CategoryEnglishName : category.CategoryFrenchName;
}

int ColorOf(const CategoryRow& category)
{
    return category.CategoryColorCode.isEmpty() ? kNoCategoryColor : category.CategoryColorCode.toInt();
}

bool IsReserved(const CategoryRow& category)
{
    return !category.SystemName.trimmed().isEmpty();
}

namespace
{
struct NameInUse
{
    const char* Column;
    QString CategoryRow::*Member;
    const char* Control;
    Text Told;
};
constexpr NameInUse kNamesInUse[] = {
    {"CategoryEnglishName",
     &CategoryRow::CategoryEnglishName,
     "txtEnglishName",
     {"The English name you specified for the category has already been used in fiscal year {FiscalYearName}!",
      "Le nom anglais de la catégorie a déjà été utilisé au cours de l'année fiscale {FiscalYearName}!"}},
    {"CategoryFrenchName",
     &CategoryRow::CategoryFrenchName,
     "txtFrenchName",
     {"The French name you specified for the category has already been used in fiscal year {FiscalYearName}!",
      "Le nom français de la catégorie a déjà été utilisé au cours de l'année fiscale {FiscalYearName}!"}}};
} // namespace

std::optional<Fault> FaultOfCategoryNames(DataControl& datAbsence, const CategoryRow& category)
{
    if (category.CategoryEnglishName.isEmpty())
        return Fault{SessionState.English ? "txtEnglishName" : "txtFrenchName",
                     T("You must specify a name for the category!", "Vous devez spécifier le nom de la catégorie!")};
    for (const NameInUse& name : kNamesInUse)
        if (IsCategoryNameTaken(datAbsence, name.Column, category.*name.Member, category.RecordID))
            return InYear(name.Control, name.Told);
    return {};
}

std::optional<Fault> FaultOfActivity(DataControl& datAbsence, const CategoryRow& category)
{
    if (datAbsence.Read("SELECT RecordID FROM Categories WHERE RecordID = ? AND Active <> 1", category.RecordID))
        return Fault{"cboRecords", T(kCategoryInactive)};
    return {};
}

std::optional<Fault> ValidateRecord(DataControl& datAbsence, CategoryEntry& entry)
{
    const Connection connection(datAbsence);
    TidyTexts(entry);
    TakeEntitlement(entry);
    if (const auto fault = FaultOfActivity(datAbsence, entry))
        return fault;
    if (const auto fault = FaultOfCategoryNames(datAbsence, entry))
        return fault;
    return FaultOfEntitlement(entry);
}

QString CategoryQuestion(const CategoryEntry& entry, bool modifying)
{
    const QString question =
        modifying ? T("Record the following modifications?\r\n\r\nCategory name: {name}\r\n",
                      "Souhaitez-vous enregistrer les suivantes?\r\n\r\nNom de la catégorie: {name}\r\n")
                  : T("Add the following category to your database?\r\n\r\nCategory name: {name}\r\n",
                      "Souhaitez-vous ajoûter la catégorie suivante?\r\n\r\nNom de la catégorie: {name}\r\n");
    const QStringList facts{EntitlementFact(entry), CarryFact(entry.CarryOverAtYearEnd == 1),
                            AbsenceFact(entry.ConstitutesAnAbsence == 1), HiddenFact(entry.Restricted == 1, modifying)};
    return Fill(question, {{"name", ShownName(entry)}}) + facts.join("\r\n");
}

bool ChangesEntitlements(const CategoryEntry& before, const CategoryEntry& after)
{
    return before.Kind != after.Kind ||
           (after.Kind == EntitlementKind::Standard && before.StandardEntitlement != after.StandardEntitlement);
}

bool ChangesDepartments(const CategoryEntry& before, const CategoryEntry& after)
{
    return before.IsPublic != after.IsPublic || (after.IsPublic == 0 && before.UsedBy != after.UsedBy);
}

QString EntitlementsRemark(DataControl& datAbsence, const CategoryEntry& before, const CategoryEntry& after)
{
    if (!ChangesEntitlements(before, after))
        return {};
    const Connection connection(datAbsence);
    const EntitledEmployees count = CountEntitled(datAbsence, before);
    const bool ends = after.Kind == EntitlementKind::None;
    const Text remark = ends
                            ? Text{"Employees whose annual entitlement ends: {n}; set one by one until now: {m}",
                                   "Employés dont le temps alloué prend fin: {n}; fixé individuellement jusqu'ici: {m}"}
                            : Text{"Employees whose annual entitlement is set: {n}; set one by one until now: {m}",
                                   "Employés dont le temps alloué est fixé: {n}; fixé individuellement jusqu'ici: {m}"};
    return "\r\n\r\n" + T(remark, {{"n", QString::number(ends ? count.Listed : count.All)},
                                   {"m", QString::number(count.SetSingly)}});
}
