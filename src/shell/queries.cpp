#include "shell/queries.h"

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
    for (Recordset& Lignes = OuvrirEnregistrements(Globals); !Lignes.Eof(); Lignes.MoveNext())
        if (!Lignes.IsNull(Colonne))
            Liste.AddItem(Lignes.Text(Colonne));
    Globals.Enregistrements.Empty();
}

} // namespace orvane
