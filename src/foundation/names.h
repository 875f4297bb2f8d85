#pragma once

#include "foundation/texts.h"
#include "platform/dao/dao.h"

/// The column of a name in the session's language: "Category" gives CategoryEnglishName or CategoryFrenchName.
inline QString NameColumn(const QString& kind)
{
    return kind + T("EnglishName", "FrenchName");
}

/// "FirstName FamilyName"; one alone when the other is empty.
inline QString FullName(const QString& first, const QString& family)
{
    return (first.trimmed() + " " + family.trimmed()).trimmed();
}
/// "FamilyName, FirstName", as lists have it.
inline QString ListedName(const QString& family, const QString& first)
{
    return family.trimmed() + ", " + first.trimmed();
}

/// The same of a record with the columns FirstName and FamilyName.
inline QString FullName(const Recordset& person)
{
    return FullName(person.Text("FirstName"), person.Text("FamilyName"));
}
inline QString ListedName(const Recordset& person)
{
    return ListedName(person.Text("FamilyName"), person.Text("FirstName"));
}
