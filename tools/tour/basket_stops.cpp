#include "tour/stops.h"

namespace orvane::tour {

using enum Deed;

Script SecondaryCrafts()
{
    return {
        {Click, "cmd_ArtisanatsSecondaires"},
        {On, "frm_ArtisanatsSecondaires"},
        {Item, "Bar_Menus", "Tissage"},
        {Pick, "cbo_ObjetSecondaire", ".*[Cc]ouronne.*"},
        {Pick, "cbo_Degré", ".*d'artisan"},
        {Type, "txt_NbObjet", "10"},
        {Type, "txt_CoûtSuppl", "2,5"},
        {See, "txt_Gain !cmd_AjouterPanier !txt_Matériaux4"},
        {Photo, "recyclage"},

        {Item, "Bar_Menus", "Bardes"},
        {Pick, "cbo_Degré", "lourde"},
        {Search, "cbo_ObjetSecondaire", "txt_Matériaux4"},
        {Type, "txt_SellerieNbObjets", "2"},
        {See, "txt_SelleriePrixVente !txt_Gain"},
        {Photo, "sellerie"},
        {Click, "cmd_AjouterPanier"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

Script Basket()
{
    return {
        {Click, "cmd_ArtisanatsSecondaires"},
        {On, "frm_ArtisanatsSecondaires"},
        {Item, "Bar_Menus", "OuvrirPanier"},
        {On, "frm_Panier"},
        {Pick, "lst_Objet", ".+"},
        {Photo, "panier"},
        {Await, "acheteur", "Maison Ylva"},
        {Click, "cmd_Enregistrer"},
        {See, "!cmd_Enregistrer"},
        {Pick, "cbo_Commandes", "Nouvelle commande"},
        {Pick, "cbo_Commandes", "Maison Ylva"},
        {Photo, "panier-commande-nommee"},
        {Click, "cmd_SupprimerCommande"},
        {Photo, "panier-vide"},
        {Click, "cmd_Retour"},
        {On, "frm_ArtisanatsSecondaires"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

Script BoxesAndLists()
{
    return {
        {Click, "cmd_ArtisanatsManuels"},
        {On, "frm_ArtisanatsManuels"},
        {Await, "Aucun objet sélectionné.", "", "message-aucun-objet"},
        {Click, "cmd_AjouterPanier"},
        {Item, "Bar_Menus", "Forge"},
        {Pick, "cbo_Produit", "Épées"},
        {Pick, "cbo_ProduitDétaillé", ".+"},
        {Open, "cbo_Objet"},
        {Photo, "liste-ouverte"},
        {Pick, "cbo_Objet", ".*durable.*"},
        {Await, "sélectionner un degré", "", "message-degre"},
        {Pick, "cbo_TypeDégats", ".+"},
        {Pick, "cbo_Degré", "en (arcania|dyr)"},
        {Click, "cmd_AjouterPanier"},
        {Type, "txt_NbObjet", "12x"},
        {Await, "ne sont pas à jour", "", "message-prix-anciens"},
        {Click, "cmd_AjouterPanier"},
        {Type, "txt_NbObjet", "1"},

        {Item, "Bar_Menus", "OuvrirPanier"},
        {On, "frm_Panier"},
        {Await, "acheteur", "Trente et une lettres sont trop", "saisie-nom"},
        {Await, "critères", "", "message-nom-refuse"},
        {Click, "cmd_Enregistrer"},
        {Click, "cmd_SupprimerCommande"},
        {Click, "cmd_Retour"},
        {On, "frm_ArtisanatsManuels"},
        {Click, "cmd_Retour"},

        {On, "frm_Accueil"},
        {Click, "cmd_Configuration"},
        {On, "frm_Configuration"},
        {Type, "txt_NiveauForge", "mille"},
        {Await, "cases marquées", "", "message-reglages"},
        {Click, "cmd_Validation"},
        {Type, "txt_NiveauForge", "1001"},
        {Click, "cmd_Validation"},
        {On, "frm_Accueil"},
    };
}

} // namespace orvane::tour
