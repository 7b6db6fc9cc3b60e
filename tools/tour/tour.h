#pragma once

#include "tour/boxes.h"
#include "tour/camera.h"
#include "tour/hands.h"

#include <QStringList>

namespace orvane::tour {

// A person with eyes and hands, who walks through the program look by look.
class Tour
{
  public:
    explicit Tour(const QDir& Pictures) : TheCamera(TheEyes, Pictures) {}

    // All looks that the settings screen offers, or those that the names in Filter leave: a skin, a
    // resolution, in any order. Throws CannotGoOn at the first step that can't be done.
    void Walk(const QStringList& Filter);

    void Do(const Script& Steps);

    // Something that went wrong without stopping anything; the step in hand fails by it.
    void Complain(const QString& Text) { TheBoxes.Complain(Text); }

    int Pictures() const { return TheCamera.Count(); }

  private:
    void ReadLooks();
    void Visit(const QString& Skin, const QString& Resolution);
    void Do(const Step& Which);
    void Try(const Step& Which);
    void Search(const Step& Which);

    Eyes TheEyes;
    Camera TheCamera;
    Hands TheHands{TheEyes};
    Boxes TheBoxes{TheCamera};
    QStringList AllSkins;
    QStringList AllResolutions;
    QString Place = QStringLiteral("at the start"); // the look and the last picture, for messages
    bool SeenOnce = false;
};

} // namespace orvane::tour
