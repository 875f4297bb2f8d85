#include "employees/approver_list.h"
#include "employees/employee_deactivation.h"
#include "employees/employee_rows.h"
#include "employees/employee_summary.h"
#include "employees/employees_fixture.h"
#include "employees/hourly_rate.h"
#include "foundation/values.h"
#include "platform/clock.h"

namespace
{
class EmployeeRows : public EmployeesTest
{
protected:
    QStringList Approvers(const EmployeeRecord& record)
    {
        QStringList listed;
        for (const Approver& approver : LoadApprovedBy(datAbsence, record))
            listed << approver.Listed;
        return listed;
    }

    EmployeeRecord Loaded(int employee)
    {
        EmployeeRecord record;
        record.RecordID = employee;
        EXPECT_TRUE(LoadEmployeeRecord_ACCESS(datAbsence, record));
        return record;
    }
};
} // namespace

TEST_F(EmployeeRows, ARowComesBackAsItWasWritten)
{
    EmployeeRecord record = Loaded(chris);
    record.LoginID = "COPY";
    record.NewPassword = "NEW";
    record.FirstHalfStart[0] = kMidnight;
    record.HoursWorked[0] = 7.33333F;
    record.HoursWorkedDaily = 6.7F;
    record.DateOfHire = SerialOfDate({2019, 12, 31});
    record.Hire = {"2019", "12", "31"};
    record.DateOfBirth = SerialOfDate({1980, 2, 29});
    record.Birth = {"", "2", "29"}; // the year was emptied again
    record.DepartmentLevelRead = record.AccessToEmployeesModule = record.AccessToOrganizationsModule = 1;
    record.SelfLevelRead = 0;
    AddEmployee(datAbsence, record);

    const EmployeeRecord read = Loaded(house.Number("SELECT MAX(RecordID) FROM Employees"));
    for (const auto& [column, member] : kRights)
        EXPECT_EQ(read.*member, member == &SecurityProfile::AccessToOrganizationsModule ? 0
                                : member == &SecurityProfile::SelfLevelRead             ? 1
                                                                                        : record.*member)
            << column;
    for (const auto& [column, member, day] : kClockTimes)
        EXPECT_EQ((read.*member)[day], (record.*member)[day]) << column;
    for (const auto& [column, member, day] : kDayLengths)
        EXPECT_EQ((read.*member)[day], (record.*member)[day]) << column;
    EXPECT_EQ(read.HoursWorkedDaily, 6.7F);
    EXPECT_EQ(read.TotalHours[0] + ":" + read.TotalMinutes[0], "7:20");
    EXPECT_EQ(read.Hire.Year + read.Hire.Month + read.Hire.Day + read.Birth.Year, "20191231");
    EXPECT_EQ(read.Password + read.NewPassword, "NEW");
    EXPECT_EQ(read.HourlyRateText, "20.55");
    EXPECT_FALSE(HasNewRate(read));
    EXPECT_EQ(std::count(read.HoursSpecified.begin(), read.HoursSpecified.end(), true), 0);
}

TEST_F(EmployeeRows, NullFieldsOfOldRowsStayEmpty)
{
    house.Sql("UPDATE Employees SET LoginID = NULL, Username = ' OLDNAME ', HourlyRate = NULL, DateOfBirth = NULL, "
              "MONDAY_FirstHalfStart = NULL, Comment = NULL, CanViewComments = NULL WHERE RecordID = ?",
              {chris});
    const EmployeeRecord record = Loaded(chris);
    EXPECT_EQ(record.LoginID, "OLDNAME");
    EXPECT_EQ(record.HourlyRateText, "0.00");
    EXPECT_EQ(record.Birth.Year, "");
    EXPECT_EQ(record.FirstHalfStart[1], 0);
    EmployeeRecord none;
    none.RecordID = 9999;
    EXPECT_FALSE(LoadEmployeeRecord_ACCESS(datAbsence, none));
}

TEST_F(EmployeeRows, ApproversComeFromTheGroupUpwardsAndFromThoseWhoReachEverybody)
{
    const QStringList may = {"IsAuthorizedToApprove"};
    house.Hire({"GINA", "Gina", "Zola", "Production", "Assembly", may});
    house.Hire({"BEN", "Ben", "Abel", "Production", "Assembly", may});
    const int boss = house.Hire({"BOSS", "Ida", "Boss", "Production", "", may});
    house.Sql("UPDATE Employees SET DepartmentID = 0 WHERE RecordID = ?", {boss});
    house.Sql("UPDATE Organizations SET OrganizationEnglishName = 'A very long name of an organization' "
              "WHERE RecordID = 1");
    house.Hire({"GLOBAL", "Gus", "Globe", "Stores", "", {"IsAuthorizedToApprove", "GlobalLevelCreate"}});
    house.Hire({"NOT", "No", "Body", "Production", "Assembly", {"GlobalLevelCreate"}});
    const int gone = house.Hire({"GONE", "Al", "Gone", "Production", "Assembly", may});
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?", {gone});

    const QString head = "Production           / Roy, Marc";
    EmployeeRecord record = Loaded(chris);
    EXPECT_EQ(Approvers(record), (QStringList{"Production           / Abel, Ben", "Production           / Zola, Gina",
                                              head, "A very long name of  / Boss, Ida", "Globe, Gus"}));
    record.RecordID = marc;
    record.GroupID = 0;
    EXPECT_EQ(Approvers(record), (QStringList{"A very long name of  / Boss, Ida", "Globe, Gus"})) << "never himself";
    SessionState.English = false;
    EXPECT_EQ(Approvers(Loaded(chris)).at(2), "Fabrication          / Roy, Marc");
    EXPECT_EQ(ApproverName(datAbsence, marc), "Roy, Marc");
}

TEST_F(EmployeeRows, NamesakesAndLogInsAreLookedForWhateverTheirCase)
{
    EmployeeRecord record = Loaded(chris);
    record.LoginID = " admin ";
    EXPECT_TRUE(IsLoginIDTaken(datAbsence, record));
    record.LoginID = "marc";
    EXPECT_TRUE(IsLoginIDTaken(datAbsence, record));
    house.Sql("UPDATE Employees SET FiscalYear = 2 WHERE RecordID = ?", {marc});
    EXPECT_FALSE(IsLoginIDTaken(datAbsence, record)) << "names are unique within a year";
    record.FamilyName = "DAVIS";
    EXPECT_FALSE(HasNamesake(datAbsence, record, true));
    EXPECT_TRUE(HasNamesake(datAbsence, record, false));
    record.DepartmentID = 2;
    EXPECT_FALSE(HasNamesake(datAbsence, record, false));
    record.DepartmentID = 0;
    EXPECT_TRUE(HasNamesake(datAbsence, record, false)) << "in the whole organization";
}

TEST_F(EmployeeRows, WithoutADepartmentThePublicCategoriesAreMonitored)
{
    house.Sql("UPDATE Categories SET RequiresMonitoring = 1, IsPublic = 0 WHERE FiscalYear = 1");
    house.Sql("UPDATE Categories SET IsPublic = 1 WHERE SystemName IN ('Sick', 'Vacation')");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Vacation'");
    SessionState.English = false;
    EmployeeRecord record;
    record.OrganizationID = 1;
    EXPECT_EQ(AddEmployee(datAbsence, record), QStringList{"Maladie"});
    EXPECT_EQ(house.Rows("SELECT Active FROM Entitlements ORDER BY CategoryID"), "0\n1\n0\n0");
}

TEST_F(EmployeeRows, TheSummarySpeaksTheUsersLanguage)
{
    SessionState.English = false;
    EmployeeRecord record = Loaded(chris);
    record.EmployeeID = " 12 ";
    record.GlobalLevelCreate = record.GroupLevelModify = record.SelfLevelModify = 1;
    const QString profile = "Profil de sécurité par niveau (0 = Aucun, 1 = Lecture, 2 = Ajoût, 3 = Absolu):\r\n"
                            "Global = 2\r\nOrganisation = 0\r\nDépartement = 0\r\nGroupe = 3\r\nIndividuel = 3";
    EXPECT_EQ(EmployeeSummary(record, {"Ateliers du Nord", {}, {}}, false),
              "Souhaitez-vous ajouter l'employé(e) suivant(e) à votre banque de données?\r\n\r\n"
              "Nom et identification:\t\tChris Davis     12\r\nOrganisation:\t\tAteliers du Nord\r\n"
              "Heures travaillées:\t\tLun - 07:00, Mar - 07:00, Mer - 07:00, \r\n\t\t\tJeu - 07:00, Ven - 07:00\r\n"
              "Nom d'usager/mot-clé:\tCHRIS, \r\n" +
                  profile);
    record.IrregularHours = true;
    EXPECT_TRUE(EmployeeSummary(record, {}, true)
                    .contains("comme suit?\r\n\r\nNom et identification:\t\tChris Davis     12\r\n"
                              "Cet(te) employé(e) travaille selon un horaire irrégulier.\r\nNom d'usager"));
}
