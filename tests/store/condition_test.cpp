#include "store/small_store.h"
#include "store/sql_text.h"

namespace orvane {

// Rows 1 to 9; 8 has no name.
const char* const Rows = R"(CREATE TABLE T (Num INTEGER PRIMARY KEY, Nom TEXT, Prix DECIMAL(19,4));
    INSERT INTO T VALUES (1, 'Épée', 1.5), (2, 'ÉPÉE', 2), (3, 'epee', 3), (4, 'épée', 4),
    (5, 'Créé à l''été', 5), (6, '100%_sûr', 6), (7, '100 pour sûr', 7), (8, NULL, 8),
    (9, 'dit "Le Noir"', 9))";

class ConditionTest : public StoreTest
{
  protected:
    // Num of the rows that meet a condition.
    std::string Where(const std::string& Condition)
    {
        return Walk(Folder / "a.mdb", "SELECT Num FROM T WHERE " + Condition, "Num");
    }

    const std::filesystem::path File = Raw("a.mdb", Rows);
};

TEST_F(ConditionTest, TextsAreEqualWithoutRegardToCaseButAccentsCount)
{
    EXPECT_EQ(Where("Nom = \"épée\""), "1|2|4");
    EXPECT_EQ(Where("Nom = \"ÉpÉE\""), "1|2|4");
    EXPECT_EQ(Where("Nom = \"EPEE\""), "3");
    EXPECT_EQ(Where("Nom = 'EPEE'"), "3");
    EXPECT_EQ(Where("Nom = \"DIT \"\"le noir\"\"\""), "9");
    EXPECT_EQ(Where("Nom = \"\""), "") << "null isn't the empty text";
}

TEST_F(ConditionTest, UnequalTextsLeaveNullsOutHoweverManyAccentsTheTextHas)
{
    EXPECT_EQ(Where("Nom <> \"epee\" AND Num > 6"), "7|9");
    EXPECT_EQ(Where("Nom <> \"épée\" AND Num > 6"), "7|9");
    EXPECT_EQ(Where("Nom <> \"éééééé\" AND Num > 6"), "7|9");
}

TEST_F(ConditionTest, MoreThanSixteenWaysToWriteATextAreAllFound)
{
    Raw("a.mdb", "INSERT INTO T VALUES (10, 'Éàèçêù', 1), (11, 'éÀÈÇÊÙ', 1), (12, 'eàèçêù', 1)");
    EXPECT_EQ(Where("Nom = \"éàèçÊÙ\""), "10|11");
    EXPECT_EQ(Where("Nom <> \"éàèçÊÙ\" AND Num >= 10"), "12");
    EXPECT_EQ(Where("Nom = \"créé À l'ÉtÉ\""), "5");
}

TEST_F(ConditionTest, InLikeOnlyTheStarIsSpecial)
{
    const std::pair<const char*, const char*> Cases[] = {
        {"épée*", "1|2|4"}, {"*É", "5"},        {"*\u00E9*", "1|2|4|5"},
        {"100%*", "6"},     {"100_*", ""},      {"*%_*", "6"},
        {"%", ""},          {"100*sûr", "6|7"}, {"ep?e", ""},
        {"epee", "3"},      {"*ep*pe*", ""},    {"", ""},
        {"[e]pee", ""},     {"**ÉÉ**", "5"},    {"*é*é*é*é", "5"},
        {"e*e*e*e", ""},    {"*é à*", "5"}};
    EXPECT_EQ(Where("Nom LIKE \"*\""), "1|2|3|4|5|6|7|9");
    EXPECT_EQ(Where("Nom LIKE \"*\"\"le noir*\""), "9");
    for (const auto& [Pattern, Found] : Cases)
        EXPECT_EQ(Where("Nom LIKE \"" + std::string(Pattern) + "\""), Found) << Pattern;
}

TEST_F(ConditionTest, NumbersAndLogic)
{
    EXPECT_EQ(Where("Prix = 1.5 OR Num >= 9"), "1|9");
    EXPECT_EQ(Where("(Num = 1 OR Num = 2) AND NOT Nom = \"x\" AND Prix < 2"), "1");
    EXPECT_EQ(Where("Nom IS NULL"), "8");
    EXPECT_EQ(Where("Nom IS NOT NULL AND Num > 7"), "9");
    EXPECT_EQ(Where("Num BETWEEN 2 AND 4"), "2|3|4");
    EXPECT_EQ(Where("Num = -1"), "");
    EXPECT_EQ(Where("Num = \"3\""), "3");
}

TEST_F(ConditionTest, ALiteralOfAnotherKindDoesNotChangeHowTextsCompare)
{
    Raw("a.mdb", "INSERT INTO T VALUES (10, 'LIN', 1)");
    const Database Base = TheStore.Open(File);
    EXPECT_EQ(Walk(Base, "SELECT Num FROM T WHERE Nom = 3", "Num"), "");
    EXPECT_EQ(Walk(Base, "SELECT Num FROM T WHERE Nom = \"lin\"", "Num"), "10");
}

TEST_F(ConditionTest, AValueJoinedThroughQuotedIsDataWhateverItHolds)
{
    for (const std::string Value : {"a\" OR \"1\"=\"1", "l'arc", "\"", "%*_", "Ž'\"é"}) {
        Recordset Set = TheStore.Open(File).OpenRecordset("SELECT * FROM T");
        Set.AddNew();
        Set.Set("Nom", Value);
        Set.Update();
        const Recordset Found =
            TheStore.Open(File).OpenRecordset("SELECT * FROM T WHERE Nom = " + Quoted(Value));
        ASSERT_EQ(Found.RecordCount(), 1U) << Value;
        EXPECT_EQ(Found.Text("Nom"), Value);
    }
}

} // namespace orvane
