#include "store/small_store.h"

namespace orvane {

const TableDefinition Table{"Objets",
                            {{"Num", ColumnType::Key, {}},
                             {"Nom", ColumnType::Text, {}},
                             {"Prix", ColumnType::Decimal, {}}}};

class MakerTest : public StoreTest
{
  protected:
    std::size_t FileCount() const
    {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(Folder.Path()), {}));
    }

    const std::filesystem::path File = Folder / "a.mdb";
};

TEST_F(MakerTest, TheFileAppearsWholeWhenMakingIsFinished)
{
    DatabaseMaker Maker(File, {{Table}, {}, {}});
    Maker.Insert(Table, {"Nom", "Prix"}, {Value("Fer"), Value("922337203685477,5807")});
    Maker.Insert(Table, {"Prix", "Nom"}, {Value("2,00005"), Value()});
    EXPECT_FALSE(std::filesystem::exists(File));
    Maker.Finish();
    EXPECT_EQ(FileCount(), 1U);
    EXPECT_EQ(Walk(File, "SELECT * FROM Objets", "Prix"), "922337203685477,5807|2");
    EXPECT_EQ(Walk(File, "SELECT * FROM Objets WHERE Nom IS NULL", "Num"), "2");
}

TEST_F(MakerTest, AFormerFileStaysWhenMakingIsGivenUp)
{
    Folder.Write("a.mdb", "ancien");
    {
        DatabaseMaker Maker(File, {{Table}, {}, {}});
        EXPECT_FAILS(RefusedNumber, Maker.Insert(Table, {"Prix"}, {Value("cher")}));
        EXPECT_FAILS(DatabaseIncomplete, Maker.Insert({"Absent", {}}, {"Nom"}, {Value("x")}));
    }
    EXPECT_EQ(std::filesystem::file_size(File), 6U);
    EXPECT_EQ(FileCount(), 1U);
}

TEST_F(MakerTest, NothingIsLeftWhenTheDefinitionItselfIsWrong)
{
    EXPECT_FAILS(Store, DatabaseMaker(File, {{Table, Table}, {}, {}}));
    EXPECT_EQ(FileCount(), 0U);
}

TEST_F(MakerTest, ARefusedRowDoesNotSpoilTheNextOne)
{
    DatabaseMaker Maker(File, {{Table}, {}, {}});
    Maker.Insert(Table, {"Num", "Nom"}, {Value(std::int64_t{1}), Value("Fer")});
    EXPECT_FAILS(Store,
                 Maker.Insert(Table, {"Num", "Nom"}, {Value(std::int64_t{1}), Value("Bois")}));
    EXPECT_EQ(SentenceOf([&] {
                  Maker.Insert(Table, {"Num", "Nom"}, {Value(std::int64_t{2}), Value("Or")});
              }),
              "");
    Maker.Finish();
    EXPECT_EQ(Walk(File, "SELECT * FROM Objets", "Nom"), "Fer|Or");
}

} // namespace orvane
