#pragma once

#include "app/feuille.h"

#include <string>

namespace orvane {

// How far each craft has been entered, realm by realm. Reading another realm's status doesn't
// change the realm of the run.
class frm_Statut : public Feuille
{
  public:
    static constexpr auto ScreenName = "frm_Statut";

    explicit frm_Statut(Application& App);

    void Activate() override; // switches to the realm of the run

    Shape NAMED(shp);
    Button NAMED(cmd_Valdren);
    Button NAMED(cmd_Corvane);
    Button NAMED(cmd_Brenmoor);
    Label NAMED(lbl_ValArmurerie);
    Label NAMED(lbl_ValCouture);
    Label NAMED(lbl_ValEmpennage);
    Label NAMED(lbl_ValForge);
    Label NAMED(lbl_ValArcanes);
    Label NAMED(lbl_CorArmurerie);
    Label NAMED(lbl_CorCouture);
    Label NAMED(lbl_CorEmpennage);
    Label NAMED(lbl_CorForge);
    Label NAMED(lbl_CorArcanes);
    Label NAMED(lbl_BreArmurerie);
    Label NAMED(lbl_BreCouture);
    Label NAMED(lbl_BreEmpennage);
    Label NAMED(lbl_BreForge);
    Label NAMED(lbl_BreArcanes);
    Label NAMED(lbl_Alchimie); // common to the realms
    Button NAMED(cmd_Retour);

  private:
    struct État
    {
        Label* Étiquette;
        const char* Texte;
    };

    // A realm's button and its five labels, from top to bottom.
    struct Volet
    {
        const char* Royaume;
        Button* Bouton;
        std::vector<État> États;
    };

    std::vector<Volet> Volets();
    void Définir();
    void MontrerRoyaume(const std::string& Royaume);
};

} // namespace orvane
