#include "calendar/frm_main_command_table.h"
#include "support/house.h"

#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{
using P = SecurityProfile;

class CommandTable : public testing::Test
{
protected:
    House house;

    static void Become(const QString& loginID, std::initializer_list<Right> rights)
    {
        static_cast<SecurityProfile&>(SessionState) = SecurityProfile();
        SessionState.LoginID = loginID;
        for (const Right right : rights)
            SessionState.*right = 1;
    }
    static void BecomeAdmin()
    {
        Become("ADMIN", {});
        for (const auto& [column, right] : kRights)
            SessionState.*right = 1;
    }
    static void BecomeSupervisor()
    {
        Become("SUPERVISOR",
               {&P::DepartmentLevelRead, &P::DepartmentLevelCreate, &P::DepartmentLevelModify, &P::GroupLevelRead,
                &P::GroupLevelCreate, &P::GroupLevelModify, &P::SelfLevelRead, &P::SelfLevelCreate, &P::SelfLevelModify,
                &P::IsAuthorizedToApprove, &P::AccessToEmployeesModule, &P::CanGenerateReports});
    }
    static void BecomeRequester() { Become("REQUESTER", {&P::SelfLevelRead}); }

    static QStringList Names(Rule Command::*rule, bool holding)
    {
        QStringList names;
        for (const Command& command : Commands())
            if ((command.*rule).Holds() == holding)
                names << command.Name;
        return names;
    }
};

/// Who may use a command: A administrator, S supervisor of a department, R requester; small letters in a closed year.
struct Verdict
{
    const char* Name; ///< pattern
    const char* Users;
};

const Verdict kVerdicts[] = {
    {"mnu(File|Reports|Schedule|Special|SpecialFiscalYear|Help)", "AaSsRr"},
    {"mnuReports(RegularCtg|TimeBankCtg|Cancelled|Submitted|YTD|YTDTimeBank|AbsenteeismByDate|AbsenteeismCost)",
     "AaSsRr"},
    {"mnuFile(Organizations|Departments|Groups|Entitlements|Categories|Holidays)", "A"},
    {"mnuFileEmployees", "AS"},
    {"mnuFile(PrintCalendar|NewDatabase|Exit)", "AaSsRr"},
    {"mnuFilePrintRequest", "SsRr"},
    {"mnuFileDatabaseLocation|mnuReportsFluctuation|mnuSpecialUpdateAdminInfo", "Aa"},
    {"mnu(Reports.*|Schedule)_(Global|Org|Organizational)", "Aa"},
    {"mnu(Reports.*|Schedule)_(Dept|Departmental|Group)", "AaSs"},
    {"mnuReportsYTD_Individual|mnuReports(?!AbsenteeismCost).*_Indiv", "AaSsRr"},
    {"mnuReportsAbsenteeismCost_Indiv", "AaSs"},
    {"mnuBlocked_(Global|Org)", "Aa"},
    {"mnuBlocked|mnuBlocked_(Dept|Group|Individual)", "AaSs"},
    {"mnuSpecial(DisplayApproved|DisplayPending|SwitchLanguage|ChangePassword|SpecifyMailerProgram)", "AaSsRr"},
    {"mnuSpecialFiscalYear(Rename|Close|Archive)", "Aa"},
    {"mnuSpecialFiscalYearCreate|mnuSpecial(BatchUpdates|ExportEmployee|ImportEmployee)", "A"},
    {"mnuHelp(Tutorial|About)", "AaSsRr"},
    {"img(Create(Single|Multiple|Consecutive)|Modify|Remove|Approve)", "AS"},
    {"imgSubmit", "R"},
    {"imgUpdateSelection", "AaSs"},
    {"cmdNextYear", "AaSsRr"},
    {"cmdPreviousYear", ""},
};
} // namespace

TEST_F(CommandTable, EachUserMayUseWhatHisRightsAndTheYearAllow)
{
    SessionState.NextFYID = 2;
    QMap<QString, QString> users;
    const auto ask = [&users](char user, void (*become)(), int organization) {
        become();
        SessionState.EmployeeID = 1;
        SessionState.EmployeeOrganizationID = organization;
        for (const int closed : {0, 46000}) {
            SessionState.ClosedDate = closed;
            for (const QString& name : Names(&Command::Allowed, true))
                users[name] += QChar(closed ? user | 0x20 : user);
        }
    };
    ask('A', BecomeAdmin, 0);
    ask('S', BecomeSupervisor, 1);
    ask('R', BecomeRequester, 1);

    for (const Command& command : Commands()) {
        QStringList expected;
        for (const Verdict& verdict : kVerdicts)
            if (QRegularExpression(QRegularExpression::anchoredPattern(verdict.Name)).match(command.Name).hasMatch())
                expected << verdict.Users;
        EXPECT_EQ(QStringList{users[command.Name]}, expected) << command.Name.toStdString();
    }
    BecomeAdmin();
    EXPECT_TRUE(IsAllowed("mnuFileExit"));
    EXPECT_FALSE(IsAllowed("mnuFileUnknown"));
}

TEST_F(CommandTable, EveryRightOpensJustItsOwnCommands)
{
    const QString create = "imgCreateSingle imgCreateMultiple imgCreateConsecutive";
    const QString modify = "imgModify imgRemove";
    const QString select = "imgUpdateSelection";
    const QMap<QString, QString> opened = {
        {"AccessToOrganizationsModule", "mnuFileOrganizations"},
        {"AccessToDepartmentsModule", "mnuFileDepartments"},
        {"AccessToGroupsModule", "mnuFileGroups"},
        {"AccessToCategoriesModule", "mnuFileCategories"},
        {"AccessToEntitlementsModule", "mnuFileEntitlements"},
        {"AccessToEmployeesModule", "mnuFileEmployees"},
        {"IsAuthorizedToApprove", "imgApprove"},
        {"GroupLevelRead", select},
        {"DepartmentLevelRead", select},
        {"OrganizationLevelRead", select},
        {"GlobalLevelRead", select},
        {"SelfLevelCreate", create},
        {"GroupLevelCreate", "mnuBlocked mnuBlocked_Group mnuBlocked_Individual " + create},
        {"DepartmentLevelCreate", "mnuBlocked mnuBlocked_Dept mnuBlocked_Group mnuBlocked_Individual " + create},
        {"OrganizationLevelCreate",
         "mnuBlocked mnuBlocked_Org mnuBlocked_Dept mnuBlocked_Group mnuBlocked_Individual " + create},
        {"GlobalLevelCreate",
         "mnuBlocked mnuBlocked_Global mnuBlocked_Org mnuBlocked_Dept mnuBlocked_Group mnuBlocked_Individual " +
             create},
        {"SelfLevelModify", modify},
        {"GroupLevelModify", modify},
        {"DepartmentLevelModify", modify},
        {"OrganizationLevelModify", modify},
        {"GlobalLevelModify", modify},
    };
    Become("NOBODY", {});
    const QStringList before = Names(&Command::Allowed, true);
    const auto gained = [&before](std::initializer_list<Right> rights) {
        Become("SOMEBODY", rights);
        QStringList names = Names(&Command::Allowed, true);
        for (const QString& name : before)
            names.removeAll(name);
        return names.join(' ');
    };
    for (const auto& [column, right] : kRights)
        EXPECT_EQ(gained({right}), opened.value(column)) << column;
    EXPECT_EQ(gained({&P::DepartmentLevelRead, &P::CanGenerateReports}),
              "mnuReportsRegularCtg_Dept mnuReportsTimeBankCtg_Dept mnuReportsCancelled_Dept mnuReportsSubmitted_Dept "
              "mnuReportsYTD_Departmental mnuReportsYTDTimeBank_Dept mnuReportsAbsenteeismByDate_Dept "
              "mnuSchedule_Dept imgUpdateSelection");
    EXPECT_EQ(gained({&P::SelfLevelRead, &P::AccessToEmployeesModule}),
              "mnuFileEmployees mnuReportsAbsenteeismCost_Indiv");
}

TEST_F(CommandTable, PendingRequestsHideWhatWorksOnApprovedRecords)
{
    const QStringList adminsOwn = {"mnuSpecialBatchUpdates", "mnuSpecialExportEmployee", "mnuSpecialImportEmployee"};
    const QStringList tools = {"imgCreateSingle", "imgCreateMultiple", "imgCreateConsecutive", "imgModify"};
    BecomeRequester();
    SessionState.UserName = SessionState.CurrentSelection = "Marie Bouchard";
    EXPECT_EQ(Names(&Command::Shown, false), adminsOwn);
    SessionState.ShowApproved = false;
    EXPECT_EQ(Names(&Command::Shown, false), adminsOwn + tools);
    SessionState.CurrentSelection = "Luc Roy";
    EXPECT_EQ(Names(&Command::Shown, false), adminsOwn + tools + QStringList{"imgRemove"});
    BecomeAdmin();
    EXPECT_FALSE(Names(&Command::Shown, false).contains("mnuSpecialBatchUpdates"));
    SessionState.SQL_Server = true;
    EXPECT_FALSE(IsAllowed("mnuSpecialDisplayPending")) << "requests are kept in the file";
}
