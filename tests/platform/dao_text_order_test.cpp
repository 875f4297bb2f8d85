#include "platform/dao/collation.h"
#include "platform/engine_fixture.h"

using TextOrder = EngineTest;

TEST_F(TextOrder, AccentedLettersStandBesideTheirBaseLetterInAnyLocale)
{
    Hire(*Open(),
         {"Zola", "éclair", "Fabre", "Eco", "edam", "Égalité", "eau", "Ça", "cb", "œuf", "offre", "odeur", "ÉCO"});
    EXPECT_EQ(List("SELECT Name FROM Staff ORDER BY Name"),
              "Ça,cb,eau,éclair,Eco,ÉCO,edam,Égalité,Fabre,odeur,œuf,offre,Zola");
    const int order = AsOrdinaryUser([] {
        for (const char* name : {"LANG", "LC_ALL", "LANGUAGE"})
            qputenv(name, "C");
        QLocale::setDefault(QLocale(QLocale::Swedish));
        return CompareTexts("Ösa", "Pia") < 0 && CompareTexts("É", "F") < 0 ? 1 : 0;
    });
    EXPECT_EQ(order, 1);
}

TEST_F(TextOrder, EqualityIgnoresLetterCaseButNotAccents)
{
    Hire(*Open(), {"ÉTÉ", "Ete"});
    const std::pair<const char*, const char*> found[] = {{"Name = 'été'", "ÉTÉ"},
                                                         {"Name IN ('ETE', 'autre')", "Ete"},
                                                         {"UCASE(Name) = UPPER('été')", "ÉTÉ"},
                                                         {"LOWER(Name) COLLATE BINARY = LCASE('ETE')", "Ete"}};
    for (const auto& [condition, names] : found)
        EXPECT_EQ(List(QStringLiteral("SELECT Name FROM Staff WHERE ") + condition), names);
    EXPECT_EQ(List("SELECT COUNT(DISTINCT Name), UPPER(NULL) IS NULL FROM Staff"), "2|1");
    for (const auto& [one, other] : {std::pair("A2", "A²"), {"A", "A\x01"}, {"", " "}})
        EXPECT_NE(CompareTexts(one, other), 0) << "a sign that the collator takes for another is another";
}
