#include "catalogue/catalogue.h"
#include "makers/jet.h"
#include "makers/jet_files.h"
#include "store/small_store.h"
#include "support/ordinary_user.h"

#include <chrono>
#include <csignal>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orvane {

namespace fs = std::filesystem;

namespace {

// Printed when a table differs: a whole one would fill pages.
std::string FirstDifference(const Listed& Wanted, const Listed& Given)
{
    if (Wanted.Columns != Given.Columns)
        return "other columns";
    for (std::size_t i = 0; i < std::min(Wanted.Rows.size(), Given.Rows.size()); ++i)
        for (std::size_t k = 0; k < Wanted.Columns.size(); ++k)
            if (Wanted.Rows[i].at(k) != Given.Rows[i].at(k))
                return "row " + std::to_string(i + 1) + ", " + Wanted.Columns[k] + ": " +
                       Given.Rows[i][k] + " instead of " + Wanted.Rows[i][k];
    return std::to_string(Given.Rows.size()) + " rows instead of " +
           std::to_string(Wanted.Rows.size());
}

class JetImport : public StoreTest
{
  protected:
    fs::path Copied(const std::string& Name, const std::string& As = "Base.mdb") const
    {
        fs::copy_file(JetFile(Name), Folder / As);
        return Folder / As;
    }

    // The file can't be imported, that is said in one line, and all stays as it was.
    void ExpectRefused(const fs::path& File, const std::string& Sentence)
    {
        const auto Before = Everything(Folder.Path());
        EXPECT_EQ(SentenceOf([&] { ImporterJet(File); }), Sentence);
        EXPECT_TRUE(Everything(Folder.Path()) == Before);
    }

    static std::string Damaged(const std::string& Name)
    {
        return "Le fichier «\u00A0" + Name +
               "\u00A0» est endommagé\u00A0: il n’a pas été converti.";
    }
};

class JetContents : public JetImport, public testing::WithParamInterface<const char*>
{
};

TEST_P(JetContents, EveryTableIsTheListedOneRowByRowAndTypeByType)
{
    const std::string Name = GetParam();
    const fs::path File = Copied(Name);
    ASSERT_TRUE(EstJet(File));
    ImporterJet(File);
    EXPECT_FALSE(EstJet(File));
    EXPECT_TRUE(ContentOf(Folder / "Base.jet.mdb") == ContentOf(JetFile(Name)));
    const ListedTables Given = TablesOf(File);
    const ListedTables Wanted = TablesToldOf(Name);
    ASSERT_FALSE(Wanted.empty());
    EXPECT_EQ(Given.size(), Wanted.size());
    for (const auto& [Table, Content] : Wanted) {
        ASSERT_TRUE(Given.contains(Table)) << Table;
        EXPECT_TRUE(Given.at(Table) == Content)
            << Table << ": " << FirstDifference(Content, Given.at(Table));
    }
    EXPECT_EQ(LinksOf(File), LinksToldOf(Name));
}

INSTANTIATE_TEST_SUITE_P(All, JetContents,
                         testing::Values("types", "noms", "trous", "colonnes_en_plus", "jet3",
                                         "exemple/Config", "exemple/Panier", "exemple/Parchemin",
                                         "exemple/Artisanat_Alchimie", "exemple/Artisanat_Valdren",
                                         "exemple/Artisanat_Corvane",
                                         "exemple/Artisanat_Brenmoor"));

TEST_F(JetImport, ColumnsThatOurSchemaTellsTakeItsTypesAndOthersTypesLikeTheirOwn)
{
    const auto Types = [&](const fs::path& File, const std::string& Table) {
        SQLite::Database Base(File.string());
        SQLite::Statement Info(Base,
                               "SELECT type || iif(pk, ' KEY', '') FROM pragma_table_info(?)");
        Info.bind(1, Table);
        std::string Result;
        while (Info.executeStep())
            Result += Info.getColumn(0).getString() + " ";
        return Result;
    };
    const fs::path Own = Copied("types", "types.mdb");
    ImporterJet(Own);
    EXPECT_EQ(Types(Own, "Types"),
              "INTEGER TEXT TEXT INTEGER INTEGER INTEGER DECIMAL(19,4) NUMERIC "
              "DOUBLE DOUBLE TEXT INTEGER TEXT BLOB TEXT ");
    EXPECT_EQ(Walk(Own, "SELECT * FROM Types WHERE Num = 3", "Binaire"), "00ff10");
    const fs::path Settings = Copied("chiffre", "Config.mdb");
    ImporterJet(Settings);
    EXPECT_TRUE(TablesOf(Settings) == TablesToldOf("exemple/Config")) << "coded pages";
    EXPECT_EQ(Types(Settings, "ConfigRoyaume"),
              "INTEGER KEY DECIMAL(19,4) DECIMAL(19,4) DECIMAL(19,4) DECIMAL(19,4) DECIMAL(19,4) "
              "DECIMAL(19,4) DECIMAL(19,4) DECIMAL(19,4) DECIMAL(19,4) ");
    const fs::path Alchemy = Copied("colonnes_en_plus", "Artisanat_Alchimie.mdb");
    ImporterJet(Alchemy);
    EXPECT_EQ(Types(Alchemy, "Effets"), "INTEGER KEY TEXT TEXT ");
    EXPECT_EQ(Types(Alchemy, "Matériaux"), "INTEGER KEY TEXT DECIMAL(19,4) TEXT TEXT TEXT ");
}

TEST_F(JetImport, TheSavedQueriesAreOursAndTheLinkLeadsToTheFileBeside)
{
    Copied("exemple/Artisanat_Alchimie", "Artisanat_Alchimie.mdb");
    const fs::path Realm = Copied("exemple/Artisanat_Corvane", "Artisanat_Corvane.mdb");
    EXPECT_EQ(FichiersJet(Folder.Path()),
              (std::vector{Folder / "Artisanat_Alchimie.mdb", Folder / "Artisanat_Corvane.mdb"}));
    for (const fs::path& Each : FichiersJet(Folder.Path()))
        ImporterJet(Each);
    EXPECT_TRUE(FichiersJet(Folder.Path()).empty()) << "the originals don't count";
    for (const QueryDefinition& Query : RoyaumeDefinition().Queries)
        EXPECT_FALSE(TheStore.Open(Realm).OpenRecordset("SELECT * FROM " + Query.Name).Eof())
            << Query.Name;
    EXPECT_EQ(Walk(Realm, "SELECT Nom FROM Alchimie_ListeObjets WHERE Num = 305", "Nom"),
              Walk(Folder / "Artisanat_Alchimie.mdb", "SELECT Nom FROM ListeObjets WHERE Num = 305",
                   "Nom"));
}

TEST_F(JetImport, AKeptOriginalIsNeverWrittenOver)
{
    Folder.Write("Panier.jet.mdb", "un autre");
    ImporterJet(Copied("exemple/Panier", "Panier.mdb"));
    fs::remove(Folder / "Panier.mdb");
    ImporterJet(Copied("exemple/Panier", "Panier.mdb")); // the same original is kept once
    const std::string Original = ContentOf(JetFile("exemple/Panier"));
    const auto Left = Everything(Folder.Path());
    EXPECT_EQ(Left.size(), 3U);
    EXPECT_EQ(Left.at("Panier.jet.mdb"), "un autre");
    EXPECT_TRUE(Left.at("Panier.jet.2.mdb") == Original);
}

TEST_F(JetImport, WhatIsDamagedOrLockedUpIsRefused)
{
    for (const auto& Entry : fs::directory_iterator(fs::path(ORVANE_JET) / "abimes")) {
        const std::string Name = Entry.path().filename().string();
        fs::copy_file(Entry.path(), Folder / Name);
        ExpectRefused(Folder / Name, Damaged(Name));
    }
    ExpectRefused(
        Copied("mot_de_passe", "clos.mdb"),
        "Le fichier «\u00A0clos.mdb\u00A0» est protégé par un mot de passe\u00A0: il n’a pas "
        "été converti.");
    ExpectRefused(Folder.Write("texte.mdb", "\0\1\0\0Standard"),
                  "Le fichier «\u00A0texte.mdb\u00A0» n’est pas une base de données Jet.");
    ExpectRefused(Folder / "absent.mdb",
                  "Le fichier «\u00A0absent.mdb\u00A0» est introuvable ou illisible.");
}

TEST_F(JetImport, ADamageThatEndsTheReaderIsADamageLikeOthers)
{
    constexpr std::size_t RowOfUsageMap = 36 * 4096 + 55; // a row that its page doesn't have
    std::string Bytes = ContentOf(JetFile("exemple/Config"));
    Bytes.at(RowOfUsageMap) = 13;
    ExpectRefused(Folder.Write("a.mdb", Bytes), Damaged("a.mdb"));
}

TEST_F(JetImport, WhateverHasHappenedToAFileEndsInASentenceOrAWholeFile)
{
    const std::string Bytes = ContentOf(JetFile("exemple/Config"));
    std::mt19937 Chance(20);
    for (int i = 0; i < 150; ++i) {
        std::string Torn = Bytes;
        const std::size_t Page = Chance() % (Bytes.size() / 4096) * 4096;
        for (int k = 0; k < 5; ++k) // where a page tells what is on it
            Torn[Page + Chance() % 64] = static_cast<char>(Chance() % 3 == 0 ? 0xFF : Chance());
        const fs::path File = Folder.Write("a.mdb", Torn);
        const std::string Sentence = SentenceOf([&] { ImporterJet(File); });
        EXPECT_EQ(ContentOf(File) == Torn, !Sentence.empty()) << i;
        EXPECT_EQ(Everything(Folder.Path()).size(), Sentence.empty() ? 2U : 1U) << i;
        fs::remove(Folder / "a.jet.mdb");
    }
}

// Each page in turn is lost: there is no file from which rows are missing without a word.
TEST_F(JetImport, NoLostPageGoesUnnoticed)
{
    constexpr std::size_t PageSize = 4096;
    for (const std::string Name : {"trous", "exemple/Artisanat_Alchimie"}) {
        const std::string Bytes = ContentOf(JetFile(Name));
        const ListedTables Wanted = TablesToldOf(Name);
        int Refused = 0;
        for (std::size_t Page = 0; Page < Bytes.size() / PageSize; ++Page) {
            std::string Torn = Bytes;
            Torn.replace(Page * PageSize, PageSize, PageSize, '\0');
            const fs::path File = Folder.Write("a.mdb", Torn);
            try {
                ImporterJet(File);
                EXPECT_TRUE(TablesOf(File) == Wanted) << Name << ", page " << Page;
            } catch (const Failure&) {
                ++Refused;
                EXPECT_TRUE(ContentOf(File) == Torn);
            }
            fs::remove(Folder / "a.jet.mdb");
        }
        EXPECT_GT(Refused, 20) << Name;
    }
}

TEST_F(JetImport, AKillAtAnyMomentLeavesTheOriginalOrTheWholeConvertedFile)
{
    using Clock = std::chrono::steady_clock;
    const std::string Original = ContentOf(JetFile("exemple/Panier"));
    const ListedTables Wanted = TablesToldOf("exemple/Panier");
    const auto Begin = Clock::now();
    ImporterJet(Copied("exemple/Panier", "Panier.mdb"));
    const auto Whole = Clock::now() - Begin;
    constexpr int Kills = 60;
    for (int i = 0; i < Kills; ++i) {
        const fs::path File = Folder.Write("Panier.mdb", Original);
        fs::remove(Folder / "Panier.jet.mdb");
        const pid_t Child = ::fork();
        if (Child == 0) {
            ImporterJet(File);
            ::_exit(0);
        }
        std::this_thread::sleep_for(Whole * i * 3 / 2 / Kills);
        ::kill(Child, SIGKILL);
        ::waitpid(Child, nullptr, 0);
        if (EstJet(File)) {
            EXPECT_TRUE(ContentOf(File) == Original) << i;
        } else {
            EXPECT_TRUE(TablesOf(File) == Wanted) << i;
            EXPECT_TRUE(ContentOf(Folder / "Panier.jet.mdb") == Original) << i;
        }
    }
    Folder.Write("Panier.mdb", Original);
    ImporterJet(Folder / "Panier.mdb"); // whatever was left by then
    EXPECT_EQ(Everything(Folder.Path()).size(), 2U);
}

TEST_F(JetImport, TheOriginalIsKeptAlsoWhereItCannotHaveTwoNames)
{
    const fs::path File = Copied("exemple/Panier", "Panier.mdb");
    fs::permissions(Folder.Path(), fs::perms(0777));
    AsOrdinaryUser([&] { ImporterJet(File); }); // another's file can't be given a name
    EXPECT_TRUE(TablesOf(File) == TablesToldOf("exemple/Panier"));
    EXPECT_TRUE(ContentOf(Folder / "Panier.jet.mdb") == ContentOf(JetFile("exemple/Panier")));
    EXPECT_EQ(Everything(Folder.Path()).size(), 2U);
}

TEST_F(JetImport, AFolderThatCannotBeWrittenToIsSaid)
{
    const fs::path File = Copied("exemple/Panier", "Panier.mdb");
    fs::permissions(Folder.Path(), fs::perms(0555));
    AsOrdinaryUser([&] {
        ExpectRefused(File, "L’écriture dans «\u00A0Panier.mdb\u00A0» a échoué\u00A0: rien n’a été "
                            "enregistré.");
    });
    fs::permissions(Folder.Path(), fs::perms(0755));
}

} // namespace

} // namespace orvane
