#include "employees/employee_deactivation.h"
#include "employees/employees_fixture.h"
#include "employees/frm_clone_employee.h"
#include "employees/frm_transfer_employees.h"
#include "foundation/forms.h"
#include "foundation/frm_input_box.h"
#include "selection/frm_get_approver_from_list.h"
#include "selection/frm_select_period.h"

#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace
{
enum Tab
{
    kGeneral,
    kSchedule,
    kProfile,
    kModules
};

/// Some of what is entered, with the tab on which it stands.
const std::pair<Tab, const char*> kEntries[] = {{kGeneral, "txtName"},
                                                {kSchedule, "cboFirstHalfStartTime(1)"},
                                                {kProfile, "txtUserName"},
                                                {kProfile, "txtPassword"},
                                                {kProfile, "cboApprovedBy_SecondLevel"},
                                                {kProfile, "cmdGetApprover1FromList"},
                                                {kProfile, "chkGroup_ReadOnly"},
                                                {kModules, "chkModuleGroups"}};

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
    /// How many of kEntries the user can enter.
    int Enterable()
    {
        return static_cast<int>(std::count_if(std::begin(kEntries), std::end(kEntries), [this](const auto& entry) {
            return OnTab(entry.first).CanUse(entry.second);
        }));
    }
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
    User& Starts(const QString& command, const QString& familyName)
    {
        WillChoose(familyName);
        return user.Clicks(command);
    }
    void PicksDay(int day, const QStringList& times)
    {
        const char* const lists[] = {"cboFirstHalfStartTime", "cboFirstHalfEndTime", "cboSecondHalfStartTime",
                                     "cboSecondHalfEndTime"};
        for (int i = 0; i < times.size(); ++i)
            user.Picks(QStringLiteral("%1(%2)").arg(lists[i]).arg(day), times[i]);
    }
    User& WillGiveReason(const QString& reason, const char* button)
    {
        return user.WhenOpens<frmInputBox>(
            [this, reason, button](frmInputBox&) { user.Types("txtInput", reason).Clicks(button); });
    }
    /// "Column=value" of all in a row that is neither 0 nor empty.
    QString Filled(const QString& table, int recordID)
    {
        QStringList filled;
        const QStringList columns =
            house.Rows("SELECT name FROM pragma_table_info('" + table + "') ORDER BY cid").split('\n');
        for (const QString& column : columns) {
            const QString value = house.Cell("SELECT " + column + " FROM " + table + " WHERE RecordID = ?", {recordID});
            if (!value.isEmpty() && value != "0")
                filled << column + "=" + value;
        }
        return filled.join('|');
    }
    /// Types what the filters, the defaults of the schedule and the rights make something else of.
    void FillsInJeanMarc()
    {
        user.Picks("lstOrganizations", "Southern Trade").Picks("lstDepartments", "Production");
        EXPECT_EQ(user.ReadsAll({"lstOrganizations", "lstGroups"}), "Northern Works|");
        user.Picks("lstGroups", "Assembly");
        user.Types("txtName", "o'brien-smith 2").Types("txtFirstName", "jean-MARC").Types("txtEmployeeID", "E#12");
        user.Types("txtHourlyRate", "$31.5").Types("txtAddressLine1", "12, \"Elm\" St.").Types("txtCity", "Laval");
        user.Types("txtStateProvince", "Québec 1").Types("txtPostalCode", "h2x 1y4").Types("txtCountry", "Canada");
        user.Types("txtPhoneHome", "514-555 0101").Types("txtPhoneWork", "(514)555-0102");
        user.Types("txtEMail", "j m@example.org").Types("txtComment", "Don't #call ");
        user.Picks("cboBirthYear", "1980").Picks("cboBirthMonth", "2").Picks("cboBirthDay", "29");
        user.Picks("cboHireYear", "2020").Picks("cboHireMonth", "1");
        OnTab(kSchedule);
        PicksDay(1, {"00:00", "04:00", "05:00", "08:00"});
        user.Types("txtTotalHours(2)", "7").LeavesField("txtTotalHours(2)");
        OnTab(kProfile).Types("txtUserName", "jeanmarc obrien-smith").Types("txtPassword", "secret7");
        user.Picks("cboApprovedBy_FirstLevel", kMarc).Checks("chkGroup_CreateOnly").Checks("chkViewComments");
        OnTab(kModules).Checks("chkModuleCategories");
    }

    int CountOf(const QString& table) { return house.Number("SELECT COUNT(*) FROM " + table); }
    int ListFlag() { return house.Number("SELECT ReloadEmployeesList FROM FiscalYears WHERE RecordID = 1"); }
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
    EXPECT_FALSE(user.CanUse("cmdModify") || user.CanUse("cmdQuit") || user.CanUse("cmdTransfer"));
    EXPECT_EQ(Enterable(), std::size(kEntries));
    OnTab(kGeneral);
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

    EXPECT_EQ(Filled("Employees", 4), kJeanMarcsRow);
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

TEST_F(FrmEmployees, ATemplateBringsWorkplaceScheduleApproverAndRights)
{
    const int stella = house.Hire({"STELLA", "Stella", "Stone", "Stores", "", {"IsAuthorizedToApprove"}});
    house.Sql("UPDATE Employees SET AccessToCategoriesModule = 1, GroupLevelRead = 1, AttendanceApprovedBy_Backup = ? "
              "WHERE RecordID = ?",
              {stella, chris});
    Opens();
    StartsAdding(true);
    EXPECT_EQ(user.ReadsAll({"lstDepartments", "lstGroups", "cboApprovedBy_FirstLevel", "cboApprovedBy_SecondLevel",
                             "chkGroup_ReadOnly", "chkModuleCategories", "chkViewHiddenCategories"}),
              "Production|Assembly|" + kMarc + "||1|1|1")
        << "an approver from outside the unit is not shown";
    EXPECT_EQ(user.ReadsAll({"txtName", "txtUserName", "txtHourlyRate"}), "||");
    OnTab(kSchedule).Picks("cboSecondHalfEndTime(1)", "18:00");
    EXPECT_EQ(user.ReadsAll({"txtTotalHours(1)", "txtTotalMinutes(1)"}), "7|0") << "totals count as typed";
    user.Presses("", Qt::Key_Escape);
    EXPECT_TRUE(user.CanUse("cmdAdd") && user.CanUse("cmdModify")) << "Escape ends the operation first";
    user.Presses("", Qt::Key_Escape);
    EXPECT_FALSE(user.The<frmEmployees>().isVisible());
}

TEST_F(FrmEmployees, AModifiedEmployeeIsAuditedAndHisRateReachesBackAsFarAsTold)
{
    house.Sql("UPDATE Employees SET PreviousID = 99, EMailAddress = ' c@example.org ', EmployeeType = 3, DateOfBirth = "
              "29280, "
              "IsAllowedToCarryOverVacation = 1 WHERE RecordID = ?",
              {chris});
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
    house.Sql("UPDATE Employees SET GroupID = 0, ReportTo = 7, Title = 'Mr', LoggedIn = 1 WHERE RecordID = ?", {chris});
    user.Types("txtHourlyRate", "25.5").Types("txtCity", "Laval").Types("cboBirthDay", "");
    user.WhenOpens<frmSelectPeriod>(
        [this](frmSelectPeriod&) { user.Picks("cboFrom", "Wed 01-Apr-2026").Clicks("cmdOK"); });
    user.WillConfirm("Modify the selected employee record as follows?\r\n\r\nName and ID:\t\tChris Davis     \r\n"
                     "Organization:\t\tNorthern Works\r\nDepartment:\t\tProduction\r\nGroup:      \t\tAssembly\r\n"
                     "Hours worked:      \t\tMon - 07:00, Tue - 07:00, Wed - 07:00, \r\n\t\t\tThu - 07:00, Fri - "
                     "07:00\r\nUsername and password:\tCHRIS, \r\n")
        .WillAnswer("New hourly rate specified:", "Yes",
                    " » Previous rate:\t20.55\r\n » New rate:\t\t25.50\r\n\r\nDo you wish to apply this hourly rate "
                    "retroactively to the attendance records entered so far in fiscal year 2026?")
        .WillBeDone("All modifications have been recorded.")
        .Clicks("cmdModify");

    const QString columns =
        "SELECT City, ROUND(HourlyRate, 2), PreviousID, DeactivatedBy, ModifiedBy, ModifiedDate, Password, "
        "HoursWorkedDaily, DateOfBirth, EmployeeType, IsAllowedToCarryOverVacation, GroupID, ReportTo, Title, LoggedIn "
        "FROM ";
    EXPECT_EQ(house.Rows(columns + "Employees WHERE RecordID = ?", {chris}),
              "Laval|25.5|0| |ADMIN|46083|PASS|7|0|0|0|0|7|Mr|1")
        << "what somebody else changed meanwhile stays";
    EXPECT_EQ(house.Rows(columns + "Employees_Modifications"), "|20.55|99|||0|PASS|7|29280|3|1|0|7|Mr|1");
    const QString costs = "SELECT HourlyRate, UnitCost, ExtendedCost FROM Attendance ORDER BY RecordDate";
    EXPECT_EQ(house.Rows(costs), "|0|0\n25.50|2550|36975\n|0|0");
    EXPECT_EQ(SessionState.HoursWorkedDaily, 6);
    EXPECT_EQ(ListFlag(), 1);

    house.Today(2026, 3, 9);
    Starts("cmdModify", "Davis").Types("txtHourlyRate", "30");
    user.WhenOpens<frmSelectPeriod>([this](frmSelectPeriod&) { user.Clicks("cmdCancel"); });
    user.WillConfirm().WillAnswer("New hourly rate specified:", "Yes").WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(house.Rows("SELECT City, ROUND(HourlyRate, 2), ModifiedDate FROM Employees_Modifications ORDER BY ID"),
              "|20.55|0\nLaval|25.5|46083")
        << "each copy is the row before its change";
    EXPECT_EQ(house.Rows(costs), "|0|0\n25.50|2550|36975\n|0|0") << "no date, no costs";
    EXPECT_EQ(EmployeeCell("DateEntered", chris), "46090");
}

TEST_F(FrmEmployees, TheChecksComeInOrderAndShowTheirField)
{
    house.Sql("UPDATE Groups SET Active = 0");
    house.Sql("UPDATE Employees SET GlobalLevelCreate = 1 WHERE RecordID = ?", {marc});
    Opens();
    StartsAdding();
    const auto refused = [this](const QString& control, const QString& text, const QString& title = "ERROR:") {
        OnTab(kModules);
        user.WillAnswer(title, title == "ERROR:" ? "OK" : "No", text).Clicks("cmdAdd");
        EXPECT_TRUE(user.CanUse(control) && (control.startsWith("cmd") || user.HasFocus(control)))
            << text.toStdString();
    };
    refused("lstOrganizations", "You must associate the employee to an organization!");
    user.Picks("lstOrganizations", "Northern Works");
    refused("txtName", "the employee's family name!");
    user.Types("txtName", "roy");
    refused("txtFirstName", "the employee's first name!");
    user.Types("txtFirstName", "marc");
    user.Types("cboBirthYear", "1800").Picks("cboBirthMonth", "2").Types("cboBirthDay", "x28");
    refused("cboBirthYear", "The date of birth you specified is invalid!");
    user.Picks("cboBirthYear", "1981")
        .Picks("cboHireMonth", "11")
        .Picks("cboHireDay", "31")
        .Types("cboHireYear", "2001");
    refused("cboHireYear", "The date of hire you specified is invalid!");
    user.Picks("cboHireDay", "30");
    refused("cmdAdd", "You must specify the employee's weekly schedule!");
    user.Picks("cboFirstHalfStartTime(6)", "08:00");
    refused("cboFirstHalfEndTime(6)", "Saturday's schedule (first half of the day) is incomplete!");
    user.Picks("cboFirstHalfEndTime(6)", "12:00");
    refused("txtUserName", "According to this structure James Bond's username would be «JBOND».");
    user.Types("txtUserName", "chris");
    refused("txtUserName", "The specified username has already been used!");
    user.Types("txtUserName", "marc2");
    refused("txtPassword", "You must specify a password for this employee!");
    user.Types("txtPassword", "x").Checks("chkApprovalAuthority");
    refused("txtName", "You already have a Marc Roy in the same department! Proceed anyway?", "CONFIRM:");
    user.Types("txtName", "royer");
    refused("lstDepartments", "You did not associate Marc Royer to any department!", "CONFIRM:");
    user.WillConfirm("to any department!");
    refused("txtEMail", "An e-mail address must be specified for any employee");
    OnTab(kProfile).Checks("chkApprovalAuthority", false).Picks("cboApprovedBy_FirstLevel", "Roy, Marc");
    refused("txtEMail", "Unless you specify an e-mail address for Marc Royer, you will", "WARNING:");
    OnTab(kProfile).Types("cboApprovedBy_FirstLevel", "R");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel"), "") << "an approver is picked, not typed";
    refused("cboApprovedBy_FirstLevel", "who will be authorized to approve Marc Royer's requests", "WARNING:");
    user.WillAnswer("WARNING:", "Yes").WillAnswer("CONFIRM:", "No", "Add the following").Clicks("cmdAdd");
    user.WillConfirm("Add the following").WillBeDone().Clicks("cmdAdd");
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
    Opens();
    Starts("cmdDeactivate", "Davis");
    EXPECT_EQ(user.Reads("txtFirstName"), "Chris");
    EXPECT_FALSE(Enterable() > 0 || user.CanUse("cmdModify"));
    user.WillAnswer("CONFIRM:", "No", "Do you really wish to deactivate Chris Davis?").Clicks("cmdDeactivate");
    EXPECT_TRUE(user.CanUse("cmdModify"));
    Starts("cmdDeactivate", "Davis");
    WillGiveReason("gone", "cmdCancel");
    user.WillConfirm()
        .WillAnswer("OPERATION CANCELLED:", "OK", "You did not specify a reason for the deactivation of Chris Davis.")
        .Clicks("cmdDeactivate");
    EXPECT_EQ(EmployeeCell("DeactivatedDate", chris), "0");

    SessionState.English = false;
    Starts("cmdDeactivate", "Davis");
    WillGiveReason("l'école", "cmdOK");
    user.WillConfirm("Souhaitez-vous vraiment désactiver Chris Davis?")
        .WillBeDone("L'employé(e) sélectionné(e) a été désactivé(e).")
        .Clicks("cmdDeactivate");
    const QString closed = "SELECT DeactivatedDate, DeactivatedBy, ReasonForDeactivation FROM Employees WHERE "
                           "FirstName = 'Chris'";
    EXPECT_EQ(house.Rows(closed), "46083|ADMIN|l`école\n46083|ADMIN|l`école");
    EXPECT_EQ(house.Rows("SELECT Active, ModifiedBy, ModifiedDate FROM Entitlements ORDER BY RecordID"),
              "0|ADMIN|46083\n1||0\n1||0")
        << "those of the next year stay";
    EXPECT_EQ(house.Rows("SELECT RecordID, DeactivatedDate FROM Employees_Modifications"), "3|0");
    EXPECT_EQ(ListFlag(), 1);

    house.Refuses("UPDATE ON Employees WHEN OLD.FiscalYear = 2");
    DeactivateEmployee(datAbsence, chris, "again");
    EXPECT_EQ(house.Rows(closed), "46083|ADMIN|again\n46083|ADMIN|l`école") << "the next year may fail";
}

TEST_F(FrmEmployees, AnEmployeeWhomSomebodyElseDeactivatedMeanwhileIsNotWorkedOn)
{
    Opens();
    const auto choosesTooLate = [this](const QString& command) {
        house.Sql("UPDATE Employees SET DeactivatedDate = 0, DeactivatedBy = 'MARC' WHERE RecordID = ?", {chris});
        user.WhenOpens<frmSelectEmployee>([this](frmSelectEmployee&) {
            user.Picks("lstEmployees", "Davis");
            house.Sql("UPDATE Employees SET DeactivatedDate = 46080 WHERE RecordID = ?", {chris});
            user.Clicks("cmdSelect");
        });
        user.Clicks(command);
        EXPECT_TRUE(user.CanUse("cmdAdd") && user.CanUse("cmdModify"));
        EXPECT_EQ(user.Reads("txtName"), "");
    };
    user.WillAnswer("OPERATION DENIED:", "OK", "Chris Davis was deactivated on Fri 27-Feb-2026 by MARC! ");
    choosesTooLate("cmdModify");
    user.WillAnswer("UNABLE TO PROCEED:", "OK", "The selected employee record is already inactive!");
    choosesTooLate("cmdDeactivate");
    user.WhenOpens<frmSelectEmployee>([this](frmSelectEmployee&) { user.Clicks("cmdQuit"); });
    user.Clicks("cmdModify");
    EXPECT_TRUE(user.CanUse("cmdAdd"));
}

TEST_F(FrmEmployees, ASupervisorWorksInHisUnitAndGivesOnlyWhatHeHas)
{
    house.Sql("UPDATE Employees SET GlobalLevelRead = 1, EMailAddress = 'c@example.org' WHERE RecordID = ?", {chris});
    house.LogIn("MARC");
    Opens();
    EXPECT_EQ(user.Entries("lstDepartments"), QStringList{"Production"});
    StartsAdding();
    EXPECT_FALSE(user.CanUse("lstOrganizations") || user.CanUse("lstDepartments"));
    EXPECT_TRUE(user.CanUse("lstGroups"));
    EXPECT_EQ(user.ReadsAll({"lstOrganizations", "lstDepartments", "lstGroups"}), "Northern Works|Production|Assembly");
    user.WillAnswer("FOR YOUR INFORMATION:", "OK",
                    "The system administrator (Alice Tremblay) is the only user authorized to grant these privileges.");
    OnTab(kModules);
    EXPECT_FALSE(user.CanUse("chkModuleEmployees")) << "not even what he has himself";
    OnTab(kProfile);
    EXPECT_TRUE(user.CanUse("chkDepartment_CreateOnly") && user.CanUse("chkViewComments"));
    EXPECT_FALSE(user.CanUse("chkDepartment_Absolute") || user.CanUse("chkGenerateReports"));
    user.Checks("chkDepartment_CreateOnly").Clicks("cmdCancelOperation");
    EXPECT_EQ(user.ReadsAll({"chkDepartment_CreateOnly", "chkGroup_CreateOnly"}), "0|0");

    Starts("cmdModify", "Davis");
    EXPECT_TRUE(user.CanUse("txtName")) << "the first tab is shown";
    OnTab(kProfile).Checks("chkGroup_ReadOnly").WillConfirm().WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(EmployeeCell("GlobalLevelRead", chris) + EmployeeCell("GroupLevelRead", chris), "11")
        << "a right that cannot be ticked is written as it was";
    EXPECT_EQ(EmployeeCell("EnteredBy", chris), "MARC");
}

TEST_F(FrmEmployees, AFailureLeavesNothingWrittenAndTheFormAsTyped)
{
    house.Refuses("INSERT ON Entitlements WHEN NEW.CategoryID = 3");
    house.Sql("DROP TABLE Employees_Modifications");
    const int employees = CountOf("Employees");
    Opens();
    StartsAdding(true).Picks("lstDepartments", "Sales"); // where nobody approves, and no approver is asked for
    user.Types("txtName", "Lee").Types("txtFirstName", "Ann").Types("txtEMail", "a@example.org");
    OnTab(kProfile).Types("txtUserName", "lee").Types("txtPassword", "x");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdAdd");
    EXPECT_EQ(CountOf("Employees") + CountOf("Entitlements"), employees);
    EXPECT_EQ(user.ReadsAll({"txtName", "txtUserName"}), "Lee|LEE");
    EXPECT_FALSE(user.CanUse("cmdModify"));
    house.Sql("DROP TRIGGER Refusing");
    user.WillConfirm().WillBeDone().Clicks("cmdAdd");
    EXPECT_EQ(CountOf("Employees") + CountOf("Entitlements"), employees + 1 + 4);

    Starts("cmdModify", "Lee").Types("txtCity", "Laval").WillConfirm().WillBeDone().Clicks("cmdModify");
    EXPECT_EQ(EmployeeCell("City", 4), "Laval") << "the save goes on without its copy";
    house.Refuses("UPDATE ON Employees");
    Starts("cmdModify", "Lee").Types("txtCity", "Gaspé");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdModify");
    EXPECT_EQ(user.Reads("txtCity"), "Gaspé");
    EXPECT_TRUE(user.CanUse("txtCity") && user.CanUse("cmdModify") && !user.CanUse("cmdAdd"));
}

TEST_F(FrmEmployees, ApproversArePickedInTwoLevels)
{
    const int stella = house.Hire({"STELLA", "Stella", "Stone", "Stores", "", {"IsAuthorizedToApprove"}});
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    const auto approvers = [this] { return user.ReadsAll({"cboApprovedBy_FirstLevel", "cboApprovedBy_SecondLevel"}); };
    Opens();
    StartsAdding().Picks("lstDepartments", "Production");
    OnTab(kProfile);
    user.WillBeRefused("You must specify a first level of approval before specifying a second level of approval!")
        .Picks("cboApprovedBy_SecondLevel", kMarc);
    EXPECT_EQ(approvers(), "|");
    EXPECT_TRUE(user.HasFocus("cboApprovedBy_FirstLevel"));
    user.Picks("cboApprovedBy_FirstLevel", kMarc);
    user.WillBeRefused("The second level of approval cannot be the same as the first one!")
        .Picks("cboApprovedBy_SecondLevel", kMarc);
    OnTab(kGeneral).Picks("lstGroups", "Assembly");
    EXPECT_EQ(approvers(), kMarc + "|") << "a group keeps the approvers, and a refused one is forgotten";
    user.WhenOpens<frmGetApproverFromList>(
        [this](frmGetApproverFromList&) { user.Picks("lstApprovers", "Stone, Stella").Clicks("cmdSelect"); });
    OnTab(kProfile).Clicks("cmdGetApprover2FromList");
    EXPECT_EQ(approvers(), kMarc + "|Stone, Stella");
    OnTab(kGeneral).Picks("lstDepartments", "Sales");
    EXPECT_EQ(approvers(), "|");
    user.Picks("lstOrganizations", "Northern Works");
    EXPECT_EQ(user.ReadsAll({"lstOrganizations", "lstDepartments"}), "Northern Works|")
        << "the organization alone, chosen once more";
    user.ClicksWithCtrl("lstOrganizations");
    EXPECT_EQ(user.The<frmEmployees>().findChild<QListWidget*>("lstOrganizations")->selectedItems().size(), 1);
    user.Clicks("cmdCancelOperation");

    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Backup = ? WHERE RecordID = ?", {stella, chris});
    Starts("cmdModify", "Davis");
    EXPECT_EQ(approvers(), kMarc + "|Stone, Stella") << "from outside the unit";
    user.Clicks("cmdCancelOperation");
    EXPECT_EQ(approvers(), "|");
    EXPECT_EQ(user.Entries("cboApprovedBy_FirstLevel"), QStringList());
    Starts("cmdModify", "Roy");
    EXPECT_EQ(approvers(), "|") << "not those of the employee before";
    user.Clicks("cmdCancelOperation");
}

TEST_F(FrmEmployees, TheScheduleFillsInWhileThePersonTabsThroughIt)
{
    Opens();
    StartsAdding();
    OnTab(kSchedule);
    PicksDay(1, {"08:00", "12:00", "13:00", "16:20"});
    user.LeavesField("txtTotalMinutes(1)");
    for (const char* list : {"cboFirstHalfStartTime(2)", "cboFirstHalfEndTime(2)", "cboSecondHalfStartTime(2)"})
        user.LeavesField(list);
    EXPECT_TRUE(user.HasFocus("cboSecondHalfEndTime(2)"));
    user.LeavesField("cboSecondHalfEndTime(2)");
    EXPECT_EQ(user.ReadsAll(
                  {"cboFirstHalfStartTime(2)", "cboSecondHalfEndTime(2)", "txtTotalHours(2)", "txtTotalMinutes(2)"}),
              "08:00|16:20|7|20");
    user.Types("cboSecondHalfEndTime(2)", "1");
    EXPECT_EQ(user.ReadsAll({"cboSecondHalfEndTime(2)", "txtTotalHours(2)"}), "|") << "typing clears";
    user.Types("txtTotalHours(3)", "24").Presses("txtTotalHours(3)", Qt::Key_Return);
    EXPECT_TRUE(user.HasFocus("txtTotalHours(3)")) << "nothing is saved, nothing is asked";
    EXPECT_EQ(user.Reads("txtTotalHours(3)"), "");
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
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?", {marc});
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
    user.Clicks("cmdTransfer");
    EXPECT_TRUE(user.HasFocus("cmdAdd"));
    StartsAdding().Clicks("cmdCancelOperation"); // one employee is enough for a template

    SessionState.English = false;
    for (const auto& [table, missing] :
         {std::pair("Departments", "un département"), {"Organizations", "une organisation"}}) {
        house.Sql(QStringLiteral("UPDATE %1 SET Active = 0").arg(table));
        user.WillAnswer("OPÉRATION REFUSÉE:", "OK",
                        QStringLiteral("créer au moins %1 dans l'année fiscale 2026!").arg(missing));
        Opens();
        EXPECT_FALSE(user.The<frmEmployees>().isVisible());
    }
}
} // namespace
