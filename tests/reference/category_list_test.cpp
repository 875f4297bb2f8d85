#include "reference/category_list.h"
#include "reference/holidays.h"
#include "support/company_test.h"

namespace
{
class CategoryLists : public CompanyTest
{
protected:
    /// Personal time is hidden, sickness not for everybody, vacation inactive; the next year has all of them.
    CategoryLists()
    {
        house.FiscalYear("2027", 2027);
        house.Sql("UPDATE Categories SET Restricted = SystemName = 'Personal time', IsPublic = SystemName <> 'Sick', "
                  "Active = SystemName <> 'Vacation' WHERE FiscalYear = 1 AND TimeBankRelated = 0");
        house.Sql("UPDATE CategoriesDepartments SET IsUsed = 0 WHERE DepartmentID = 2 AND CategoryID = ?",
                  {house.CategoryID("Doctor appointments")});
        house.Sql(
            "INSERT INTO Categories (FiscalYear, CategoryEnglishName, CategoryFrenchName, Active, CategoryColorCode, "
            "TimeBankRelated, Restricted) VALUES (1, 'Art', 'Peinture', 1, '255', 0, 0)");
        SessionState.AccessToRestrictedCategory = 0;
    }
    QString Offered(int department)
    {
        SessionState.EmployeeDepartmentID = department;
        QStringList names;
        for (const CategoryItem& item : LoadCategoryItems(datAbsence, SessionState.EmployeeDepartmentID))
            if (!item.SystemName.startsWith("Time "))
                names << item.Name;
        return names.join(", ");
    }
    QString Legend()
    {
        QStringList labels;
        for (const LegendItem& item : LoadLegendItems(datAbsence))
            labels << item.Text;
        return labels.join(", ");
    }
};
} // namespace

TEST_F(CategoryLists, CategoriesAreThoseOfTheDepartmentOrThePublicOnesThatTheUserMaySee)
{
    EXPECT_EQ(Offered(1), "Doctor appointments, Sick");
    EXPECT_EQ(Offered(2), "Sick");
    EXPECT_EQ(Offered(0), "Doctor appointments");
    EXPECT_EQ(Legend(), "S  Sick, D  Doctor appointments, Art") << "the program's own first";
    SessionState.AccessToRestrictedCategory = 1;
    SessionState.English = false;
    EXPECT_EQ(Offered(1), "Maladie, Rendez-vous médical, Temps personnel");
    EXPECT_EQ(Offered(0), "Rendez-vous médical, Temps personnel");
    EXPECT_EQ(Legend(), "S  Maladie, P  Temps personnel, D  Rendez-vous médical, Peinture");
    EXPECT_EQ(LoadLegendItems(datAbsence).last().Color, 255);
}

TEST_F(CategoryLists, HolidaysAreThoseOfTheYearThatAreNotCancelled)
{
    house.Sql("UPDATE Holidays SET CancelledDate = 46000 WHERE HolidayName = 'Labour Day'");
    house.Sql("INSERT INTO Holidays (HolidayDate, HolidayName, CancelledDate) VALUES (46388, 'Next', 0), "
              "(46022, 'Last', 0), (46100, 'Spring', 0)");
    const QVector<Holiday> holidays = LoadHolidays(datAbsence);
    QStringList named;
    for (const Holiday& holiday : holidays)
        named << HolidayName(holidays, holiday.Date);
    EXPECT_EQ(named.join(", "), "New Year, Spring, Canada Day, Christmas");
    EXPECT_EQ(HolidayName(holidays, 46101), "");
}
