#pragma once

#include "app/application.h"
#include "toolkit/controls.h"
#include "toolkit/text_box.h"

// Pictures that follow a hidden box with a file name, on every craft screen. The empty text leaves
// nothing to see; a file that is missing is told later.
namespace orvane {

// An object's icon, by realm: "Objets/<Realm>/Icônes/<text>".
void MontrerIcôneRoyaume(Application& App, const TextBox& Fichier, PictureControl& Icône);

// An icon that the realms share: "Objets/Commun/<text>".
void MontrerIcôneCommune(Application& App, const TextBox& Fichier, PictureControl& Icône);

// The same; without one, the placeholder.
void MontrerIcôneOuPasImage(Application& App, const TextBox& Fichier, PictureControl& Icône);

// An object's large picture, "Objets/<Realm>/<text>"; without one, the placeholder.
void MontrerImageObjet(Application& App, const TextBox& Fichier, PictureControl& Image);

} // namespace orvane
