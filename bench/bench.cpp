// What a click costs: through the user's door, against the same SQL sent raw and prepared.
//   orvane_bench FOLDER     (a folder beside the program, as the folder target makes it)

#include "crafts/manual/frm_artisanats_manuels.h"
#include "large_catalogue.h"
#include "ratio_reporter.h"
#include "raw_queries.h"
#include "shell/feuilles.h"
#include "shell/frm_accueil.h"
#include "skins/layout.h"
#include "skins/skin_assets.h"
#include "store/sql_text.h"

#include <benchmark/benchmark.h>
#include <iostream>
#include <memory>

namespace fs = std::filesystem;

namespace orvane::bench {

namespace {

constexpr int Repetitions = 9;

class SilentDialogs : public Dialogs
{
  public:
    void MsgBox(const std::string&) override {}
    std::string InputBox(const std::string&, const std::string&) override { return {}; }
    std::optional<Colour> ShowColor() override { return {}; }
};

// A run of the program that has walked down to the degrees of one object.
struct Walk
{
    Walk(const fs::path& Folder, const std::string& RawFile)
        : App(Folder, Boxes),
          Raw((Folder / RawFile).string())
    {
        EnregistrerFeuilles(App);
        Démarrer(App);
        App.Door.Click(App.Feuilles.Get<frm_Accueil>().cmd_ArtisanatsManuels);
        auto& Screen = Manuels();
        App.Door.ClickItem(Screen.Bar_Menus, "Forge");
        App.Door.Pick(Screen.cbo_Produit, "Épées");
        App.Door.Pick(Screen.cbo_ProduitDétaillé, 0);
        App.Door.Pick(Screen.cbo_Objet, 0);
        App.Door.Pick(Screen.cbo_Degré, 0);
        if (Screen.txt_PrixCoûtant.Text == "0")
            throw std::runtime_error("the walk didn't reach a priced object");
    }

    frm_ArtisanatsManuels& Manuels() { return App.Feuilles.Get<frm_ArtisanatsManuels>(); }

    SilentDialogs Boxes;
    Application App;
    RawQueries Raw;
};

constexpr const char* ObjetParNom =
    "SELECT * FROM Classique_ListeObjets WHERE Nom = ? COLLATE NOCASE";

// The queries of a pick in cbo_Objet: the object twice, the product's degree column, the degrees.
void AddPick(Walk& On)
{
    auto& Screen = On.Manuels();
    On.Raw.Add(ObjetParNom, {Screen.cbo_Objet.Text()});
    On.Raw.Add("SELECT d.Nom, p.Nom, p.Degré FROM Classique_Produits p "
               "JOIN Artisanat_Liste a ON p.Artisanat = a.Num "
               "LEFT JOIN Classique_ProduitsDétaillés d ON d.Produit = p.Num "
               "LEFT JOIN Classique_ListeObjets o ON o.ProduitDétaillé = d.Num "
               "WHERE a.Nom = ? COLLATE NOCASE AND p.Nom = ? COLLATE NOCASE",
               {Screen.lbl_Artisanat.Caption(), Screen.cbo_Produit.Text()});
    On.Raw.Add("SELECT * FROM Degrés_ListeTypes", {});
    On.Raw.Add(ObjetParNom, {Screen.cbo_Objet.Text()});
}

// The queries of a degree click: its number, the materials, the object.
void AddDegree(Walk& On)
{
    auto& Screen = On.Manuels();
    On.Raw.Add("SELECT * FROM Degrés_ListeTypes WHERE DegréType1 = ? COLLATE NOCASE",
               {Screen.cbo_Degré.Text()});
    for (TextBox& Code : Screen.txt_MatériauxBruts)
        if (Code.Text != "10" && Code.Text != "8")
            On.Raw.Add("SELECT * FROM Matériaux_Classique WHERE Type = ? AND Degré = 0",
                       {Code.Text()});
    On.Raw.Add(ObjetParNom, {Screen.cbo_Objet.Text()});
}

constexpr const char* Skin = "Parchemin";
constexpr const char* Résolution = "1024 x 768";

// The queries of a layout pass: one for each control of each screen, and one for the screen.
void AddLayout(Walk& On)
{
    Database Base = On.App.Bases.Open(On.App.Globals.CheminBaseSkin);
    for (int i = 0; i < On.App.Feuilles.Count(); ++i) {
        const Screen& Which = On.App.Feuilles[i];
        Recordset Shared = Base.OpenRecordset("SELECT Commun FROM RésolutionCommune WHERE Nom=" +
                                              Quoted(Which.Name()));
        const std::string Table =
            Which.Name() + "_" +
            (Shared.TextOrEmpty("Commun") == "O" ? "Commun" : SansEspaces(Résolution));
        const std::string Sql =
            "SELECT * FROM \"" + Table + "\" WHERE NomControl = ? COLLATE NOCASE ORDER BY Num";
        On.Raw.Add(Sql, {Which.Name()});
        for (const Control* Each : Which.Controls())
            On.Raw.Add(Sql, {Each->Name()});
    }
}

// Measures Action and the raw queries that Queries add, under one name.
template <class Action>
void Compare(const std::string& Name, const fs::path& Folder, Action Do, void (*Queries)(Walk&),
             const std::string& RawFile = "Artisanat_Valdren.mdb")
{
    const auto On = std::make_shared<Walk>(Folder, RawFile);
    Queries(*On);
    const auto Settings = [](benchmark::internal::Benchmark* Each) {
        Each->Repetitions(Repetitions)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime()
            ->MinTime(0.1);
    };
    Settings(benchmark::RegisterBenchmark(Name.c_str(), [On, Do](benchmark::State& State) {
        int Turn = 0;
        for (auto Each : State) {
            (void)Each;
            Do(*On, Turn++ % 2);
        }
    }));
    Settings(benchmark::RegisterBenchmark((Name + "/floor").c_str(), [On](benchmark::State& State) {
        for (auto Each : State) {
            (void)Each;
            benchmark::DoNotOptimize(On->Raw.Run());
        }
    }));
}

void CompareAll(const std::string& Label, const fs::path& Folder)
{
    Compare(
        "pick of an object, " + Label, Folder,
        [](Walk& On, int) { On.App.Door.Pick(On.Manuels().cbo_Objet, 0); }, AddPick);
    Compare(
        "degree click, " + Label, Folder,
        [](Walk& On, int Turn) { On.App.Door.Pick(On.Manuels().cbo_Degré, Turn); }, AddDegree);
    Compare(
        "keystroke, " + Label, Folder,
        [](Walk& On, int Turn) {
            On.App.Door.Type(On.Manuels().txt_NbObjet, Turn == 0 ? "3" : "4");
        },
        AddDegree);
    Compare(
        "layout of ten screens, " + Label, Folder,
        [](Walk& On, int) { AppliquerRésolutionPartout(On.App, Résolution); }, AddLayout,
        std::string("Skins/") + Skin + "/" + Skin + ".mdb");
}

} // namespace

} // namespace orvane::bench

int main(int Count, char** Arguments)
{
    if (Count < 2) {
        std::cerr << "usage: orvane_bench FOLDER\n";
        return 2;
    }
    const fs::path Scratch = fs::temp_directory_path() / "orvane_bench";
    try {
        for (const int Times : {1, 100}) {
            const fs::path Folder = Scratch / std::to_string(Times);
            orvane::bench::CopyCatalogue(Arguments[1], Folder, Times);
            orvane::bench::ChooseStart(Folder, "Valdren", orvane::bench::Skin,
                                       orvane::bench::Résolution);
            orvane::bench::CompareAll("catalogue x " + std::to_string(Times), Folder);
        }
        benchmark::Initialize(&Count, Arguments);
        orvane::bench::RatioReporter Reporter;
        benchmark::RunSpecifiedBenchmarks(&Reporter);
    } catch (const std::exception& Error) {
        std::cerr << Error.what() << '\n';
        return 1;
    }
    fs::remove_all(Scratch);
    return 0;
}
