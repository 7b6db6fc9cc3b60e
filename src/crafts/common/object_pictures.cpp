#include "crafts/common/object_pictures.h"

namespace orvane {

namespace {

void Montrer(Application& App, const std::string& Dossier, const TextBox& Fichier,
             PictureControl& Où, const Picture& Sinon = {})
{
    Où.Picture =
        Fichier.Text == ""
            ? Sinon
            : App.Images.LoadOr(App.Chemin("/Objets/" + Dossier + "/" + Fichier.Text), Sinon);
}

Picture PasImage(Application& App)
{
    return App.Images.LoadOr(App.Chemin("/Objets/Commun/PasImage.gif"));
}

} // namespace

void MontrerIcôneRoyaume(Application& App, const TextBox& Fichier, PictureControl& Icône)
{
    Montrer(App, App.Globals.RoyaumeCourant + "/Icônes", Fichier, Icône);
}

void MontrerIcôneCommune(Application& App, const TextBox& Fichier, PictureControl& Icône)
{
    Montrer(App, "Commun", Fichier, Icône);
}

void MontrerIcôneOuPasImage(Application& App, const TextBox& Fichier, PictureControl& Icône)
{
    Montrer(App, "Commun", Fichier, Icône, PasImage(App));
}

void MontrerImageObjet(Application& App, const TextBox& Fichier, PictureControl& Image)
{
    Montrer(App, App.Globals.RoyaumeCourant, Fichier, Image, PasImage(App));
}

} // namespace orvane
