#include "crafts/secondary/frm_artisanats_secondaires.h"

#include "app/navigation.h"
#include "basket/orders.h"
#include "crafts/common/material_codes.h"
#include "crafts/common/object_pictures.h"
#include "crafts/common/purchases.h"
#include "crafts/common/recalculating_input.h"

namespace orvane {

frm_ArtisanatsSecondaires::frm_ArtisanatsSecondaires(Application& App)
    : Feuille(App, ScreenName, "Artisanats Secondaires")
{
    Définir();
    Relier();
}

void frm_ArtisanatsSecondaires::Relier()
{
    Bar_Menus.OnItemClick = [this](const SideMenu::Item& Entrée) { Bar_Menus_ItemClick(Entrée); };
    cbo_ObjetSecondaire.OnClick = [this] { cbo_ObjetSecondaire_Click(); };
    cbo_Degré.OnClick = [this] { cbo_Degré_Click(); };
    for (int i : {3, 4})
        Matériaux[i].Nom.OnChange = [this, i] { txt_Matériaux_Change(Matériaux[i]); };
    for (int i : {2, 3})
        Matériaux[i].Code->OnChange = [this, i] {
            Matériaux[i].Montrer(AUnMatériau(Matériaux[i]));
        };
    txt_Icône.OnChange = [this] { MontrerIcôneRoyaume(this->App, txt_Icône, img_Icône); };
    txt_Image.OnChange = [this] { MontrerImageObjet(this->App, txt_Image, img_Objet); };
    RecalculerAuChangement(txt_SellerieNbObjets, {""}, "1", [this] { CalculerSellerie(); });
    RecalculerAuChangement(txt_CoûtSuppl, {""}, "0", [this] { CalculerGain(); });
    RecalculerAuChangement(txt_NbObjet, {""}, "1", [this] { CalculerGain(); });
    DireLaCommande(App, cmd_AjouterPanier);
    cmd_AjouterPanier.OnClick = [this] { cmd_AjouterPanier_Click(); };
    cmd_Retour.OnClick = [this] { WayBack(); };
}

void frm_ArtisanatsSecondaires::cbo_ObjetSecondaire_Click()
{
    if (EnSellerie())
        ChoisirSellerie();
    else if (EnRecyclage())
        ChoisirRecyclage();
}

void frm_ArtisanatsSecondaires::cbo_Degré_Click()
{
    if (EnSellerie())
        FiltrerSellerie();
    else if (EnRecyclage())
        ChoisirDegré();
}

void frm_ArtisanatsSecondaires::WayBack()
{
    Revenir(App, *this, Retour::CacherPuisAccueil);
}

// The change of a mode takes the picture away and leaves its file's name: the same name must bring
// it back.
void frm_ArtisanatsSecondaires::MontrerIcône(const Recordset& Objet)
{
    txt_Icône.Text = Objet.TextOrEmpty("Icône");
    MontrerIcôneRoyaume(App, txt_Icône, img_Icône);
}

void frm_ArtisanatsSecondaires::txt_Matériaux_Change(LigneMatériau& Ligne)
{
    Ligne.Montrer(!(Ligne.EstSansMatériau() && EnSellerie()));
}

void frm_ArtisanatsSecondaires::cmd_AjouterPanier_Click()
{
    AjouterAuPanier(App, HasChoice(),
                    {cbo_ObjetSecondaire.Text, txt_SellerieNbObjets, txt_SelleriePrixCoûtant,
                     txt_SelleriePrixVente,
                     [this] { return AchatsPour(Lots({&txt_SellerieNbObjets}), {{&Matériaux}}); }});
}

} // namespace orvane
