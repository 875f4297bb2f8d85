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
    QString Listed()
    {
        const auto items = LoadRecords(datAbsence, entry);
        return items ? Texts(*items) : "nobody";
    }
};

TEST_F(AttendanceRecords, TheHighestRightDecidesWhomTheUserMayEnterRecordsFor)
{
    house.Hire({"ZOE", "Zoe", "Abel", "Stores", ""});
    house.Hire({"EVE", "Ève", "Émond", "Sales", ""});
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?",
              {house.Hire({"GONE", "Gus", "Gone", "Sales", ""})});
    house.FiscalYear("2027", 2027);
    house.Hire({"LATER", "Léa", "Later", "Production", "Assembly"}, 2);
    entry.EmployeeID = house.Hire({"USER", "Ulla", "Unger", "Production", "Assembly", {"GlobalLevelCreate"}});
    house.LogIn("USER");
    const int own = house.Hire({"OWN", "Olga", "Own", "Stores", "", {}, SessionState.UserID});
    EXPECT_EQ(Listed(), "Davis, Chris /       Northern Works\nÉmond, Ève /       Northern Works\n"
                        "Roy, Marc /       Northern Works\nAbel, Zoe /       Southern Trade\n"
                        "Own, Olga /       Southern Trade");
    EXPECT_EQ(entry.EmployeeID, 0) << "the user may not enter his own records";

    const auto only = [](std::initializer_list<int SecurityProfile::*> rights) {
        static_cast<SecurityProfile&>(SessionState) = {};
        for (int SecurityProfile::*const right : rights)
            SessionState.*right = 1;
    };
    only({&SecurityProfile::OrganizationLevelCreate, &SecurityProfile::DepartmentLevelCreate});
    SessionState.English = false;
    EXPECT_EQ(Listed(), "Davis, Chris /          Fabrication\nRoy, Marc /          Fabrication\n"
                        "Émond, Ève /               Ventes\nOwn, Olga /             Magasins")
        << "in the order of the English names";
    only({&SecurityProfile::DepartmentLevelCreate});
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nRoy, Marc");
    house.Sql("UPDATE Employees SET AttendanceApprovedBy_Main = 0, AttendanceApprovedBy_Backup = ? WHERE RecordID = ?",
              {SessionState.UserID, own});
    only({&SecurityProfile::GroupLevelCreate, &SecurityProfile::SelfLevelCreate});
    entry.EmployeeID = SessionState.UserID;
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nUnger, Ulla");
    EXPECT_EQ(entry.EmployeeID, SessionState.UserID);
    SessionState.UserGroupID = 0;
    EXPECT_EQ(Listed(), "Unger, Ulla");
    only({});
    EXPECT_EQ(Listed(), "nobody");
    only({&SecurityProfile::GlobalLevelCreate});
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
