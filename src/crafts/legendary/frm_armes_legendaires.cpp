#include "crafts/legendary/frm_armes_legendaires.h"

#include "app/queries.h"
#include "app/trades.h"
#include "basket/orders.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/purchases.h"
#include "crafts/common/recalculating_input.h"
#include "crafts/manual/frm_artisanats_manuels.h"
#include "settings/frm_configuration.h"
#include "toolkit/writing.h"

namespace orvane {

frm_ArmesLégendaires::frm_ArmesLégendaires(Application& App)
    : Feuille(App, ScreenName, "Armes Légendaires")
{
    Définir();
    Relier();
}

void frm_ArmesLégendaires::Relier()
{
    cbo_Arme.OnClick = [this] { cbo_Arme_Click(); };
    cbo_Type.OnClick = [this] { cbo_Type_Click(); };
    txt_Image.OnChange = [this] { MontrerImageObjet(this->App, txt_Image, img_Objet); };
    txt_Icône.OnChange = [this] { MontrerIcôneRoyaume(this->App, txt_Icône, img_Icône); };
    Arme.FichierIcône.OnChange = [this] {
        MontrerIcôneRoyaume(this->App, Arme.FichierIcône, Arme.Icône);
    };
    Gemme.FichierIcône.OnChange = [this] {
        MontrerIcôneCommune(this->App, Gemme.FichierIcône, Gemme.Icône);
    };
    Teinture.FichierIcône.OnChange = [this] {
        MontrerIcôneOuPasImage(this->App, Teinture.FichierIcône, Teinture.Icône);
    };
    Arme.Matériaux[3].Nom.OnChange = [this] {
        Arme.Matériaux[3].Montrer(!Arme.Matériaux[3].EstSansMatériau());
    };
    txt_PrixUnitaireMatériau.OnChange = [this] { CalculerPrixMatériau(); };
    for (TextBox* Libre : {&txt_PrixGemme, &txt_PrixTeinture, &txt_PrixSpécial})
        Libre->OnChange = [this] {
            CalculerPrixCoûtant();
            CalculerTotaux();
        };
    RecalculerAuChangement(txt_NbObjet, {"0", ""}, "1", [this] { CalculerTotaux(); });
    RecalculerAuChangement(txt_NbEssais, {""}, "0", [this] { CalculerTotaux(); });
    DireLaCommande(App, cmd_AjouterPanier);
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Panier.OnClick = [this] { OuvrirPanier(this->App); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_ArmesLégendaires::Load()
{
    cmd_Panier.Picture =
        App.Feuilles.Get<frm_Configuration>().imglst_CraftGrand.Picture(ImagePanier);
}

void frm_ArmesLégendaires::Activate()
{
    EffacerArme();
    RemettreQuantités();
    CheminArtisanat = Globals.CheminRoyaume;
    CheminTeintures = Globals.CheminAlchimie;
    const std::string& Métier = App.Feuilles.Get<frm_ArtisanatsManuels>().lbl_Artisanat.Caption;
    RemplirChoix(Métier);
    LireRéglages(Métier);
}

void frm_ArmesLégendaires::RemplirChoix(const std::string& Métier)
{
    const Ouverture Base(App, CheminArtisanat);
    RemplirListe("SELECT ArmesLégendaires_ListeObjets.Nom FROM R_ArmesLégendairesObjets "
                 "WHERE Artisanat_Liste.Nom=" +
                     Quoted(Métier),
                 cbo_Arme, "Nom");
    RemplirListe("SELECT DISTINCT ArmesLégendaires_Type.Nom FROM R_ArmesLégendairesType", cbo_Type,
                 "Nom");
}

// With a trade that has no legendary weapons, picture and level stay those of the last one.
void frm_ArmesLégendaires::LireRéglages(const std::string& Métier)
{
    const auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    if (Métier == "Empennage" || Métier == "Forge") {
        LireRéglage(Configuration.Réglages(Métier).Niveau, NiveauCraft);
        pct_Craft.Picture = Configuration.ImageMétier(Métier);
    }
    LireRéglage(Configuration.Réglages("Arcanes").Niveau, NiveauArcanes);
    LireRéglage(Configuration.Réglages("Alchimie").Niveau, NiveauAlchimie);
    LireRéglage(Configuration.Réglages("Légendaires").Marge, Marge);
    LireRéglage(Configuration.Réglages("Légendaires").Essai, MargeEssais);
}

// The totals of the blocks, the unit price of the material and the files of the components' icons
// stay until the next choice writes them. The writes into the open prices run their handlers.
void frm_ArmesLégendaires::EffacerArme()
{
    cbo_Arme.Clear();
    cbo_Type.Clear();
    WriteAll({&txt_ObjetNum, &txt_GemmeNum, &txt_TeintureNum, &txt_Arme, &txt_Gemme, &txt_Teinture,
              &txt_Matériau, &txt_Spécial},
             "");
    txt_QtéArme.Text = "1";
    WriteAll({&txt_QtéGemme, &txt_QtéTeinture, &txt_QtéMatériau}, "0");
    txt_QtéSpécial.Text = "1";
    WriteAll({&txt_PrixArme, &txt_PrixGemme, &txt_PrixTeinture, &txt_PrixMatériau, &txt_PrixSpécial,
              &txt_PrixCoûtant, &txt_PrixRevente, &txt_PrixVente},
             "0");
    WriteAll({&txt_Dégâts, &txt_Niveau, &txt_Dps, &txt_Vit}, "");
    for (Image* Each : {&img_Icône, &img_Niveau, &Arme.Icône, &Arme.Indicateur, &Gemme.Icône,
                        &Gemme.Indicateur, &Teinture.Icône, &Teinture.Indicateur})
        Each->Picture = {};
    for (Label* Each : {&lbl_Niveau, &Arme.Niveau, &Gemme.Niveau, &Teinture.Niveau})
        Each->Caption = "";
    for (Composant* Each : {&Arme, &Gemme, &Teinture})
        Each->Matériaux.Vider();
    txt_Image.Text = "";
    txt_Icône.Text = "";
}

void frm_ArmesLégendaires::cmd_AjouterPanier_Click()
{
    AjouterAuPanier(App, HasChoice(),
                    {cbo_Arme.Text + " " + cbo_Type.Text, txt_NbObjet, txt_PrixCoûtantTotal,
                     txt_PrixVente, [this] { return Achetés(); }});
}

Achats frm_ArmesLégendaires::Achetés()
{
    return AchatsPour(Lots({&txt_NbObjet, &txt_NbEssais}),
                      {{&Arme.Matériaux, &txt_QtéArme},
                       {&Gemme.Matériaux, &txt_QtéGemme, &txt_Gemme, &txt_PrixGemme},
                       {&Teinture.Matériaux, &txt_QtéTeinture, &txt_Teinture, &txt_PrixTeinture},
                       {nullptr, &txt_QtéMatériau, &txt_Matériau, &txt_PrixMatériau},
                       {nullptr, &txt_QtéSpécial, &txt_Spécial, &txt_PrixSpécial}});
}

} // namespace orvane
