#pragma once

#include "support/house_test.h"

#include <QRegularExpression>

/// A company of five: Anna and Bruno assemble in Production, Carla works there without a group, Dan sells; Eva is with
/// the other organization. ADMIN is logged in.
class CompanyTest : public HouseTest
{
protected:
    CompanyTest()
    {
        house.Configured().Company();
        anna = house.Hire({"ANNA", "Anna", "Abel", "Production", "Assembly"});
        house.Hire({"BRUNO", "Bruno", "Bell", "Production", "Assembly"});
        house.Hire({"CARLA", "Carla", "Cote", "Production"});
        dan = house.Hire({"DAN", "Dan", "Dube", "Sales"});
        eva = house.Hire({"EVA", "Eva", "Ellis", "Stores"});
        house.LogIn("ADMIN");
    }
    /// Organization, department and group of each record of a table, as "111 120".
    QString Places(const QString& table)
    {
        return house.Rows("SELECT OrganizationID || DepartmentID || GroupID AS P FROM " + table).replace('\n', ' ');
    }
    /// The entries of a list of employees, each up to the comma in the name, with blanks between them.
    QString Listed(const QString& list)
    {
        return user.Entries(list).replaceInStrings(QRegularExpression(",.*"), {}).join(' ');
    }

    int anna = 0;
    int dan = 0;
    int eva = 0;
};
