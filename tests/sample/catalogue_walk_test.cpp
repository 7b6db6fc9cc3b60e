#include "base/text.h"
#include "crafts/archery/frm_archerie.h"
#include "crafts/legendary/frm_armes_legendaires.h"
#include "crafts/magic/frm_artisanats_magiques.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "crafts/secondary/frm_artisanats_secondaires.h"
#include "shell/feuilles.h"
#include "shell/frm_accueil.h"
#include "support/temp_folder.h"

#include <gtest/gtest.h>
#include <vector>

// The catalogue that ships: every entry of every list can be picked, in each realm, without a box
// and without a price left stale.
namespace orvane {

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
    Catalogue() : App(Faire(Dossier.Path()), Reçues)
    {
        EnregistrerFeuilles(App);
        Démarrer(App);
        Door.Click(static_cast<Image&>(Accueil().Find(std::string("img_") + GetParam())));
        Reçues.Messages.clear(); // the pictures aren't there
    }

    static const std::filesystem::path& Faire(const std::filesystem::path& Folder)
    {
        const std::string Command = std::string(ORVANE_MAKE_DATABASES) + " \"" + ORVANE_DATA +
                                    "\" \"" + Folder.string() + "\"";
        if (std::system(Command.c_str()) != 0)
            throw std::runtime_error("no databases");
        return Folder;
    }

    frm_Accueil& Accueil() { return App.Feuilles.Get<frm_Accueil>(); }

    // Picks each entry of a list in turn and goes on below it.
    template <class Below>
    void Chaque(ComboBox& Liste, Below Continuer)
    {
        const std::vector<std::string> Entrées = Liste.Items();
        EXPECT_FALSE(Entrées.empty()) << Liste.Name();
        for (const std::string& Entrée : Entrées) {
            Door.Pick(Liste, Entrée);
            Continuer();
        }
    }

    // What the crafter now sees has a price to go by.
    void Vérifier(const TextBox& Prix, const std::string& Objet)
    {
        ++Vus;
        EXPECT_FALSE(Prix.Stale()) << Objet;
        for (const std::string& Message : Reçues.Messages)
            ADD_FAILURE() << Objet << ": " << Message;
        Reçues.Messages.clear();
    }

    void ParcourirManuels(); // at each degree and in each damage type
    void ParcourirArcherie();
    void ParcourirLégendaires(); // of both trades, in each type
    void ParcourirAlchimie();    // and its filters
    void ParcourirGemmes();      // from both sides
    void ParcourirSecondaires(); // saddlery, its filters, recycling at each degree

    TempFolder Dossier;
    Boîtes Reçues;
    Application App;
    User& Door = App.Door;
    int Vus = 0;
};

void Catalogue::ParcourirManuels()
{
    Door.Click(Accueil().cmd_ArtisanatsManuels);
    auto& Atelier = App.Feuilles.Get<frm_ArtisanatsManuels>();
    const auto Degrés = [&] {
        if (!Atelier.cbo_Degré.Visible) // an object without degrees
            return;
        Chaque(Atelier.cbo_Degré, [&] {
            Vérifier(Atelier.txt_PrixVente,
                     Atelier.cbo_Objet.Text + " " + Atelier.cbo_Degré.Text());
            const std::string& Degré = Atelier.cbo_Degré.Text();
            if (Atelier.cbo_TypeDégats.Visible && (Degré == "en dyr" || Degré == "en arcania"))
                Chaque(Atelier.cbo_TypeDégats,
                       [&] { Vérifier(Atelier.txt_PrixVente, Atelier.txt_ObjetSup.Text); });
        });
    };
    for (const char* Métier : {"Armurerie", "Couture", "Empennage", "Forge"}) {
        Door.ClickItem(Atelier.Bar_Menus, Métier);
        for (const std::string& Produit : std::vector(Atelier.cbo_Produit.Items())) {
            if (Produit == "Armes légendaires")
                continue;
            Door.Pick(Atelier.cbo_Produit, Produit);
            for (const std::string& Détail : std::vector(Atelier.cbo_ProduitDétaillé.Items()))
                if (Détail != "Flèches" && Détail != "Carreaux") {
                    Door.Pick(Atelier.cbo_ProduitDétaillé, Détail);
                    Chaque(Atelier.cbo_Objet, Degrés);
                }
        }
    }
    Door.Click(Atelier.cmd_Retour);
}

void Catalogue::ParcourirArcherie()
{
    auto& Archerie = App.Feuilles.Get<frm_Archerie>();
    Archerie.Show();
    Chaque(Archerie.cbo_Type, [&] {
        Chaque(Archerie.cbo_Objet,
               [&] { Vérifier(Archerie.txt_PrixVente, Archerie.cbo_Objet.Text); });
    });
    Door.Click(Archerie.cmd_Retour);
}

void Catalogue::ParcourirLégendaires()
{
    Door.Click(Accueil().cmd_ArtisanatsManuels);
    auto& Atelier = App.Feuilles.Get<frm_ArtisanatsManuels>();
    auto& Armes = App.Feuilles.Get<frm_ArmesLégendaires>();
    for (const char* Métier : {"Forge", "Empennage"}) {
        Door.ClickItem(Atelier.Bar_Menus, Métier);
        Door.Pick(Atelier.cbo_Produit, "Armes légendaires");
        Chaque(Armes.cbo_Arme, [&] {
            Chaque(Armes.cbo_Type, [&] {
                Vérifier(Armes.txt_PrixVente, Armes.cbo_Arme.Text + " " + Armes.cbo_Type.Text());
            });
        });
        Door.Click(Armes.cmd_Retour);
    }
    Door.Click(Atelier.cmd_Retour);
}

void Catalogue::ParcourirAlchimie()
{
    Door.Click(Accueil().cmd_ArtisanatsMagiques);
    auto& Magie = App.Feuilles.Get<frm_ArtisanatsMagiques>();
    int SansObjet = 0;
    Chaque(Magie.cbo_Produit, [&] {
        Chaque(Magie.cbo_ProduitDétaillé, [&] {
            Chaque(Magie.cbo_Objet,
                   [&] { Vérifier(Magie.txt_PrixVenteAlchimie, Magie.cbo_Objet.Text); });
            if (Magie.cbo_Type.Visible)
                Chaque(Magie.cbo_Type, [&] {
                    const std::string& Premier = Magie.cbo_Objet.Items().front();
                    SansObjet += !ContainsIgnoringCase(Premier, Magie.cbo_Type.Text());
                });
        });
    });
    EXPECT_EQ(SansObjet, 1) << "one word finds nothing and leaves the list";
    Door.Click(Magie.cmd_Retour);
}

void Catalogue::ParcourirGemmes()
{
    Door.Click(Accueil().cmd_ArtisanatsMagiques);
    auto& Magie = App.Feuilles.Get<frm_ArtisanatsMagiques>();
    Door.ClickItem(Magie.Bar_Menus, "Arcanes");
    const auto Gemme = [&] {
        return Magie.cbo_TypeGemmes.Text + " " + Magie.cbo_SousTypeGemmes.Text();
    };
    Chaque(Magie.cbo_TypeGemmes, [&] {
        Chaque(Magie.cbo_SousTypeGemmes, [&] {
            Chaque(Magie.cbo_DegréGemmes,
                   [&] { Vérifier(Magie.txt_ArcanesPrixVenteTotal, Gemme()); });
        });
    });
    Chaque(Magie.cbo_TypeBonus, [&] {
        Chaque(Magie.cbo_SousTypeBonus, [&] {
            Chaque(Magie.cbo_DegréBonus,
                   [&] { Vérifier(Magie.txt_ArcanesPrixVenteTotal, Gemme()); });
        });
    });
    Door.Click(Magie.cmd_Retour);
}

void Catalogue::ParcourirSecondaires()
{
    Door.Click(Accueil().cmd_ArtisanatsSecondaires);
    auto& Ateliers = App.Feuilles.Get<frm_ArtisanatsSecondaires>();
    std::size_t SansObjet = 0;
    for (const char* Entrée : {"Bardes", "Carapaçons", "Sacoches"}) {
        Door.ClickItem(Ateliers.Bar_Menus, Entrée);
        Chaque(Ateliers.cbo_ObjetSecondaire, [&] {
            Vérifier(Ateliers.txt_SelleriePrixVente, Ateliers.cbo_ObjetSecondaire.Text);
        });
        for (const std::string& Tri : std::vector(Ateliers.cbo_Degré.Items()))
            Door.Pick(Ateliers.cbo_Degré, Tri);
        SansObjet += Reçues.Messages.size();
        Reçues.Messages.clear();
    }
    EXPECT_EQ(SansObjet, 1U) << "one filter finds nothing";
    for (const char* Entrée : {"Maroquinerie", "Menuiserie", "Métallurgie", "Tissage"}) {
        Door.ClickItem(Ateliers.Bar_Menus, Entrée);
        Chaque(Ateliers.cbo_ObjetSecondaire, [&] {
            Chaque(Ateliers.cbo_Degré, [&] {
                Vérifier(Ateliers.txt_Gain,
                         Ateliers.cbo_ObjetSecondaire.Text + " " + Ateliers.cbo_Degré.Text());
            });
        });
    }
}

TEST_P(Catalogue, EveryPickOfEveryCraftHasItsPrice)
{
    ParcourirManuels();
    ParcourirArcherie();
    ParcourirLégendaires();
    ParcourirAlchimie();
    ParcourirGemmes();
    ParcourirSecondaires();
    EXPECT_GT(Vus, 3000);
}

INSTANTIATE_TEST_SUITE_P(EachRealm, Catalogue, testing::Values("Valdren", "Corvane", "Brenmoor"));

} // namespace orvane
