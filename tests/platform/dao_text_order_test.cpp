#include "platform/dao/collation.h"
#include "platform/engine_fixture.h"

namespace
{
class TextOrder : public EngineTest
{
protected:
    void Store(const QStringList& names)
    {
        const auto database = Open();
        for (const QString& name : names)
            database->Execute("INSERT INTO Staff (Name) VALUES (?)", {name});
    }
};

TEST_F(TextOrder, AccentedLettersStandBesideTheirBaseLetter)
{
    Store({"Zola", "éclair", "Fabre", "Eco", "edam", "Égalité", "eau", "Ça", "cb", "œuf", "offre", "odeur", "ÉCO"});
    EXPECT_EQ(List("SELECT Name FROM Staff ORDER BY Name"),
              "Ça,cb,eau,éclair,Eco,ÉCO,edam,Égalité,Fabre,odeur,œuf,offre,Zola");
}

TEST_F(TextOrder, EqualityIgnoresLetterCaseButNotAccents)
{
    Store({"ÉTÉ", "Ete"});
    EXPECT_EQ(List("SELECT Name FROM Staff WHERE Name = 'été'"), "ÉTÉ");
    EXPECT_EQ(List("SELECT Name FROM Staff WHERE Name IN ('ETE', 'autre')"), "Ete");
    EXPECT_EQ(List("SELECT Name FROM Staff WHERE UCASE(Name) = UPPER('été')"), "ÉTÉ");
    EXPECT_EQ(List("SELECT COUNT(DISTINCT Name) FROM Staff"), "2");
    EXPECT_NE(CompareTexts("A2", "A²"), 0) << "a sign that the collator takes for another is another";
    EXPECT_NE(CompareTexts("A", "A\x01"), 0);
    EXPECT_NE(CompareTexts("", " "), 0);
}

TEST_F(TextOrder, TheOrderIsTheSameWhateverTheWorkstationsLanguage)
{
    const int order = AsOrdinaryUser([] {
        for (const char* name : {"LANG", "LC_ALL", "LANGUAGE"})
            qputenv(name, "C");
        QLocale::setDefault(QLocale(QLocale::Swedish));
        return CompareTexts("Ösa", "Pia") < 0 && CompareTexts("É", "F") < 0 ? 1 : 0;
    });
    EXPECT_EQ(order, 1);
}
} // namespace
