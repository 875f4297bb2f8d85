#include "employees/employees_fixture.h"
#include "employees/frm_clone_employee.h"
#include "foundation/forms.h"
#include "foundation/frm_input_box.h"
#include "platform/clock.h"
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

/// What stands in the row that FillsInJeanMarc and SavesJeanMarc leave.
QStringList JeanMarcsRow(int employee, int approver)
{
    return {"RecordID=" + QString::number(employee),
            "FiscalYear=1",
            "OrganizationID=1",
            "DepartmentID=1",
            "GroupID=1",
            "FamilyName=O`brien-Smith",
            "FirstName=Jean-Marc",
            "EmployeeID=E12",
            "AddressLine1=12, Elm St.",
            "AddressLine2=H2X 1Y4",
            "City=Laval",
            "ProvinceState=Québec1",
            "Country=Canada",
            "PhoneHome=514-5550101",
            "PhoneOffice=514555-0102",
            "DateOfBirth=" + QString::number(SerialOfDate({1980, 2, 29})),
            "DateEntered=46083",
            "EnteredBy=ADMIN",
            "DeactivatedBy= ",
            "ReasonForDeactivation= ",
            "HourlyRate=31.5",
            "AttendanceApprovedBy_Main=" + QString::number(approver),
            "HoursWorkedMonday=7",
            "HoursWorkedTuesday=7",
            "MONDAY_FirstHalfStart=1.0000000116860974e-07",
            "MONDAY_FirstHalfEnd=4",
            "MONDAY_SecondHalfStart=5",
            "MONDAY_SecondHalfEnd=8",
            "AccessToRestrictedCategory=1",
            "GroupLevelRead=1",
            "GroupLevelCreate=1",
            "SelfLevelRead=1",
            "AccessToCategoriesModule=1",
            "Comment=Don`t call",
            "EMailAddress=jm@example.org",
            "Username=JEANMARCOBRIEN-",
            "Password=SECRET7",
            "HoursWorkedDaily=7",
            "CanViewComments=1",
            "LoginID=JEANMARCOBRIEN-SMITH"};
}

class FrmEmployees : public EmployeesTest
{
protected:
    User& Opens() { return user.Opens<frmEmployees>(); }
    QTabWidget& Tabs() { return *user.The<frmEmployees>().findChild<QTabWidget*>("sstEmployees"); }
    User& OnTab(int tab)
    {
        Tabs().setCurrentIndex(tab);
        return user;
    }

    /// Opens the Add mode without a template.
    User& StartsAdding()
    {
        user.WhenOpens<frmCloneEmployee>([this](frmCloneEmployee&) { user.Clicks("cmdNewEmployee"); });
        return user.Clicks("cmdAdd");
    }
    User& StartsModifying(const QString& familyName)
    {
        WillChoose(familyName);
        return user.Clicks("cmdModify");
    }

    void PicksDay(int day, const QStringList& times)
    {
        const char* const lists[] = {"cboFirstHalfStartTime", "cboFirstHalfEndTime", "cboSecondHalfStartTime",
                                     "cboSecondHalfEndTime"};
        for (int i = 0; i < times.size(); ++i)
            user.Picks(QStringLiteral("%1(%2)").arg(lists[i]).arg(day), times[i]);
    }

    /// "Column=value" of all that is neither 0 nor empty.
    QStringList Filled(const QString& table, int recordID)
    {
        QStringList filled;
        const QStringList columns =
            house.Rows("SELECT name FROM pragma_table_info('" + table + "') ORDER BY cid").split('\n');
        for (const QString& column : columns) {
            const QString value = house.Cell("SELECT " + column + " FROM " + table + " WHERE RecordID = ?", {recordID});
            if (!value.isEmpty() && value != "0")
                filled << column + "=" + value;
        }
        return filled;
    }

    /// Vacation without, sickness with a standard; a hidden category, and one that the department does not use.
    void MonitorsCategories()
    {
        house.Sql("UPDATE Categories SET RequiresMonitoring = 1 WHERE FiscalYear = 1 AND TimeBankRelated = 0");
        house.Sql("UPDATE Categories SET StandardEntitlement = 37.5, CarryOverAtYearEnd = 1 WHERE RecordID = ?",
                  {house.CategoryID("Sick")});
        house.Sql("UPDATE Categories SET Restricted = 1 WHERE RecordID = ?", {house.CategoryID("Personal time")});
        house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = ? AND DepartmentID = 1",
                  {house.CategoryID("Doctor appointments")});
    }
    /// Types what the filters, the defaults of the schedule and the rights make something else of.
    void FillsInJeanMarc()
    {
        user.Picks("lstOrganizations", "Southern Trade").Picks("lstDepartments", "Production");
        EXPECT_EQ(user.Reads("lstOrganizations") + user.Reads("lstGroups"), "Northern Works");
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
        user.Picks("cboApprovedBy_FirstLevel", "Production           / Roy, Marc");
        user.Checks("chkGroup_CreateOnly").Checks("chkViewComments");
        OnTab(kModules).Checks("chkModuleCategories");
    }
    /// The second press, with all that it asks and tells.
    void SavesJeanMarc()
    {
        user.WillAnswer("WARNING:", "Yes", "Tuesday\t\t07:00\t\t00:00\r\n")
            .WillAnswer(
                "CONFIRM:", "Yes",
                "Add the following employee record to your database?\r\n\r\n"
                "Name and ID:\t\tJean-Marc O`brien-Smith     E12\r\nOrganization:\t\tNorthern Works\r\n"
                "Department:\t\tProduction\r\nGroup:      \t\tAssembly\r\nHours worked:      \t\tMon - 07:00, Tue - "
                "07:00\r\nUsername and password:\tJEANMARCOBRIEN-SMITH, SECRET7\r\nSecurity profile by level")
            .WillAnswer("REMINDER:", "OK", "for the following categorie(s):\r\n\r\n - Vacation\r\n")
            .WillAnswer("REMINDER:", "OK",
                        "The next fiscal year (2027) having already been created, you will now be required to create "
                        "Jean-Marc O`brien-Smith in the new year yourself.")
            .WillAnswer("OPERATION COMPLETED:", "OK", "The new employee has been added to your database.")
            .Clicks("cmdAdd");
    }

    int NewestEmployee() { return house.Number("SELECT MAX(RecordID) FROM Employees"); }
    int CountOf(const QString& table) { return house.Number("SELECT COUNT(*) FROM " + table); }
};

TEST_F(FrmEmployees, ANewEmployeeIsWrittenWithAllThatWasTypedAndHisEntitlements)
{
    house.FiscalYear("2027", 2027);
    MonitorsCategories();
    house.LogIn("ADMIN");

    Opens();
    EXPECT_EQ(user.Reads("txtFiscalYear"), "2026");
    EXPECT_FALSE(user.CanUse("txtName") || user.CanUse("lstOrganizations") || user.CanUse("cmdCancelOperation"));
    StartsAdding();
    EXPECT_TRUE(user.HasFocus("txtName"));
    EXPECT_FALSE(user.CanUse("cmdModify") || user.CanUse("cmdQuit") || user.CanUse("cmdTransfer"));
    FillsInJeanMarc();
    SavesJeanMarc();

    const int employee = NewestEmployee();
    EXPECT_EQ(Filled("Employees", employee), JeanMarcsRow(employee, marc));
    EXPECT_EQ(house.Rows("SELECT SystemName, AnnualEntitlement, MayBeCarriedOver, Entitlements.Active, CarriedOver, "
                         "Entitlements.FiscalYear, EnteredBy, EnteredDate, Comment FROM Entitlements JOIN Categories "
                         "ON CategoryID = Categories.RecordID WHERE EmployeeID = ? ORDER BY CategoryID",
                         {employee}),
              "Vacation|0|0|1|0|1|ADMIN|46083|SYSTEM GENERATED\nSick|37.5|1|1|0|1|ADMIN|46083|SYSTEM GENERATED\n"
              "Personal time|0|0|1|0|1|ADMIN|46083|SYSTEM GENERATED\n"
              "Doctor appointments|0|0|0|0|1|ADMIN|46083|SYSTEM GENERATED");
    EXPECT_EQ(house.Number("SELECT ReloadEmployeesList FROM FiscalYears WHERE RecordID = 1"), 1);
    EXPECT_EQ(user.Reads("txtName") + user.Reads("cboFirstHalfStartTime(1)") + user.Reads("txtUserName"), "");
    EXPECT_EQ(user.Reads("chkModuleCategories") + user.Reads("chkIndividual_ReadOnly"), "01");
    EXPECT_TRUE(user.CanUse("cmdModify") && user.CanUse("cmdQuit"));
}

TEST_F(FrmEmployees, ATemplateBringsWorkplaceScheduleApproverAndRights)
{
    house.Sql("UPDATE Employees SET AccessToCategoriesModule = 1, GroupLevelRead = 1 WHERE RecordID = ?", {chris});
    Opens().WhenOpens<frmCloneEmployee>([this](frmCloneEmployee&) {
        user.Picks("lstCloneEmployees", "Northern Works / Davis").Clicks("cmdCloneEmployee");
    });
    user.Clicks("cmdAdd");
    EXPECT_EQ(user.Reads("lstDepartments") + user.Reads("lstGroups"), "ProductionAssembly");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel"), "Production           / Roy, Marc");
    EXPECT_EQ(user.Reads("chkGroup_ReadOnly") + user.Reads("chkModuleCategories") +
                  user.Reads("chkViewHiddenCategories"),
              "111");
    EXPECT_EQ(user.Reads("txtName") + user.Reads("txtUserName") + user.Reads("txtHourlyRate"), "");
    OnTab(kSchedule).Picks("cboSecondHalfEndTime(1)", "18:00");
    EXPECT_EQ(user.Reads("txtTotalHours(1)") + user.Reads("txtTotalMinutes(1)"), "70") << "totals count as typed";
    user.Presses("", Qt::Key_Escape);
    EXPECT_TRUE(user.CanUse("cmdAdd") && user.CanUse("cmdModify")) << "Escape ends the operation first";
    user.Presses("", Qt::Key_Escape);
    EXPECT_FALSE(user.The<frmEmployees>().isVisible());
}

TEST_F(FrmEmployees, AModifiedEmployeeIsAuditedAndHisRateReachesBackAsFarAsTold)
{
    house.Sql("UPDATE Employees SET PreviousID = 99, EMailAddress = ' c@example.org ' WHERE RecordID = ?", {chris});
    for (const QDate& date : {QDate(2026, 3, 31), QDate(2026, 4, 1)})
        house.Record(chris, "Sick", date, 7.25F);
    SessionState.EmployeeID = marc;
    SessionState.HoursWorkedDaily = 6;
    Opens();
    StartsModifying("Davis");
    EXPECT_EQ(SessionState.EmployeeID, marc) << "the calendar keeps its employee";
    EXPECT_FALSE(user.CanUse("lstOrganizations") || user.CanUse("cmdAdd"));
    EXPECT_EQ(user.Reads("txtHourlyRate") + user.Reads("txtEMail"), "20.55c@example.org");
    EXPECT_EQ(user.Reads("txtUserName") + user.Reads("txtPassword"), "CHRIS");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel"), "Production           / Roy, Marc");
    EXPECT_EQ(user.Reads("cboSecondHalfEndTime(5)") + " " + user.Reads("txtTotalHours(5)"), "16:30 7");
    user.Types("txtHourlyRate", "25.5").Types("txtCity", "Laval");
    user.WhenOpens<frmSelectPeriod>(
        [this](frmSelectPeriod&) { user.Picks("cboFrom", "Wed 01-Apr-2026").Clicks("cmdOK"); });
    user.WillAnswer(
            "CONFIRM:", "Yes",
            "Modify the selected employee record as follows?\r\n\r\nName and ID:\t\tChris Davis     \r\n"
            "Organization:\t\tNorthern Works\r\nDepartment:\t\tProduction\r\nGroup:      \t\tAssembly\r\n"
            "Hours worked:      \t\tMon - 07:00, Tue - 07:00, Wed - 07:00, \r\n\t\t\tThu - 07:00, Fri - 07:00\r\n"
            "Username and password:\tCHRIS, \r\n")
        .WillAnswer("New hourly rate specified:", "Yes",
                    " » Previous rate:\t20.55\r\n » New rate:\t\t25.50\r\n\r\nDo you wish to apply this hourly rate "
                    "retroactively to the attendance records entered so far in fiscal year 2026?")
        .WillAnswer("OPERATION COMPLETED:", "OK", "All modifications have been recorded.")
        .Clicks("cmdModify");

    const QString columns =
        "SELECT City, ROUND(HourlyRate, 2), PreviousID, DeactivatedBy, ModifiedBy, ModifiedDate, Password, "
        "HoursWorkedDaily FROM ";
    EXPECT_EQ(house.Rows(columns + "Employees WHERE RecordID = ?", {chris}), "Laval|25.5|0| |ADMIN|46083|PASS|7");
    EXPECT_EQ(house.Rows(columns + "Employees_Modifications WHERE RecordID = ?", {chris}), "|20.55|99|||0|PASS|7");
    EXPECT_EQ(house.Rows("SELECT HourlyRate, UnitCost, ExtendedCost FROM Attendance ORDER BY RecordDate"),
              "|0|0\n25.50|2550|18488");
    EXPECT_EQ(SessionState.HoursWorkedDaily, 6);

    house.Today(2026, 3, 9);
    StartsModifying("Davis").Types("txtHourlyRate", "30");
    user.WillAnswer("CONFIRM:", "Yes")
        .WillAnswer("New hourly rate specified:", "No")
        .WillAnswer("OPERATION COMPLETED:", "OK")
        .Clicks("cmdModify");
    EXPECT_EQ(house.Rows("SELECT City, ROUND(HourlyRate, 2), ModifiedDate FROM Employees_Modifications ORDER BY ID"),
              "|20.55|0\nLaval|25.5|46083")
        << "each copy is the row before its change";
    EXPECT_EQ(house.Cell("SELECT MAX(UnitCost) FROM Attendance"), "2550");
    EXPECT_EQ(EmployeeCell("DateEntered", chris), "46090");
}

TEST_F(FrmEmployees, TheChecksComeInOrderAndShowTheirField)
{
    house.Sql("UPDATE Groups SET Active = 0");
    house.Sql("UPDATE Employees SET GlobalLevelCreate = 1 WHERE RecordID = ?", {marc});
    Opens();
    StartsAdding();
    const auto refused = [this](const QString& title, const QString& button, const QString& text, int tab,
                                const QString& control) {
        Tabs().setCurrentIndex(tab == kSchedule ? kGeneral : kSchedule);
        user.WillAnswer(title, button, text).Clicks("cmdAdd");
        EXPECT_EQ(Tabs().currentIndex(), tab) << text.toStdString();
        EXPECT_TRUE(control.isEmpty() || user.HasFocus(control)) << control.toStdString();
        Tabs().setCurrentIndex(kGeneral);
    };
    refused("ERROR:", "OK", "You must associate the employee to an organization!", kGeneral, "lstOrganizations");
    user.Picks("lstOrganizations", "Northern Works");
    refused("ERROR:", "OK", "the employee's family name!", kGeneral, "txtName");
    user.Types("txtName", "roy");
    refused("ERROR:", "OK", "the employee's first name!", kGeneral, "txtFirstName");
    user.Types("txtFirstName", "marc");
    user.Picks("cboBirthYear", "1981").Picks("cboBirthMonth", "2").Types("cboBirthDay", "x29");
    refused("ERROR:", "OK", "The date of birth you specified is invalid!", kGeneral, "cboBirthYear");
    user.Types("cboBirthDay", "28").Picks("cboHireMonth", "11").Picks("cboHireDay", "31").Types("cboHireYear", "2001");
    refused("ERROR:", "OK", "The date of hire you specified is invalid!", kGeneral, "cboHireYear");
    user.Picks("cboHireDay", "30");
    refused("ERROR:", "OK", "You must specify the employee's weekly schedule!", kSchedule, "");
    user.Picks("cboFirstHalfStartTime(6)", "08:00");
    refused("ERROR:", "OK", "Saturday's schedule (first half of the day) is incomplete!", kSchedule,
            "cboFirstHalfEndTime(6)");
    user.Picks("cboFirstHalfEndTime(6)", "12:00");
    refused("ERROR:", "OK", "According to this structure James Bond's username would be «JBOND».", kProfile,
            "txtUserName");
    for (const char* taken : {"admin", "chris"}) {
        OnTab(kProfile).Types("txtUserName", taken);
        refused("ERROR:", "OK", "The specified username has already been used!", kProfile, "txtUserName");
    }
    OnTab(kProfile).Types("txtUserName", "marc2");
    refused("ERROR:", "OK", "You must specify a password for this employee!", kProfile, "txtPassword");
    OnTab(kProfile).Types("txtPassword", "x").Checks("chkApprovalAuthority");
    refused("CONFIRM:", "No", "You already have a Marc Roy in the same department! Proceed anyway?", kGeneral,
            "txtName");
    user.Types("txtName", "royer");
    refused("CONFIRM:", "No", "You did not associate Marc Royer to any department!", kGeneral, "lstDepartments");
    user.WillAnswer("CONFIRM:", "Yes", "to any department!");
    refused("ERROR:", "OK", "An e-mail address must be specified for any employee", kGeneral, "txtEMail");
    OnTab(kProfile).Checks("chkApprovalAuthority", false).Picks("cboApprovedBy_FirstLevel", "Roy, Marc");
    refused("WARNING:", "No", "Unless you specify an e-mail address for Marc Royer, you will", kGeneral, "txtEMail");
    OnTab(kProfile).Types("cboApprovedBy_FirstLevel", "R");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel"), "") << "an approver is picked, not typed";
    refused("WARNING:", "No", "who will be authorized to approve Marc Royer's requests", kProfile,
            "cboApprovedBy_FirstLevel");
    user.WillAnswer("WARNING:", "Yes").WillAnswer("CONFIRM:", "No", "Add the following").Clicks("cmdAdd");
    user.WillAnswer("CONFIRM:", "Yes", "Add the following").WillAnswer("OPERATION COMPLETED:", "OK").Clicks("cmdAdd");
    EXPECT_EQ(house.Rows("SELECT DateOfBirth, DateOfHire, DepartmentID FROM Employees WHERE LoginID = 'MARC2'"),
              QStringLiteral("%1|%2|0").arg(SerialOfDate({1981, 2, 28})).arg(SerialOfDate({2001, 11, 30})));
}

TEST_F(FrmEmployees, ADeactivatedEmployeeIsClosedInBothYearsWithHisEntitlements)
{
    const int nextYear = house.FiscalYear("2027", 2027);
    const int next = house.Hire({"CHRIS", "Chris", "Davis", "Production"}, nextYear);
    house.Sql("UPDATE Employees SET PreviousID = ? WHERE RecordID = ?", {chris, next});
    for (const int employee : {chris, marc, next})
        house.Sql("INSERT INTO Entitlements (EmployeeID, Active) VALUES (?, 1)", {employee});
    Opens();
    const auto startsDeactivating = [this] {
        WillChoose("Davis");
        user.Clicks("cmdDeactivate");
    };
    startsDeactivating();
    EXPECT_EQ(user.Reads("txtFirstName"), "Chris");
    EXPECT_FALSE(user.CanUse("txtName") || user.CanUse("cmdModify"));
    user.WillAnswer("CONFIRM:", "No", "Do you really wish to deactivate Chris Davis?").Clicks("cmdDeactivate");
    EXPECT_TRUE(user.CanUse("cmdModify"));

    startsDeactivating();
    user.WhenOpens<frmInputBox>([this](frmInputBox&) { user.Types("txtInput", "gone").Clicks("cmdCancel"); });
    user.WillAnswer("CONFIRM:", "Yes")
        .WillAnswer("OPERATION CANCELLED:", "OK", "You did not specify a reason for the deactivation of Chris Davis.")
        .Clicks("cmdDeactivate");
    EXPECT_EQ(EmployeeCell("DeactivatedDate", chris), "0");

    SessionState.English = false;
    startsDeactivating();
    user.WhenOpens<frmInputBox>([this](frmInputBox& box) {
        EXPECT_EQ(box.windowTitle(), "Désactivation d'employé(e):");
        user.Types("txtInput", "l'école").Clicks("cmdOK");
    });
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Oui", "Souhaitez-vous vraiment désactiver Chris Davis?")
        .WillAnswer("OPÉRATION COMPLÉTÉE:", "OK", "L'employé(e) sélectionné(e) a été désactivé(e).")
        .Clicks("cmdDeactivate");
    for (const int employee : {chris, next})
        EXPECT_EQ(house.Rows("SELECT DeactivatedDate, DeactivatedBy, ReasonForDeactivation FROM Employees WHERE "
                             "RecordID = ?",
                             {employee}),
                  "46083|ADMIN|l`école");
    EXPECT_EQ(house.Rows("SELECT Active, ModifiedBy, ModifiedDate FROM Entitlements ORDER BY RecordID"),
              "0|ADMIN|46083\n1||0\n1||0")
        << "those of the next year stay";
    EXPECT_EQ(house.Rows("SELECT RecordID, DeactivatedDate FROM Employees_Modifications"),
              QString::number(chris) + "|0");
    EXPECT_EQ(house.Number("SELECT ReloadEmployeesList FROM FiscalYears WHERE RecordID = 1"), 1);
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
    EXPECT_EQ(user.Reads("lstOrganizations") + user.Reads("lstDepartments"), "Northern WorksProduction");
    user.WillAnswer("FOR YOUR INFORMATION:", "OK",
                    "The system administrator (Alice Tremblay) is the only user authorized to grant these privileges.");
    OnTab(kModules);
    EXPECT_FALSE(user.CanUse("chkModuleEmployees")) << "not even what he has himself";
    OnTab(kProfile);
    EXPECT_TRUE(user.CanUse("chkDepartment_CreateOnly") && user.CanUse("chkIndividual_CreateOnly") &&
                user.CanUse("chkApprovalAuthority") && user.CanUse("chkViewComments"));
    EXPECT_FALSE(user.CanUse("chkDepartment_Absolute") || user.CanUse("chkGlobal_ReadOnly") ||
                 user.CanUse("chkGenerateReports") || user.CanUse("chkIndividual_ReadOnly"));
    user.Checks("chkDepartment_CreateOnly").Clicks("cmdCancelOperation");
    EXPECT_EQ(user.Reads("chkDepartment_CreateOnly") + user.Reads("chkGroup_CreateOnly"), "00");

    StartsModifying("Davis");
    OnTab(kProfile).Checks("chkGroup_ReadOnly");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK").Clicks("cmdModify");
    EXPECT_EQ(EmployeeCell("GlobalLevelRead", chris) + EmployeeCell("GroupLevelRead", chris), "11")
        << "a right that cannot be ticked is written as it was";
    EXPECT_EQ(EmployeeCell("EnteredBy", chris), "MARC");
}

TEST_F(FrmEmployees, AFailureLeavesNothingWrittenAndTheFormAsTyped)
{
    house.Sql("CREATE TRIGGER Failing BEFORE INSERT ON Entitlements WHEN NEW.CategoryID = 3 "
              "BEGIN SELECT RAISE(ABORT, 'disk trouble'); END");
    house.Sql("DROP TABLE Employees_Modifications");
    const int employees = CountOf("Employees");
    Opens().WhenOpens<frmCloneEmployee>([this](frmCloneEmployee&) {
        user.Picks("lstCloneEmployees", "Northern Works / Davis").Clicks("cmdCloneEmployee");
    });
    user.Clicks("cmdAdd").Types("txtName", "Lee").Types("txtFirstName", "Ann").Types("txtEMail", "a@example.org");
    OnTab(kProfile).Types("txtUserName", "lee").Types("txtPassword", "x");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "disk trouble").Clicks("cmdAdd");
    EXPECT_EQ(CountOf("Employees"), employees);
    EXPECT_EQ(CountOf("Entitlements"), 0);
    EXPECT_EQ(user.Reads("txtName") + user.Reads("txtUserName"), "LeeLEE");
    EXPECT_FALSE(user.CanUse("cmdModify"));
    house.Sql("DROP TRIGGER Failing");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK").Clicks("cmdAdd");
    EXPECT_EQ(CountOf("Employees"), employees + 1);
    EXPECT_EQ(CountOf("Entitlements"), 4);

    StartsModifying("Lee").Types("txtCity", "Laval");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK").Clicks("cmdModify");
    EXPECT_EQ(EmployeeCell("City", NewestEmployee()), "Laval") << "the save goes on without its copy";
    house.Sql("CREATE TRIGGER Failing BEFORE UPDATE ON Employees BEGIN SELECT RAISE(ABORT, 'disk trouble'); END");
    StartsModifying("Lee").Types("txtCity", "Gaspé");
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK", "disk trouble").Clicks("cmdModify");
    EXPECT_EQ(user.Reads("txtCity"), "Gaspé");
    EXPECT_TRUE(user.CanUse("txtCity") && user.CanUse("cmdModify"));
    EXPECT_FALSE(user.CanUse("cmdAdd"));
}

TEST_F(FrmEmployees, ApproversArePickedInTwoLevels)
{
    const int stella = house.Hire({"STELLA", "Stella", "Stone", "Stores", "", {"IsAuthorizedToApprove"}});
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    Opens();
    StartsAdding().Picks("lstDepartments", "Production");
    OnTab(kProfile);
    const QString head = "Production           / Roy, Marc";
    user.WillAnswer("ERROR:", "OK", "You must specify a first level of approval before specifying a second level")
        .Picks("cboApprovedBy_SecondLevel", head);
    EXPECT_EQ(user.Reads("cboApprovedBy_SecondLevel"), "");
    EXPECT_TRUE(user.HasFocus("cboApprovedBy_FirstLevel"));
    user.Picks("cboApprovedBy_FirstLevel", head);
    user.WillAnswer("ERROR:", "OK", "The second level of approval cannot be the same as the first one!")
        .Picks("cboApprovedBy_SecondLevel", head);
    user.WhenOpens<frmGetApproverFromList>([this](frmGetApproverFromList& form) {
        const QStringList entries = user.Entries("lstApprovers");
        const auto stone =
            std::find_if(entries.begin(), entries.end(), [](const QString& entry) { return entry.contains("Stone"); });
        ASSERT_NE(stone, entries.end());
        user.Picks("lstApprovers", *stone).Clicks("cmdSelect");
        EXPECT_EQ(form.ApproverName(), "Stone, Stella");
    });
    user.Clicks("cmdGetApprover2FromList");
    EXPECT_EQ(user.Reads("cboApprovedBy_SecondLevel"), "Stone, Stella");
    OnTab(kGeneral).Picks("lstGroups", "Assembly");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel") + user.Reads("cboApprovedBy_SecondLevel"), head + "Stone, Stella")
        << "a group keeps the approvers";
    user.Picks("lstDepartments", "Sales");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel") + user.Reads("cboApprovedBy_SecondLevel"), "");
    user.Picks("lstOrganizations", "Northern Works");
    EXPECT_EQ(user.Reads("lstOrganizations") + user.Reads("lstDepartments"), "Northern Works")
        << "the organization alone, chosen once more";
    user.ClicksWithCtrl("lstOrganizations");
    EXPECT_EQ(user.The<frmEmployees>().findChild<QListWidget*>("lstOrganizations")->selectedItems().size(), 1);
    user.Clicks("cmdCancelOperation");

    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = ? WHERE RecordID = ?", {stella, chris});
    StartsModifying("Davis");
    EXPECT_EQ(user.Reads("cboApprovedBy_FirstLevel"), "Stone, Stella") << "from outside the unit";
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
    EXPECT_EQ(user.Reads("cboFirstHalfStartTime(2)") + user.Reads("cboSecondHalfEndTime(2)"), "08:0016:20");
    EXPECT_EQ(user.Reads("txtTotalHours(2)") + ":" + user.Reads("txtTotalMinutes(2)"), "7:20");

    user.Types("cboSecondHalfEndTime(2)", "1");
    EXPECT_EQ(user.Reads("cboSecondHalfEndTime(2)") + user.Reads("txtTotalHours(2)"), "") << "typing clears";
    user.Types("txtTotalHours(3)", "24").Presses("txtTotalHours(3)", Qt::Key_Return);
    EXPECT_TRUE(user.HasFocus("txtTotalHours(3)")) << "nothing is saved, nothing is asked";
    EXPECT_EQ(user.Reads("txtTotalHours(3)"), "");
    user.Types("txtTotalHours(3)", "24");
    auto* cmdAdd = user.The<frmEmployees>().findChild<QPushButton*>("cmdAdd");
    QTest::mouseClick(cmdAdd, Qt::LeftButton);
    EXPECT_TRUE(user.HasFocus("txtTotalHours(3)")) << "nor by the mouse";
    EXPECT_EQ(user.Reads("txtTotalHours(3)"), "");

    user.WillAnswer("CONFIRM:", "Yes", "will vary from one week to the next").Checks("chkIrregularHours");
    EXPECT_EQ(user.Reads("cboFirstHalfStartTime(1)") + user.Reads("txtTotalHours(1)"), "");
    EXPECT_TRUE(user.CanUse("cboFirstHalfStartTime(1)"));
    EXPECT_EQ(user.Entries("cboSecondHalfEndTime(6)").size(), 288);
}

TEST_F(FrmEmployees, AYearWithoutUnitsClosesTheForm)
{
    house.Sql("UPDATE Departments SET Active = 0");
    SessionState.English = false;
    user.WillAnswer("OPÉRATION REFUSÉE:", "OK", "créer au moins un département dans l'année fiscale 2026!");
    Opens();
    EXPECT_FALSE(user.The<frmEmployees>().isVisible());
    user.Leaves();
    house.Sql("UPDATE Organizations SET Active = 0");
    user.WillAnswer("OPÉRATION REFUSÉE:", "OK", "créer au moins une organisation dans l'année fiscale 2026!");
    Opens();
    EXPECT_FALSE(user.The<frmEmployees>().isVisible());
}

TEST_F(FrmEmployees, TheListOfEmployeesIsRebuiltBeforeItIsShown)
{
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?", {marc});
    house.Sql("UPDATE FiscalYears SET ReloadEmployeesList = 1");
    int listed = -1;
    FormsAbove.ShowEmployeesList = [&](QWidget*) { listed = CountOf("Employees_List"); };
    Opens().Clicks("cmdListRecords");
    EXPECT_EQ(listed, 2) << "deactivated employees are listed too";
}
} // namespace
