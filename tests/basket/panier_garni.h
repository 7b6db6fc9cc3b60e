#pragma once

#include "support/petit_dossier.h"

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
        OuvrirAtelier();
        OuvrirPanier();
    }

    void Rouvrir()
    {
        Door.Click(Panier().cmd_Retour);
        OuvrirPanier();
    }

    void ChangerDeRoyaume(Image& Écu)
    {
        Door.Click(Panier().cmd_Retour);
        Door.Click(Atelier().cmd_Retour);
        Door.Click(Écu);
        OuvrirAtelier();
        OuvrirPanier();
    }

    void AjouterUnBéret()
    {
        Door.Click(Panier().cmd_Retour);
        Choisir("Couture/Tissu/Chapeaux/Béret/brut");
        Door.Click(Atelier().cmd_AjouterPanier);
    }

    // The rows shown: "Nom Nb PrixCoûtant PrixVente | ..."
    std::string Montrées()
    {
        std::vector<std::string> Textes = Panier().lst_Objet.Items();
        for (const ListBox* Each :
             {&Panier().lst_Nb, &Panier().lst_PrixCoûtant, &Panier().lst_PrixVente})
            for (std::size_t i = 0; i < Textes.size(); ++i)
                Textes[i] += " " + Each->Items().at(i);
        EXPECT_EQ(Panier().lst_Num.Items().size(), Textes.size()) << "parallel lists";
        return Jointes(Textes);
    }

    std::string Commandes() { return Jointes(Panier().cbo_Commandes.Items()); }

    std::string Sommes()
    {
        return Jointes(
            {Panier().txt_TotalPanierCoûtant.Text(), Panier().txt_TotalPanierVente.Text()});
    }
};

} // namespace orvane
