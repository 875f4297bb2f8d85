#include "setup/set_up_choices.h"

#include "platform/clock.h"

#include <algorithm>

bool IsNew(Installation kind)
{
    return kind == Installation::NewAccess || kind == Installation::NewServer;
}

bool IsServer(Installation kind)
{
    return kind == Installation::NewServer || kind == Installation::ExistingServer;
}

bool SetFiscalYear(SetUpChoices& choices, int year, int month)
{
    const QDate start(year, month, 1);
    const bool valid = start.isValid() && SerialOfDate(start) > 0;
    choices.FiscalYearStart = valid ? SerialOfDate(start) : 0;
    choices.FiscalYearEnd = valid ? SerialOfDate(start.addYears(1)) - 1 : 0;
    return valid;
}

void EnterTime(CategoryChoice& category, int hours, int minutes)
{
    category.Hours = hours;
    category.Minutes = minutes;
    if (hours > 0 || minutes > 0) {
        category.EntitlementVaries = false;
        category.NoEntitlement = false;
    }
}

void CheckEntitlementVaries(CategoryChoice& category, bool checked)
{
    category.EntitlementVaries = checked;
    if (!checked)
        return;
    category.NoEntitlement = false;
    category.Hours = 0;
    category.Minutes = 0;
}

void CheckNoEntitlement(CategoryChoice& category, bool checked)
{
    category.NoEntitlement = checked;
    if (!checked)
        return;
    category.EntitlementVaries = false;
    category.CarryOver = false;
    category.Hours = 0;
    category.Minutes = 0;
}

bool IsComplete(const CategoryChoice& category)
{
    const bool managed =
        category.Hours > 0 || category.Minutes > 0 || category.EntitlementVaries || category.NoEntitlement;
    return managed && !category.Name.isEmpty();
}

bool IsServerComplete(const SetUpChoices& choices)
{
    return !choices.IPAddress.isEmpty() && !choices.UserName.isEmpty() && !choices.Password.isEmpty() &&
           !choices.DatabaseName.isEmpty();
}

bool IsFiscalYearComplete(const SetUpChoices& choices)
{
    return !choices.FiscalYearName.isEmpty() && choices.FiscalYearStart > 0;
}

bool AreCategoriesComplete(const SetUpChoices& choices)
{
    return std::all_of(choices.Categories.begin(), choices.Categories.end(), IsComplete);
}

bool IsAdministratorComplete(const SetUpChoices& choices)
{
    return !choices.AdminFamilyName.isEmpty() && !choices.AdminFirstName.isEmpty() && !choices.AdminPassword.isEmpty();
}
