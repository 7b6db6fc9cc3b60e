#pragma once

#include "support/petit_dossier.h"

#include <string>
#include <vector>

namespace orvane {

// A basket with the rows that a test puts into the file, opened from the manual crafts.
class PanierGarni : public PetitDossier
{
  protected:
    // Rows "Nom, Nb, PrixCoûtant, PrixVente, Royaume, Acheteur" in SQL, then the start.
    void Garnir(const std::vector<std::string>& Rangées)
    {
        for (const std::string& Rangée : Rangées)
            Modifier("Panier.mdb", "INSERT INTO PanierGlobal (Nom, Nb, PrixCoûtant, PrixVente, "
                                   "Royaume, Acheteur) VALUES (" +
                                       Rangée + ")");
        Lancer();
        Ouvrir();
    }

    void Ouvrir()
    {
        if (Accueil().IsVisible())
            OuvrirAtelier();
        OuvrirPanier();
    }

    void Fermer() { Door().Click(Panier().cmd_Retour); }

    // Back to the home screen, another realm, and the basket again.
    void ChangerDeRoyaume(Image& Écu)
    {
        Fermer();
        Door().Click(Atelier().cmd_Retour);
        Door().Click(Écu);
        Ouvrir();
    }

    // The rows shown: "Nom Nb PrixCoûtant PrixVente", each divided from the next by |.
    std::string Montrées()
    {
        std::vector<std::string> Textes;
        for (std::size_t i = 0; i < Panier().lst_Objet.Items().size(); ++i)
            Textes.push_back(Panier().lst_Objet.Items()[i] + " " + Panier().lst_Nb.Items()[i] +
                             " " + Panier().lst_PrixCoûtant.Items()[i] + " " +
                             Panier().lst_PrixVente.Items()[i]);
        EXPECT_EQ(Panier().lst_Num.Items().size(), Textes.size()) << "parallel lists";
        return Jointes(Textes);
    }

    std::string Commandes() { return Jointes(Panier().cbo_Commandes.Items()); }

    std::string TotauxDuPanier()
    {
        return Jointes(
            {Panier().txt_TotalPanierCoûtant.Text(), Panier().txt_TotalPanierVente.Text()});
    }

    // "Nom Acheteur" of all rows stored.
    std::string Stockées()
    {
        std::vector<std::string> Textes;
        for (const std::string& Each :
             Rangées("Panier.mdb", "SELECT * FROM PanierGlobal", {"Nom", "Acheteur"}))
            Textes.push_back(Each);
        return Textes.empty() ? "" : Jointes(Textes);
    }
};

} // namespace orvane
