#include "attendance/attendance_fixture.h"

namespace
{
const QDate kRecordMonday(2026, 3, 2);

class AttendanceRecords : public AttendanceTest
{
protected:
    QString Listed()
    {
        QStringList texts;
        const auto items = LoadRecords(datAbsence, entry);
        if (!items)
            return "nobody";
        for (const ListEntry& item : *items)
            texts << item.Text;
        return texts.join("\n");
    }

    QStringList Categories()
    {
        QStringList texts;
        for (const ListEntry& item : LoadCategories(datAbsence, entry))
            texts << item.Text;
        return texts;
    }

    void As(const QStringList& rights, const QString& department = "Production", const QString& group = "Assembly")
    {
        const int id = house.Hire({"USER", "Ulla", "Unger", department, group, rights});
        house.LogIn("USER");
        EXPECT_EQ(SessionState.UserID, id);
        entry.EmployeeID = id;
    }
};

TEST_F(AttendanceRecords, TheHighestRightDecidesWhomTheUserMayEnterRecordsFor)
{
    house.Hire({"ZOE", "Zoe", "Abel", "Stores", "", {}});
    house.Hire({"EVE", "Ève", "Émond", "Sales", "", {}});
    house.Sql("UPDATE Employees SET DeactivatedDate = 46000 WHERE RecordID = ?",
              {house.Hire({"GONE", "Gus", "Gone", "Sales", "", {}})});
    As({"OrganizationLevelCreate", "DepartmentLevelCreate"});
    house.Hire({"OWN", "Olga", "Own", "Stores", "", {}, SessionState.UserID});
    SessionState.GlobalLevelCreate = 1;
    EXPECT_EQ(Listed(), "Davis, Chris /       Northern Works\nÉmond, Ève /       Northern Works\n"
                        "Roy, Marc /       Northern Works\nAbel, Zoe /       Southern Trade\n"
                        "Own, Olga /       Southern Trade");
    EXPECT_EQ(entry.EmployeeID, 0) << "the user may not enter his own records";

    SessionState.GlobalLevelCreate = 0;
    SessionState.English = false;
    EXPECT_EQ(Listed(), "Davis, Chris /          Fabrication\nRoy, Marc /          Fabrication\n"
                        "Émond, Ève /               Ventes\nOwn, Olga /             Magasins")
        << "in the order of the English names";
    SessionState.OrganizationLevelCreate = 0;
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nRoy, Marc");
    SessionState.DepartmentLevelCreate = 0;
    SessionState.GroupLevelCreate = 1;
    SessionState.SelfLevelCreate = 1;
    entry.EmployeeID = SessionState.UserID;
    EXPECT_EQ(Listed(), "Davis, Chris\nOwn, Olga\nUnger, Ulla");
    SessionState.UserGroupID = 0;
    EXPECT_EQ(Listed(), "Unger, Ulla");
    SessionState.SelfLevelCreate = 0;
    EXPECT_EQ(Listed(), "nobody");
    SessionState.GlobalLevelCreate = 1;
    entry.Kind = AttendanceKind::Submit;
    EXPECT_EQ(Listed(), "Unger, Ulla") << "a request is always for oneself";
    EXPECT_EQ(entry.EmployeeID, SessionState.UserID);
}

TEST_F(AttendanceRecords, CategoriesAreThoseOfTheDepartmentOrThePublicOnes)
{
    house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE CategoryID = ?", {house.CategoryID("Sick")});
    house.Sql("UPDATE Categories SET IsPublic = 0 WHERE SystemName = 'Vacation'");
    house.Sql("UPDATE Categories SET Active = 0 WHERE SystemName = 'Time paid'");
    house.Sql("UPDATE Categories SET Restricted = 1 WHERE SystemName = 'Doctor appointments'");
    house.FiscalYear("2027", 2027);
    entry.EmployeeID = chris;
    LoadEmployeeInfo(datAbsence, entry);
    EXPECT_EQ(Categories(), (QStringList{"(All categories)", "Doctor appointments", "Personal time", "Time accumulated",
                                         "Time borrowed", "Time claimed", "Vacation"}));
    EXPECT_EQ(entry.TimeClaimedCategoryID, house.CategoryID("Time claimed"));
    entry.EmployeeDepartmentID = 0;
    SessionState.AccessToRestrictedCategory = 0;
    SessionState.English = false;
    EXPECT_EQ(Categories(), (QStringList{"(Toutes les catégories)", "Maladie", "Temps accumulé", "Temps emprunté",
                                         "Temps personnel", "Temps réclamé"}));
}
} // namespace
