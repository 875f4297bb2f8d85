#pragma once

#include "foundation/session_state.h"

#include <QString>

#include <algorithm>
#include <array>

/// What a right allows at a level; each includes the one before it.
enum class Access
{
    Read,
    Create,
    Modify
};
inline constexpr int kKinds = 3; ///< of access

/// How far rights reach: everybody, a unit of the user, or himself.
struct Level
{
    const char* Name;                 ///< of a unit's level: begins the names of its table and of its columns
    const char* Column;               ///< where an employee's row says that he stands in the unit
    const char* ListColumn;           ///< the same in the list of employees
    int Session::*OwnUnit;            ///< the user's own unit, himself at the individual level, null at the global one
    int Session::*ShownUnit;          ///< the same of whom the calendar shows
    std::array<Right, kKinds> Rights; ///< by access

    constexpr Right To(Access access) const { return Rights[static_cast<std::size_t>(access)]; }
    /// The session's user holds the right at this level.
    bool IsHeld(Access access) const { return SessionState.*To(access) == 1; }
    /// RecordID of the user's own unit, 0 none.
    int Unit() const { return OwnUnit ? SessionState.*OwnUnit : 0; }
    /// The user stands in a unit of this level; at the global level everybody does.
    bool HasUnit() const { return !OwnUnit || Unit() != 0; }
    /// So does the employee whom the calendar shows, in the same unit.
    bool HoldsShownEmployee() const { return !OwnUnit || (Unit() != 0 && SessionState.*ShownUnit == Unit()); }
};

inline constexpr int kLevels = 5;
/// From the widest to the narrowest.
inline constexpr std::array<Level, kLevels> kLevelTable = {{
    {"Global",
     nullptr,
     nullptr,
     nullptr,
     nullptr,
     {&Session::GlobalLevelRead, &Session::GlobalLevelCreate, &Session::GlobalLevelModify}},
    {"Organization",
     "Employees.OrganizationID",
     "Employees_List.OrgID",
     &Session::UserOrganizationID,
     &Session::EmployeeOrganizationID,
     {&Session::OrganizationLevelRead, &Session::OrganizationLevelCreate, &Session::OrganizationLevelModify}},
    {"Department",
     "Employees.DepartmentID",
     "Employees_List.DeptID",
     &Session::UserDepartmentID,
     &Session::EmployeeDepartmentID,
     {&Session::DepartmentLevelRead, &Session::DepartmentLevelCreate, &Session::DepartmentLevelModify}},
    {"Group",
     "Employees.GroupID",
     "Employees_List.GroupID",
     &Session::UserGroupID,
     &Session::EmployeeGroupID,
     {&Session::GroupLevelRead, &Session::GroupLevelCreate, &Session::GroupLevelModify}},
    {"Individual",
     "Employees.RecordID",
     "Employees_List.EmplID",
     &Session::UserID,
     &Session::EmployeeID,
     {&Session::SelfLevelRead, &Session::SelfLevelCreate, &Session::SelfLevelModify}},
}};
inline constexpr const Level& kGlobalLevel = kLevelTable[0];
inline constexpr const Level& kOrganizationLevel = kLevelTable[1];
inline constexpr const Level& kDepartmentLevel = kLevelTable[2];
inline constexpr const Level& kGroupLevel = kLevelTable[3];
inline constexpr const Level& kIndividualLevel = kLevelTable[4];

/// The widest level for which `counts` holds; the individual one when none above it does.
template <typename Counts>
const Level& WidestLevel(Counts counts)
{
    return *std::find_if(&kGlobalLevel, &kIndividualLevel, counts);
}

/// A condition on employees and the value that it binds.
struct Scope
{
    QString Condition;
    int Unit = 0;
};

/// Whom the session's user reaches: the widest level at which he holds the right and stands in a unit; himself when
/// there is none. The condition is on `column`, such as &Level::Column.
Scope WidestScope(Access access, const char* Level::*column);

/// The session's user holds the right over the employee whom the calendar shows.
bool ReachesShownEmployee(Access access);
