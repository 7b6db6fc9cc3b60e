#include "app/queries.h"

namespace orvane {

Ouverture::Ouverture(Application& App, const std::string& Chemin)
    : Ouverture(App, App.Globals.BaseDonnées, Chemin)
{
}

Ouverture::Ouverture(Application& App, Slot<Database>& Base, const std::string& Chemin) : Base(Base)
{
    Base = App.Bases.Open(Chemin);
}

Recordset OuvrirEnregistrements(Variables& Globals, const std::string& Requête)
{
    Globals.TexteSQL = Requête;
    Globals.Enregistrements = Globals.BaseDonnées->OpenRecordset(Globals.TexteSQL);
    return Globals.Enregistrements.Take();
}

Recordset PremierEnregistrement(Variables& Globals, const std::string& Requête)
{
    Recordset Lignes = OuvrirEnregistrements(Globals, Requête);
    Lignes.MoveFirst();
    return Lignes;
}

Recordset OuvrirEnregistrements2(Variables& Globals, const std::string& Requête)
{
    Globals.TexteSQL = Requête;
    Globals.Enregistrements2 = Globals.BaseDonnées2->OpenRecordset(Globals.TexteSQL);
    return Globals.Enregistrements2.Take();
}

void AjouterÀLaListe(Recordset Lignes, ListControl& Liste, std::string_view Colonne)
{
    for (; !Lignes.Eof(); Lignes.MoveNext())
        if (!Lignes.IsNull(Colonne))
            Liste.AddItem(Lignes.Text(Colonne));
}

} // namespace orvane
