// What a click costs: through the user's door, against the same SQL sent raw and prepared.
//   orvane_bench FOLDER     (a folder beside the program, as the folder target makes it)

#include "large_catalogue.h"
#include "ratio_reporter.h"
#include "skins/layout.h"
#include "walk.h"

#include <benchmark/benchmark.h>
#include <iostream>
#include <memory>

namespace fs = std::filesystem;

namespace orvane::bench {

namespace {

constexpr int Repetitions = 9;

// One click, and the queries that stand against it.
struct Measure
{
    const char* Name;
    std::string RawFile; // the database that the queries are sent to
    void (*WalkTo)(Walk&);
    void (*Do)(Walk&, int Turn); // Turn is 0 and 1 by turns
    void (*Queries)(Walk&);
};

const Measure Measures[] = {
    {"pick of an object", "Artisanat_Valdren.mdb", WalkToSword,
     [](Walk& On, int) { On.App.Door.Pick(On.Manuels().cbo_Objet, 0); }, AddPick},
    {"degree click", "Artisanat_Valdren.mdb", WalkToSword,
     [](Walk& On, int Turn) { On.App.Door.Pick(On.Manuels().cbo_Degré, Turn); }, AddDegree},
    {"keystroke", "Artisanat_Valdren.mdb", WalkToSword,
     [](Walk& On, int Turn) { On.App.Door.Type(On.Manuels().txt_NbObjet, Turn == 0 ? "3" : "4"); },
     AddDegree},
    {"pick of an alchemy object", "Artisanat_Alchimie.mdb", WalkToPotion,
     [](Walk& On, int) { On.App.Door.Pick(On.Magiques().cbo_Objet, 0); }, AddPotion},
    {"degree click on a gem", "Artisanat_Valdren.mdb", WalkToGem,
     [](Walk& On, int) { On.App.Door.Pick(On.Magiques().cbo_DegréGemmes, 1); }, AddGem},
    {"layout of ten screens", std::string("Skins/") + Skin + "/" + Skin + ".mdb", WalkToSword,
     [](Walk& On, int) { AppliquerRésolutionPartout(On.App, Résolution); }, AddLayout},
};

void Compare(const Measure& Which, const std::string& Label, const fs::path& Folder)
{
    const auto On = std::make_shared<Walk>(Folder, Which.RawFile);
    Which.WalkTo(*On);
    Which.Queries(*On);
    const std::string Name = std::string(Which.Name) + ", " + Label;
    const auto Settings = [](benchmark::internal::Benchmark* Each) {
        Each->Repetitions(Repetitions)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMicrosecond)
            ->UseRealTime()
            ->MinTime(0.1);
    };
    Settings(benchmark::RegisterBenchmark(Name.c_str(), [On, &Which](benchmark::State& State) {
        int Turn = 0;
        for (auto Each : State) {
            (void)Each;
            Which.Do(*On, Turn++ % 2);
        }
    }));
    Settings(benchmark::RegisterBenchmark((Name + "/floor").c_str(), [On](benchmark::State& State) {
        for (auto Each : State) {
            (void)Each;
            benchmark::DoNotOptimize(On->Raw.Run());
        }
    }));
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
            for (const orvane::bench::Measure& Each : orvane::bench::Measures)
                orvane::bench::Compare(Each, "catalogue x " + std::to_string(Times), Folder);
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
