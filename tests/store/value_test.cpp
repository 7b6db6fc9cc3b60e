#include "base/number_text.h"
#include "store/small_store.h"

#include <limits>
#include <random>

namespace orvane {

const DatabaseDefinition Definition{{{"T",
                                      {{"Num", ColumnType::Key, {}},
                                       {"Prix", ColumnType::Decimal, {}},
                                       {"Nb", ColumnType::Whole, {}},
                                       {"Nom", ColumnType::Text, {}}}}},
                                    {},
                                    {}};

class ValueTest : public StoreTest
{
  protected:
    // What a column gives back, read by another connection, after Text was written to it.
    std::string Stored(const std::string& Column, const std::string& Text)
    {
        const Database Base = TheStore.Open(File);
        Base.Execute("DELETE * FROM T");
        Recordset Rows = Base.OpenRecordset("SELECT * FROM T");
        Rows.AddNew();
        Rows.Set(Column, Text);
        Rows.Update();
        Store Other;
        return Other.Open(File).OpenRecordset("SELECT * FROM T").Text(Column);
    }

    const std::filesystem::path File = Make("a.mdb", Definition);
};

TEST_F(ValueTest, ADecimalColumnHoldsAnyMontantExactly)
{
    for (const std::string Text :
         {"12,5", "0", "-0,0001", "922337203685477,5807", "-922337203685477,5808",
          "99999999999,9999", "123456789012,3456", "900719925474,0993", "-0,1", "100000000000000"})
        EXPECT_EQ(Stored("Prix", Text), Text);
    std::mt19937_64 Random(6);
    for (int i = 0; i < 40; ++i) {
        const auto Count = static_cast<std::int64_t>(Random()) >> (Random() % 64);
        EXPECT_EQ(Stored("Prix", TextOfScaled(Count, 4)), TextOfScaled(Count, 4));
    }
}

TEST_F(ValueTest, MoreDecimalsThanTheColumnHasRoundTiesToEven)
{
    const std::pair<const char*, const char*> Decimals[] = {
        {"0,00005", "0"}, {"0,00015", "0,0002"}, {"-1,00025", "-1,0002"},  {" 12,50 ", "12,5"},
        {",5", "0,5"},    {"2,", "2"},           {"0,000050001", "0,0001"}};
    for (const auto& [Given, Text] : Decimals)
        EXPECT_EQ(Stored("Prix", Given), Text) << Given;
    const std::pair<const char*, const char*> Wholes[] = {
        {"2,5", "2"},     {"3,5", "4"}, {"-2,5", "-2"},
        {"2,50001", "3"}, {"007", "7"}, {"9223372036854775807", "9223372036854775807"}};
    for (const auto& [Given, Text] : Wholes)
        EXPECT_EQ(Stored("Nb", Given), Text) << Given;
}

TEST_F(ValueTest, ATextThatIsNoNumberIsRefusedAndTheRowLeftAsItWas)
{
    Raw("a.mdb", "INSERT INTO T VALUES (1, 2.5, 3, 'Fer')");
    Recordset Rows = TheStore.Open(File).OpenRecordset("SELECT * FROM T");
    for (const char* Wrong : {"", "abc", "12.5", "1e5", "1 234", "922337203685477,5808"}) {
        Rows.Edit();
        Rows.Set("Nom", "Bois");
        Rows.Set("Nb", 7);
        Rows.Set("Prix", Wrong);
        EXPECT_FAILS(RefusedNumber, Rows.Update());
        Rows.AddNew();
        Rows.Set("Nom", "Bois");
        Rows.Set("Nb",
                 Wrong == std::string("922337203685477,5808") ? "9223372036854775808" : Wrong);
        EXPECT_FAILS(RefusedNumber, Rows.Update());
    }
    EXPECT_EQ(Rows.Text("Nom"), "Fer") << "nor does the snapshot change";
    EXPECT_EQ(RawCell("a.mdb", "SELECT group_concat(Prix || '/' || Nb || '/' || Nom) FROM T"),
              "2.5/3/Fer");
}

TEST_F(ValueTest, ColumnsOfAForeignFileAreReadFromTheirDeclaredTypes)
{
    const auto Foreign = Raw(
        "b.mdb", "CREATE TABLE T (A decimal(9, 2), B NUMERIC(5), C MONEY, D VARCHAR(9), E SMALLINT,"
                 "F DOUBLE PRECISION, G); INSERT INTO T (A) VALUES (NULL)");
    const std::pair<const char*, const char*> Cases[] = {
        {"A", "1,12"}, {"B", "1"},     {"C", "1,125"}, {"D", "1,1250"},
        {"E", "1"},    {"F", "1,125"}, {"G", "1,1250"}};
    Recordset Rows = TheStore.Open(Foreign).OpenRecordset("SELECT * FROM T");
    for (const auto& [Column, Text] : Cases) {
        Rows.Edit();
        Rows.Set(Column, "1,1250");
        Rows.Update();
        EXPECT_EQ(Rows.Text(Column), Text) << Column;
        EXPECT_EQ(Walk(Foreign, "SELECT * FROM T", Column), Text) << Column;
    }
}

} // namespace orvane
