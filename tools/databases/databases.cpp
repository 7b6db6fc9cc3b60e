#include "databases/databases.h"

#include "base/failure.h"
#include "catalogue/catalogue.h"
#include "catalogue/maker.h"
#include "databases/references.h"
#include "store/value.h"
#include "tables/tsv.h"

#include <algorithm>

namespace orvane::tools {

namespace fs = std::filesystem;

namespace {

// Where the rows of one database come from: its own folder first, then one that several share.
struct Sources
{
    fs::path Own;
    fs::path Shared;

    fs::path FileOf(const std::string& Table) const
    {
        for (const fs::path& Folder : {Own, Shared})
            if (!Folder.empty() && fs::exists(Folder / (Table + ".tsv")))
                return Folder / (Table + ".tsv");
        return {};
    }
};

std::vector<Value> ValuesOf(const TableDefinition& Table, const TsvTable& Rows,
                            const TsvTable::Row& Row, const References& Names)
{
    std::vector<Value> Values;
    for (std::size_t i = 0; i < Row.Cells.size(); ++i) {
        const auto Column =
            std::ranges::find(Table.Columns, Rows.Columns[i], &ColumnDefinition::Name);
        if (Column == Table.Columns.end())
            throw SourceError(Row.Place + " : colonne inconnue « " + Rows.Columns[i] + " »");
        if (Row.Cells[i].empty())
            Values.emplace_back();
        else if (Column->Type == ColumnType::Reference)
            Values.emplace_back(Names.Resolve(Column->Target, Row.Cells[i], Row.Place));
        else
            Values.emplace_back(Row.Cells[i]);
    }
    return Values;
}

void Fill(DatabaseMaker& Maker, const TableDefinition& Table, const fs::path& File,
          References& Names)
{
    const TsvTable Rows = ReadTsv(File);
    Names.Add(Table, Rows);
    for (const TsvTable::Row& Row : Rows.Rows)
        try {
            Maker.Insert(Table, Rows.Columns, ValuesOf(Table, Rows, Row, Names));
        } catch (const Failure& Given) {
            throw SourceError(Row.Place + " : " + Given.what());
        }
}

void Make(const fs::path& File, const DatabaseDefinition& Definition, const Sources& From,
          References Names)
{
    DatabaseMaker Maker(File, Definition);
    for (const TableDefinition& Table : Definition.Tables)
        if (const fs::path Rows = From.FileOf(Table.Name); !Rows.empty())
            Fill(Maker, Table, Rows, Names);
    Maker.Finish();
}

// The alchemy objects, under the name by which the realm databases link them.
References LinkedNames(const fs::path& Data)
{
    References Alchemy;
    for (const TableDefinition& Table : AlchimieDefinition().Tables)
        Alchemy.Add(Table, ReadTsv(Data / "Artisanat_Alchimie" / (Table.Name + ".tsv")));
    References Linked;
    for (TableDefinition Table : AlchimieDefinition().Tables)
        if (Table.Name == "ListeObjets") {
            Table.Name = "Alchimie_ListeObjets";
            std::erase_if(Table.Columns, [](const ColumnDefinition& Column) {
                return Column.Type == ColumnType::Reference;
            });
            Linked.Add(Table, ReadTsv(Data / "Artisanat_Alchimie" / "ListeObjets.tsv"));
        }
    return Linked;
}

// A skin: which screens are common, and a layout table for each other file of its folder that is
// named like one.
void MakeSkin(const fs::path& From, const fs::path& Folder)
{
    const std::string Name = From.filename().string();
    fs::create_directories(Folder / Name);
    DatabaseMaker Maker(Folder / Name / SkinFile(Name), SkinDefinition());
    References None;
    for (const TableDefinition& Table : SkinDefinition().Tables)
        if (fs::exists(From / (Table.Name + ".tsv")))
            Fill(Maker, Table, From / (Table.Name + ".tsv"), None);
    std::vector<fs::path> Files;
    for (const auto& Entry : fs::directory_iterator(From))
        if (Entry.path().filename().string().starts_with("frm_"))
            Files.push_back(Entry.path());
    std::ranges::sort(Files);
    for (const fs::path& File : Files) {
        const TableDefinition Table = LayoutTable(File.stem().string());
        Maker.AddTable(Table);
        Fill(Maker, Table, File, None);
    }
    Maker.Finish();
}

} // namespace

void MakeDatabases(const fs::path& Data, const fs::path& Folder, bool KeepCrafters)
{
    fs::create_directories(Folder);
    const auto Wanted = [&](const fs::path& File) { return !(KeepCrafters && fs::exists(File)); };
    if (const fs::path File = Folder / ConfigFile; Wanted(File))
        Make(File, ConfigDefinition(), {Data / "Config", {}}, {});
    if (const fs::path File = Folder / PanierFile; Wanted(File))
        Make(File, PanierDefinition(), {Data / "Panier", {}}, {});
    Make(Folder / AlchimieFile, AlchimieDefinition(), {Data / "Artisanat_Alchimie", {}}, {});
    for (const std::string& Royaume : Royaumes()) {
        const fs::path File = RoyaumeFile(Royaume);
        Make(Folder / File, RoyaumeDefinition(), {Data / File.stem(), Data / "Artisanat_commun"},
             LinkedNames(Data));
    }
    if (fs::exists(Data / "skins"))
        for (const auto& Entry : fs::directory_iterator(Data / "skins"))
            if (Entry.is_directory())
                MakeSkin(Entry.path(), Folder / "Skins");
}

} // namespace orvane::tools
