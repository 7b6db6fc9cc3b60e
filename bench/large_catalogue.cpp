#include "large_catalogue.h"

#include "catalogue/catalogue.h"
#include "store/sql_text.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <utility>

namespace orvane::bench {

namespace {

// Copies the rows of a table, every column but Num; the column that names them takes the copy's
// number.
void Multiply(const std::filesystem::path& File, const TableDefinition& Table,
              const std::string& NameColumn, int Times)
{
    std::string Names;
    std::string Values;
    for (const ColumnDefinition& Column : Table.Columns) {
        if (Column.Type == ColumnType::Key)
            continue;
        Names += (Names.empty() ? "" : ", ") + QuotedName(Column.Name);
        Values += (Values.empty() ? "" : ", ") + QuotedName(Column.Name) +
                  (Column.Name == NameColumn ? " || ' ' || Copie" : "");
    }
    const std::string Into = QuotedName(Table.Name);
    SQLite::Database Base(File.string(), SQLite::OPEN_READWRITE);
    Base.exec("INSERT INTO " + Into + " (" + Names +
              ") WITH RECURSIVE Copies(Copie) AS (SELECT 2 UNION ALL SELECT Copie + 1 FROM Copies "
              "WHERE Copie < " +
              std::to_string(Times) + ") SELECT " + Values + " FROM Copies CROSS JOIN " + Into);
}

void Multiply(const std::filesystem::path& File, const DatabaseDefinition& Definition, int Times)
{
    for (const TableDefinition& Table : Definition.Tables)
        if (Table.Name == "Classique_ListeObjets" || Table.Name == "ListeObjets")
            Multiply(File, Table, "Nom", Times);
        else if (Table.Name == "Arcanes_ListeObjets")
            Multiply(File, Table, "Bonus", Times);
}

} // namespace

void CopyCatalogue(const std::filesystem::path& From, const std::filesystem::path& To, int Times)
{
    std::filesystem::create_directories(To);
    for (const auto& Entry : std::filesystem::recursive_directory_iterator(From))
        if (Entry.path().extension() == ".mdb") {
            const auto Copy = To / std::filesystem::relative(Entry.path(), From);
            std::filesystem::create_directories(Copy.parent_path());
            std::filesystem::copy_file(Entry.path(), Copy,
                                       std::filesystem::copy_options::overwrite_existing);
        }
    if (Times == 1)
        return;
    for (const std::string& Royaume : Royaumes())
        Multiply(To / ("Artisanat_" + Royaume + ".mdb"), RoyaumeDefinition(), Times);
    Multiply(To / "Artisanat_Alchimie.mdb", AlchimieDefinition(), Times);
}

void ChooseStart(const std::filesystem::path& Folder, const std::string& Realm,
                 const std::string& Skin, const std::string& Resolution)
{
    SQLite::Database Base((Folder / "Config.mdb").string(), SQLite::OPEN_READWRITE);
    for (const auto& [Table, Name] :
         {std::pair("DernierRoyaume", Realm), std::pair("DernièreSkin", Skin),
          std::pair("DernièreRésolution", Resolution)}) {
        SQLite::Statement Change(Base, "UPDATE " + QuotedName(Table) + " SET Nom = ?");
        Change.bind(1, Name);
        Change.exec();
    }
}

} // namespace orvane::bench
