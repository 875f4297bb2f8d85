#include "calendar/frm_main_command_table.h"
#include "support/house.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{
using P = SecurityProfile;

class CommandTable : public testing::Test
{
protected:
    House house;

    static void Become(const QString& loginID, const std::vector<Right>& rights)
    {
        static_cast<SecurityProfile&>(SessionState) = SecurityProfile();
        SessionState.LoginID = loginID;
        for (const Right right : rights)
            SessionState.*right = 1;
    }
    /// What holds by a rule, or does not.
    static QStringList Names(Rule Command::*rule, bool holding)
    {
        QStringList names;
        for (const Command& command : Commands())
            if ((command.*rule).Holds() == holding)
                names << command.Name;
        return names;
    }
    static QString Denied() { return Names(&Command::Allowed, false).join(' '); }
    /// What these rights open in an open year.
    static QString Opened(const std::vector<Right>& rights)
    {
        Become("NOBODY", {});
        const QStringList before = Names(&Command::Allowed, true);
        Become("SOMEBODY", rights);
        QStringList names = Names(&Command::Allowed, true);
        names.removeIf([&before](const QString& name) { return before.contains(name); });
        return names.join(' ');
    }
};

TEST_F(CommandTable, WhoHasAllRightsLacksTheAdministratorsCommandsAndAClosedYearAllThatChangesIt)
{
    std::vector<Right> all;
    for (const auto& [column, right] : kRights)
        all.push_back(right);
    SessionState.NextFYID = 2;
    SessionState.EmployeeID = SessionState.EmployeeOrganizationID = 1;
    Become("SUPERVISOR", all);
    EXPECT_EQ(Denied(), "mnuFileHolidays mnuFileDatabaseLocation mnuReportsFluctuation mnuSpecialUpdateAdminInfo "
                        "mnuSpecialFiscalYearCreate mnuSpecialFiscalYearRename mnuSpecialFiscalYearClose "
                        "mnuSpecialFiscalYearArchive mnuSpecialBatchUpdates mnuSpecialExportEmployee "
                        "mnuSpecialImportEmployee imgSubmit cmdPreviousYear");
    Become("ADMIN", all);
    SessionState.EmployeeOrganizationID = 0;
    EXPECT_EQ(Denied(), "mnuFilePrintRequest imgSubmit cmdPreviousYear");
    SessionState.ClosedDate = 46000;
    EXPECT_EQ(Denied(), "mnuFileOrganizations mnuFileDepartments mnuFileGroups mnuFileEmployees mnuFileEntitlements "
                        "mnuFileCategories mnuFileHolidays mnuFilePrintRequest mnuSpecialFiscalYearCreate "
                        "mnuSpecialBatchUpdates mnuSpecialExportEmployee mnuSpecialImportEmployee imgCreateSingle "
                        "imgCreateMultiple imgCreateConsecutive imgSubmit imgModify imgRemove imgApprove "
                        "cmdPreviousYear");
    SessionState.SelfLevelCreate = 0;
    EXPECT_TRUE(Denied().contains("imgSubmit"));
    SessionState.ClosedDate = 0;
    EXPECT_FALSE(Denied().contains("imgSubmit"));
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
        {".*LevelModify", "imgModify imgRemove"}};
    for (const auto& [column, right] : kRights) {
        QString expected;
        for (const auto& [rights, opened] : kOpened)
            if (const QRegularExpression name(QRegularExpression::anchoredPattern(rights));
                name.match(column).hasMatch())
                expected = QString(column).replace(name, opened);
        EXPECT_EQ(Opened({right}), expected) << column;
    }
    const std::tuple<Right, QString, QString> levels[] = {{&P::GlobalLevelRead, "Global", "Global"},
                                                          {&P::OrganizationLevelRead, "Org", "Organizational"},
                                                          {&P::DepartmentLevelRead, "Dept", "Departmental"},
                                                          {&P::GroupLevelRead, "Group", "Group"}};
    for (const auto& [right, unit, yearToDate] : levels) {
        EXPECT_EQ(Opened({right, &P::CanGenerateReports}),
                  QStringLiteral("mnuReportsRegularCtg_%1 mnuReportsTimeBankCtg_%1 mnuReportsCancelled_%1 "
                                 "mnuReportsSubmitted_%1 mnuReportsYTD_%2 mnuReportsYTDTimeBank_%1 "
                                 "mnuReportsAbsenteeismByDate_%1 mnuSchedule_%1 imgUpdateSelection")
                      .arg(unit, yearToDate));
        EXPECT_EQ(Opened({right, &P::AccessToEmployeesModule}),
                  "mnuFileEmployees mnuReportsAbsenteeismCost_" + unit + " imgUpdateSelection");
    }
    EXPECT_EQ(Opened({&P::SelfLevelRead, &P::AccessToEmployeesModule}),
              "mnuFileEmployees mnuReportsAbsenteeismCost_Indiv");
}

TEST_F(CommandTable, PendingRequestsHideWhatWorksOnApprovedRecords)
{
    const QStringList adminsOwn = {"mnuSpecialBatchUpdates", "mnuSpecialExportEmployee", "mnuSpecialImportEmployee"};
    const QStringList tools = {"imgCreateSingle", "imgCreateMultiple", "imgCreateConsecutive", "imgModify"};
    Become("REQUESTER", {});
    SessionState.UserName = SessionState.CurrentSelection = "Marie Bouchard";
    EXPECT_EQ(Names(&Command::Shown, false), adminsOwn);
    SessionState.ShowApproved = false;
    EXPECT_EQ(Names(&Command::Shown, false), adminsOwn + tools);
    SessionState.CurrentSelection = "Luc Roy";
    SessionState.LoginID = "ADMIN";
    EXPECT_EQ(Names(&Command::Shown, false), tools + QStringList{"imgRemove"});
    SessionState.SQL_Server = true;
    EXPECT_TRUE(Denied().contains("mnuSpecialDisplayPending")) << "requests are kept in the file";
}

TEST_F(CommandTable, EachLetterOpensOneEntryOfAMenu)
{
    for (const bool english : {true, false}) {
        SessionState.English = english;
        QStringList letters;
        for (const Command* command : CommandsIn(Place::Menus))
            letters << command->Parent + QKeySequence::mnemonic(T(command->Caption)).toString();
        EXPECT_EQ(letters.removeDuplicates(), 0) << english;
    }
}
} // namespace
