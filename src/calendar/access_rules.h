#pragma once

#include "foundation/session_state.h"

#include <QHash>
#include <QString>

#include <vector>

/// When a menu entry or tool may be used. All conditions that are set must hold; every right means "equals 1".
struct AccessRule
{
    enum class Year
    {
        Any,
        Open
    };
    enum class User
    {
        Anybody,
        AdminOnly
    };

    std::vector<Right> AllOf;
    std::vector<Right> AnyOf;
    Year FiscalYear = Year::Any;
    User For = User::Anybody;
    bool (*Also)() = nullptr;
};

/// The rules of all menu entries and tools by their names. An item without a rule may always be used.
const QHash<QString, AccessRule>& AccessRules();

/// Whether the session's user may use an item now.
bool IsAllowed(const QString& item);
/// Whether an item is to be seen at all: three entries are hidden from all but ADMIN, and some tools while pending
/// requests are shown.
bool IsShown(const QString& item);

/// The scopes of reports and schedules, in the order of the menus.
struct ReportScope
{
    const char* Suffix;    ///< of the menu entries, such as "_Global"
    const char* YtdSuffix; ///< of the year-to-date entries, which are spelt out
    const char* English;
    const char* French;
    Right Read;
};
extern const std::vector<ReportScope> kReportScopes;

/// The report families, by the start of their menu entries' names.
struct ReportFamily
{
    const char* Name;
    const char* English;
    const char* French;
};
extern const std::vector<ReportFamily> kReportFamilies;

/// The name of a family's entry for a scope.
QString ReportEntry(const ReportFamily& family, const ReportScope& scope);
