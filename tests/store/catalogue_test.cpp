#include "store/small_store.h"

#include <set>

namespace orvane {

class CatalogueTest : public StoreTest
{
  protected:
    // Makes the file and runs every saved query and link once.
    void RunAll(std::string_view Name, const DatabaseDefinition& Definition)
    {
        const Database Base = TheStore.Open(Make(Name, Definition));
        for (const QueryDefinition& Query : Definition.Queries)
            EXPECT_EQ(SentenceOf([&] { Base.OpenRecordset("SELECT * FROM " + Query.Name); }), "")
                << Query.Sql;
        for (const LinkDefinition& Link : Definition.Links)
            EXPECT_EQ(Walk(Base, "SELECT * FROM " + Link.Name, "Nom"), "");
    }
};

TEST_F(CatalogueTest, EverySavedQueryRunsOverTheTablesOfItsFile)
{
    RunAll("Artisanat_Alchimie.mdb", AlchimieDefinition());
    RunAll("Artisanat_Valdren.mdb", RoyaumeDefinition());
    RunAll("Config.mdb", ConfigDefinition());
    RunAll("Panier.mdb", PanierDefinition());
    RunAll("skin.mdb", SkinDefinition());
}

TEST_F(CatalogueTest, EveryReferencePointsToATableOrLinkOfItsFile)
{
    for (const DatabaseDefinition* Definition : {&AlchimieDefinition(), &RoyaumeDefinition()}) {
        std::set<std::string> Names;
        for (const TableDefinition& Table : Definition->Tables)
            EXPECT_TRUE(Names.insert(Table.Name).second) << Table.Name << " twice";
        for (const LinkDefinition& Link : Definition->Links)
            Names.insert(Link.Name);
        for (const TableDefinition& Table : Definition->Tables)
            for (const ColumnDefinition& Column : Table.Columns)
                EXPECT_EQ(Column.Type == ColumnType::Reference, Names.contains(Column.Target))
                    << Table.Name << "." << Column.Name;
    }
}

} // namespace orvane
