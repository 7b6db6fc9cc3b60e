#include "legendary/legendaire.h"

// From the final bill to the sale price and the basket. The blade in "d'aube" costs 100 and a
// merchant pays 30; the axe costs 47,5 and brings 200.
namespace orvane {

class CoûtLégendaire : public Légendaire
{
  protected:
    void SetUp() override
    {
        Légendaire::SetUp();
        Ouvrir();
        Arme("Lame du couchant");
        Type("d'aube");
    }

    void Refuser()
    {
        Boîtes.ExpectMsgBoxBeginning("Les prix affichés ne sont pas à jour");
        Ajouter();
        EXPECT_EQ(Stockées(), "");
    }
};

TEST_F(CoûtLégendaire, OneMarginIsOnTheObjectsTheOtherOnWhatTrialsLose)
{
    for (const auto& [Objets, Essais, Attendus] :       // counts as repaired, then the prices
         {std::tuple{"2", "3", "2 3: 100 | 410 | 472"}, // 200 + 210; 220 + 252
          {"0", "1", "1 1: 100 | 170 | 194"},
          {"00", "1", "00 1: 100 | 70 | 84"},
          {"", "", "1 0: 100 | 100 | 110"},
          {"2,5", "1,5", "2,5 1,5: 100 | 340 | 388"}, // two and two
          {"-1", "00", "-1 00: 100 | -100 | -110"},
          {"abc", "1", "abc 1: 100 | -100 | -110 ?"},
          {"1", "32768", "1 32768: 100 | 170 | 194 ?"},
          {"5", "0", "5 0: 100 | 500 | 550"}}) {
        Compter(Objets, Essais);
        EXPECT_EQ(Texte("txt_NbObjet") + " " + Texte("txt_NbEssais") + ": " + Prix(), Attendus);
        EXPECT_EQ(Armes().txt_NbObjet.Marked || Armes().txt_NbEssais.Marked,
                  Armes().txt_PrixVente.Stale());
    }
    Compter("abc", "3");
    Arme("Hache des cendres"); // every choice counts afresh
    EXPECT_EQ(Prix(), "47,5 | 47,5 | 52,25");
    Compter("2", "1");
    EXPECT_EQ(Prix(), "47,5 | -57,5 | -78,5") << "a loss of -152,5: 104,5 - 183";
    Type("d'aube");
    EXPECT_EQ(Prix(), "47,5 | 47,5 | 52,25");
}

TEST_F(CoûtLégendaire, ATypedPriceCountsAtOnceAndOnlyTheSpecialOneOutlastsAPick)
{
    Compter("1", "1");
    Door.Type(Armes().txt_PrixSpécial, "10,50");       // a cost of 110,5 and a loss of 80,5
    EXPECT_EQ(Prix(), "110,5 | 191 | 218,15");         // 121,55 + 96,6
    Door.Type(Armes().txt_PrixGemme, "14,33333");      // for 64
    Door.Type(Armes().txt_PrixTeinture, "0,0001");     // for 7
    EXPECT_EQ(Prix(), "53,8334 | 77,6668 | 87,81682"); // 59,21674 + 23,8334 × 1,2
    Door.Type(Armes().txt_PrixMatériau, "99");         // closed
    Type("d'aube");
    EXPECT_EQ(Facture(), "Glaive nu x 1 = 19 | Gemme de feu x 2 = 64 | Teinture de noix x 2 = 7 | "
                         "néthérium x 4 = 10 | Plume de phénix x 1 = 10,5");
    Door.Type(Armes().txt_PrixSpécial, "922337203685477"); // with the others it overflows
    EXPECT_EQ(Prix(), "110,5 | 110,5 | 121,55 ?");
}

TEST_F(CoûtLégendaire, AnEmptiedOrWrongPriceIsMarkedAndTheBasketRefusesUntilItIsRight)
{
    for (TextBox* Case :
         {&Armes().txt_PrixGemme, &Armes().txt_PrixTeinture, &Armes().txt_PrixSpécial})
        for (const char* Faux : {"", "1.5"}) {
            SCOPED_TRACE(Case->Name() + " " + Faux);
            const std::string Juste = Case->Text();
            Door.Type(*Case, Faux); // there is no substitute
            EXPECT_TRUE(Case->Text == Faux && Case->Marked && Armes().txt_PrixCoûtant.Stale);
            Compter("2", "0");
            EXPECT_EQ(Prix(), "100 | 100 | 110 ?");
            Refuser();
            Door.Type(*Case, Juste);
            EXPECT_FALSE(Case->Marked || Armes().txt_PrixCoûtant.Stale);
            EXPECT_EQ(Prix(), "100 | 200 | 220");
            Door.Type(*Case, Faux);
            Arme("Lame du couchant"); // writes the gem's and the dye's, not the special one's
            EXPECT_EQ(Case->Marked(), Case == &Armes().txt_PrixSpécial);
            EXPECT_EQ(Armes().txt_PrixVente.Stale(), Case == &Armes().txt_PrixSpécial);
            Door.Type(*Case, Juste);
            EXPECT_EQ(Prix(), "100 | 100 | 110");
        }
}

// What has been read belongs half to one choice and half to another.
TEST_F(CoûtLégendaire, ALookUpWithoutARowIsToldAndThePricesWaitForTheNextPick)
{
    for (const auto& [Liste, Entrée, Juste, Autre] :
         {std::tuple{&Armes().cbo_Arme, "Masse perdue", "Lame du couchant", &Armes().cbo_Type},
          {&Armes().cbo_Type, "du néant", "d'aube", &Armes().cbo_Arme}}) { // a material, the dye
        SCOPED_TRACE(Entrée);
        Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0");
        Door.Pick(*Liste, Entrée);
        Compter("4", "1");
        Door.Type(Armes().txt_PrixGemme, "1");
        EXPECT_TRUE(Prix().ends_with("?")) << "neither a count nor a price mends it";
        Door.Pick(*Autre, Autre->Text());
        EXPECT_TRUE(Prix().ends_with("?")) << "nor does a pick in the other list";
        Refuser();
        Door.Pick(*Liste, Juste);
        EXPECT_EQ(Prix(), "100 | 100 | 110");
    }
    Arme("Hache des cendres");
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour «\u00A0Hache des cendres, de brume");
    Type("de brume"); // has no picture with the axe: all that prices rest on has been read
    Refuser();
    Arme("Lame du couchant");
    EXPECT_EQ(Prix(), "110 | 110 | 121") << "another of either list";
    Boîtes.ExpectMsgBoxBeginning("Aucune donnée pour");
    Arme("Masse perdue");
    Ouvrir();
    EXPECT_EQ(Prix(), "0 | 0 | 0") << "what is emptied is good";
}

TEST_F(CoûtLégendaire, BothChoicesMakeARowForTheBasket)
{
    Compter("2", "3");
    Ajouter();
    Ajouter();
    EXPECT_EQ(Prix(), "100 | 410 | 472") << "the screen doesn't change";
    EXPECT_EQ(Stockées("Nom|Nb|PrixCoûtant|PrixVente|Royaume|Acheteur"),
              "Lame du couchant d'aube | 2 | 410 | 472 | Valdren | Nouvelle commande / "
              "Lame du couchant d'aube | 2 | 410 | 472 | Valdren | Nouvelle commande");
    for (ComboBox* Seule : {&Armes().cbo_Arme, &Armes().cbo_Type}) {
        Ouvrir();
        Door.Pick(*Seule, 0);
        Boîtes.ExpectMsgBox("Aucun objet sélectionné.");
        Ajouter();
    }
}

} // namespace orvane
