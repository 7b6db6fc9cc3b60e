#pragma once

#include "store/catalogue.h"
#include "support/petit_dossier.h"

namespace orvane {

// The manual crafts open, with objects that need an alchemical one in a damage type.
class AvecObjetSup : public PetitDossier
{
  protected:
    // Degrees 8 and 9 bear the two names that have extra objects. Trade level 300, alchemy 505;
    // margins 40 and 15.
    void SetUp() override
    {
        for (const std::string& Royaume : Royaumes())
            Modifier("Artisanat_" + Royaume + ".mdb",
                     "UPDATE Degrés_ListeTypes SET DegréType1 = 'en dyr' WHERE NuméroDegré = 8;"
                     "UPDATE Degrés_ListeTypes SET DegréType1 = 'en arcania' "
                     "WHERE NuméroDegré = 9");
        Lancer();
        OuvrirAtelier();
    }

    // The spear costs 90 in dyr and 100 in arcania; resale 12 and 13; it takes three essences.
    void ChoisirObjet(const std::string& Reste) { Choisir("Empennage/Arcs/Arcs longs/" + Reste); }

    void ChoisirType(const std::string& Type) { Door.Pick(Atelier().cbo_TypeDégats, Type); }

    // Name and price; "-" when the panel is hidden.
    std::string Panneau()
    {
        const bool Montré = Atelier().txt_ObjetSup.Visible;
        for (const std::string Nom :
             {"shp_ObjetSup", "lbl_ObjetSup", "lbl_ObjetSupNiveau", "lbl_ObjetSupNiveauCraft",
              "img_ObjetSupNiveau", "img_ObjetSup", "lbl_ObjetSUpPrixCoûtant",
              "txt_ObjetSUpPrixCoûtant", "txt_NbObjetSup", "lbl_NbObjetSup"})
            EXPECT_EQ(Atelier().Find(Nom).Visible(), Montré) << Nom;
        return Montré ? Jointes({Atelier().txt_ObjetSup.Text(),
                                 Atelier().txt_ObjetSUpPrixCoûtant.Text()})
                      : "-";
    }

    // "name x quantity = price" of each row, "-" for a hidden one.
    std::string Rangées()
    {
        std::vector<std::string> Textes;
        for (int i = 1; i <= 4; ++i) {
            const bool Montrée = Atelier().txt_MatSup[i].Visible;
            for (const Control* Each : std::initializer_list<Control*>{
                     &Atelier().lbl_MatSupX[i], &Atelier().txt_MatSupQté[i],
                     &Atelier().lbl_MatSup[i], &Atelier().txt_PrixMatSup[i]})
                EXPECT_EQ(Each->Visible(), Montrée) << Each->Name();
            Textes.push_back(Montrée ? Atelier().txt_MatSup[i].Text() + " x " +
                                           Atelier().txt_MatSupQté[i].Text() + " = " +
                                           Atelier().txt_PrixMatSup[i].Text()
                                     : "-");
        }
        return Jointes(Textes);
    }

    // Band of an indicator, by its picture.
    static std::string Bande(const Image& Indicateur) { return Indicateur.Picture().File.stem(); }

    static constexpr auto Vides = " x 0 = 0 |  x 0 = 0 |  x 0 = 0 |  x 0 = 0";
    static constexpr auto Refus = "Il faut d'abord sélectionner un degré.";
};

} // namespace orvane
