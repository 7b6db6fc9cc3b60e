#include "tour/stops.h"

namespace orvane::tour {

using enum Deed;

Script ManualCrafts()
{
    return {
        {Click, "cmd_ArtisanatsManuels"},
        {On, "frm_ArtisanatsManuels"},
        {Pick, "cbo_Produit", "Tissu"},
        {Pick, "cbo_ProduitDétaillé", "Robes"},
        {Pick, "cbo_Objet", ".+"},
        {Pick, "cbo_Degré", ".+"},
        {Type, "txt_NbObjet", "3"},
        {Type, "txt_NbEssais", "2"},
        {See, "txt_Matériaux1 img_Niveau !txt_ObjetSup"},
        {Photo, "manuels-prix"},
        {Click, "cmd_AjouterPanier"},

        {Item, "Bar_Menus", "Forge"},
        {Pick, "cbo_Produit", "Épées"},
        {Pick, "cbo_ProduitDétaillé", ".+"},
        {Pick, "cbo_Objet", ".*durable.*"},
        {Pick, "cbo_Degré", "en (arcania|dyr)"},
        {Pick, "cbo_TypeDégats", "de feu"},
        {See, "txt_ObjetSup txt_MatSup1 img_ObjetSupNiveau"},
        {Photo, "manuels-objet-necessaire"},
        {Click, "cmd_AjouterPanier"},

        {Type, "txt_NbObjet", "12x"},
        {Wrong, "txt_NbObjet"},
        {Photo, "manuels-nombre-faux"},
        {Type, "txt_NbObjet", "1"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

Script Archery()
{
    return {
        {Click, "cmd_ArtisanatsManuels"},
        {On, "frm_ArtisanatsManuels"},
        {Item, "Bar_Menus", "Empennage"},
        {Pick, "cbo_Produit", "Projectiles"},
        {Pick, "cbo_ProduitDétaillé", "Flèches"},
        {On, "frm_Archerie"},
        {Pick, "cbo_Type", "Flèches"},
        {Pick, "cbo_Objet", ".+"},
        {Type, "txt_NbObjet", "4"},
        {See, "txt_Matériaux3 img_Niveau"},
        {Photo, "archerie"},
        {Click, "cmd_AjouterPanier"},
        {Click, "cmd_Retour"},
        {On, "frm_ArtisanatsManuels"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

Script LegendaryWeapons()
{
    return {
        {Click, "cmd_ArtisanatsManuels"},
        {On, "frm_ArtisanatsManuels"},
        {Item, "Bar_Menus", "Forge"},
        {Pick, "cbo_Produit", "Armes légendaires"},
        {On, "frm_ArmesLégendaires"},
        {Pick, "cbo_Arme", ".+"},
        {Pick, "cbo_Type", ".+"},
        {Type, "txt_PrixSpécial", "125"},
        {Type, "txt_NbEssais", "1"},
        {See, "txt_MatArme1 txt_MatGemme1 txt_MatTeinture1 img_NiveauTeinture"},
        {Photo, "legendaires"},
        {Click, "cmd_AjouterPanier"},
        {Click, "cmd_Retour"},
        {On, "frm_ArtisanatsManuels"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

} // namespace orvane::tour
