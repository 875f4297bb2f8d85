#include "setup/first_rows.h"

#include "foundation/category_row.h"
#include "foundation/common_services.h"
#include "foundation/employee_row.h"
#include "foundation/fiscal_year_row.h"
#include "foundation/texts.h"
#include "platform/clock.h"

namespace
{
struct SystemCategory
{
    const char* SystemName;
    const char* FrenchName; ///< nullptr: the form gives the name
    int ConstitutesAnAbsence;
    int TimeBankRelated;
    int ColorCode; ///< 0xBBGGRR
};

/// The first four in the order of SetUpChoices::Categories.
constexpr SystemCategory kSystemCategories[] = {
    {"Vacation", nullptr, 1, 0, 0xC0C000},
    {"Sick", nullptr, 1, 0, 0xFFC0C0},
    {"Personal time", nullptr, 1, 0, 0xFFFFC0},
    {"Doctor appointments", nullptr, 1, 0, 0x808000},
    {"Time accumulated", "Temps accumulé", 0, 1, 0xC0C0C0},
    {"Time claimed", "Temps réclamé", 1, 1, 0xC0C0C0},
    {"Time paid", "Temps payé", 0, 1, 0xC0C0C0},
    {"Time borrowed", "Temps emprunté", 1, 1, 0xC0C0C0},
};

FiscalYearRow FirstFiscalYear(const SetUpChoices& choices)
{
    FiscalYearRow year;
    year.FiscalYearName = choices.FiscalYearName.trimmed();
    year.CommencingDate = choices.FiscalYearStart;
    year.EndingDate = choices.FiscalYearEnd;
    year.EnteredDate = Today();
    year.EnteredBy = "ADMIN";
    return year;
}

EmployeeRow Administrator(const SetUpChoices& choices)
{
    EmployeeRow administrator;
    administrator.FamilyName = choices.AdminFamilyName;
    administrator.FirstName = choices.AdminFirstName;
    administrator.PhoneOffice = choices.AdminPhoneNumber.trimmed();
    administrator.DateEntered = Today();
    administrator.EnteredBy = "SYSTEM";
    administrator.Language = SessionState.English ? 0 : 1;
    administrator.Password = choices.AdminPassword;
    administrator.DeactivatedBy = administrator.ReasonForDeactivation = administrator.EMailAddress = " ";
    for (const RightColumn& right : kRights)
        administrator.*right.Member = 1;
    return administrator;
}

/// The server knows its users by another column.
void AddAdministrator(DataControl& datAbsence, EmployeeRow administrator)
{
    Table<EmployeeRow> table = kTable<EmployeeRow>;
    if (IsServerChosen())
        std::erase_if(table.List, [](const auto& column) {
            return column.Member == Column<EmployeeRow>::Place(&EmployeeRow::LoginID);
        });
    (IsServerChosen() ? administrator.Username : administrator.LoginID) = "ADMIN";
    Add(datAbsence, administrator, table);
}

/// `choice`: how a regular category is managed; nullptr for one of the time bank.
CategoryRow FirstCategory(const SystemCategory& category, const CategoryChoice* choice, int fiscalYear)
{
    const auto time = [](int value) { return static_cast<float>(value); };
    CategoryRow row;
    row.FiscalYear = fiscalYear;
    row.CategoryFrenchName = choice ? choice->Name : QString::fromUtf8(category.FrenchName);
    row.CategoryEnglishName = choice ? choice->Name : QString::fromUtf8(category.SystemName);
    row.SystemName = category.SystemName;
    row.ConstitutesAnAbsence = category.ConstitutesAnAbsence;
    row.StandardEntitlement = choice ? DecimalHours(time(choice->Hours), time(choice->Minutes)) : 0;
    row.CarryOverAtYearEnd = choice && choice->CarryOver ? 1 : 0;
    row.TimeBankRelated = category.TimeBankRelated;
    row.CreatedBy = "ADMIN";
    row.CreatedDate = Today();
    row.RequiresMonitoring = choice && !choice->NoEntitlement ? 1 : 0;
    row.Active = row.IsPublic = 1;
    row.CategoryColorCode = QString::number(category.ColorCode);
    return row;
}

/// Another workstation may have set the shared database up while this wizard was being filled in.
void RequireEmptyDatabase(DataControl& datAbsence)
{
    if (!datAbsence.Open("SELECT RecordID FROM FiscalYears").AtEnd())
        throw RuntimeError(EngineError::DuplicateKey, T("The database already holds a fiscal year.",
                                                        "La banque de données contient déjà une année fiscale."));
}
} // namespace

void SendFirstRows(DataControl& datAbsence, const SetUpChoices& choices)
{
    const int fiscalYear = Add(datAbsence, FirstFiscalYear(choices));
    AddAdministrator(datAbsence, Administrator(choices));
    std::size_t row = 0;
    for (const SystemCategory& category : kSystemCategories) {
        const bool regular = row < choices.Categories.size();
        Add(datAbsence, FirstCategory(category, regular ? &choices.Categories[row] : nullptr, fiscalYear));
        ++row;
    }
}

void AddFirstRows(DataControl& datAbsence, const SetUpChoices& choices)
{
    Transaction transaction(datAbsence.Engine());
    RequireEmptyDatabase(datAbsence);
    SendFirstRows(datAbsence, choices);
    transaction.Commit();
}
