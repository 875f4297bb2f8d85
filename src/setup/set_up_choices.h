#pragma once

#include <QString>

#include <array>

enum class Installation
{
    None,
    NewAccess,
    NewServer,
    ExistingAccess,
    ExistingServer
};

/// How one of the four basic categories is managed.
struct CategoryChoice
{
    QString Name;
    int Hours = 0; ///< annual entitlement of every employee; 0 with Minutes 0: none was given
    int Minutes = 0;
    bool EntitlementVaries = false;
    bool NoEntitlement = false;
    bool CarryOver = false; ///< balances go into the next year
};

/// What the user of the set-up wizard has answered.
struct SetUpChoices
{
    bool LanguageChosen = false; ///< it stands in SessionState.English
    Installation Kind = Installation::None;
    QString NewDatabasePath;        ///< of the file itself
    bool DatabaseRelocated = false; ///< the new database was copied there
    QString IPAddress;
    QString UserName;
    QString Password;
    QString DatabaseName;
    QString FiscalYearName;
    int FiscalYearStart = 0; ///< serial days; 0 while the year typed is invalid
    int FiscalYearEnd = 0;
    std::array<CategoryChoice, 4> Categories; ///< vacation, sick, personal time, doctor appointments
    QString AdminFamilyName;
    QString AdminFirstName;
    QString AdminPhoneNumber;
    QString AdminPassword;
};

bool IsNew(Installation kind);
bool IsServer(Installation kind);

/// Sets the fiscal year to the twelve months from the first day of a month. False for a year that no calendar has: the
/// dates are 0 then.
bool SetFiscalYear(SetUpChoices& choices, int year, int month);

/// Hours or minutes take the place of the two boxes.
void EnterTime(CategoryChoice& category, int hours, int minutes);
/// The boxes exclude each other and take the place of hours and minutes; no entitlement leaves nothing to carry over.
void CheckEntitlementVaries(CategoryChoice& category, bool checked);
void CheckNoEntitlement(CategoryChoice& category, bool checked);

/// True when the answers of a step suffice to go on.
bool IsComplete(const CategoryChoice& category);
bool IsServerComplete(const SetUpChoices& choices);
bool IsFiscalYearComplete(const SetUpChoices& choices);
bool AreCategoriesComplete(const SetUpChoices& choices);
bool IsAdministratorComplete(const SetUpChoices& choices);
