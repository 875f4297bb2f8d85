#include "employees/frm_transfer_employees.h"
#include "support/company_test.h"

#include <QListWidget>

using testing::ElementsAre;

namespace
{
class Transferring : public CompanyTest
{
protected:
    /// A department does not use these categories any more.
    void Drops(int department, const QStringList& categories)
    {
        for (const QString& category : categories)
            house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE DepartmentID = ? AND CategoryID = ?",
                      {department, house.CategoryID(category)});
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
    for (int day = 2; day <= 4; ++day) // today, tomorrow, and a day that is cancelled
        house.Record(anna, "Vacation", {2026, 3, day}, 7);
    house.Sql("UPDATE Attendance SET CancelledDate = 46000 WHERE RecordID = 3");
    house.Record(dan, "Vacation", {2026, 3, 5}, 7);
    SessionState.EmployeeID = dan;
    SessionState.EmployeeDepartmentID = 2;

    user.Opens<frmTransferEmployees>().Picks("lstFromEmployee", "Abel").Picks("lstToDepartment", "Stores");
    EXPECT_EQ(user.ReadsAll({"lstFromGroup", "lstToOrganization"}), "Assembly|Southern Trade");
    user.WillAnswer("CONFIRM:", "No", "not been saved").Presses("", Qt::Key_Escape);
    house.Refuses("UPDATE ON FiscalYears");
    user.WillConfirm().WillAnswer("AN ERROR HAS OCCURRED:", "OK", "refused").Clicks("cmdProcess");
    EXPECT_EQ(Places("Employees") + ", " + Places("Attendance"), "000 111 111 110 120 230, 111 111 111 120");
    EXPECT_EQ(Places("Employees_Modifications"), "");
    house.Sql("DROP TRIGGER Refusing"); // the choice stays for another try
    user.WillConfirm("Do you wish to transfer Abel, Anna from:\r\n\r\nOrganization:\tNorthern Works\r\n"
                     "Department:\tProduction\r\nGroup:\tAssembly\r\n\r\nTO:\r\n\r\nOrganization:\tSouthern Trade\r\n"
                     "Department:\tStores\r\n")
        .WillBeDone("The selected employee has been transferred.")
        .Clicks("cmdProcess");

    EXPECT_EQ(Places("Employees") + ", " + Places("Attendance"), "000 230 111 110 120 230, 111 230 111 120");
    EXPECT_EQ(Places("Employees_Modifications"), "111");
    EXPECT_EQ(house.Rows("SELECT ModifiedBy, ModifiedDate FROM Employees WHERE RecordID = ?", {anna}), "ADMIN|46083");
    EXPECT_EQ(ListFlag(), 1);
    EXPECT_EQ(SessionState.EmployeeDepartmentID, 2) << "the calendar shows somebody else";

    EXPECT_TRUE(user.The<frmTransferEmployees>().Transferred());
    EXPECT_EQ(user.ReadsAll({"lstFromOrganization", "lstFromEmployee", "lstToOrganization", "lstToDepartment"}), "|||");
    SessionState.EmployeeID = anna;
    SessionState.ReloadCalendar = false;
    Transfers("lstToGroup", "Assembly");
    EXPECT_FALSE(user.Presses("", Qt::Key_Escape).The<frmTransferEmployees>().isVisible()) << "nothing is lost";
    EXPECT_THAT((std::vector{SessionState.EmployeeOrganizationID, SessionState.EmployeeDepartmentID,
                             SessionState.EmployeeGroupID, int(SessionState.ReloadCalendar)}),
                ElementsAre(1, 1, 1, 1));
}

TEST_F(Transferring, TheNewDepartmentDecidesWhichEntitlementsAreActive)
{
    house.Sql("UPDATE Categories SET CanBeRemoved = 1 WHERE SystemName IN ('Sick', 'Personal time')");
    for (const auto& [employee, category, active] :
         {std::tuple(anna, "Vacation", 1), {anna, "Sick", 1}, {anna, "Personal time", 0}, {dan, "Sick", 1}})
        house.Sql("INSERT INTO Entitlements (FiscalYear, CategoryID, EmployeeID, Active) VALUES (1, ?, ?, ?)",
                  {house.CategoryID(category), employee, active});
    Drops(2, {"Vacation", "Sick"});
    Drops(1, {"Personal time"});
    house.Sql("INSERT INTO Groups (FiscalYear, OrganizationID, DepartmentID, GroupEnglishName, Active) "
              "VALUES (1, 1, 1, 'Paint', 1)");

    user.Opens<frmTransferEmployees>();
    Transfers("lstToDepartment", "Sales");
    EXPECT_EQ(ActiveEntitlements(), "1 0 1 1") << "neither a category of the system nor somebody else's";
    Transfers("lstToOrganization", "Northern");
    EXPECT_EQ(ActiveEntitlements(), "1 0 1 1") << "no department, nobody to decide";
    Transfers("lstToGroup", "Assembly");
    EXPECT_EQ(ActiveEntitlements(), "1 1 0 1");
    Drops(1, {"Sick"});
    Transfers("lstToGroup", "Paint");
    EXPECT_EQ(Places("Employees"), "000 112 111 110 120 230");
    EXPECT_EQ(ActiveEntitlements(), "1 1 0 1") << "inside one department they stay";
}

TEST_F(Transferring, TheListsNarrowEachOtherAndShowEverybodyAgain)
{
    Dismiss("BRUNO");
    house.Sql("UPDATE Departments SET Active = 0 WHERE DepartmentEnglishName = 'Stores'");
    house.Hire({"NEXT", "Ned", "Next", "Production"}, house.FiscalYear("2027", 2027));
    user.Opens<frmTransferEmployees>();
    EXPECT_EQ(Listed("lstFromEmployee"), "(Reload all employees) Abel Cote Dube Ellis");
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre("Production", "Sales"));
    user.Picks("lstFromOrganization", "Northern");
    EXPECT_EQ(Listed("lstFromEmployee"), "(Reload all employees) Abel Cote Dube");
    user.Picks("lstFromDepartment", "Sales").Picks("lstFromEmployee", "Dube").Picks("lstFromEmployee", "(Reload");
    EXPECT_EQ(Listed("lstFromEmployee"), "(Reload all employees) Abel Cote Dube Ellis");
    EXPECT_EQ(user.Reads("lstFromOrganization"), "");
    EXPECT_EQ(user.Picks("lstFromGroup", "Assembly").Entries("lstFromEmployee").size(), 2);

    EXPECT_EQ(user.Picks("lstToGroup", "Assembly").Reads("lstToDepartment"), "Production");
    user.Picks("lstToDepartment", "Sales");
    EXPECT_THAT(user.Entries("lstToGroup"), ElementsAre());
    user.Picks("lstToOrganization", "Southern");
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre());

    house.Sql("ALTER TABLE Groups RENAME TO Gone");
    for (const auto& [list, entry] : {std::pair("lstToOrganization", "Northern"), {"lstFromEmployee", "Abel"}})
        user.WillAnswer("AN ERROR HAS OCCURRED:", "OK").Picks(list, entry);
    EXPECT_EQ(user.ReadsAll({"lstToOrganization", "lstFromGroup", "lstFromEmployee"}), "Southern Trade|Assembly|")
        << "what cannot be read is not chosen";
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
    EXPECT_EQ(Places("Employees"), "000 111 111 110 120 230");
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
    EXPECT_EQ(Listed("lstFromEmployee"), "(Reload all employees) Abel Bell Cote");
    EXPECT_THAT(user.Entries("lstToDepartment"), ElementsAre("Production"));
    user.Picks("lstFromEmployee", "Abel").WillConfirm().WillBeDone().Clicks("cmdProcess");
    EXPECT_EQ(Places("Employees"), "000 110 111 110 120 230");

    house.Sql("UPDATE Organizations SET Active = 0 WHERE RecordID = 1");
    house.LogIn("ADMIN");
    EXPECT_EQ(user.Opens<frmTransferEmployees>().Reads("lstToOrganization"), "Southern Trade") << "the only one";
}
} // namespace
