#pragma once

#include "tour/window_scene.h"

#include <QStringList>

namespace orvane::tour {

// A visitor who walks through the program look by look, as the scenarios of tools/tour/stops tell.
class Tour
{
  public:
    explicit Tour(WindowScene& Scene);

    // All looks that the settings screen offers, or those that the names in Filter leave: a skin, a
    // resolution, in any order; then the way out. CannotGoOn at the first step that can't be done
    // or shows something else.
    void Walk(const QStringList& Filter);

  private:
    void ReadLooks();
    void Visit(const QString& Skin, const QString& Resolution);
    void VisitMixed(const QString& Skin, const QString& Layouts, const QString& Resolution);
    void Play(const QString& Look, const QString& Resolution); // all stops, with pictures
    void ChangeLook(const QString& Skin, const QString& Resolution);

    WindowScene& Scene;
    scenario::Script Look, Stops, Boxes, Keys;
    QStringList AllSkins;
    QStringList AllResolutions;
    bool SeenOnce = false;
};

// Plays scenarios one after the other in the present run. CannotGoOn at the first difference.
void PlayAll(WindowScene& Scene, const scenario::Script& Script);

} // namespace orvane::tour
