#include "tour/stops.h"

namespace orvane::tour {

using enum Deed;

Script Alchemy()
{
    return {
        {Click, "cmd_ArtisanatsMagiques"},
        {On, "frm_ArtisanatsMagiques"},
        {Pick, "cbo_Produit", "Teintures"},
        {Pick, "cbo_ProduitDétaillé", "Teinture d'arme"},
        {Search, "cbo_Objet", "txt_Ingdt3 !txt_Ingdt4 !txt_AlchimieObjetSup"},
        {Type, "txt_NbObjetAlchimie", "5"},
        {Photo, "alchimie-trois-lignes"},
        {Click, "cmd_AjouterPanier"},

        {Pick, "cbo_Produit", "Potions"},
        {Pick, "cbo_ProduitDétaillé", "Potions de soin"},
        {Search, "cbo_Objet", "txt_Ingdt6 txt_AlchimieObjetSup"},
        {Photo, "alchimie-six-lignes-objet-necessaire"},
        {Click, "cmd_AjouterPanier"},

        {Pick, "cbo_Produit", "Effets à déclenchement"},
        {Pick, "cbo_ProduitDétaillé", "Charges"},
        {Pick, "cbo_Type", "feu"},
        {Search, "cbo_Objet", "txt_ChargesObjet"},
        {Photo, "alchimie-charge"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

Script Gems()
{
    return {
        {Click, "cmd_ArtisanatsMagiques"},
        {On, "frm_ArtisanatsMagiques"},
        {Item, "Bar_Menus", "Arcanes"},
        {Pick, "cbo_TypeGemmes", "Gemmes d'arme"},
        {Pick, "cbo_SousTypeGemmes", "Ardente"},
        {Pick, "cbo_DegréGemmes", ".*parfaite"},
        {Type, "txt_ArcanesNbEssais", "2"},
        {Type, "txt_ArcanesNbObjet", "3"},
        {See, "txt_Ingdt3 !txt_Ingdt4 !txt_AlchimieObjetSup"},
        {Photo, "gemmes-trois-lignes"},
        {Click, "cmd_AjouterPanier"},

        {Pick, "cbo_TypeBonus", "Dégâts"},
        {Pick, "cbo_SousTypeBonus", "Tous les dégâts"},
        {Pick, "cbo_DegréBonus", ".+"},
        {See, "txt_Ingdt6 txt_AlchimieObjetSup txt_MatSup3 !txt_MatSup4"},
        {Type, "txt_PrixIngdt6", "7,25"}, // no market knows the price of its last material
        {Photo, "gemmes-six-lignes-objet-necessaire"},
        {Click, "cmd_AjouterPanier"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

} // namespace orvane::tour
