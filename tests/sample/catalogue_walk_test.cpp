#include "basket/orders.h"
#include "basket/shopping_list.h"
#include "databases/databases.h"
#include "home/feuilles.h"
#include "sample/catalogue_walk.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

// The catalogue that ships: every entry of every list can be picked, in each realm, without a box
// and without a price left stale.
namespace orvane {

namespace {

constexpr int OneIn = 50; // of what is picked is bought

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

    // The materials that go into the basket with an object cost what the object does.
    void Acheter(const Screen& Where, const std::string& Object)
    {
        auto* Ajouter = dynamic_cast<Button*>(Where.FindOrNull("cmd_AjouterPanier"));
        if (Ajouter == nullptr || !Ajouter->Visible) // nothing is sold
            return;
        App.Door.Click(*Ajouter);
        if (!std::exchange(Reçues.Messages, {}).empty()) // above the last list nothing is chosen
            return;
        ++Achetés;
        ListeDAchats List(App.Bases, App.Globals.CheminPanier);
        List.Lire({});
        EXPECT_EQ(List.Sommes().Prix, List.Sommes().PrixCoûtant.Texte) << Object;
        EXPECT_EQ(List.SansMatériaux(), "");
        SupprimerCommande(App.Bases.Open(App.Globals.CheminPanier), NouvelleCommande);
    }

    // What the crafter now sees has a price to go by, and the pictures that it names.
    void Vérifier(const Screen& Where, const TextBox& Price, const std::string& Object)
    {
        ++Vus;
        EXPECT_FALSE(Price.Stale()) << Object;
        for (const std::string& Message : Reçues.Messages)
            ADD_FAILURE() << Object << ": " << Message;
        Reçues.Messages.clear();
        if (Vus % OneIn == 0 && Price.Text != "0")
            Acheter(Where, Object);
    }

    TempFolder Dossier;
    Boîtes Reçues;
    Application App;
    int Vus = 0;
    int Achetés = 0;
};

TEST_P(Catalogue, EveryPickOfEveryCraftHasItsPrice)
{
    CatalogueWalk(App, [&](const Screen& Where, const TextBox& Price, const std::string& Object) {
        Vérifier(Where, Price, Object);
    }).GoThrough(GetParam());
    EXPECT_GT(Vus, 3500);
    EXPECT_GT(Achetés, 30);
}

INSTANTIATE_TEST_SUITE_P(EachRealm, Catalogue, testing::Values("Valdren", "Corvane", "Brenmoor"));

} // namespace

} // namespace orvane
