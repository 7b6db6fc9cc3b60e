// Layout tables of the skins, from the screens to the editable files under data/skins.
//   make_layouts draw FOLDER DATA SKIN
//       lays all screens out for each resolution of data/skins/SKIN/tailles.tsv, as their
//       definition or the arrangement named there has them
//   make_layouts move FOLDER DATA SKIN TABLE
//       moves the captured rows of Temp into TABLE of the skin's database, numbered, and writes
//       the table back to its editable file

#include "base/number_text.h"
#include "catalogue/catalogue.h"
#include "home/feuilles.h"
#include "layouts/draw.h"
#include "layouts/layout_file.h"
#include "skins/skin_assets.h"
#include "store/sql_text.h"
#include "tables/tsv.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <algorithm>
#include <iostream>
#include <set>

namespace fs = std::filesystem;
using namespace orvane;
using namespace orvane::tools;

namespace {

class NoDialogs : public Dialogs
{
  public:
    void MsgBox(const std::string& Text) override { std::cerr << Text << '\n'; }
    std::string InputBox(const std::string&, const std::string&) override { return {}; }
    std::optional<Colour> ShowColor() override { return {}; }
};

// The screens as their definitions make them, without any skin: from a copy of the databases alone.
class Definitions
{
  public:
    explicit Definitions(const fs::path& Folder)
        : Scratch(Folder / "definition"),
          App(Scratch, Boxes)
    {
        fs::create_directories(Scratch);
        for (const auto& Entry : fs::directory_iterator(Folder))
            if (Entry.path().extension() == ".mdb")
                fs::copy_file(Entry.path(), Scratch / Entry.path().filename(),
                              fs::copy_options::overwrite_existing);
        EnregistrerFeuilles(App);
        for (const std::string& Name : NomsFeuilles())
            App.Feuilles.Touch(Name);
    }
    ~Definitions() { fs::remove_all(Scratch); }

    Forms& Screens() { return App.Feuilles; }

  private:
    fs::path Scratch;
    NoDialogs Boxes;
    Application App;
};

std::set<std::string> CommonScreens(const fs::path& SkinFolder)
{
    std::set<std::string> Names;
    for (const TsvTable::Row& Row : ReadTsv(SkinFolder / "RésolutionCommune.tsv").Rows)
        if (Row.Cells.at(1) == "O")
            Names.insert(Row.Cells.at(0));
    return Names;
}

void DrawAll(const fs::path& Folder, const fs::path& Data, const std::string& Skin)
{
    const fs::path SkinFolder = Data / "skins" / Skin;
    const Palette Colours = ReadPalette(SkinFolder / "couleurs.tsv");
    const std::set<std::string> Common = CommonScreens(SkinFolder);
    Definitions Screens(Folder);
    for (const TsvTable::Row& Row : ReadTsv(SkinFolder / "tailles.tsv").Rows) {
        const bool IsCommon = Row.Cells.at(0) == "Commun";
        const double Factor = DoubleFromText(Row.Cells.at(1)).value_or(100) / 100;
        const std::string& Name = Row.Cells.at(2);
        const Arrangement Arranged =
            Name == "-" ? Arrangement() : Arrangement(Data / "skins" / (Name + ".tsv"));
        for (int i = 0; i < Screens.Screens().Count(); ++i) {
            const Screen& Which = Screens.Screens()[i];
            if (Common.contains(Which.Name()) == IsCommon)
                Draw(Which, Arranged, Factor, Colours)
                    .Write(SkinFolder /
                           (Which.Name() + "_" + SansEspaces(Row.Cells.at(0)) + ".tsv"));
        }
    }
}

void Move(const fs::path& Folder, const fs::path& Data, const std::string& Skin,
          const std::string& Table)
{
    SQLite::Database Base((Folder / "Skins" / Skin / SkinFile(Skin)).string(),
                          SQLite::OPEN_READWRITE);
    std::string Names;
    for (const std::string& Column : LayoutColumns())
        if (Column != "Num")
            Names += (Names.empty() ? "" : ", ") + QuotedName(Column);
    SQLite::Transaction Transaction(Base);
    Base.exec("DELETE FROM " + QuotedName(Table));
    Base.exec("INSERT INTO " + QuotedName(Table) + " (Num, " + Names +
              ") SELECT 10 * row_number() OVER (ORDER BY rowid), " + Names + " FROM Temp");
    Base.exec("DELETE FROM Temp");
    Transaction.commit();

    LayoutFile File;
    SQLite::Statement Rows(Base,
                           "SELECT Num, " + Names + " FROM " + QuotedName(Table) + " ORDER BY Num");
    while (Rows.executeStep()) {
        std::vector<std::string> Cells;
        for (int i = 0; i < Rows.getColumnCount(); ++i) {
            Cells.push_back(Rows.getColumn(i).getString());
            std::ranges::replace(Cells.back(), '.', ',');
        }
        File.Rows.push_back(std::move(Cells));
    }
    File.Write(Data / "skins" / Skin / (Table + ".tsv"));
}

} // namespace

int main(int Count, char** Arguments)
{
    const std::vector<std::string> Given(Arguments + 1, Arguments + Count);
    try {
        if (Given.size() == 4 && Given[0] == "draw")
            DrawAll(Given[1], Given[2], Given[3]);
        else if (Given.size() == 5 && Given[0] == "move")
            Move(Given[1], Given[2], Given[3], Given[4]);
        else {
            std::cerr << "usage: make_layouts draw FOLDER DATA SKIN\n"
                         "       make_layouts move FOLDER DATA SKIN TABLE\n";
            return 2;
        }
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << '\n';
        return 1;
    }
    return 0;
}
