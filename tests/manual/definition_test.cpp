#include "support/petit_dossier.h"

#include <set>

namespace orvane {

using Définition = DansLAtelier;

TEST_F(Définition, TheScreenAsItIsFirstSeen)
{
    const std::set<std::string> Libres{"txt_NbObjet", "txt_NbEssais", "txt_ObjetSup",
                                       "txt_ObjetSUpPrixCoûtant"};
    std::string Montrés = " ";
    for (Control* Each : Atelier().Controls()) {
        if (const auto* Case = dynamic_cast<TextBox*>(Each)) {
            EXPECT_EQ(Case->Locked(), !Libres.contains(Case->Name())) << Case->Name();
            if (Case->Visible && Case->Name().find("Mat") == std::string::npos)
                Montrés += Case->Name() + " ";
        } else if (dynamic_cast<ComboBox*>(Each) != nullptr && Each->Visible)
            Montrés += Each->Name() + " ";
    }
    EXPECT_EQ(Montrés, " cbo_Produit cbo_ProduitDétaillé cbo_Objet txt_Niveau txt_PrixCoûtant "
                       "txt_PrixRevente txt_NbObjet txt_NbEssais txt_PrixCoûtantTotal "
                       "txt_PrixVente ");
    for (const TextBox* Saisie :
         {&Atelier().txt_NbObjet, &Atelier().txt_NbEssais, &Atelier().txt_ObjetSUpPrixCoûtant})
        EXPECT_EQ(Saisie->BackColor(), InputGrey) << Saisie->Name();
    EXPECT_EQ(Atelier().txt_NbObjet.Text(), "1");
    EXPECT_EQ(Atelier().txt_NbEssais.Text(), "0");
    EXPECT_EQ(Lignes(), "0 | 0 | 0 | 0 | 0 | 0");
    Door.Type(Atelier().txt_PrixVente, "5");
    EXPECT_EQ(Totaux(), "0 | 0 | 0") << "a locked box takes no typing";
}

} // namespace orvane
