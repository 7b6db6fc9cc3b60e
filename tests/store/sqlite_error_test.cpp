#include "store/sqlite_error.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>

namespace orvane {

TEST(SqliteError, AFullFileLeavesTheDiskFullSentence)
{
    SQLite::Database Base(":memory:", SQLite::OPEN_READWRITE);
    Base.exec("PRAGMA max_page_count = 2; CREATE TABLE T (Nom TEXT)");
    try {
        Translated("Panier.mdb", [&] { Base.exec("INSERT INTO T VALUES (zeroblob(99999))"); });
        ADD_FAILURE() << "the file took it";
    } catch (const Failure& Given) {
        EXPECT_EQ(Given.Sentence(), "Le disque est plein\u00A0: rien n’a été enregistré dans "
                                    "«\u00A0Panier.mdb\u00A0».");
    }
}

} // namespace orvane
