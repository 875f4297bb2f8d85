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
const char* const kEverybody = "AaSsRr";

/// What is not among them is for everybody.
const Verdict kVerdicts[] = {
    {"mnuFile(Organizations|Departments|Groups|Entitlements|Categories|Holidays)", "A"},
    {"mnuFileEmployees", "AS"},
    {"mnuFilePrintRequest", "SsRr"},
    {"mnuFileDatabaseLocation|mnuReportsFluctuation|mnuSpecialUpdateAdminInfo", "Aa"},
    {"mnu(Reports.*|Schedule)_(Global|Org|Organizational)", "Aa"},
    {"mnu(Reports.*|Schedule)_(Dept|Departmental|Group)", "AaSs"},
    {"mnuReportsAbsenteeismCost_Indiv", "AaSs"},
    {"mnuBlocked_(Global|Org)", "Aa"},
    {"mnuBlocked|mnuBlocked_(Dept|Group|Individual)", "AaSs"},
    {"mnuSpecialFiscalYear(Rename|Close|Archive)", "Aa"},
    {"mnuSpecialFiscalYearCreate|mnuSpecial(BatchUpdates|ExportEmployee|ImportEmployee)", "A"},
    {"img(Create(Single|Multiple|Consecutive)|Modify|Remove|Approve)", "AS"},
    {"imgSubmit", "R"},
    {"imgUpdateSelection", "AaSs"},
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
        QString expected = kEverybody;
        for (const auto& [name, who] : kVerdicts)
            if (QRegularExpression(QRegularExpression::anchoredPattern(name)).match(command.Name).hasMatch())
                expected = who;
        EXPECT_EQ(users[command.Name], expected) << command.Name.toStdString();
    }
    BecomeAdmin();
    EXPECT_TRUE(IsAllowed("mnuFileExit"));
    EXPECT_FALSE(IsAllowed("mnuFileUnknown"));
}

TEST_F(CommandTable, EveryRightOpensJustItsOwnCommands)
{
    const QString create = "imgCreateSingle imgCreateMultiple imgCreateConsecutive";
    const QString blocked = "mnuBlocked%1 mnuBlocked_Group mnuBlocked_Individual " + create;
    const std::pair<const char*, QString> kOpened[] = {
        {"AccessTo(Organizations|Departments|Groups|Categories|Entitlements|Employees)Module", "mnuFile\\1"},
        {"IsAuthorizedToApprove", "imgApprove"},
        {"(Group|Department|Organization|Global)LevelRead", "imgUpdateSelection"},
        {"SelfLevelCreate", create},
        {"GroupLevelCreate", blocked.arg("")},
        {"DepartmentLevelCreate", blocked.arg(" mnuBlocked_Dept")},
        {"OrganizationLevelCreate", blocked.arg(" mnuBlocked_Org mnuBlocked_Dept")},
        {"GlobalLevelCreate", blocked.arg(" mnuBlocked_Global mnuBlocked_Org mnuBlocked_Dept")},
        {".*LevelModify", "imgModify imgRemove"},
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
    for (const auto& [column, right] : kRights) {
        QString expected;
        for (const auto& [rights, opened] : kOpened)
            if (const QRegularExpression name(QRegularExpression::anchoredPattern(rights));
                name.match(column).hasMatch())
                expected = QString(column).replace(name, opened);
        EXPECT_EQ(gained({right}), expected) << column;
    }
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
