#include "setup/first_rows.h"

#include "foundation/common_services.h"
#include "foundation/employee_rights.h"
#include "foundation/texts.h"
#include "foundation/work_schedule.h"
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

RowValues FirstFiscalYear(const SetUpChoices& choices)
{
    return {{"FiscalYearName", choices.FiscalYearName.trimmed()},
            {"CommencingDate", choices.FiscalYearStart},
            {"EndingDate", choices.FiscalYearEnd},
            {"EnteredDate", Today()},
            {"EnteredBy", "ADMIN"},
            {"ClosedDate", 0},
            {"ScheduledClosingDate", 0},
            {"ReloadEmployeesList", 0}};
}

void Append(RowValues& values, std::initializer_list<const char*> columns, const QVariant& value)
{
    for (const char* column : columns)
        values.push_back({column, value});
}

RowValues Administrator(const SetUpChoices& choices)
{
    RowValues values = {{"FamilyName", choices.AdminFamilyName},
                        {"FirstName", choices.AdminFirstName},
                        {"PhoneOffice", choices.AdminPhoneNumber.trimmed()},
                        {"DateEntered", Today()},
                        {"EnteredBy", "SYSTEM"},
                        {"Language", SessionState.English ? 0 : 1},
                        {"Password", choices.AdminPassword},
                        {SessionState.SQL_Server ? "Username" : "LoginID", "ADMIN"}};
    Append(values,
           {"FiscalYear", "OrganizationID", "DepartmentID", "GroupID", "DateOfBirth", "DateOfHire", "DeactivatedDate",
            "EmployeeType", "HourlyRate", "AttendanceApprovedBy_Main", "AttendanceApprovedBy_Backup", "PreviousID",
            "IsAllowedToCarryOverVacation", "IsAllowedToCarryOverTimeBanked", "HoursWorkedDaily"},
           0);
    Append(values,
           {"EmployeeID", "AddressLine1", "AddressLine2", "City", "ProvinceState", "Country", "PhoneHome", "Comment"},
           QString(""));
    Append(values, {"DeactivatedBy", "ReasonForDeactivation", "EMailAddress"}, QString(" "));
    for (const auto& right : kRights)
        values.push_back({right.Column, 1});
    for (const auto& length : kDayLengths)
        values.push_back({length.Column, 0});
    for (const auto& time : kClockTimes)
        values.push_back({time.Column, 0});
    return values;
}

/// `choice`: how a regular category is managed; nullptr for one of the time bank.
RowValues Category(const SystemCategory& category, const CategoryChoice* choice, int fiscalYear)
{
    const QString english = choice ? choice->Name : QString::fromUtf8(category.SystemName);
    const QString french = choice ? choice->Name : QString::fromUtf8(category.FrenchName);
    const auto time = [](int value) { return static_cast<float>(value); };
    return {{"FiscalYear", fiscalYear},
            {"CategoryFrenchName", french},
            {"CategoryEnglishName", english},
            {"SystemName", category.SystemName},
            {"CanBeRemoved", 0},
            {"ConstitutesAnAbsence", category.ConstitutesAnAbsence},
            {"StandardEntitlement", choice ? DecimalHours(time(choice->Hours), time(choice->Minutes)) : 0.0F},
            {"CarryOverAtYearEnd", choice && choice->CarryOver ? 1 : 0},
            {"TimeBankRelated", category.TimeBankRelated},
            {"Restricted", 0},
            {"PreviousID", 0},
            {"CreatedBy", "ADMIN"},
            {"CreatedDate", Today()},
            {"ModifiedBy", ""},
            {"ModifiedDate", 0},
            {"RequiresMonitoring", choice && !choice->NoEntitlement ? 1 : 0},
            {"Active", 1},
            {"IsPublic", 1},
            {"CategoryColorCode", QString::number(category.ColorCode)}};
}

/// Another workstation may have set the shared database up while this wizard was being filled in.
void RequireEmptyDatabase(DataControl& datAbsence)
{
    if (!datAbsence.Open("SELECT * FROM FiscalYears").AtEnd())
        throw RuntimeError(EngineError::DuplicateKey, T("The database already holds a fiscal year.",
                                                        "La banque de données contient déjà une année fiscale."));
}
} // namespace

void SendFirstRows(DataControl& datAbsence, const SetUpChoices& choices)
{
    const int fiscalYear = AddRow(datAbsence, "FiscalYears", FirstFiscalYear(choices));
    AddRow(datAbsence, "Employees", Administrator(choices));
    std::size_t row = 0;
    for (const SystemCategory& category : kSystemCategories) {
        const bool regular = row < choices.Categories.size();
        AddRow(datAbsence, "Categories", Category(category, regular ? &choices.Categories[row] : nullptr, fiscalYear));
        ++row;
    }
}

void AddFirstRows(DataControl& datAbsence, const SetUpChoices& choices)
{
    Batch batch(datAbsence.Engine());
    try {
        RequireEmptyDatabase(datAbsence);
        SendFirstRows(datAbsence, choices);
        batch.Commit();
    } catch (const RuntimeError&) {
        batch.Rollback();
        throw;
    }
}
