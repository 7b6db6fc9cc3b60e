#include "settings/frm_configuration.h"

#include "app/queries.h"
#include "app/trades.h"
#include "base/number_text.h"
#include "base/typography.h"
#include "skins/capture.h"
#include "skins/skin_check.h"

namespace orvane {

frm_Configuration::frm_Configuration(Application& App)
    : Feuille(App, ScreenName, "Configuration - Définition des marges et du niveau d'artisanat")
{
    const std::string Listes = App.Chemin("/Interface/Listes");
    imglst_CouleurCraft.Fill(App.Images, Listes, "CouleurCraft", 7, 24);
    imglst_CraftPetit.Fill(App.Images, Listes, "CraftPetit", 11, 16);
    imglst_CraftGrand.Fill(App.Images, Listes, "CraftGrand", 11, 32);
    Définir();
    pct_Logo.Picture = App.Images.LoadOr(App.Chemin("/Interface/Logo.png"));
    cmd_Validation.OnClick = [this] { cmd_Validation_Click(); };
    cmd_Couleur.OnClick = [this] { cmd_Couleur_Click(); };
    cmd_Récup.OnClick = [&App] { RécupérerRésolution(App); };
}

RéglagesArtisanat frm_Configuration::Réglages(std::string_view Métier) const
{
    const auto Case = [&](const char* Réglage) {
        return dynamic_cast<TextBox*>(FindOrNull(std::string(Réglage).append(Métier)));
    };
    return {Case("txt_Niveau"), Case("txt_Marge"), Case("txt_Essai")};
}

const orvane::Picture& frm_Configuration::ImageMétier(std::string_view Métier) const
{
    return imglst_CraftGrand.Picture(LeMétier(Métier).Image);
}

std::string frm_Configuration::ColonnesPour(const std::string& Royaume)
{
    return "Num, Craft" + Royaume + ", Marges1" + Royaume + ", Marges2" + Royaume;
}

void frm_Configuration::cmd_Validation_Click()
{
    if (!ToutEstValable())
        return;
    const Ouverture Base(App, Globals.CheminConfig);
    EnregistrerRéglages();
    EnregistrerChoix("DernièreSkin", cbo_Skin, "txt_Skin");
    EnregistrerChoix("DernièreRésolution", cbo_Résolution, "txt_Résolution");
    Globals.BaseDonnées.Empty();
    Hide();
    App.TellNotices();
}

void frm_Configuration::cmd_Couleur_Click()
{
    if (const auto Couleur = App.TheDialogs.ShowColor())
        App.MsgBox(std::to_string(Couleur->Number));
}

bool frm_Configuration::ToutEstValable()
{
    std::string Faute;
    // What is in force stays possible, also when its files are gone. A skin alone is looked at with
    // the resolution too, by which it will be laid out.
    if (cbo_Skin.Text != EnVigueur("txt_Skin").Text ||
        cbo_Résolution.Text != EnVigueur("txt_Résolution").Text)
        Faute = FauteDeRésolution(App, cbo_Skin.Text, cbo_Résolution.Text);
    for (const Métier& Each : Métiers) {
        const RéglagesArtisanat Artisanat = Réglages(Each.Nom);
        for (TextBox* Case : {Artisanat.Niveau, Artisanat.Marge, Artisanat.Essai})
            if (Case != nullptr) {
                Case->Marked = !Entier16FromText(Case->Text);
                if (Case->Marked)
                    Faute = "Les cases marquées doivent contenir un nombre de -32768 à 32767.";
            }
    }
    if (!Faute.empty())
        App.MsgBox(Typeset(Faute + "\nRien n’a été enregistré."));
    return Faute.empty();
}

void frm_Configuration::EnregistrerRéglages()
{
    const std::string& Royaume = Globals.RoyaumeCourant;
    ColonnesRoyaume = ColonnesPour(Royaume);
    Recordset Lignes =
        PremierEnregistrement("SELECT " + ColonnesRoyaume + " FROM ConfigRoyaume ORDER BY Num");
    for (const Métier& Each : Métiers) {
        const RéglagesArtisanat Artisanat = Réglages(Each.Nom);
        Lignes.Edit();
        if (Artisanat.Niveau != nullptr)
            Lignes.Set("Craft" + Royaume, Artisanat.Niveau->Text);
        if (Artisanat.Marge != nullptr)
            Lignes.Set("Marges1" + Royaume, Artisanat.Marge->Text);
        if (Artisanat.Essai != nullptr)
            Lignes.Set("Marges2" + Royaume, Artisanat.Essai->Text);
        Lignes.Update();
        Lignes.MoveNext();
        for (TextBox* Case : {Artisanat.Niveau, Artisanat.Marge, Artisanat.Essai})
            if (Case != nullptr)
                Case->Stored = std::string(Case->Text);
    }
}

TextBox& frm_Configuration::EnVigueur(const char* Case)
{
    return static_cast<TextBox&>(App.Feuilles.Touch("frm_Accueil").Find(Case));
}

void frm_Configuration::EnregistrerChoix(const std::string& Table, ComboBox& Liste,
                                         const char* Case)
{
    if (Liste.Text.empty()) // no skin was found at all: the stored name may come back
        return;
    Recordset Ligne = PremierEnregistrement("SELECT Nom FROM " + Table);
    Ligne.Edit();
    Ligne.Set("Nom", Liste.Text);
    Ligne.Update();
    Liste.Stored = std::string(Liste.Text);
    TextBox& Courant = EnVigueur(Case);
    if (Courant.Text != Liste.Text)
        Courant.Text = Liste.Text;
}

void LireRéglage(const TextBox* Réglage, std::int16_t& Variable)
{
    if (Réglage == nullptr)
        return;
    if (const auto Valeur = Entier16FromText(Réglage->Text))
        Variable = *Valeur;
}

} // namespace orvane
