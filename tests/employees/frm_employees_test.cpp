#include "employees/employee_deactivation.h"
#include "employees/employees_fixture.h"
#include "employees/frm_clone_employee.h"
#include "employees/frm_employees.h"
#include "employees/frm_transfer_employees.h"
#include "foundation/forms.h"
#include "foundation/frm_input_box.h"
#include "foundation/session_rows.h"
#include "selection/frm_get_approver_from_list.h"
#include "selection/frm_select_employee.h"
#include "selection/frm_select_period.h"

#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace
{
/// The row of the new employee: what is neither 0 nor empty.
const QString kJeanMarcsRow =
    "RecordID=4|FiscalYear=1|OrganizationID=1|DepartmentID=1|GroupID=1|FamilyName=O`brien-Smith|FirstName=Jean-Marc|"
    "EmployeeID=E12|AddressLine1=12, Elm St.|AddressLine2=H2X 1Y4|City=Laval|ProvinceState=Québec1|Country=Canada|"
    "PhoneHome=514-5550101|PhoneOffice=514555-0102|DateOfBirth=29280|DateEntered=46083|EnteredBy=ADMIN|"
    "DeactivatedBy= |ReasonForDeactivation= |HourlyRate=31.5|AttendanceApprovedBy_Main=2|HoursWorkedMonday=7|"
    "HoursWorkedTuesday=7|MONDAY_FirstHalfStart=1.0000000116860974e-07|MONDAY_FirstHalfEnd=4|MONDAY_SecondHalfStart=5|"
    "MONDAY_SecondHalfEnd=8|AccessToRestrictedCategory=1|GroupLevelRead=1|GroupLevelCreate=1|SelfLevelRead=1|"
    "AccessToCategoriesModule=1|Comment=Don`t call|EMailAddress=jm@example.org|Username=JEANMARCOBRIEN-|"
    "Password=SECRET7|HoursWorkedDaily=7|CanViewComments=1|LoginID=JEANMARCOBRIEN-SMITH";

constexpr int kProfileTab = 2;
constexpr int kModulesTab = 3;
const QString kMarc = "Production           / Roy, Marc";

class FrmEmployees : public EmployeesTest
{
protected:
    User& Opens() { return user.Opens<frmEmployees>(); }
    User& OnTab(int tab)
    {
        user.The<frmEmployees>().findChild<QTabWidget*>("sstEmployees")->setCurrentIndex(tab);
        return user;
    }
    /// How many of some fields, from each page, are open to the user.
    int Enterable()
    {
        int open = 0;
        for (const char* name : {"txtName", "cboFirstHalfStartTime(1)", "txtUserName", "cboApprovedBy_SecondLevel",
                                 "cmdGetApprover1FromList", "chkGroup_ReadOnly", "chkModuleGroups"})
            open += user.The<frmEmployees>().findChild<QWidget*>(name)->isEnabled();
        return open;
    }
    QString Approvers() { return user.ReadsAll({"cboApprovedBy_FirstLevel", "cboApprovedBy_SecondLevel"}); }
    /// Opens the Add mode, with Chris as a template or without one.
    User& StartsAdding(bool likeChris = false)
    {
        user.WhenOpens<frmCloneEmployee>([this, likeChris](frmCloneEmployee&) {
            if (likeChris)
                user.Picks("lstCloneEmployees", "Northern Works / Davis");
            user.Clicks(likeChris ? "cmdCloneEmployee" : "cmdNewEmployee");
        });
        return user.Clicks("cmdAdd");
    }
    /// Chooses the employee of that family name for a command, while somebody else alters Chris.
    User& Starts(const QString& command, const QString& familyName, const QString& meanwhile = {})
    {
        user.WhenOpens<frmSelectEmployee>([=, this](frmSelectEmployee&) {
            user.Picks("lstEmployees", familyName);
            if (!meanwhile.isEmpty())
                Alters(meanwhile);
            user.Clicks("cmdSelect");
        });
        return user.Clicks(command);
    }
    void PicksDay(int day, const QStringList& times)
    {
        const char* const lists[] = {"cboFirstHalfStartTime", "cboFirstHalfEndTime", "cboSecondHalfStartTime",
                                     "cboSecondHalfEndTime"};
        for (int i = 0; i < times.size(); ++i)
            user.Picks(QStringLiteral("%1(%2)").arg(lists[i]).arg(day), times[i]);
    }
    /// Enters what the filters, the defaults of the schedule and the rights make something else of.
    void FillsInJeanMarc()
    {
        user.Picks("lstOrganizations", "Southern Trade").Picks("lstDepartments", "Production");
        EXPECT_EQ(user.ReadsAll({"lstOrganizations", "lstGroups"}), "Northern Works|");
        user.Enters({{"lstGroups", "Assembly"}, {"txtName", "o'brien-smith 2"}, {"txtFirstName", "jean-MARC"}});
        user.Enters({{"txtEmployeeID", "E#12"}, {"txtHourlyRate", "$31,5"}, {"txtAddressLine1", "12, \"Elm\" St."}});
        user.Enters({{"txtCity", "Laval"}, {"txtStateProvince", "Québec 1"}, {"txtPostalCode", "h2x 1y4"}});
        user.Enters({{"txtCountry", "Canada"}, {"txtPhoneHome", "514-555 0101"}, {"txtPhoneWork", "(514)555-0102"}});
        user.Enters({{"txtEMail", "j m@example.org"}, {"txtComment", "Don't #call "}, {"cboBirthYear", "1980"}});
        user.Enters({{"cboBirthMonth", "2"}, {"cboBirthDay", "29"}, {"cboHireYear", "2020"}, {"cboHireMonth", "1"}});
        PicksDay(1, {"00:00", "04:00", "05:00", "08:00"});
        user.Types("txtTotalHours(2)", "7").LeavesField("txtTotalHours(2)");
        user.Enters({{"txtUserName", "jeanmarc obrien-smith"}, {"txtPassword", "secret7"}});
        user.Enters({{"cboApprovedBy_FirstLevel", kMarc}, {"chkGroup_CreateOnly", "1"}, {"chkViewComments", "1"}});
        user.Checks("chkModuleCategories");
    }
    int CountOf(const QString& table) { return house.Number("SELECT COUNT(*) FROM " + table); }
};

TEST_F(FrmEmployees, ANewEmployeeIsWrittenWithAllThatWasTypedAndHisEntitlements)
{
    house.FiscalYear("2027", 2027);
    house.Sql(
        "UPDATE Categories SET RequiresMonitoring = 1, Restricted = SystemName = 'Personal time', "
        "StandardEntitlement = CASE SystemName WHEN 'Sick' THEN 37.5 ELSE 0 END, CarryOverAtYearEnd = SystemName = "
        "'Sick' WHERE FiscalYear = 1");
    house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = ? AND DepartmentID = 1",
              {house.CategoryID("Doctor appointments")});
    house.LogIn("ADMIN");
    Opens();
    EXPECT_EQ(user.Reads("txtFiscalYear"), "2026");
    EXPECT_EQ(Enterable(), 0);
    StartsAdding();
    EXPECT_TRUE(user.HasFocus("txtName"));
    EXPECT_EQ(user.Usable({"cmdAdd", "cmdModify", "cmdQuit", "cmdTransfer"}), "cmdAdd");
    EXPECT_EQ(Enterable(), 7);
    FillsInJeanMarc();
    user.WillAnswer("WARNING:", "Yes", "Tuesday\t\t07:00\t\t00:00\r\n")
        .WillConfirm(
            "Add the following employee record to your database?\r\n\r\n"
            "Name and ID:\t\tJean-Marc O`brien-Smith     E12\r\nOrganization:\t\tNorthern Works\r\n"
            "Department:\t\tProduction\r\nGroup:      \t\tAssembly\r\nHours worked:      \t\tMon - 07:00, Tue - "
            "07:00\r\nUsername and password:\tJEANMARCOBRIEN-SMITH, SECRET7\r\nSecurity profile by level")
        .WillAnswer("REMINDER:", "OK", "for the following categorie(s):\r\n\r\n - Vacation\r\n")
        .WillAnswer("REMINDER:", "OK",
                    "The next fiscal year (2027) having already been created, you will now be required to create "
                    "Jean-Marc O`brien-Smith in the new year yourself.")
        .WillBeDone("The new employee has been added to your database.")
        .Clicks("cmdAdd");

    EXPECT_EQ(house.Filled("Employees", 4), kJeanMarcsRow);
    EXPECT_EQ(house.Rows("SELECT SystemName, AnnualEntitlement, MayBeCarriedOver, Entitlements.Active, CarriedOver, "
                         "Entitlements.FiscalYear, EnteredBy, EnteredDate, Comment FROM Entitlements JOIN Categories "
                         "ON CategoryID = Categories.RecordID WHERE EmployeeID = 4 ORDER BY CategoryID"),
              "Vacation|0|0|1|0|1|ADMIN|46083|SYSTEM GENERATED\nSick|37.5|1|1|0|1|ADMIN|46083|SYSTEM GENERATED\n"
              "Personal time|0|0|1|0|1|ADMIN|46083|SYSTEM GENERATED\n"
              "Doctor appointments|0|0|0|0|1|ADMIN|46083|SYSTEM GENERATED");
    EXPECT_EQ(ListFlag(), 1);
    EXPECT_EQ(user.ReadsAll({"txtName", "cboFirstHalfStartTime(1)", "txtUserName", "cboApprovedBy_FirstLevel",
                             "chkModuleCategories", "chkIndividual_ReadOnly"}),
              "||||0|1");
    EXPECT_TRUE(user.CanUse("cmdModify") && user.CanUse("cmdQuit"));
}

TEST_F(FrmEmployees, AModifiedEmployeeIsAuditedAndHisRateReachesBackAsFarAsTold)
{
    Alters("FirstName = 'McChris', PreviousID = 99, EMailAddress = ' c@example.org ', EmployeeType = 3, DateOfBirth = "
           "29280, "
           "IsAllowedToCarryOverVacation = 1");
    for (const QDate& date : {QDate(2026, 3, 31), QDate(2026, 4, 1)})
        house.Record(chris, "Sick", date, 7.25F);
    house.Record(marc, "Sick", {2026, 5, 1}, 7);
    house.Sql("UPDATE Attendance SET TotalDuration = 2 * Duration");
    SessionState.EmployeeID = marc;
    SessionState.HoursWorkedDaily = 6;
    Opens();
    Starts("cmdModify", "Davis");
    EXPECT_EQ(SessionState.EmployeeID, marc) << "the calendar keeps its employee";
    EXPECT_FALSE(user.CanUse("lstOrganizations") || user.CanUse("cmdAdd"));
    EXPECT_EQ(user.ReadsAll({"txtHourlyRate", "txtEMail", "txtUserName", "txtPassword", "cboApprovedBy_FirstLevel",
                             "cboSecondHalfEndTime(5)", "txtTotalHours(5)"}),
              "20.55|c@example.org|CHRIS||" + kMarc + "|16:30|7");
    Alters("GroupID = 0, ReportTo = 7, Title = 'Mr', LoggedIn = 1");
    user.Types("txtHourlyRate", "25.5").Types("txtCity", "Laval").Types("cboBirthDay", "");
    user.WhenOpens<frmSelectPeriod>(
        [this](frmSelectPeriod&) { user.Picks("cboFrom", "Wed 01-Apr-2026").Clicks("cmdOK"); });
    user.WillConfirm("Modify the selected employee record as follows?\r\n\r\nName and ID:\t\tMcChris Davis     \r\n")
        .WillAnswer("New hourly rate specified:", "Yes",
                    " » Previous rate:\t20.55\r\n » New rate:\t\t25.50\r\n\r\nDo you wish to apply this hourly rate "
                    "retroactively to the attendance records entered so far in fiscal year 2026?")
        .WillBeDone("All modifications have been recorded.")
        .Clicks("cmdModify");

    const QString columns =
        "SELECT City, ROUND(HourlyRate, 2), PreviousID, DeactivatedBy, ModifiedBy, ModifiedDate, DateEntered, "
        "HoursWorkedDaily, DateOfBirth, EmployeeType, IsAllowedToCarryOverVacation, GroupID, ReportTo, Title, LoggedIn "
        "FROM ";
    EXPECT_EQ(house.Rows(columns + "Employees WHERE RecordID = ?", {chris}),
              "Laval|25.5|0| |ADMIN|46083|46083|7|0|0|0|0|7|Mr|1")
        << "what somebody else changed meanwhile stays";
    const QString costs = "SELECT HourlyRate, UnitCost, ExtendedCost FROM Attendance ORDER BY RecordDate";
    EXPECT_EQ(house.Rows(costs), "|0|0\n25.50|2550|36975\n|0|0");
    EXPECT_EQ(SessionState.HoursWorkedDaily, 6);
    EXPECT_EQ(ListFlag(), 1);

    Starts("cmdModify", "Davis").Types("txtHourlyRate", "30");
    user.WhenOpens<frmSelectPeriod>([this](frmSelectPeriod&) { user.Clicks("cmdCancel"); });
    user.WillConfirm().WillAnswer("New hourly rate specified:", "Yes").WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(house.Rows(columns + "Employees_Modifications ORDER BY ID"),
              "|20.55|99|||0|0|7|29280|3|1|0|7|Mr|1\nLaval|25.5|0| |ADMIN|46083|46083|7|0|0|0|0|7|Mr|1")
        << "each copy is the row before its change";
    EXPECT_EQ(house.Rows(costs), "|0|0\n25.50|2550|36975\n|0|0") << "no date, no costs";
}

TEST_F(FrmEmployees, TheChecksComeInOrderAndShowTheirField)
{
    house.Sql("UPDATE Groups SET Active = 0");
    house.Sql("UPDATE Employees SET GlobalLevelCreate = 1 WHERE RecordID = ?", {marc});
    Opens();
    StartsAdding();
    using Fields = QList<std::pair<QString, QString>>;
    const auto refused = [this](const Fields& entered, const QString& control, const QString& text,
                                const QString& title = "ERROR:") {
        user.Enters(entered);
        OnTab(kModulesTab).WillAnswer(title, title == "ERROR:" ? "OK" : "No", text).Clicks("cmdAdd");
        EXPECT_TRUE(user.CanUse(control) && user.HasFocus(control)) << qPrintable(text);
    };
    refused({}, "lstOrganizations", "You must associate the employee to an organization!");
    refused({{"lstOrganizations", "Northern Works"}}, "txtName", "the employee's family name!");
    refused({{"txtName", "roy"}}, "txtFirstName", "the employee's first name!");
    refused({{"txtFirstName", "marc"}, {"cboBirthYear", "1800"}, {"cboBirthMonth", "2"}, {"cboBirthDay", "x28"}},
            "cboBirthYear", "The date of birth you specified is invalid!");
    refused({{"cboBirthYear", "1981"}, {"cboHireMonth", "11"}, {"cboHireDay", "31"}, {"cboHireYear", "2001"}},
            "cboHireYear", "The date of hire you specified is invalid!");
    refused({{"cboHireDay", "30"}}, "cboFirstHalfStartTime(0)", "You must specify the employee's weekly schedule!");
    refused({{"cboFirstHalfStartTime(6)", "08:00"}}, "cboFirstHalfEndTime(6)",
            "Saturday's schedule (first half of the day) is incomplete!");
    refused({{"cboFirstHalfEndTime(6)", "12:00"}}, "txtUserName",
            "According to this structure James Bond's username would be «JBOND».");
    refused({{"txtUserName", "chris"}}, "txtUserName", "The specified username has already been used!");
    refused({{"txtUserName", "marc2"}}, "txtPassword", "You must specify a password for this employee!");
    refused({{"txtPassword", "x"}, {"chkApprovalAuthority", "1"}}, "txtName",
            "You already have a Marc Roy in the same department! Proceed anyway?", "CONFIRM:");
    refused({{"txtName", "royer"}}, "lstDepartments", "You did not associate Marc Royer to any department!",
            "CONFIRM:");
    user.WillConfirm("to any department!");
    refused({}, "txtEMail", "An e-mail address must be specified for any employee");
    refused({{"chkApprovalAuthority", "0"}, {"cboApprovedBy_FirstLevel", "Roy, Marc"}}, "txtEMail",
            "Unless you specify an e-mail address for Marc Royer, you will", "WARNING:");
    user.WillAnswer("WARNING:", "Yes");
    for (int press = 0; press < 2; ++press) // what was accepted is not asked again
        user.WillAnswer("CONFIRM:", "No", "Add the following").Clicks("cmdAdd");
    user.Types("cboApprovedBy_FirstLevel", "R");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel"), "") << "an approver is picked, not typed";
    refused({}, "cboApprovedBy_FirstLevel", "who will be authorized to approve Marc Royer's requests", "WARNING:");
    user.WillAnswer("WARNING:", "Yes").WillAnswer("CONFIRM:", "No").Clicks("cmdAdd");
    user.WillConfirm().WillBeDone().Clicks("cmdAdd");
    EXPECT_EQ(house.Rows("SELECT DateOfBirth, DateOfHire, DepartmentID FROM Employees WHERE LoginID = 'MARC2'"),
              "29645|37225|0");
}

TEST_F(FrmEmployees, ADeactivatedEmployeeIsClosedInBothYearsWithHisEntitlements)
{
    const int nextYear = house.FiscalYear("2027", 2027);
    const int next = house.Hire({"CHRIS", "Chris", "Davis", "Production"}, nextYear);
    house.Sql("UPDATE Employees SET PreviousID = ? WHERE RecordID = ?", {chris, next});
    for (const int employee : {chris, marc, next})
        house.Sql("INSERT INTO Entitlements (EmployeeID, Active) VALUES (?, 1)", {employee});
    const auto willGive = [this](const QString& reason, const char* button) {
        user.WhenOpens<frmInputBox>([=, this](frmInputBox&) { user.Types("txtInput", reason).Clicks(button); });
    };
    Opens();
    Starts("cmdDeactivate", "Davis");
    EXPECT_EQ(user.Reads("txtFirstName"), "Chris");
    EXPECT_FALSE(Enterable() > 0 || user.CanUse("cmdModify"));
    user.WillAnswer("CONFIRM:", "No", "Do you really wish to deactivate Chris Davis?").Clicks("cmdDeactivate");
    EXPECT_TRUE(user.CanUse("cmdModify"));
    Starts("cmdDeactivate", "Davis");
    willGive("gone", "cmdCancel");
    user.WillConfirm()
        .WillAnswer("OPERATION CANCELLED:", "OK", "You did not specify a reason for the deactivation of Chris Davis.")
        .Clicks("cmdDeactivate");
    const QString closed = "SELECT DeactivatedDate, DeactivatedBy, ReasonForDeactivation FROM Employees WHERE "
                           "FirstName = 'Chris'";
    EXPECT_EQ(house.Rows(closed), "0||\n0||");
    SessionState.English = false;
    Starts("cmdDeactivate", "Davis");
    willGive("l'école, 100 % | \"A\" & B", "cmdOK");
    user.WillConfirm("Souhaitez-vous vraiment désactiver Chris Davis?")
        .WillBeDone("L'employé(e) sélectionné(e) a été désactivé(e).")
        .Clicks("cmdDeactivate");
    EXPECT_EQ(house.Rows(closed), "46083|ADMIN|l`école, 100 % | \"A\" & B\n46083|ADMIN|l`école, 100 % | \"A\" & B");
    EXPECT_EQ(house.Rows("SELECT Active, ModifiedBy, ModifiedDate FROM Entitlements ORDER BY RecordID"),
              "0|ADMIN|46083\n1||0\n1||0")
        << "those of the next year stay";
    EXPECT_EQ(house.Rows("SELECT RecordID, DeactivatedDate FROM Employees_Modifications"), "3|0");
    EXPECT_EQ(ListFlag(), 1);

    house.Refuses("UPDATE ON Employees WHEN OLD.FiscalYear = 2");
    DeactivateEmployee(datAbsence, chris, "again");
    EXPECT_EQ(house.Rows(closed), "46083|ADMIN|again\n46083|ADMIN|l`école, 100 % | \"A\" & B")
        << "the next year may fail";
}

TEST_F(FrmEmployees, AnEmployeeWhomSomebodyElseDeactivatedMeanwhileIsNotWorkedOn)
{
    Opens();
    user.SeesMessage = [this](const Message&) { RereadClosing(datAbsence); }; // as the minute's tick does meanwhile
    const auto choosesTooLate = [this](const QString& command) {
        Alters("DeactivatedDate = 0, DeactivatedBy = 'MARC'");
        Starts(command, "Davis", "DeactivatedDate = 46080");
        EXPECT_TRUE(user.CanUse("cmdAdd") && user.CanUse("cmdModify"));
        EXPECT_EQ(user.Reads("txtName"), "");
    };
    user.WillAnswer("OPERATION DENIED:", "OK", "Chris Davis was deactivated on Fri 27-Feb-2026 by MARC! ");
    choosesTooLate("cmdModify");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "The selected employee record is already inactive!");
    choosesTooLate("cmdDeactivate");
    user.WhenOpens<frmSelectEmployee>([this](frmSelectEmployee&) { user.Clicks("cmdQuit"); });
    EXPECT_TRUE(user.Clicks("cmdModify").CanUse("cmdAdd"));
}

TEST_F(FrmEmployees, ASupervisorWorksInHisUnitAndGivesOnlyWhatHeHas)
{
    Alters("GlobalLevelRead = 1, EMailAddress = 'c@example.org'");
    house.LogIn("MARC");
    Opens();
    EXPECT_EQ(user.Entries("lstDepartments"), QStringList{"Production"});
    StartsAdding();
    EXPECT_EQ(user.Usable({"lstOrganizations", "lstDepartments", "lstGroups"}), "lstGroups");
    EXPECT_EQ(user.ReadsAll({"lstOrganizations", "lstDepartments", "lstGroups"}), "Northern Works|Production|Assembly");
    user.WillAnswer("FOR YOUR INFORMATION:", "OK", "The system administrator (Alice Tremblay) is the only user");
    OnTab(kModulesTab);
    EXPECT_FALSE(user.CanUse("chkModuleEmployees")) << "not even what he has himself";
    OnTab(kProfileTab);
    EXPECT_EQ(
        user.Usable({"chkDepartment_CreateOnly", "chkDepartment_Absolute", "chkViewComments", "chkGenerateReports"}),
        "chkDepartment_CreateOnly chkViewComments");
    user.Checks("chkDepartment_CreateOnly").Clicks("cmdCancelOperation");
    EXPECT_EQ(user.ReadsAll({"chkDepartment_CreateOnly", "chkGroup_CreateOnly"}), "0|0");

    Starts("cmdModify", "Davis");
    EXPECT_TRUE(user.CanUse("txtName")) << "the first tab is shown";
    user.Checks("chkGroup_ReadOnly").WillConfirm().WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(
        house.Rows("SELECT GlobalLevelRead, GroupLevelRead, EnteredBy FROM Employees WHERE RecordID = ?", {chris}),
        "1|1|MARC")
        << "a right that cannot be ticked is written as it was";
}

TEST_F(FrmEmployees, AFailureLeavesNothingWrittenAndTheFormAsTyped)
{
    house.Refuses("INSERT ON Entitlements WHEN NEW.CategoryID = 3");
    house.Sql("DROP TABLE Employees_Modifications");
    const int employees = CountOf("Employees");
    Opens();
    StartsAdding(true).Picks("lstDepartments", "Sales"); // where nobody approves, and no approver is asked for
    user.Enters({{"txtName", "Lee"}, {"txtFirstName", "Ann"}, {"txtEMail", "a@b.org"}, {"txtUserName", "lee"}});
    user.Types("txtPassword", "x");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdAdd");
    EXPECT_EQ(CountOf("Employees") + CountOf("Entitlements"), employees);
    EXPECT_EQ(user.ReadsAll({"txtName", "txtUserName"}), "Lee|LEE");
    EXPECT_FALSE(user.CanUse("cmdModify"));
    house.Sql("DROP TRIGGER Refusing");
    user.WillConfirm().WillBeDone().Clicks("cmdAdd");
    EXPECT_EQ(CountOf("Employees") + CountOf("Entitlements"), employees + 1 + 4);

    Starts("cmdModify", "Lee").Types("txtCity", "Laval").WillConfirm().WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(house.Cell("SELECT City FROM Employees WHERE RecordID = 4"), "Laval")
        << "the save goes on without its copy";
    house.Refuses("UPDATE ON Employees");
    Starts("cmdModify", "Lee").Types("txtCity", "Gaspé");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdModify");
    EXPECT_EQ(user.Reads("txtCity"), "Gaspé");
    EXPECT_EQ(user.Usable({"txtCity", "cmdAdd", "cmdModify"}), "txtCity cmdModify");
}

TEST_F(FrmEmployees, ApproversArePickedInTwoLevels)
{
    const int stella = house.Hire({"STELLA", "Stella", "Stone", "Stores", "", {"IsAuthorizedToApprove"}});
    Alters("AttendanceApprovedBy_Backup = " + QString::number(stella));
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    Opens();
    StartsAdding().Picks("lstDepartments", "Production");
    user.WillBeRefused("You must specify a first level of approval before specifying a second level of approval!")
        .Picks("cboApprovedBy_SecondLevel", kMarc);
    EXPECT_EQ(Approvers(), "|");
    EXPECT_TRUE(user.HasFocus("cboApprovedBy_FirstLevel"));
    user.Picks("cboApprovedBy_FirstLevel", kMarc);
    user.WillBeRefused("The second level of approval cannot be the same as the first one!")
        .Picks("cboApprovedBy_SecondLevel", kMarc)
        .Picks("lstGroups", "Assembly");
    EXPECT_EQ(Approvers(), kMarc + "|") << "a group keeps the approvers, and a refused one is forgotten";
    user.WhenOpens<frmGetApproverFromList>(
        [this](frmGetApproverFromList&) { user.Picks("lstApprovers", "Stone, Stella").Clicks("cmdSelect"); });
    user.Clicks("cmdGetApprover2FromList");
    EXPECT_EQ(Approvers(), kMarc + "|Stone, Stella");
    user.Picks("lstDepartments", "Sales");
    EXPECT_EQ(Approvers(), "|");
    user.Picks("lstOrganizations", "Northern Works");
    EXPECT_EQ(user.ReadsAll({"lstOrganizations", "lstDepartments"}), "Northern Works|")
        << "the organization alone, chosen once more";
    user.ClicksWithCtrl("lstOrganizations");
    EXPECT_EQ(user.The<frmEmployees>().findChild<QListWidget*>("lstOrganizations")->selectedItems().size(), 1);
    user.Clicks("cmdCancelOperation");

    Starts("cmdModify", "Davis");
    EXPECT_EQ(Approvers(), kMarc + "|Stone, Stella") << "from outside the unit";
    user.Clicks("cmdCancelOperation");
    EXPECT_EQ(Approvers(), "|");
    EXPECT_EQ(user.Entries("cboApprovedBy_FirstLevel"), QStringList());
    Starts("cmdModify", "Roy");
    EXPECT_EQ(Approvers(), "|") << "not those of the employee before";
    user.Clicks("cmdCancelOperation");
    StartsAdding(true);
    EXPECT_EQ(Approvers(), kMarc + "|") << "a template brings nobody from outside the unit";
}

TEST_F(FrmEmployees, ATemplateBringsWorkplaceScheduleAndRightsAndGoesWithoutATrace)
{
    Alters("AccessToCategoriesModule = 1, GroupLevelRead = 1");
    Opens();
    StartsAdding(true);
    EXPECT_EQ(user.ReadsAll({"lstDepartments", "lstGroups", "chkGroup_ReadOnly", "chkModuleCategories",
                             "chkViewHiddenCategories", "txtName", "txtUserName", "txtHourlyRate"}),
              "Production|Assembly|1|1|1|||");
    user.Picks("cboSecondHalfEndTime(1)", "18:00");
    EXPECT_EQ(user.ReadsAll({"txtTotalHours(1)", "txtTotalMinutes(1)"}), "7|0") << "totals count as typed";
    user.WillAnswer("CONFIRM:", "No", "Changes have not been saved!").Presses("", Qt::Key_Escape);
    EXPECT_EQ(user.Reads("cboSecondHalfEndTime(1)"), "18:00");
    user.WillConfirm().Presses("", Qt::Key_Escape);
    EXPECT_TRUE(user.CanUse("cmdAdd") && user.CanUse("cmdModify")) << "Escape ends the operation first";
    OnTab(0);
    for (const auto& [key, tab] : {std::pair(Qt::Key_Tab, 1), {Qt::Key_Backtab, 0}, {Qt::Key_Backtab, kModulesTab}}) {
        user.Presses("cmdAdd", key, Qt::ControlModifier);
        EXPECT_EQ(user.The<frmEmployees>().findChild<QTabWidget*>("sstEmployees")->currentIndex(), tab);
    }
    Starts("cmdModify", "Davis");
    OnTab(kProfileTab).Presses("", Qt::Key_Escape);
    EXPECT_TRUE(user.CanUse("cmdAdd")) << "pages that were looked at are no change";
    StartsAdding(true).Types("txtName", "Gone");
    user.Presses("", Qt::Key_N, Qt::AltModifier).Presses("", Qt::Key_Escape);
    EXPECT_FALSE(user.The<frmEmployees>().isVisible()) << "no key overtakes the letter of Cancel";
}

TEST_F(FrmEmployees, TheScheduleFillsInWhileThePersonTabsThroughIt)
{
    Opens();
    StartsAdding();
    user.Presses("cboFirstHalfStartTime(0)", Qt::Key_Down);
    auto* first = user.The<frmEmployees>().findChild<QComboBox*>("cboFirstHalfStartTime(0)");
    EXPECT_EQ(first->view()->currentIndex().row(), 0);
    const std::pair<const char*, QString> found[] = {{"0830", "08:30"}, {"830", "08:30"}, {"8h30", "08:30"},
                                                     {"8:30", "08:30"}, {"08", "08:00"},  {"22", "22:00"},
                                                     {"1h30", "01:30"}, {"8z", "08:00"}};
    for (const auto& [typed, time] : found) {
        QTest::keyClick(first->view(), Qt::Key_Escape);
        user.Presses("cboFirstHalfStartTime(0)", Qt::Key_Down);
        QTest::keyClicks(first->view(), typed);
        EXPECT_EQ(first->view()->currentIndex().data().toString(), time) << typed;
    }
    QTest::keyClick(first->view(), Qt::Key_Escape);
    PicksDay(1, {"08:00", "12:00", "13:00", "16:20"});
    user.LeavesField("txtTotalMinutes(1)");
    for (const char* list : {"cboFirstHalfStartTime(2)", "cboFirstHalfEndTime(2)", "cboSecondHalfStartTime(2)"})
        user.LeavesField(list);
    EXPECT_TRUE(user.HasFocus("cboSecondHalfEndTime(2)"));
    user.LeavesField("cboSecondHalfEndTime(2)");
    EXPECT_EQ(user.ReadsAll(
                  {"cboFirstHalfStartTime(2)", "cboSecondHalfEndTime(2)", "txtTotalHours(2)", "txtTotalMinutes(2)"}),
              "08:00|16:20|7|20");
    const auto looks = [this](const char* list) {
        return user.The<frmEmployees>().findChild<QComboBox*>(list)->property("look").toString();
    };
    EXPECT_EQ(looks("cboFirstHalfEndTime(2)") + looks("cboFirstHalfEndTime(1)"), "copied");
    auto* times = user.The<frmEmployees>().findChild<QComboBox*>("cboSecondHalfEndTime(2)");
    user.Types("cboSecondHalfEndTime(2)", "1");
    EXPECT_EQ(user.ReadsAll({"cboSecondHalfEndTime(2)", "txtTotalHours(2)"}), "|") << "typing clears";
    QTest::keyClicks(times->view(), "7:");
    QTest::keyClick(times->view(), Qt::Key_Return);
    EXPECT_EQ(user.ReadsAll({"cboSecondHalfEndTime(2)", "txtTotalHours(2)"}), "17:00|8");
    EXPECT_EQ(looks("cboSecondHalfEndTime(2)"), "");
    user.Clicks("cmdClearDay(2)");
    EXPECT_EQ(user.ReadsAll({"cboFirstHalfStartTime(2)", "txtTotalHours(2)", "txtTotalHours(1)"}), "||7");
    user.Clicks("cmdCopyMonday");
    EXPECT_EQ(user.ReadsAll({"cboFirstHalfStartTime(2)", "cboSecondHalfEndTime(5)", "txtTotalMinutes(5)",
                             "cboFirstHalfStartTime(6)"}),
              "08:00|16:20|20|");
    user.Clicks("cmdClearDay(3)");
    user.Types("txtTotalHours(3)", "24").Presses("txtTotalHours(3)", Qt::Key_Return);
    EXPECT_TRUE(user.HasFocus("txtTotalHours(3)")) << "nothing is saved, nothing is asked";
    user.Types("txtTotalHours(3)", "24");
    QTest::mouseClick(user.The<frmEmployees>().findChild<QPushButton*>("cmdAdd"), Qt::LeftButton);
    EXPECT_TRUE(user.HasFocus("txtTotalHours(3)")) << "nor by the mouse";
    EXPECT_EQ(user.Reads("txtTotalHours(3)"), "");

    user.WillConfirm("will vary from one week to the next").Checks("chkIrregularHours");
    EXPECT_EQ(user.ReadsAll({"cboFirstHalfStartTime(1)", "txtTotalHours(1)"}), "|");
    EXPECT_TRUE(user.CanUse("cboFirstHalfStartTime(1)"));
    EXPECT_EQ(user.Entries("cboSecondHalfEndTime(6)").size(), 288);
}

TEST_F(FrmEmployees, TheListAndTheTransferAreOpenedFromHereUnlessTheYearHasNoUnits)
{
    Dismiss("MARC");
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    QWidget* parent = nullptr;
    FormsAbove.ShowEmployeesList = [&](QWidget* form) { parent = form; };
    Opens().Clicks("cmdListRecords");
    EXPECT_EQ(parent, &user.The<frmEmployees>());
    EXPECT_EQ(CountOf("Employees_List"), 2) << "rebuilt before it is shown, with the deactivated employees";
    user.WhenOpens<frmTransferEmployees>([this](frmTransferEmployees&) {
        user.Picks("lstFromEmployee", "Davis").Picks("lstToDepartment", "Sales").WillConfirm().WillBeDone();
        user.Clicks("cmdProcess").Clicks("cmdQuit");
    });
    EXPECT_TRUE(user.Clicks("cmdTransfer").HasFocus("cmdAdd"));
    StartsAdding().Clicks("cmdCancelOperation"); // one employee is enough for a template

    SessionState.English = false;
    for (const auto& [table, missing] :
         {std::pair("Departments", "un département"), {"Organizations", "une organisation"}}) {
        house.Sql(QStringLiteral("UPDATE %1 SET Active = 0").arg(table));
        user.WillAnswer("OPÉRATION REFUSÉE:", "OK", QStringLiteral("créer au moins %1 dans").arg(missing));
        Opens();
        EXPECT_FALSE(user.The<frmEmployees>().isVisible());
    }
}
} // namespace
