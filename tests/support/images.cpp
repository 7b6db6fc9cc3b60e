#include "shell/feuilles.h"
#include "store/catalogue.h"
#include "store/maker.h"
#include "support/contenu.h"

#include <vector>

namespace orvane {

namespace fs = std::filesystem;

void FaireImages(const TempFolder& Dossier)
{
    for (const std::string& Royaume : Royaumes()) {
        Dossier.Write("Interface/Ecu" + Royaume + ".gif", "GIF89a");
        Dossier.Write("Interface/Ecu" + Royaume + "Ombre.gif", "GIF89a");
        Dossier.Write("Interface/Bannière" + Royaume + ".gif", "GIF89a");
        Dossier.Write("Interface/Bouton" + Royaume + ".gif", "GIF89a");
        Dossier.Write("Interface/Icônes/" + Royaume + ".ico", "icon");
    }
    Dossier.Write("Interface/Logo.png", "png");
    Dossier.Write("Objets/Commun/PasImage.gif", "GIF89a");
    Dossier.Write("Objets/Commun/essence.gif", "GIF89a");
    Dossier.Write("Objets/Valdren/Icônes/carquois.gif", "GIF89a");
    Dossier.Write("Objets/Valdren/béret.gif", "GIF89a");
    Dossier.Write("Objets/Valdren/Icônes/béret.gif", "GIF89a");
}

void FaireSkin(const TempFolder& Dossier, const std::string& Skin)
{
    const std::vector<std::string> Images{"Accueil/Fond.jpg",
                                          "Accueil/BoutonArtisanatsManuels.jpg",
                                          "Accueil/BoutonArtisanatsMagiques.jpg",
                                          "Accueil/BoutonArtisanatsSecondaires.jpg",
                                          "Accueil/BoutonConfiguration.jpg",
                                          "Accueil/BoutonQuitter.jpg",
                                          "Accueil/BoutonNews.jpg",
                                          "Configuration/Fond.jpg",
                                          "Configuration/BoutonValidation.jpg",
                                          "Configuration/BoutonCouleur.jpg",
                                          "Panier/Fond.jpg",
                                          "Panier/BoutonSupprimerCommande.jpg",
                                          "Panier/BoutonSupprimerObjet.jpg",
                                          "Panier/BoutonEnregistrer.jpg",
                                          "Panier/BoutonRetour.jpg",
                                          "News/Fond.jpg",
                                          "News/BoutonRetour.jpg",
                                          "News/BoutonDétails.jpg"};
    fs::create_directories(Dossier / "Skins" / Skin);
    DatabaseMaker Maker(Dossier / "Skins" / Skin / (Skin + ".mdb"), SkinDefinition());
    for (const std::string& Feuille : NomsFeuilles()) {
        const bool Commun = Feuille == "frm_Configuration" || Feuille == "frm_Panier";
        Maker.Insert(SkinDefinition().Tables[0], {"Nom", "Commun"},
                     {Feuille, std::string(Commun ? "O" : "N")});
        for (const std::string& Sous : Commun ? std::vector<std::string>{"Commun"}
                                              : std::vector<std::string>{"1024x768", "800x600"}) {
            const TableDefinition Table = LayoutTable(Feuille + "_" + Sous);
            Maker.AddTable(Table);
            Maker.Insert(Table, {"Num", "NomControl"}, {std::int64_t{1}, Feuille});
        }
    }
    Maker.Finish();
    for (const std::string Sous : {"Commun", "1024x768", "800x600"}) {
        const std::string Racine = "Skins/" + Skin + "/" + Sous + "/";
        for (const std::string& Image : Images)
            Dossier.Write(Racine + Image, "jpg");
        for (const std::string Atelier : {"ArtisanatsManuels", "Archerie", "ArtisanatsMagiques",
                                          "ArtisanatsSecondaires", "ArmesLégendaires"})
            for (const std::string Image :
                 {"/Fond.jpg", "/BoutonAjouterPanier.jpg", "/BoutonRetour.jpg"})
                Dossier.Write(Racine + Atelier + Image, "jpg");
        for (const std::string& Royaume : Royaumes()) {
            Dossier.Write(Racine + "Statut/" + Royaume + ".jpg", "jpg");
            Dossier.Write(Racine + "Statut/BoutonRetour" + Royaume + ".jpg", "jpg");
        }
    }
}

} // namespace orvane
