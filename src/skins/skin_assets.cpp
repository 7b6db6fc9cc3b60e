#include "skins/skin_assets.h"

#include "app/queries.h"
#include "base/text.h"
#include "base/typography.h"
#include "catalogue/catalogue.h"
#include "skins/colours.h"
#include "store/link.h"

#include <algorithm>
#include <set>
#include <vector>

namespace orvane {

namespace {

struct ImageBouton
{
    const char* Bouton;
    const char* Fichier;
};

// What a skin holds for one screen, below its image folder. "<Royaume>" stands for the realm of the
// moment.
struct ImagesFeuille
{
    const char* Feuille;
    const char* Fond;
    std::vector<ImageBouton> Boutons;
};

const std::vector<ImagesFeuille>& Images()
{
    static const std::vector<ImagesFeuille> Table{
        {"frm_Accueil",
         "Accueil/Fond.jpg",
         {{"cmd_ArtisanatsManuels", "Accueil/BoutonArtisanatsManuels.jpg"},
          {"cmd_ArtisanatsMagiques", "Accueil/BoutonArtisanatsMagiques.jpg"},
          {"cmd_ArtisanatsSecondaires", "Accueil/BoutonArtisanatsSecondaires.jpg"},
          {"cmd_Configuration", "Accueil/BoutonConfiguration.jpg"},
          {"cmd_Quitter", "Accueil/BoutonQuitter.jpg"},
          {"cmd_News", "Accueil/BoutonNews.jpg"}}},
        {"frm_Configuration",
         "Configuration/Fond.jpg",
         {{"cmd_Validation", "Configuration/BoutonValidation.jpg"},
          {"cmd_Couleur", "Configuration/BoutonCouleur.jpg"}}},
        {"frm_ArtisanatsManuels",
         "ArtisanatsManuels/Fond.jpg",
         {{"cmd_AjouterPanier", "ArtisanatsManuels/BoutonAjouterPanier.jpg"},
          {"cmd_Retour", "ArtisanatsManuels/BoutonRetour.jpg"}}},
        {"frm_Archerie",
         "Archerie/Fond.jpg",
         {{"cmd_AjouterPanier", "Archerie/BoutonAjouterPanier.jpg"},
          {"cmd_Retour", "Archerie/BoutonRetour.jpg"}}},
        {"frm_ArtisanatsMagiques",
         "ArtisanatsMagiques/Fond.jpg",
         {{"cmd_AjouterPanier", "ArtisanatsMagiques/BoutonAjouterPanier.jpg"},
          {"cmd_Retour", "ArtisanatsMagiques/BoutonRetour.jpg"}}},
        {"frm_ArtisanatsSecondaires",
         "ArtisanatsSecondaires/Fond.jpg",
         {{"cmd_Retour", "ArtisanatsSecondaires/BoutonRetour.jpg"},
          {"cmd_AjouterPanier", "ArtisanatsSecondaires/BoutonAjouterPanier.jpg"}}},
        {"frm_Panier",
         "Panier/Fond.jpg",
         {{"cmd_SupprimerCommande", "Panier/BoutonSupprimerCommande.jpg"},
          {"cmd_SupprimerObjet", "Panier/BoutonSupprimerObjet.jpg"},
          {"cmd_Enregistrer", "Panier/BoutonEnregistrer.jpg"},
          {"cmd_Retour", "Panier/BoutonRetour.jpg"}}},
        {"frm_Statut",
         "Statut/<Royaume>.jpg",
         {{"cmd_Retour", "Statut/BoutonRetour<Royaume>.jpg"}}},
        {"frm_ArmesLégendaires",
         "ArmesLégendaires/Fond.jpg",
         {{"cmd_AjouterPanier", "ArmesLégendaires/BoutonAjouterPanier.jpg"},
          {"cmd_Retour", "ArmesLégendaires/BoutonRetour.jpg"}}},
        {"frm_News",
         "News/Fond.jpg",
         {{"cmd_Retour", "News/BoutonRetour.jpg"}, {"cmd_Détails", "News/BoutonDétails.jpg"}}},
    };
    return Table;
}

std::string AvecRoyaume(std::string Fichier, const std::string& Royaume)
{
    constexpr std::string_view Marque = "<Royaume>";
    if (const auto At = Fichier.find(Marque); At != std::string::npos)
        Fichier.replace(At, Marque.size(), Royaume);
    return Fichier;
}

void Habiller(Application& App, const ImagesFeuille& Fichiers)
{
    const Variables& Globals = App.Globals;
    const auto Charger = [&](const char* Fichier) {
        return App.Images.LoadOr(Globals.CheminImages +
                                 AvecRoyaume(Fichier, Globals.RoyaumeCourant));
    };
    Screen& Feuille = App.Feuilles.Touch(Fichiers.Feuille);
    Feuille.Picture = Charger(Fichiers.Fond);
    for (const ImageBouton& Each : Fichiers.Boutons)
        if (auto* Bouton = dynamic_cast<Button*>(Feuille.FindOrNull(Each.Bouton)))
            Bouton->Picture = Charger(Each.Fichier);
}

} // namespace

std::vector<std::string> ImagesDeSkin()
{
    std::set<std::string> Fichiers;
    for (const ImagesFeuille& Feuille : Images())
        for (const std::string& Royaume : Royaumes()) {
            Fichiers.insert(AvecRoyaume(Feuille.Fond, Royaume));
            for (const ImageBouton& Each : Feuille.Boutons)
                Fichiers.insert(AvecRoyaume(Each.Fichier, Royaume));
        }
    return {Fichiers.begin(), Fichiers.end()};
}

void ÉcransManqués::Ajouter(Screen& Feuille, const Failure& Cause)
{
    switch (Cause.Kind()) {
    case FailureKind::DatabaseLocked:
        throw Cause;
    case FailureKind::NoRow:
    case FailureKind::DatabaseIncomplete:
        Inconnus += (Inconnus.empty() ? "" : ", ") + Feuille.Caption;
        break;
    default:
        App.Notice(Cause.Sentence());
    }
}

void ÉcransManqués::Annoncer() const
{
    if (!Inconnus.empty())
        App.Notice(Typeset("L’habillage ne connaît pas ces écrans à cette résolution ; ils gardent "
                           "leur aspect : " +
                           Inconnus + "."),
                   "unknown screens");
}

void ChargerSkin(Application& App, const std::string& Skin, const std::string& Résolution)
{
    Variables& Globals = App.Globals;
    Globals.CheminSkin = App.Chemin("/Skins/" + Skin + "/");
    Globals.CheminBaseSkin = Globals.CheminSkin + "/" + SkinFile(Skin);
    const Ouverture Base(App, Globals.BaseDonnées2, Globals.CheminBaseSkin);
    ÉcransManqués Manqués(App);
    for (const ImagesFeuille& Each : Images()) {
        try {
            ChoisirDossierImages(App, Each.Feuille, Résolution);
        } catch (const Failure& Given) {
            Manqués.Ajouter(App.Feuilles.Touch(Each.Feuille), Given);
            continue;
        }
        Habiller(App, Each);
        if (std::string_view(Each.Feuille) == "frm_Statut")
            Globals.CheminStatut = Globals.CheminImages + "Statut/";
    }
    Manqués.Annoncer();
    ChargerCouleurs(App);
}

std::string SansEspaces(std::string Résolution)
{
    std::erase(Résolution, ' ');
    return Résolution;
}

bool EstCommun(const Recordset& Ligne)
{
    return Ligne.TextOrEmpty("Commun") == "O";
}

std::string Déclinaison(Application& App, const std::string& Feuille, const std::string& Résolution)
{
    Recordset Ligne = OuvrirEnregistrements2(
        App.Globals, "SELECT * FROM RésolutionCommune WHERE Nom=" + Quoted(Feuille));
    Ligne.MoveFirst();
    return EstCommun(Ligne) ? "Commun" : SansEspaces(Résolution);
}

void ChoisirDossierImages(Application& App, const std::string& Feuille,
                          const std::string& Résolution)
{
    App.Globals.CheminImages = App.Globals.CheminSkin + Déclinaison(App, Feuille, Résolution) + "/";
}

void RelierAlchimie(Application& App, const std::string& Royaume)
{
    const std::string Fin = "/" + AlchimieFile;
    constexpr const char* Table = "Alchimie_ListeObjets";
    const Database Base = App.Bases.Open(App.Chemin("/" + RoyaumeFile(Royaume)));
    const std::string Connect = Base.LinkConnect(Table);
    const std::string Dossier =
        Connect.size() < ConnectPrefix.size() + Fin.size()
            ? std::string()
            : Connect.substr(ConnectPrefix.size(),
                             Connect.size() - ConnectPrefix.size() - Fin.size());
    if (Dossier != App.Chemin("")) {
        App.Bases.Open(App.Chemin(Fin)); // fails before anything is written
        try {
            Base.SetLinkConnect(Table, ConnectOf(App.Chemin(Fin)));
        } catch (const Failure& Given) {
            if (Given.Kind() != FailureKind::DatabaseReadOnly)
                throw;
            Base.UseLinkConnect(Table, ConnectOf(App.Chemin(Fin)));
        }
    }
    Base.RefreshLink(Table);
}

} // namespace orvane
