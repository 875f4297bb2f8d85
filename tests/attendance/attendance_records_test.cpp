#include "attendance/attendance_fixture.h"

namespace
{
class AttendanceRecords : public AttendanceTest
{
protected:
    static QString Texts(const QVector<ListEntry>& items)
    {
        QStringList texts;
        for (const ListEntry& item : items)
            texts << item.Text;
        return texts.join("\n");
    }
    QString Listed() { return Texts(LoadRecords(datAbsence, entry).value_or(QVector<ListEntry>{{"nobody", 0}})); }
};

TEST_F(AttendanceRecords, TheHighestRightDecidesWhomTheUserMayEnterRecordsFor)
{
    house.Hire({"ZOE", "Zoe", "Abel", "Stores", ""});
    house.Hire({"EVE", "Ève", "Émond", "Sales", ""});
    house.Hire({"GONE", "Gus", "Gone", "Sales", ""});
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE LoginID = 'GONE'");
    house.FiscalYear("2027", 2027);
    house.Hire({"LATER", "Léa", "Later", "Production", "Assembly"}, 2);
    entry.EmployeeID = house.Hire({"USER", "Ulla", "Unger", "Production", "Assembly", {"GlobalLevelCreate"}});
    house.LogIn("USER");
    const int own = house.Hire({"OWN", "Olga", "Own", "Stores", "", {}, SessionState.UserID});
    EXPECT_EQ(Listed(), "Davis, Chris /       Northern Works\nÉmond, Ève /       Northern Works\n"
                        "Roy, Marc /       Northern Works\nAbel, Zoe /       Southern Trade\n"
                        "Own, Olga /       Southern Trade");
    EXPECT_EQ(entry.EmployeeID, 0) << "the user may not enter his own records";

    const auto only = [](const SecurityProfile& rights) { static_cast<SecurityProfile&>(SessionState) = rights; };
    only({.DepartmentLevelCreate = 1, .OrganizationLevelCreate = 1});
    SessionState.English = false;
    EXPECT_EQ(Listed(), "Davis, Chris /          Fabrication\nRoy, Marc /          Fabrication\n"
                        "Émond, Ève /               Ventes\nOwn, Olga /             Magasins")
        << "in the order of the English names";
    only({.DepartmentLevelCreate = 1});
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nRoy, Marc");
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 0, AttendanceApprovedBy_Backup = ? WHERE RecordID = ?",
              {SessionState.UserID, own});
    only({.GroupLevelCreate = 1, .SelfLevelCreate = 1});
    entry.EmployeeID = SessionState.UserID;
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nUnger, Ulla");
    EXPECT_EQ(entry.EmployeeID, SessionState.UserID);
    SessionState.UserGroupID = 0;
    EXPECT_EQ(Listed(), "Unger, Ulla");
    only({});
    EXPECT_EQ(Listed(), "nobody");
    only({.GlobalLevelCreate = 1});
    entry.Kind = AttendanceKind::Submit;
    EXPECT_EQ(Listed(), "Unger, Ulla") << "a request is always for oneself";
    EXPECT_EQ(entry.EmployeeID, SessionState.UserID);
}

TEST_F(AttendanceRecords, CategoriesAreThoseOfTheDepartmentOrThePublicOnes)
{
    house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = ? AND DepartmentID = 1",
              {house.CategoryID("Sick")});
    house.Sql("UPDATE Categories SET IsPublic = 0 WHERE SystemName IN ('Vacation', 'Time claimed')");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Time paid'");
    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Doctor appointments'");
    house.FiscalYear("2027", 2027);
    entry.EmployeeID = chris;
    LoadEmployeeInfo(datAbsence, entry);
    EXPECT_EQ(Texts(LoadCategories(datAbsence, entry)), "(All categories)\nDoctor appointments\nPersonal time\n"
                                                        "Time accumulated\nTime borrowed\nTime claimed\nVacation");
    EXPECT_EQ(entry.TimeClaimedCategoryID, house.CategoryID("Time claimed"));
    SessionState.AccessToRestrictedCategory = 0;
    SessionState.English = false;
    EXPECT_EQ(Texts(LoadCategories(datAbsence, entry)),
              "(Toutes les catégories)\nTemps accumulé\nTemps emprunté\nTemps personnel\nTemps réclamé\nVacances");
    entry.EmployeeDepartmentID = 0;
    EXPECT_EQ(Texts(LoadCategories(datAbsence, entry)),
              "(Toutes les catégories)\nMaladie\nTemps accumulé\nTemps emprunté\nTemps personnel");
    EXPECT_EQ(entry.TimeClaimedCategoryID, 0);
}
} // namespace
