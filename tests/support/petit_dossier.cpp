#include "support/petit_dossier.h"

#include "store/catalogue.h"
#include "support/contenu.h"
#include "support/fichier.h"

#include <SQLiteCpp/SQLiteCpp.h>

namespace orvane {

namespace fs = std::filesystem;

namespace {

// Made once, copied for each test.
const fs::path& Modèle()
{
    static const TempFolder Dossier;
    static const bool Fait = [] {
        FaireConfig(Dossier.Path());
        Fichier(Dossier / "Panier.mdb", PanierDefinition()).Finir();
        FaireAlchimie(Dossier.Path());
        for (int Royaume = 0; Royaume < 3; ++Royaume)
            FaireRoyaume(Dossier.Path(), Royaume);
        FaireImages(Dossier);
        FaireSkin(Dossier, "Velours");
        FaireSkin(Dossier, "Ardoise");
        return true;
    }();
    static_cast<void>(Fait);
    return Dossier.Path();
}

} // namespace

std::string Jointes(const std::vector<std::string>& Textes)
{
    std::string Résultat;
    for (std::size_t i = 0; i < Textes.size(); ++i)
        Résultat += (i == 0 ? "" : " | ") + Textes[i];
    return Résultat;
}

void BoîtesDuDossier::MsgBox(const std::string& Text)
{
    Dernière = Text;
    if (Début.empty())
        return ScriptedDialogs::MsgBox(Text);
    EXPECT_TRUE(Text.starts_with(Début)) << "the box's text: " << Text;
    Début.clear();
}

PetitDossier::PetitDossier() : App(Dossier.Path(), Boîtes)
{
    fs::copy(Modèle(), Dossier.Path(), fs::copy_options::recursive);
    App.OnQuit = [this] { ++Quittés; };
    EnregistrerFeuilles(App);
}

void PetitDossier::OuvrirRéglagesEtAtelier()
{
    Door.Click(Accueil().cmd_Configuration);
    OuvrirAtelier();
}

void PetitDossier::Choisir(const std::string& Chemin)
{
    const auto Noms = Couper(Chemin, '/');
    Door.ClickItem(Atelier().Bar_Menus, Noms.at(0));
    ComboBox* const Listes[] = {&Atelier().cbo_Produit, &Atelier().cbo_ProduitDétaillé,
                                &Atelier().cbo_Objet, &Atelier().cbo_Degré};
    for (std::size_t i = 1; i < Noms.size(); ++i) {
        Door.Pick(*Listes[i - 1], Noms[i]);
        ASSERT_EQ(Listes[i - 1]->Text(), Noms[i]) << "the walk down the lists";
    }
}

std::string PetitDossier::Lignes()
{
    std::vector<std::string> Textes;
    for (const TextBox& Prix : Atelier().txt_PrixMat)
        Textes.push_back(Prix.Text());
    return Jointes(Textes);
}

std::string PetitDossier::Totaux()
{
    return Jointes({Atelier().txt_PrixCoûtant.Text(), Atelier().txt_PrixCoûtantTotal.Text(),
                    Atelier().txt_PrixVente.Text()});
}

bool PetitDossier::TotauxPérimés()
{
    EXPECT_EQ(Atelier().txt_PrixCoûtant.Stale(), Atelier().txt_PrixVente.Stale());
    EXPECT_EQ(Atelier().txt_PrixCoûtantTotal.Stale(), Atelier().txt_PrixVente.Stale());
    return Atelier().txt_PrixVente.Stale;
}

std::string PetitDossier::Visibles()
{
    std::vector<std::string> Noms;
    for (const Screen* Each : App.Feuilles.Stack())
        Noms.push_back(Each->Name());
    const Screen* Plus = App.Feuilles.Stack().empty() ? nullptr : App.Feuilles.Stack().back();
    EXPECT_EQ(App.Feuilles.Active(), Plus) << "the highest is the active one";
    return Jointes(Noms);
}

std::string PetitDossier::Lire(const std::string& Fichier, const std::string& Requête,
                               const std::string& Colonnes)
{
    Store Bases;
    const Database Base = Bases.Open(Dossier / Fichier);
    std::string Résultat;
    for (Recordset Lues = Base.OpenRecordset(Requête); !Lues.Eof(); Lues.MoveNext()) {
        std::vector<std::string> Cellules;
        for (const std::string& Colonne : Couper(Colonnes, '|'))
            Cellules.push_back(Lues.TextOrEmpty(Colonne));
        Résultat += (Résultat.empty() ? "" : " / ") + Jointes(Cellules);
    }
    return Résultat;
}

void PetitDossier::Modifier(const std::string& Fichier, const std::string& Sql)
{
    SQLite::Database((Dossier / Fichier).string(), SQLite::OPEN_READWRITE).exec(Sql);
}

void PetitDossier::Perdre(const std::string& Fichier)
{
    fs::remove(Dossier / Fichier);
    Boîtes.ExpectMsgBox("La base de données «\u00A0" + Fichier +
                        "\u00A0» est introuvable.\n"
                        "Replacez le fichier à côté du programme.");
}

} // namespace orvane
