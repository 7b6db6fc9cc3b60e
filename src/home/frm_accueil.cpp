#include "home/frm_accueil.h"

#include "app/navigation.h"
#include "app/queries.h"
#include "app/trades.h"
#include "base/typography.h"
#include "basket/orders.h"
#include "catalogue/catalogue.h"
#include "catalogue/upgrade.h"
#include "settings/frm_configuration.h"
#include "skins/layout.h"
#include "skins/skin_assets.h"
#include "skins/skin_check.h"
#include "store/file_version.h"

#include <algorithm>

namespace orvane {

frm_Accueil::frm_Accueil(Application& App) : Feuille(App, ScreenName, "Orvane - Artisanats")
{
    Définir();
    for (const Écu& Each : Écus()) {
        MontrerÉcu(Each, false);
        Each.Bouclier->OnClick = [this, Royaume = Each.Royaume] { ChoisirRoyaume(Royaume); };
    }
    txt_Skin.OnChange = [this] { txt_Skin_Change(); };
    txt_Résolution.OnChange = [this] { txt_Résolution_Change(); };
    cmd_ArtisanatsManuels.OnClick = [this] {
        OuvrirArtisanat("frm_ArtisanatsManuels",
                        {"frm_ArtisanatsManuels", "frm_Archerie", "frm_ArmesLégendaires"});
    };
    cmd_ArtisanatsMagiques.OnClick = [this] {
        OuvrirArtisanat("frm_ArtisanatsMagiques", {"frm_ArtisanatsMagiques"});
    };
    cmd_ArtisanatsSecondaires.OnClick = [this] {
        OuvrirArtisanat("frm_ArtisanatsSecondaires", {"frm_ArtisanatsSecondaires"});
    };
    cmd_Configuration.OnClick = [this] { cmd_Configuration_Click(); };
    cmd_News.OnClick = [this] { cmd_News_Click(); };
    cmd_Quitter.OnClick = [this] { cmd_Quitter_Click(); };
}

void frm_Accueil::Load()
{
    Globals.CheminPanier = App.Chemin("/" + PanierFile);
    Globals.CheminAlchimie = App.Chemin("/" + AlchimieFile);
    Globals.CheminConfig = App.Chemin("/" + ConfigFile);
    PréparerFichiersDuJoueur();
    {
        const Ouverture Base(App, Globals.CheminConfig);
        RestaurerRoyaume();
        auto& Configuration = App.Feuilles.Get<frm_Configuration>();
        const std::string Skin =
            RestaurerChoix("SkinsListe", "DernièreSkin", Configuration.cbo_Skin,
                           [this](const std::string& Nom) { return FauteDeSkin(App, Nom); });
        txt_Skin.Text = Skin;
        txt_Résolution.Text = RestaurerChoix(
            "RésolutionsListe", "DernièreRésolution", Configuration.cbo_Résolution,
            [&](const std::string& Nom) { // without a skin any will do
                return Skin.empty() ? std::string() : FauteDeRésolution(App, Skin, Nom);
            });
    }
    ChargerConfigRoyaume(Globals.RoyaumeCourant);
    RemplirCommandes(App);
    for (const std::string& Royaume : Royaumes()) // a start that fails has written no link
        App.Bases.Open(App.Chemin("/" + RoyaumeFile(Royaume)));
    for (const std::string& Royaume : Royaumes())
        RelierAlchimie(App, Royaume);
}

// The files that hold the crafter's own things come in this version's form; one of a later version
// is told, since nothing will be stored in it.
void frm_Accueil::PréparerFichiersDuJoueur()
{
    for (const auto& [Fichier, Définition] :
         {std::pair{ConfigFile, &ConfigDefinition()}, std::pair{PanierFile, &PanierDefinition()}}) {
        const std::string Chemin = App.Chemin("/" + Fichier);
        BringUpToDate(Chemin, *Définition);
        if (FileVersionOf(Chemin).value_or(0) > FileVersion)
            App.Notice(Failure(FailureKind::DatabaseNewer, Fichier).Sentence());
    }
}

// All rows are read before a box changes: settings never belong half to one realm and half to
// another. A cell without a value stands for its design value, which is told.
bool frm_Accueil::ChargerConfigRoyaume(const std::string& Royaume)
{
    std::vector<std::pair<TextBox*, std::string>> Lus;
    bool Complet = true;
    {
        const Ouverture Base(App, Globals.CheminConfig);
        Recordset Lignes =
            PremierEnregistrement("SELECT " + frm_Configuration::ColonnesPour(Royaume) +
                                  " FROM ConfigRoyaume ORDER BY Num");
        const auto Lire = [&](TextBox* Case, const std::string& Colonne, const char* Défaut) {
            if (Case == nullptr)
                return;
            const bool Manque = Lignes.IsNull(Colonne);
            Complet = Complet && !Manque;
            if (Manque)
                App.Notice(Typeset("« " + ConfigFile + " » : il manque un réglage de " + Royaume +
                                   ", remplacé par " + Défaut + "."));
            Lus.emplace_back(Case, Manque ? Défaut : Lignes.Text(Colonne));
        };
        const auto& Configuration = App.Feuilles.Get<frm_Configuration>();
        for (const Métier& Each : Métiers) {
            const RéglagesArtisanat Artisanat = Configuration.Réglages(Each.Nom);
            Lire(Artisanat.Niveau, "Craft" + Royaume, "1");
            Lire(Artisanat.Marge, "Marges1" + Royaume, "0");
            Lire(Artisanat.Essai, "Marges2" + Royaume, "0");
            Lignes.MoveNext();
        }
    }
    for (const auto& [Case, Texte] : Lus) {
        Case->Text = Texte;
        Case->Stored = Texte;
    }
    return Complet;
}

std::vector<frm_Accueil::Écu> frm_Accueil::Écus()
{
    const auto Noms = Royaumes();
    return {{Noms[0], &img_Valdren}, {Noms[1], &img_Corvane}, {Noms[2], &img_Brenmoor}};
}

void frm_Accueil::MontrerÉcu(const Écu& Which, bool Choisi)
{
    Which.Bouclier->Picture = App.Images.LoadOr(
        App.Chemin("/Interface/Ecu" + Which.Royaume + (Choisi ? "Ombre" : "") + ".gif"));
    Which.Bouclier->Tip = "Royaume de " + Which.Royaume + (Choisi ? " (royaume choisi)" : "");
}

void frm_Accueil::RestaurerRoyaume()
{
    const std::string Dernier = PremierEnregistrement("SELECT Nom FROM DernierRoyaume").Text("Nom");
    const auto Tous = Écus();
    auto Choisi = std::ranges::find(Tous, Dernier, &Écu::Royaume);
    if (Choisi == Tous.end()) {
        Choisi = Tous.begin();
        App.Notice(Typeset("Le royaume « " + Dernier + " » n’existe pas : " + Choisi->Royaume +
                           " est choisi à sa place."));
    }
    Globals.RoyaumeCourant = Choisi->Royaume;
    MontrerÉcu(*Choisi, true);
    Globals.CheminRoyaume = App.Chemin("/" + RoyaumeFile(Globals.RoyaumeCourant));
}

std::string frm_Accueil::RestaurerChoix(const std::string& Liste, const std::string& Dernier,
                                        ComboBox& Box, const Examen& FauteDe)
{
    std::vector<std::string> Noms;
    for (Recordset Lignes = PremierEnregistrement("SELECT Nom FROM " + Liste + " ORDER BY Num");
         !Lignes.Eof(); Lignes.MoveNext())
        Box.AddItem(Noms.emplace_back(Lignes.Text("Nom")));
    std::string Choix = PremierEnregistrement("SELECT Nom FROM " + Dernier).Text("Nom");
    if (const std::string Faute = FauteDe(Choix); !Faute.empty()) {
        const auto Premier = std::ranges::find_if(
            Noms, [&](const std::string& Nom) { return Nom != Choix && FauteDe(Nom).empty(); });
        Choix = Premier == Noms.end() ? std::string() : *Premier;
        App.Notice(Typeset(Faute + "\n" + (Choix.empty() ? "Rien n’est" : "« " + Choix + " » est") +
                           " choisi à la place."));
    }
    Box.Text = Choix;
    Box.Stored = Choix;
    return Choix;
}

void frm_Accueil::txt_Skin_Change()
{
    Habiller([this] {
        if (txt_Résolution.Text != "")
            ChargerSkin(App, txt_Skin.Text, txt_Résolution.Text);
    });
}

void frm_Accueil::txt_Résolution_Change()
{
    Habiller([this] {
        if (txt_Skin.Text != "")
            ChargerSkin(App, txt_Skin.Text, txt_Résolution.Text);
        if (!Globals.CheminBaseSkin.empty()) // no skin at all: the definition's look stays
            AppliquerRésolutionPartout(App, txt_Résolution.Text);
    });
}

// A skin may be locked between the look at it and its use.
void frm_Accueil::Habiller(const std::function<void()>& Faire)
{
    try {
        Faire();
    } catch (const Failure& Given) {
        if (Given.Kind() != FailureKind::DatabaseLocked)
            throw;
        App.Notice(Given.Sentence());
    }
}

// A realm whose settings can't be read isn't chosen.
void frm_Accueil::ChoisirRoyaume(const std::string& Royaume)
{
    const bool Complet = ChargerConfigRoyaume(Royaume);
    for (const Écu& Each : Écus())
        if (Each.Royaume != Royaume && Each.Royaume == Globals.RoyaumeCourant)
            MontrerÉcu(Each, false);
    Globals.RoyaumeCourant = Royaume;
    Globals.CheminRoyaume = App.Chemin("/" + RoyaumeFile(Royaume));
    for (const Écu& Each : Écus())
        if (Each.Royaume == Royaume)
            MontrerÉcu(Each, true);
    if (!Complet)
        App.TellNotices();
}

void frm_Accueil::OuvrirArtisanat(const std::string& Nom, const std::vector<std::string>& AvecIcône)
{
    Screen& Atelier = App.Feuilles.Touch(Nom);
    PoserBannière(App, static_cast<Image&>(Atelier.Find("img_Bannière")));
    for (const std::string& Each : AvecIcône)
        PoserIcône(App, App.Feuilles.Touch(Each));
    Atelier.Show();
    Hide();
}

void frm_Accueil::cmd_Configuration_Click()
{
    auto& Configuration = App.Feuilles.Get<frm_Configuration>();
    PoserBannière(App, Configuration.img_Bannière);
    Configuration.Show();
}

void frm_Accueil::cmd_News_Click()
{
    Hide();
    App.Feuilles.Touch("frm_News").Show();
}

void frm_Accueil::cmd_Quitter_Click()
{
    try {
        EnregistrerRoyaume();
    } catch (const Failure& Given) { // a folder that can't be written must not keep anybody in
        App.MsgBox(Given.Sentence());
    }
    App.OnQuit();
}

void frm_Accueil::EnregistrerRoyaume()
{
    const Ouverture Base(App, Globals.CheminConfig);
    Recordset Ligne = PremierEnregistrement("SELECT Nom FROM DernierRoyaume");
    Ligne.Edit();
    Ligne.Set("Nom", Globals.RoyaumeCourant);
    Ligne.Update();
}

} // namespace orvane
