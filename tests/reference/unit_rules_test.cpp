#include "reference/unit_records.h"
#include "support/company_test.h"

namespace
{
class UnitRules : public CompanyTest
{
protected:
    UnitRow Named(const QString& english, const QString& french, int parent = 1, int recordID = 0)
    {
        UnitRow unit;
        unit.RecordID = recordID;
        unit.EnglishName = english;
        unit.FrenchName = french;
        unit.OrganizationID = unit.DepartmentID = parent;
        return unit;
    }
    /// "field: text" of what is wrong, empty when all is well.
    QString Fault(const UnitKind& kind, UnitRow unit)
    {
        const auto fault = ValidateRecord(datAbsence, kind, unit);
        return fault ? fault->Control + ": " + fault->Text : QString();
    }
    static QString Shown(const QVector<UnitItem>& items)
    {
        QStringList names;
        for (const UnitItem& item : items)
            names << item.Name + "/" + item.ParentName + (item.Active ? "" : " -");
        return names.join(", ");
    }
};

TEST_F(UnitRules, ANameIsUsedOncePerYearAndLanguageExceptByGroups)
{
    house.Sql("UPDATE Departments SET Active = 0, DepartmentEnglishName = ' Sales ' WHERE RecordID = 2");
    EXPECT_EQ(Fault(kDepartments, Named("SALES ", "Autre")),
              "txtEnglishName: The English name you specified for the department has already been used in fiscal year "
              "2026!");
    EXPECT_TRUE(
        Fault(kDepartments, Named("Fabrication", "fabrication"))
            .startsWith("txtFrenchName: The French name you specified for the department has already been used"))
        << "the English name is free: each language is compared with its own";
    EXPECT_EQ(Fault(kDepartments, Named("Sales", "Ventes", 1, 2)), "") << "a record may keep its name";
    EXPECT_EQ(Fault(kGroups, Named("Assembly", "Assemblage", 2)), "");

    SessionState.English = false;
    EXPECT_EQ(Fault(kOrganizations, Named("Northern Works", "x")),
              "txtEnglishName: Le nom anglais de l'organisation a déjà été utilisé au cours de l'année fiscale 2026!");
    SessionState.FiscalYearID = house.FiscalYear("2027", 2027);
    EXPECT_EQ(Fault(kDepartments, Named("Sales", "Ventes")), "");
}

TEST_F(UnitRules, EachNeedsANameAnOrganizationItsAddressAndTheOthersAUnitAbove)
{
    UnitRow unit = Named("Eastern Labs", "");
    for (const char* fault : {"txtAddressLine1: You must specify an address for the organization!",
                              "txtCity: You must specify a city for the organization!",
                              "txtState: You must specify a state or a province for the organization!",
                              "txtCountry: You must specify a country for the organization!"}) {
        for (const char* typed : {" ", "x"}) {
            EXPECT_EQ(Fault(kOrganizations, unit), fault);
            for (const AddressField& field : kAddressFields)
                if (QString(fault).startsWith(field.Control))
                    unit.*field.Line = typed;
        }
    }
    EXPECT_EQ(Fault(kOrganizations, unit), "");
    EXPECT_EQ(Fault(kDepartments, Named(" ", "")), "txtEnglishName: You must specify a name for the department!");
    EXPECT_EQ(Fault(kDepartments, Named("Labs", "", 0)),
              "lstOrganizations: You must specify the organization under which the department is grouped!");
    EXPECT_EQ(Fault(kGroups, Named("Labs", "", 0)),
              "lstDepartments: You must specify to which department the group is associated!");
    SessionState.English = false;
    EXPECT_EQ(Fault(kGroups, Named("", "")), "txtFrenchName: Vous devez spécifier le nom du groupe!");
}

TEST_F(UnitRules, ListsFollowTheLanguageAndTheYear)
{
    house.Sql("UPDATE Departments SET Active = 0 WHERE RecordID = 2");
    house.Sql("INSERT INTO Departments (FiscalYear, OrganizationID, DepartmentFrenchName, Active) VALUES "
              "(2, 1, 'Autre', 1), (1, 2, 'Études', 1), (1, 1, 'Études', 1)");
    SessionState.English = false;
    const QString active = "Études/Ateliers du Nord, Études/Commerce du Sud, Fabrication/Ateliers du Nord, "
                           "Magasins/Commerce du Sud";
    const QString inactive = ", Ventes/Ateliers du Nord -";
    EXPECT_EQ(Shown(LoadUnitItems(datAbsence, kDepartments, ListedUnits::All)), active + inactive);
    EXPECT_EQ(Shown(LoadUnitItems(datAbsence, kDepartments, ListedUnits::ActiveOnly)), active);
    EXPECT_EQ(Shown(LoadParentItems(datAbsence, kGroups, 0)), active);
    EXPECT_EQ(Shown(LoadParentItems(datAbsence, kGroups, 2)), active + inactive) << "where a group is now can be kept";
}
} // namespace
