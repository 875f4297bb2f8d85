#include "employees/frm_transfer_employees.h"
#include "platform/clock.h"
#include "support/user.h"

#include <QListWidget>

#include <gmock/gmock.h>

using testing::ElementsAre;

/// Anna assembles in Production, Carla works there without a group, Dan sells, Eva is with the other organization.
class Transferring : public testing::Test
{
protected:
    Transferring()
    {
        house.Company();
        anna = house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly", {}});
        house.Hire({"CARLA", "Carla", "Cote", "Production", "", {}});
        dan = house.Hire({"DAN", "Dan", "Dube", "Sales", "", {}});
        house.Hire({"EVA", "Eva", "Ellis", "Stores", "", {}});
        house.LogIn("ADMIN");
    }

    QString Place(const QString& table, int recordID)
    {
        return house.Rows("SELECT OrganizationID, DepartmentID, GroupID FROM " + table + " WHERE RecordID = ?",
                          {recordID});
    }
    int Entitle(int employee, const QString& category, int active)
    {
        house.Sql(
            "INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, AnnualEntitlement, CarriedOver, Active) "
            "VALUES (1, ?, ?, 140, 7, ?)",
            {house.CategoryID(category), employee, active});
        return house.Number("SELECT MAX(RecordID) FROM Entitlements");
    }
    void Uses(int department, const QString& category, int isUsed)
    {
        house.Sql("UPDATE CategoriesDepartments SET IsUsed = ? WHERE DepartmentID = ? AND CategoryID = ?",
                  {isUsed, department, house.CategoryID(category)});
    }
    int Active(int entitlement)
    {
        return house.Number("SELECT Active FROM Entitlements WHERE RecordID = ?", {entitlement});
    }
    void Transfers(const QString& list, const QString& unit)
    {
        user.Picks("lstFromEmployee", "Abel").Picks(list, unit);
        user.WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK").Clicks("cmdProcess");
    }

    House house;
    User user;
    int anna = 0;
    int dan = 0;
};

TEST_F(Transferring, TheEmployeeMovesWithHisFutureRecordsAndTheFormIsReadyForTheNext)
{
    const int before = house.Record(anna, "Vacation", {2026, 3, 1}, 7);
    const int today = house.Record(anna, "Vacation", {2026, 3, 2}, 7);
    const int tomorrow = house.Record(anna, "Sick", {2026, 3, 3}, 7, true);
    const int cancelled = house.Record(anna, "Vacation", {2026, 3, 4}, 7);
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?", {cancelled});
    const int others = house.Record(dan, "Vacation", {2026, 3, 5}, 7);

    user.Opens<frmTransferEmployees>().Picks("lstFromEmployee", "Abel").Picks("lstToDepartment", "Stores");
    EXPECT_EQ(user.Reads("lstFromGroup"), "Assembly");
    EXPECT_EQ(user.Reads("lstToOrganization"), "Southern Trade");
    user.WillAnswer("CONFIRM:", "Yes",
                    "Do you wish to transfer Abel, Anna from:\r\n\r\nOrganization:\tNorthern Works\r\n"
                    "Department:\tProduction\r\nGroup:\tAssembly\r\n\r\nTO:\r\n\r\nOrganization:\tSouthern Trade\r\n"
                    "Department:\tStores\r\n");
    user.WillAnswer("OPERATION COMPLETED:", "OK", "The selected employee has been transferred.").Clicks("cmdProcess");

    EXPECT_EQ(Place("Employees", anna), "2|3|0");
    EXPECT_EQ(house.Rows("SELECT ModifiedBy, ModifiedDate FROM Employees WHERE RecordID = ?", {anna}),
              "ADMIN|" + QString::number(Today()));
    EXPECT_EQ(house.Rows("SELECT RecordID, DepartmentID, GroupID, ModifiedDate FROM Employees_Modifications"),
              QString("%1|1|1|0").arg(anna))
        << "the row as it stood";
    EXPECT_EQ(Place("Attendance", tomorrow), "2|3|0");
    for (const int stays : {before, today, cancelled})
        EXPECT_EQ(Place("Attendance", stays), "1|1|1");
    EXPECT_EQ(Place("Attendance", others), "1|2|0");
    EXPECT_EQ(house.Number("SELECT ReloadEmployeesList FROM FiscalYears"), 1);

    EXPECT_TRUE(user.The<frmTransferEmployees>().Transferred());
    for (const char* list : {"lstFromOrganization", "lstFromEmployee", "lstToOrganization", "lstToDepartment"})
        EXPECT_EQ(user.Reads(list), "") << list;
    Transfers("lstToGroup", "Assembly");
    EXPECT_EQ(Place("Employees", anna), "1|1|1");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Employees_Modifications"), 2);
}

TEST_F(Transferring, TheNewDepartmentDecidesWhichEntitlementsAreActive)
{
    house.Sql("UPDATE Categories SET CanBeRemoved = 1 WHERE SystemName IN ('Sick', 'Personal time')");
    const int system = Entitle(anna, "Vacation", 1);
    const int unused = Entitle(anna, "Sick", 1);
    const int used = Entitle(anna, "Personal time", 0);
    const int others = Entitle(dan, "Sick", 1);
    Uses(2, "Vacation", 0);
    Uses(2, "Sick", 0);
    Uses(1, "Personal time", 0);

    user.Opens<frmTransferEmployees>();
    Transfers("lstToDepartment", "Sales");
    EXPECT_EQ(Active(system), 1) << "a category of the system is not touched";
    EXPECT_EQ(Active(unused), 0);
    EXPECT_EQ(Active(used), 1);
    EXPECT_EQ(Active(others), 1);
    EXPECT_EQ(house.Rows("SELECT AnnualEntitlement, CarriedOver FROM Entitlements WHERE RecordID = ?", {unused}),
              "140|7");
}

TEST_F(Transferring, InsideOneDepartmentOrWithoutOneEntitlementsStay)
{
    house.Sql("UPDATE Categories SET CanBeRemoved = 1");
    const int entitlement = Entitle(anna, "Sick", 1);
    Uses(1, "Sick", 0);
    house.Sql(
        "INSERT INTO Groups (FiscalYear, OrganizationID, DepartmentID, GroupEnglishName, GroupFrenchName, Active) "
        "VALUES (1, 1, 1, 'Paint', 'Peinture', 1)");
    user.Opens<frmTransferEmployees>();
    Transfers("lstToGroup", "Paint");
    EXPECT_EQ(Place("Employees", anna), "1|1|2");
    EXPECT_EQ(Active(entitlement), 1);

    Transfers("lstToOrganization", "Northern");
    EXPECT_EQ(Place("Employees", anna), "1|0|0");
    EXPECT_EQ(Active(entitlement), 1) << "no department, nobody to decide";
}

TEST_F(Transferring, TheListsNarrowEachOtherAndShowEverybodyAgain)
{
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE LoginID = 'CARLA'");
    house.Sql("UPDATE Departments SET Active = 0 WHERE DepartmentEnglishName = 'Stores'");
    user.Opens<frmTransferEmployees>();
    EXPECT_THAT(user.Entries("lstFromEmployee"),
                ElementsAre("(Reload all employees)", "Abel, Anna", "Dube, Dan", "Ellis, Eva"));
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre("Production", "Sales"));
    user.Picks("lstFromOrganization", "Northern");
    EXPECT_THAT(user.Entries("lstFromEmployee"), ElementsAre("(Reload all employees)", "Abel, Anna", "Dube, Dan"));
    user.Picks("lstFromDepartment", "Sales").Picks("lstFromEmployee", "Dube").Picks("lstFromEmployee", "(Reload");
    EXPECT_THAT(user.Entries("lstFromEmployee"),
                ElementsAre("(Reload all employees)", "Abel, Anna", "Dube, Dan", "Ellis, Eva"));
    EXPECT_EQ(user.Reads("lstFromOrganization"), "");

    user.Picks("lstToGroup", "Assembly");
    EXPECT_EQ(user.Reads("lstToDepartment"), "Production");
    user.Picks("lstToDepartment", "Sales");
    EXPECT_THAT(user.Entries("lstToGroup"), ElementsAre());
    user.Picks("lstToOrganization", "Southern");
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre());
}

TEST_F(Transferring, WhatIsMissingIsSaidInTheUsersLanguageAndNoMeansNo)
{
    SessionState.English = false;
    user.Opens<frmTransferEmployees>();
    user.WillAnswer("ERREUR:", "OK", "le nom de l'employé(e) que vous souhaitez transférer!").Clicks("cmdProcess");
    user.Picks("lstFromEmployee", "Abel");
    user.WillAnswer("ERREUR:", "OK", "l'endroit où l'employé(e) sera transféré(e)!").Clicks("cmdProcess");
    user.Picks("lstToDepartment", "Ventes");
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non",
                    "Groupe:\tAssemblage\r\n\r\nÀ:\r\n\r\nOrganisation:\tAteliers du Nord\r\nDépartement:\tVentes")
        .Clicks("cmdProcess");
    EXPECT_EQ(Place("Employees", anna), "1|1|1");
    EXPECT_FALSE(user.The<frmTransferEmployees>().Transferred());
    EXPECT_FALSE(SessionState.ReloadCalendar);
}

TEST_F(Transferring, TheCalendarFollowsOnlyTheEmployeeItShows)
{
    SessionState.EmployeeID = dan;
    SessionState.EmployeeDepartmentID = 2;
    user.Opens<frmTransferEmployees>();
    Transfers("lstToDepartment", "Stores");
    EXPECT_EQ(SessionState.EmployeeDepartmentID, 2);
    SessionState.EmployeeID = anna;
    Transfers("lstToGroup", "Assembly");
    EXPECT_EQ(SessionState.EmployeeOrganizationID, 1);
    EXPECT_EQ(SessionState.EmployeeDepartmentID, 1);
    EXPECT_EQ(SessionState.EmployeeGroupID, 1);
    EXPECT_TRUE(SessionState.ReloadCalendar);
}

TEST_F(Transferring, AUserWithADepartmentOfHisOwnFindsOnlyThatOne)
{
    house.LogIn("CARLA");
    user.Opens<frmTransferEmployees>();
    EXPECT_THAT(user.Entries("lstFromEmployee"), ElementsAre("(Reload all employees)", "Abel, Anna", "Cote, Carla"));
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre("Production"));
    EXPECT_EQ(user.Reads("lstToDepartment"), "Production") << "his own unit stands chosen";
    user.Picks("lstFromEmployee", "Abel").WillAnswer("CONFIRM:", "Yes").WillAnswer("OPERATION COMPLETED:", "OK");
    user.Clicks("cmdProcess");
    EXPECT_EQ(Place("Employees", anna), "1|1|0");
}

TEST_F(Transferring, AChoiceTakenAwayWithCtrlIsSeenToStayOrGo)
{
    user.Opens<frmTransferEmployees>().Picks("lstToDepartment", "Sales").ClicksWithCtrl("lstToDepartment");
    const auto& form = user.The<frmTransferEmployees>();
    EXPECT_EQ(form.findChild<QListWidget*>("lstToDepartment")->selectedItems().size(), 1);
    user.Picks("lstFromEmployee", "Abel").ClicksWithCtrl("lstFromEmployee");
    EXPECT_TRUE(form.findChild<QListWidget*>("lstFromEmployee")->selectedItems().isEmpty());
    user.WillAnswer("ERROR:", "OK", "You must select the name of the employee").Clicks("cmdProcess");
}

TEST_F(Transferring, AFailureInTheMiddleLeavesEverythingAsItWas)
{
    const int tomorrow = house.Record(anna, "Sick", {2026, 3, 3}, 7);
    house.Sql("CREATE TRIGGER broken BEFORE UPDATE ON FiscalYears BEGIN SELECT RAISE(ABORT, 'broken'); END");
    user.Opens<frmTransferEmployees>().Picks("lstFromEmployee", "Abel").Picks("lstToDepartment", "Sales");
    QString failure;
    user.SeesMessage = [&failure](const Message& message) { failure = message.Text; };
    user.WillAnswer("CONFIRM:", "Yes").WillAnswer("AN ERROR HAS OCCURRED:", "OK").Clicks("cmdProcess");
    EXPECT_TRUE(failure.contains("broken"));
    EXPECT_EQ(Place("Employees", anna), "1|1|1");
    EXPECT_EQ(Place("Attendance", tomorrow), "1|1|1");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Employees_Modifications"), 0);
    EXPECT_EQ(user.Reads("lstToDepartment"), "Sales") << "the choice stays for another try";
}
