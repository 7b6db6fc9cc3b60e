#include "app/queries.h"

namespace orvane {

Ouverture::Ouverture(Application& App, Slot<Database>& Base, const std::string& Chemin) : Base(Base)
{
    Base = App.Bases.Open(Chemin);
}

Recordset& OuvrirEnregistrements(Variables& Globals)
{
    return Globals.Enregistrements = Globals.BaseDonnées->OpenRecordset(Globals.TexteSQL);
}

Recordset& PremierEnregistrement(Variables& Globals)
{
    Recordset& Lignes = OuvrirEnregistrements(Globals);
    Lignes.MoveFirst();
    return Lignes;
}

Recordset& OuvrirEnregistrements2(Variables& Globals)
{
    return Globals.Enregistrements2 = Globals.BaseDonnées2->OpenRecordset(Globals.TexteSQL);
}

void RemplirListe(Variables& Globals, ListControl& Liste, std::string_view Colonne)
{
    RemplirListe(OuvrirEnregistrements(Globals), Liste, Colonne);
    Globals.Enregistrements.Empty();
}

void RemplirListe(Recordset& Lignes, ListControl& Liste, std::string_view Colonne)
{
    for (; !Lignes.Eof(); Lignes.MoveNext())
        if (!Lignes.IsNull(Colonne))
            Liste.AddItem(Lignes.Text(Colonne));
}

} // namespace orvane
