#include "tour/stops.h"

namespace orvane::tour {

using enum Deed;

// One step a line, also where several would fit.
// clang-format off

Script HomeAndSettings()
{
    return {
        {On, "frm_Accueil"},
        {Click, "img_Valdren"}, // the other stops name entries of its lists
        {Photo, "accueil"},
        {Click, "cmd_Configuration"},
        {On, "frm_Configuration"},
        {Photo, "configuration"},
        {Click, "cmd_Validation"},
        {On, "frm_Accueil"},
    };
}

Script Realms()
{
    return {
        {Click, "img_Corvane"},
        {Photo, "accueil-corvane"},
        {Click, "img_Brenmoor"},
        {Photo, "accueil-brenmoor"},
        {Click, "img_Valdren"},
        {Photo, "accueil-valdren"},
    };
}

// clang-format on

Script ChangeLook(const QString& Skin, const QString& Resolution)
{
    return {
        {On, "frm_Accueil"},
        {Click, "cmd_Configuration"},
        {On, "frm_Configuration"},
        {Pick, "cbo_Skin", Skin},
        {Pick, "cbo_Résolution", Resolution},
        {Click, "cmd_Validation"}, // lays every screen out
        {On, "frm_Accueil"},
    };
}

Script News()
{
    return {
        {Click, "cmd_News"},
        {On, "frm_News"},
        {Photo, "nouvelles"},
        {Click, "cmd_Détails"},
        {On, "frm_Statut"},
        {See, "lbl_ValForge !lbl_CorForge !lbl_BreForge"},
        {Photo, "statut-valdren"},
        {Click, "cmd_Corvane"},
        {See, "!lbl_ValForge lbl_CorForge !lbl_BreForge"},
        {Photo, "statut-corvane"},
        {Click, "cmd_Brenmoor"},
        {See, "!lbl_ValForge !lbl_CorForge lbl_BreForge"},
        {Photo, "statut-brenmoor"},
        {Click, "cmd_Retour"},
        {On, "frm_News"},
        {Click, "cmd_Retour"},
        {On, "frm_Accueil"},
    };
}

} // namespace orvane::tour
