#include "calendar/access_rules.h"

#include <algorithm>

namespace
{
using P = SecurityProfile;
using Year = AccessRule::Year;
using User = AccessRule::User;

const std::vector<Right> kAnyRead = {&P::GroupLevelRead, &P::DepartmentLevelRead, &P::OrganizationLevelRead,
                                     &P::GlobalLevelRead};
const std::vector<Right> kAnyCreate = {&P::SelfLevelCreate, &P::GroupLevelCreate, &P::DepartmentLevelCreate,
                                       &P::OrganizationLevelCreate, &P::GlobalLevelCreate};
const std::vector<Right> kAnyModify = {&P::SelfLevelModify, &P::GroupLevelModify, &P::DepartmentLevelModify,
                                       &P::OrganizationLevelModify, &P::GlobalLevelModify};

bool MustRequest()
{
    return SessionState.SelfLevelCreate == 0;
}

bool HasNextYear()
{
    return SessionState.NextFYID > 0;
}

bool HasPreviousYear()
{
    return SessionState.PreviousFYID > 0;
}

bool OneEmployeeShown()
{
    return SessionState.EmployeeID > 0 && SessionState.EmployeeOrganizationID != 0;
}

bool HasFileBackEnd()
{
    return !SessionState.SQL_Server;
}

AccessRule Module(Right right)
{
    return {{right}, {}, Year::Open};
}

/// Blocked days: a level of creation opens its own entry and those below it.
AccessRule BlockedUpTo(int levels)
{
    const Right topDown[] = {&P::GlobalLevelCreate, &P::OrganizationLevelCreate, &P::DepartmentLevelCreate,
                             &P::GroupLevelCreate};
    return {{}, std::vector<Right>(topDown, topDown + levels)};
}

const std::vector<std::pair<const char*, AccessRule>> kFixedRules = {
    {"mnuFileCategories", Module(&P::AccessToCategoriesModule)},
    {"mnuFileDepartments", Module(&P::AccessToDepartmentsModule)},
    {"mnuFileGroups", Module(&P::AccessToGroupsModule)},
    {"mnuFileOrganizations", Module(&P::AccessToOrganizationsModule)},
    {"mnuFileEntitlements", Module(&P::AccessToEntitlementsModule)},
    {"mnuFileEmployees", Module(&P::AccessToEmployeesModule)},
    {"mnuSpecialExportEmployee", {{&P::AccessToEmployeesModule}, {}, Year::Open, User::AdminOnly}},
    {"mnuSpecialImportEmployee", {{&P::AccessToEmployeesModule}, {}, Year::Open, User::AdminOnly}},
    {"mnuSpecialBatchUpdates", {{&P::AccessToEmployeesModule}, {}, Year::Open, User::AdminOnly}},
    {"imgApprove", Module(&P::IsAuthorizedToApprove)},
    {"imgCreateSingle", {{}, kAnyCreate, Year::Open}},
    {"imgCreateMultiple", {{}, kAnyCreate, Year::Open}},
    {"imgCreateConsecutive", {{}, kAnyCreate, Year::Open}},
    {"imgModify", {{}, kAnyModify, Year::Open}},
    {"imgRemove", {{}, kAnyModify, Year::Open}},
    {"imgSubmit", {{}, {}, Year::Open, User::Anybody, MustRequest}},
    {"imgUpdateSelection", {{}, kAnyRead}},
    {"cmdNextYear", {{}, {}, Year::Any, User::Anybody, HasNextYear}},
    {"cmdPreviousYear", {{}, {}, Year::Any, User::Anybody, HasPreviousYear}},
    {"mnuFilePrintRequest", {{}, {}, Year::Any, User::Anybody, OneEmployeeShown}},
    {"mnuBlocked", BlockedUpTo(4)},
    {"mnuBlocked_Global", BlockedUpTo(1)},
    {"mnuBlocked_Org", BlockedUpTo(2)},
    {"mnuBlocked_Dept", BlockedUpTo(3)},
    {"mnuBlocked_Group", BlockedUpTo(4)},
    {"mnuBlocked_Individual", BlockedUpTo(4)},
    {"mnuFileDatabaseLocation", {{}, {}, Year::Any, User::AdminOnly}},
    {"mnuSpecialFiscalYearArchive", {{}, {}, Year::Any, User::AdminOnly}},
    {"mnuSpecialFiscalYearClose", {{}, {}, Year::Any, User::AdminOnly}},
    {"mnuSpecialFiscalYearRename", {{}, {}, Year::Any, User::AdminOnly}},
    {"mnuSpecialFiscalYearCreate", {{}, {}, Year::Open, User::AdminOnly}},
    {"mnuSpecialUpdateAdminInfo", {{}, {}, Year::Any, User::AdminOnly}},
    {"mnuFileHolidays", {{}, {}, Year::Open, User::AdminOnly}},
    {"mnuReportsFluctuation", {{}, {}, Year::Any, User::AdminOnly}},
    {"mnuSpecialDisplayPending", {{}, {}, Year::Any, User::Anybody, HasFileBackEnd}},
};

/// The individual entries of most families refuse nobody: they report on the user himself.
AccessRule ReportRule(const ReportFamily& family, const ReportScope& scope)
{
    const bool individual = scope.Read == &P::SelfLevelRead;
    if (family.Name == QLatin1String("mnuReportsAbsenteeismCost"))
        return {{&P::AccessToEmployeesModule, scope.Read}, {}};
    return individual ? AccessRule() : AccessRule{{&P::CanGenerateReports, scope.Read}, {}};
}

QHash<QString, AccessRule> AllRules()
{
    QHash<QString, AccessRule> rules;
    for (const auto& [item, rule] : kFixedRules)
        rules.insert(item, rule);
    for (const ReportScope& scope : kReportScopes) {
        for (const ReportFamily& family : kReportFamilies)
            rules.insert(ReportEntry(family, scope), ReportRule(family, scope));
        rules.insert(QStringLiteral("mnuSchedule") + scope.Suffix, {{&P::CanGenerateReports, scope.Read}, {}});
    }
    return rules;
}

bool Granted(Right right)
{
    return SessionState.*right == 1;
}
} // namespace

const std::vector<ReportScope> kReportScopes = {
    {"_Global", "_Global", "&Global", "&Global", &P::GlobalLevelRead},
    {"_Org", "_Organizational", "&Organization", "&Organisation", &P::OrganizationLevelRead},
    {"_Dept", "_Departmental", "&Department", "&Département", &P::DepartmentLevelRead},
    {"_Group", "_Group", "G&roup", "G&roupe", &P::GroupLevelRead},
    {"_Indiv", "_Individual", "&Individual", "&Individuel", &P::SelfLevelRead},
};

const std::vector<ReportFamily> kReportFamilies = {
    {"mnuReportsRegularCtg", "&Attendance records", "&Absences enregistrées"},
    {"mnuReportsTimeBankCtg", "&Time bank records", "Enregistrements des &banques de temps"},
    {"mnuReportsCancelled", "&Cancelled records", "Absences s&upprimées"},
    {"mnuReportsSubmitted", "&Submitted requests", "&Demandes soumises"},
    {"mnuReportsYTD", "&Year-to-date summary", "&Sommaire de l'année"},
    {"mnuReportsYTDTimeBank", "Time bank s&ummary", "Sommaire des banques de &temps"},
    {"mnuReportsAbsenteeismByDate", "Absenteeism by &date", "Absentéisme &par date"},
    {"mnuReportsAbsenteeismCost", "C&ost of absenteeism", "&Coût de l'absentéisme"},
};

QString ReportEntry(const ReportFamily& family, const ReportScope& scope)
{
    const bool ytd = family.Name == QLatin1String("mnuReportsYTD");
    return QLatin1String(family.Name) + QLatin1String(ytd ? scope.YtdSuffix : scope.Suffix);
}

const QHash<QString, AccessRule>& AccessRules()
{
    static const QHash<QString, AccessRule> rules = AllRules();
    return rules;
}

bool IsAllowed(const QString& item)
{
    const auto found = AccessRules().constFind(item);
    if (found == AccessRules().constEnd())
        return true;
    const AccessRule& rule = *found;
    return (rule.FiscalYear == Year::Any || SessionState.ClosedDate == 0) &&
           (rule.For == User::Anybody || SessionState.LoginID == "ADMIN") && (!rule.Also || rule.Also()) &&
           std::all_of(rule.AllOf.begin(), rule.AllOf.end(), Granted) &&
           (rule.AnyOf.empty() || std::any_of(rule.AnyOf.begin(), rule.AnyOf.end(), Granted));
}

bool IsShown(const QString& item)
{
    static const QStringList adminsOwn{"mnuSpecialExportEmployee", "mnuSpecialImportEmployee",
                                       "mnuSpecialBatchUpdates"};
    static const QStringList effectiveOnly{"imgCreateConsecutive", "imgCreateMultiple", "imgCreateSingle", "imgModify"};
    if (adminsOwn.contains(item))
        return SessionState.LoginID == "ADMIN";
    if (SessionState.ShowApproved)
        return true;
    if (item == "imgRemove")
        return SessionState.CurrentSelection == SessionState.UserName;
    return !effectiveOnly.contains(item);
}
