#pragma once

#include <span>
#include <string>
#include <vector>

// The schema of every database file, written once: what the tool that makes the files creates,
// what the tests build their small files from, and what tells data keepers which columns exist.
namespace orvane {

enum class ColumnType {
    Key,       // INTEGER PRIMARY KEY, given by the store when left out
    Counter,   // a key whose number is never given to a second row
    Whole,     // INTEGER
    Decimal,   // DECIMAL(19,4): settings and amounts, exact to the ten-thousandth
    Text,      // TEXT
    Reference, // INTEGER, the Num of a row of Target
    // In columns that the schema doesn't tell:
    Numeric, // NUMERIC: a number, exact, with any count of decimals
    Double,  // DOUBLE
    Blob,    // BLOB
};

struct ColumnDefinition
{
    std::string Name;
    ColumnType Type = ColumnType::Text;
    std::string Target; // table that a Reference points to
};

struct TableDefinition
{
    std::string Name;
    std::vector<ColumnDefinition> Columns;
};

// A named SELECT in the store's dialect. Its first table is the list table: rows come in its order.
struct QueryDefinition
{
    std::string Name;
    std::string Sql;
};

// A table that lives in another file of the same folder.
struct LinkDefinition
{
    std::string Name;
    std::string File;
    std::string Source;
};

struct DatabaseDefinition
{
    std::vector<TableDefinition> Tables;
    std::vector<QueryDefinition> Queries;
    std::vector<LinkDefinition> Links;
};

// The three realms, in the order that everything keeps.
std::span<const std::string> Royaumes();

// The names of the files in the program's folder; a skin's file lies in the skin's own.
inline const std::string ConfigFile = "Config.mdb";
inline const std::string PanierFile = "Panier.mdb";
inline const std::string AlchimieFile = "Artisanat_Alchimie.mdb";
std::string RoyaumeFile(const std::string& Royaume);
std::string SkinFile(const std::string& Skin);

const DatabaseDefinition& ConfigDefinition();
const DatabaseDefinition& PanierDefinition();

// Of Panier.mdb: what one buys for each line of PanierGlobal. A file of before lacks it until a
// line is added. Possédé is what the crafter has of a material, Coché "O" when it has been bought.
const TableDefinition& MatériauxDuPanier();
const DatabaseDefinition& AlchimieDefinition();
const DatabaseDefinition& RoyaumeDefinition();

// The fixed tables of a skin's layout database: RésolutionCommune, Palette and
// Temp.
const DatabaseDefinition& SkinDefinition();

// The columns of <screen>_Commun, <screen>_<resolution> and Temp.
TableDefinition LayoutTable(const std::string& Name);

} // namespace orvane
