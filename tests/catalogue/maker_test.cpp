#include "catalogue/maker.h"
#include "store/small_store.h"

#include <set>

namespace orvane {

const TableDefinition Table{"T",
                            {{"Num", ColumnType::Key, {}},
                             {"Nom", ColumnType::Text, {}},
                             {"Prix", ColumnType::Decimal, {}}}};

class MakerTest : public StoreTest
{
  protected:
    const std::filesystem::path File = Folder / "a.mdb";
};

TEST_F(MakerTest, TheFileAppearsWholeWhenMakingIsFinishedAndWithoutTheRowsThatWereRefused)
{
    DatabaseMaker Maker(File, {{Table}, {}, {}});
    Maker.Insert(Table, {"Nom", "Prix"}, {Value("Fer"), Value("922337203685477,5807")});
    EXPECT_FAILS(Store, Maker.Insert(Table, {"Num", "Nom"}, {Value("1"), Value("Or")}));
    EXPECT_FAILS(Program, Maker.Insert(Table, {"Num", "Nom"}, {Value("3")}));
    EXPECT_EQ(SentenceOf([&] { Maker.Insert(Table, {"Num", "Nom"}, {Value("2"), Value()}); }), "");
    Maker.Insert(Table, {"Prix", "Nom"}, {Value("2,00005"), Value("Bois")});
    EXPECT_FALSE(std::filesystem::exists(File));
    Maker.Finish();
    EXPECT_EQ(Walk(File, "SELECT * FROM T", "Nom"), "Fer||Bois");
    EXPECT_EQ(Walk(File, "SELECT * FROM T", "Prix"), "922337203685477,5807||2");
    EXPECT_EQ(std::filesystem::remove_all(Folder.Path()), 2U) << "the folder and one file";
}

TEST_F(MakerTest, AFormerFileStaysWhenMakingIsGivenUp)
{
    Folder.Write("a.mdb", "ancien");
    {
        DatabaseMaker Maker(File, {{Table}, {}, {}});
        EXPECT_FAILS(RefusedNumber, Maker.Insert(Table, {"Prix"}, {Value("cher")}));
        EXPECT_FAILS(DatabaseIncomplete, Maker.Insert({"Absent", {}}, {"Nom"}, {Value("x")}));
    }
    EXPECT_FAILS(Store, DatabaseMaker(File, {{Table, Table}, {}, {}}));
    EXPECT_EQ(std::filesystem::file_size(File), 6U);
    EXPECT_EQ(std::filesystem::remove_all(Folder.Path()), 2U) << "the folder and one file";
}

TEST_F(MakerTest, EverySavedQueryAndReferenceOfTheCatalogueFindsItsTables)
{
    const std::pair<const char*, const DatabaseDefinition*> Files[] = {
        {"Artisanat_Alchimie.mdb", &AlchimieDefinition()},
        {"Artisanat_Valdren.mdb", &RoyaumeDefinition()}};
    for (const auto& [FileName, Definition] : Files) {
        DatabaseMaker(Folder / FileName, *Definition).Finish();
        const Database Base = TheStore.Open(Folder / FileName);
        for (const QueryDefinition& Query : Definition->Queries)
            EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset("SELECT * FROM " + Query.Name); }), "")
                << Query.Sql;
        std::set<std::string> Names;
        for (const LinkDefinition& Link : Definition->Links) {
            Names.insert(Link.Name);
            EXPECT_EQ(Walk(Base, "SELECT * FROM " + Link.Name, "Nom"), "");
        }
        for (const TableDefinition& Each : Definition->Tables)
            EXPECT_TRUE(Names.insert(Each.Name).second) << Each.Name << " twice";
        for (const TableDefinition& Each : Definition->Tables)
            for (const ColumnDefinition& Column : Each.Columns)
                EXPECT_EQ(Column.Type == ColumnType::Reference, Names.contains(Column.Target))
                    << Each.Name << "." << Column.Name;
    }
}

} // namespace orvane
