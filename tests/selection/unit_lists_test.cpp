#include "selection/unit_lists.h"
#include "support/house.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace
{
class UnitLists : public testing::Test
{
protected:
    UnitLists() { house.Company().LogIn("ADMIN"); }

    QString Names(UnitList list, int organization = 0, int department = 0)
    {
        QStringList names;
        for (const Unit& unit : UnitsByPosition(datAbsence, list, organization, department))
            names << unit.Name;
        return names.join(", ");
    }

    QString AllNames()
    {
        QStringList lists;
        for (const UnitList list : kUnitLists)
            lists << Names(list);
        return lists.join(" / ");
    }

    House house;
    DataControl datAbsence{"UnitLists"};
};
} // namespace

TEST_F(UnitLists, TheUsersPositionDecidesWhatTheyOffer)
{
    house.Sql("INSERT INTO Groups (FiscalYear, Active, OrganizationID, DepartmentID, GroupEnglishName) "
              "VALUES (1, 1, 2, 3, 'Yard'), (1, 1, 1, 2, 'Counter'), (2, 1, 1, 1, 'Next year'), (1, 0, 1, 1, 'Old')");
    EXPECT_EQ(AllNames(), "Northern Works, Southern Trade / Production, Sales, Stores / Assembly, Counter, Yard");
    SessionState.UserOrganizationID = 1;
    EXPECT_EQ(AllNames(), "Northern Works / Production, Sales / Assembly, Counter");
    SessionState.UserDepartmentID = 2;
    EXPECT_EQ(AllNames(), "Northern Works / Sales / Counter");
    SessionState.UserDepartmentID = 1;
    SessionState.UserGroupID = 1;
    EXPECT_EQ(AllNames(), "Northern Works / Production / Assembly");
}

TEST_F(UnitLists, TheyAreNarrowedAndReadInTheUsersLanguage)
{
    SessionState.English = false;
    EXPECT_EQ(AllNames(), "Ateliers du Nord, Commerce du Sud / Fabrication, Magasins, Ventes / Assemblage");
    EXPECT_EQ(Names(UnitList::Departments, 2), "Magasins");
    EXPECT_EQ(Names(UnitList::Groups, 1, 2), "");
    EXPECT_EQ(Names(UnitList::Groups, 0, 1), "Assemblage");
    const Unit group = FindUnit(UnitsByPosition(datAbsence, UnitList::Groups), 1);
    EXPECT_EQ(group.OrganizationID * 10 + group.DepartmentID, 11);
    EXPECT_EQ(FindUnit(UnitsByPosition(datAbsence, UnitList::Organizations), 2).OrganizationID, 2);
    EXPECT_EQ(FindUnit({}, 0).RecordID, 0);
}
