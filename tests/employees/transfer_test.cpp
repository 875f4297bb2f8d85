#include "employees/frm_transfer_employees.h"
#include "support/company_test.h"

#include <QListWidget>

using testing::ElementsAre;

namespace
{
class Transferring : public CompanyTest
{
protected:
    QString Place(const QString& table, int recordID)
    {
        return house.Rows("SELECT OrganizationID, DepartmentID, GroupID FROM " + table + " WHERE RecordID = ?",
                          {recordID});
    }
    void Entitle(int employee, const QString& category, int active)
    {
        house.Sql("INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, AnnualEntitlement, Active) "
                  "VALUES (1, ?, ?, 140, ?)",
                  {house.CategoryID(category), employee, active});
    }
    void Uses(int department, const QString& category, int isUsed)
    {
        house.Sql("UPDATE CategoriesDepartments SET IsUsed = ? WHERE DepartmentID = ? AND CategoryID = ?",
                  {isUsed, department, house.CategoryID(category)});
    }
    QString ActiveEntitlements()
    {
        return house.Rows("SELECT Active FROM Entitlements ORDER BY RecordID").replace('\n', ' ');
    }
    void Transfers(const QString& list, const QString& unit)
    {
        user.Picks("lstFromEmployee", "Abel").Picks(list, unit).WillConfirm().WillBeDone().Clicks("cmdProcess");
    }
};

TEST_F(Transferring, TheEmployeeMovesWithHisFutureRecordsAndTheFormIsReadyForTheNext)
{
    const int today = house.Record(anna, "Vacation", {2026, 3, 2}, 7);
    const int tomorrow = house.Record(anna, "Sick", {2026, 3, 3}, 7, true);
    const int cancelled = house.Record(anna, "Vacation", {2026, 3, 4}, 7);
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = ?", {cancelled});
    const int others = house.Record(dan, "Vacation", {2026, 3, 5}, 7);
    SessionState.EmployeeID = dan;
    SessionState.EmployeeDepartmentID = 2;

    user.Opens<frmTransferEmployees>().Picks("lstFromEmployee", "Abel").Picks("lstToDepartment", "Stores");
    EXPECT_EQ(user.ReadsAll({"lstFromGroup", "lstToOrganization"}), "Assembly|Southern Trade");
    house.Refuses("UPDATE ON FiscalYears");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdProcess");
    EXPECT_EQ(Place("Employees", anna) + Place("Attendance", tomorrow), "1|1|11|1|1");
    EXPECT_EQ(house.Number("SELECT COUNT(*) FROM Employees_Modifications"), 0);
    house.Sql("DROP TRIGGER Refusing"); // the choice stays for another try
    user.WillConfirm("Do you wish to transfer Abel, Anna from:\r\n\r\nOrganization:\tNorthern Works\r\n"
                     "Department:\tProduction\r\nGroup:\tAssembly\r\n\r\nTO:\r\n\r\nOrganization:\tSouthern Trade\r\n"
                     "Department:\tStores\r\n")
        .WillBeDone("The selected employee has been transferred.")
        .Clicks("cmdProcess");

    EXPECT_EQ(Place("Employees", anna), "2|3|0");
    EXPECT_EQ(house.Rows("SELECT ModifiedBy, ModifiedDate FROM Employees WHERE RecordID = ?", {anna}), "ADMIN|46083");
    EXPECT_EQ(house.Rows("SELECT RecordID, DepartmentID, GroupID, ModifiedDate FROM Employees_Modifications"),
              QString::number(anna) + "|1|1|0");
    EXPECT_EQ(Place("Attendance", today) + Place("Attendance", cancelled), "1|1|11|1|1");
    EXPECT_EQ(Place("Attendance", tomorrow) + Place("Attendance", others), "2|3|01|2|0");
    EXPECT_EQ(ListFlag(), 1);
    EXPECT_EQ(SessionState.EmployeeDepartmentID, 2) << "the calendar shows somebody else";

    EXPECT_TRUE(user.The<frmTransferEmployees>().Transferred());
    EXPECT_EQ(user.ReadsAll({"lstFromOrganization", "lstFromEmployee", "lstToOrganization", "lstToDepartment"}), "|||");
    SessionState.EmployeeID = anna;
    SessionState.ReloadCalendar = false;
    Transfers("lstToGroup", "Assembly");
    EXPECT_EQ(Place("Employees", anna), "1|1|1");
    EXPECT_THAT((std::vector{SessionState.EmployeeOrganizationID, SessionState.EmployeeDepartmentID,
                             SessionState.EmployeeGroupID, int(SessionState.ReloadCalendar)}),
                ElementsAre(1, 1, 1, 1));
}

TEST_F(Transferring, TheNewDepartmentDecidesWhichEntitlementsAreActive)
{
    house.Sql("UPDATE Categories SET CanBeRemoved = 1 WHERE SystemName IN ('Sick', 'Personal time')");
    Entitle(anna, "Vacation", 1);
    Entitle(anna, "Sick", 1);
    Entitle(anna, "Personal time", 0);
    Entitle(dan, "Sick", 1);
    for (const auto& [department, category] : {std::pair(2, "Vacation"), {2, "Sick"}, {1, "Personal time"}})
        Uses(department, category, 0);
    house.Sql("INSERT INTO Groups (FiscalYear, OrganizationID, DepartmentID, GroupEnglishName, Active) "
              "VALUES (1, 1, 1, 'Paint', 1)");

    user.Opens<frmTransferEmployees>();
    Transfers("lstToDepartment", "Sales");
    EXPECT_EQ(ActiveEntitlements(), "1 0 1 1") << "neither a category of the system nor somebody else's";
    Transfers("lstToOrganization", "Northern");
    EXPECT_EQ(ActiveEntitlements(), "1 0 1 1") << "no department, nobody to decide";
    Transfers("lstToGroup", "Assembly");
    EXPECT_EQ(ActiveEntitlements(), "1 1 0 1");
    Uses(1, "Sick", 0);
    Transfers("lstToGroup", "Paint");
    EXPECT_EQ(Place("Employees", anna), "1|1|2");
    EXPECT_EQ(ActiveEntitlements(), "1 1 0 1") << "inside one department they stay";
}

TEST_F(Transferring, TheListsNarrowEachOtherAndShowEverybodyAgain)
{
    Dismiss("BRUNO");
    house.Sql("UPDATE Departments SET Active = 0 WHERE DepartmentEnglishName = 'Stores'");
    house.Hire({"NEXT", "Ned", "Next", "Production"}, house.FiscalYear("2027", 2027));
    user.Opens<frmTransferEmployees>();
    const auto everybody =
        ElementsAre("(Reload all employees)", "Abel, Anna", "Cote, Carla", "Dube, Dan", "Ellis, Eva");
    EXPECT_THAT(user.Entries("lstFromEmployee"), everybody);
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre("Production", "Sales"));
    user.Picks("lstFromOrganization", "Northern");
    EXPECT_THAT(user.Entries("lstFromEmployee"),
                ElementsAre("(Reload all employees)", "Abel, Anna", "Cote, Carla", "Dube, Dan"));
    user.Picks("lstFromDepartment", "Sales").Picks("lstFromEmployee", "Dube").Picks("lstFromEmployee", "(Reload");
    EXPECT_THAT(user.Entries("lstFromEmployee"), everybody);
    EXPECT_EQ(user.Reads("lstFromOrganization"), "");
    user.Picks("lstFromGroup", "Assembly");
    EXPECT_EQ(user.Entries("lstFromEmployee").size(), 2);

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
    user.WillBeRefused("le nom de l'employé(e) que vous souhaitez transférer!").Clicks("cmdProcess");
    user.Picks("lstFromEmployee", "Bell").ClicksWithCtrl("lstFromEmployee");
    user.WillBeRefused("le nom de l'employé(e)").Clicks("cmdProcess");
    user.Picks("lstFromEmployee", "Abel");
    user.WillBeRefused("l'endroit où l'employé(e) sera transféré(e)!").Clicks("cmdProcess");
    user.Picks("lstToDepartment", "Ventes").ClicksWithCtrl("lstToDepartment");
    EXPECT_EQ(user.The<frmTransferEmployees>().findChild<QListWidget*>("lstToDepartment")->selectedItems().size(), 1);
    user.WillAnswer("VEUILLEZ CONFIRMER:", "Non",
                    "Groupe:\tAssemblage\r\n\r\nÀ:\r\n\r\nOrganisation:\tAteliers du Nord\r\nDépartement:\tVentes")
        .Clicks("cmdProcess");
    EXPECT_EQ(Place("Employees", anna), "1|1|1");
    EXPECT_FALSE(user.The<frmTransferEmployees>().Transferred() || SessionState.ReloadCalendar);
}

TEST_F(Transferring, AUserWithAUnitOfHisOwnFindsOnlyThatOne)
{
    house.LogIn("ANNA");
    user.Opens<frmTransferEmployees>();
    EXPECT_EQ(user.ReadsAll({"lstToOrganization", "lstToDepartment", "lstToGroup"}),
              "Northern Works|Production|Assembly")
        << "it stands chosen";
    house.LogIn("CARLA");
    user.Opens<frmTransferEmployees>();
    EXPECT_THAT(user.Entries("lstFromEmployee"),
                ElementsAre("(Reload all employees)", "Abel, Anna", "Bell, Bruno", "Cote, Carla"));
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre("Production"));
    user.Picks("lstFromEmployee", "Abel").WillConfirm().WillBeDone().Clicks("cmdProcess");
    EXPECT_EQ(Place("Employees", anna), "1|1|0");

    house.Sql("UPDATE Organizations SET Active = 0 WHERE RecordID = 1");
    house.LogIn("ADMIN");
    EXPECT_EQ(user.Opens<frmTransferEmployees>().Reads("lstToOrganization"), "Southern Trade") << "the only one";
}
} // namespace
