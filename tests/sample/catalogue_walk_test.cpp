#include "databases/databases.h"
#include "home/feuilles.h"
#include "sample/catalogue_walk.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <vector>

// The catalogue that ships: every entry of every list can be picked, in each realm, without a box
// and without a price left stale.
namespace orvane {

namespace {

class Boîtes : public Dialogs
{
  public:
    void MsgBox(const std::string& Text) override { Messages.push_back(Text); }
    std::string InputBox(const std::string&, const std::string&) override { return {}; }
    std::optional<Colour> ShowColor() override { return {}; }

    std::vector<std::string> Messages;
};

class Catalogue : public testing::TestWithParam<const char*>
{
  protected:
    Catalogue() : App(Dossier.Path(), Reçues)
    {
        tools::MakeDatabases(ORVANE_DATA, Dossier.Path(), false);
        for (const char* Pictures : {"Interface", "Objets"})
            std::filesystem::create_directory_symlink(
                std::filesystem::path(ORVANE_FOLDER) / Pictures, Dossier / Pictures);
        EnregistrerFeuilles(App);
        Démarrer(App);
        Reçues.Messages.clear(); // the skins' pictures aren't there
    }

    // What the crafter now sees has a price to go by, and the pictures that it names.
    void Vérifier(const TextBox& Price, const std::string& Object)
    {
        ++Vus;
        EXPECT_FALSE(Price.Stale()) << Object;
        for (const std::string& Message : Reçues.Messages)
            ADD_FAILURE() << Object << ": " << Message;
        Reçues.Messages.clear();
    }

    TempFolder Dossier;
    Boîtes Reçues;
    Application App;
    int Vus = 0;
};

TEST_P(Catalogue, EveryPickOfEveryCraftHasItsPrice)
{
    CatalogueWalk(App, [&](const Screen&, const TextBox& Price, const std::string& Object) {
        Vérifier(Price, Object);
    }).GoThrough(GetParam());
    EXPECT_GT(Vus, 3500);
}

INSTANTIATE_TEST_SUITE_P(EachRealm, Catalogue, testing::Values("Valdren", "Corvane", "Brenmoor"));

} // namespace

} // namespace orvane
