#include "employees/approver_list.h"
#include "employees/employee_rows.h"
#include "employees/employee_summary.h"
#include "employees/employees_fixture.h"
#include "employees/hourly_rate.h"
#include "foundation/values.h"
#include "platform/clock.h"

using testing::Each;

namespace
{
class EmployeeRows : public EmployeesTest
{
protected:
    QString Approvers(const EmployeeRecord& record)
    {
        QStringList listed;
        for (const ListEntry& approver : LoadApprovedBy(datAbsence, record))
            listed << approver.Text.simplified();
        return listed.join("; ");
    }
    EmployeeRecord Loaded(int employee)
    {
        EmployeeRecord record;
        record.RecordID = employee;
        EXPECT_TRUE(LoadEmployeeRecord_ACCESS(datAbsence, record));
        return record;
    }
};

TEST_F(EmployeeRows, ARowComesBackAsItWasWritten)
{
    EmployeeRecord record = Loaded(chris);
    record.NewPassword = "NEW";
    record.HoursWorked[0] = 7.33333F;
    record.HoursWorkedDaily = 6.7F;
    record.DateOfHire = record.DateOfBirth = SerialOfDate({1980, 2, 29});
    record.Birth = {"1980", "2", "29"};
    record.Hire = {"", "2", "29"}; // the year was emptied again
    record.DepartmentLevelRead = record.AccessToOrganizationsModule = record.AccessToCategoriesModule = 1;
    record.SelfLevelRead = record.AccessToRestrictedCategory = 0;
    record.GroupLevelRead = 2;
    AddEmployee(datAbsence, record);

    EXPECT_EQ(house.Rows("SELECT DateOfHire, DepartmentLevelRead, AccessToOrganizationsModule, SelfLevelRead, "
                         "GroupLevelRead, AccessToCategoriesModule, AccessToRestrictedCategory FROM Employees WHERE "
                         "RecordID = 4"),
              "0|1|0|1|0|1|0")
        << "hidden categories that were unchecked stay so, also beside the module";
    const EmployeeRecord read = Loaded(4);
    EXPECT_EQ(read.HoursWorked, record.HoursWorked);
    EXPECT_EQ(read.HoursWorkedDaily, 6.7F);
    EXPECT_EQ((QStringList{read.TotalHours[0], read.TotalMinutes[0], read.Birth.Year, read.Birth.Month, read.Birth.Day,
                           read.Hire.Year, read.Password, read.NewPassword, read.HourlyRateText}),
              (QStringList{"7", "20", "1980", "2", "29", "", "NEW", "", "20.55"}));
    EXPECT_FALSE(HasNewRate(read));
    EXPECT_THAT(read.HoursSpecified, Each(false));
}

TEST_F(EmployeeRows, NullFieldsOfOldRowsStayEmpty)
{
    Alters("LoginID = NULL, Username = ' OLDNAME ', HourlyRate = NULL, DateOfBirth = NULL, "
           "MONDAY_FirstHalfStart = NULL, Comment = NULL, SelfLevelRead = NULL");
    EmployeeRecord record = Loaded(chris);
    EXPECT_EQ(record.LoginID + record.HourlyRateText + record.Birth.Year + record.Comment, "OLDNAME0.00");
    EXPECT_EQ(record.FirstHalfStart[1], 0);
    EXPECT_EQ(record.SelfLevelRead, 1) << "everybody sees his own records";
    record.RecordID = 9999;
    EXPECT_FALSE(LoadEmployeeRecord_ACCESS(datAbsence, record));
    EXPECT_EQ(record.FamilyName, "") << "nothing is left of the employee before";
}

TEST_F(EmployeeRows, ApproversComeFromTheGroupUpwardsAndFromThoseWhoReachEverybody)
{
    const auto hires = [this](const QString& name, const QString& department, const QStringList& more = {}) {
        const QString group = department == "Production" ? "Assembly" : "";
        return house.Hire({name, name, "X", department, group, more + QStringList{"IsAuthorizedToApprove"}});
    };
    for (const char* name : {"Bert", "Ben", "Gone", "Boss", "Next"})
        hires(name, "Production");
    hires("Globe", "Stores", {"GlobalLevelCreate"});
    house.Hire({"NOT", "No", "Body", "Production", "Assembly", {"GlobalLevelCreate"}});
    Dismiss("Gone");
    house.Sql("UPDATE Employees SET FiscalYear = 2 WHERE LoginID = 'Next'");
    house.Sql("UPDATE Employees SET DepartmentID = 0, GroupID = 0 WHERE LoginID = 'Boss'");
    house.Sql("UPDATE Organizations SET OrganizationEnglishName = 'A very long name of an organization'");

    EmployeeRecord record = Loaded(chris);
    const QString above = "A very long name of / X, Boss; X, Globe";
    EXPECT_EQ(Approvers(record), "Production / X, Ben; Production / X, Bert; Production / Roy, Marc; " + above);
    record.RecordID = marc;
    record.GroupID = 0;
    EXPECT_EQ(Approvers(record), above) << "never himself";
    SessionState.English = false;
    EXPECT_TRUE(Approvers(Loaded(chris)).contains("; Fabrication / Roy, Marc; "));
    EXPECT_EQ(ApproverName(datAbsence, marc), "Roy, Marc");
}

TEST_F(EmployeeRows, NamesakesAndLogInsAreLookedForWhateverTheirCase)
{
    EmployeeRecord record = Loaded(chris);
    EXPECT_FALSE(IsLoginIDTaken(datAbsence, record)) << "his own";
    house.Sql("UPDATE Employees SET LoginID = 'ROOT' WHERE LoginID = 'ADMIN'");
    for (const char* taken : {" admin ", "marc"}) {
        record.LoginID = taken;
        EXPECT_TRUE(IsLoginIDTaken(datAbsence, record)) << taken;
    }
    house.Sql("UPDATE Employees SET FiscalYear = 2 WHERE RecordID = ?", {marc});
    EXPECT_FALSE(IsLoginIDTaken(datAbsence, record)) << "names are unique within a year";

    const auto meets = [&](const QString& firstName, int organization, int department, bool modifying = false) {
        record.FamilyName = "DAVIS";
        record.FirstName = firstName;
        record.OrganizationID = organization;
        record.DepartmentID = department;
        return HasNamesake(datAbsence, record, modifying);
    };
    EXPECT_TRUE(meets("chris", 1, 1));
    EXPECT_TRUE(meets("chris", 1, 0)) << "in the whole organization";
    EXPECT_FALSE(meets("chris", 1, 1, true) || meets("chris", 1, 2) || meets("chris", 2, 0) || meets("carl", 1, 1));
    for (const char* change : {"DeactivatedDate = 46000", "DeactivatedDate = 0, FiscalYear = 2"}) {
        Alters(change);
        EXPECT_FALSE(meets("chris", 1, 1)) << change;
    }
}

TEST_F(EmployeeRows, WithoutADepartmentThePublicCategoriesAreMonitored)
{
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1, IsPublic = SystemName <> 'Doctor appointments', "
              "Restricted = SystemName = 'Personal time', Active = SystemName <> 'Vacation' WHERE FiscalYear = 1");
    SessionState.English = false;
    EmployeeRecord record;
    record.OrganizationID = 1;
    EXPECT_EQ(AddEmployee(datAbsence, record), QStringList{"Maladie"});
    EXPECT_EQ(house.Rows("SELECT Active FROM Entitlements ORDER BY CategoryID"), "0\n1\n1\n0");
    house.Sql("UPDATE Categories SET StandardEntitlement = 5 WHERE SystemName = 'Sick'");
    EXPECT_EQ(AddEmployee(datAbsence, record), QStringList()) << "a standard needs no reminder";

    house.Sql("WITH RECURSIVE N (I) AS (SELECT 1 UNION ALL SELECT I + 1 FROM N WHERE I < 1100) INSERT INTO Categories "
              "(FiscalYear, CategoryFrenchName, TimeBankRelated, Active, IsPublic, RequiresMonitoring, Restricted, "
              "StandardEntitlement) SELECT 1, I, 0, 1, 1, 1, 0, 0 FROM N");
    EXPECT_EQ(AddEmployee(datAbsence, record).size(), 25) << "reminders end there";
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Entitlements"), 4 + 4 + 1000);
}

TEST_F(EmployeeRows, TheSummarySpeaksTheUsersLanguage)
{
    SessionState.English = false;
    EmployeeRecord record = Loaded(chris);
    record.EmployeeID = " 12 ";
    record.GlobalLevelCreate = record.GroupLevelModify = record.DepartmentLevelRead = 1;
    const QString end = "\r\nNom d'usager/mot-clé:\tCHRIS, \r\n"
                        "Profil de sécurité par niveau (0 = Aucun, 1 = Lecture, 2 = Ajoût, 3 = Absolu):\r\n"
                        "Global = 2\r\nOrganisation = 0\r\nDépartement = 1\r\nGroupe = 3\r\nIndividuel = 1";
    EXPECT_EQ(EmployeeSummary(record, {"Ateliers du Nord", {}, {}}, false),
              "Souhaitez-vous ajouter l'employé(e) suivant(e) à votre banque de données?\r\n\r\n"
              "Nom et identification:\tChris Davis     12\r\nOrganisation:\t\tAteliers du Nord\r\n"
              "Heures travaillées:\t\tLun - 07:00, Mar - 07:00, Mer - 07:00, \r\n\t\t\tJeu - 07:00, Ven - 07:00" +
                  end);
    record.IrregularHours = true;
    record.SelfLevelRead = 0; // the individual level never shows none
    EXPECT_TRUE(EmployeeSummary(record, {}, true)
                    .endsWith("12\r\nCet(te) employé(e) travaille selon un horaire irrégulier." + end));
}
} // namespace
