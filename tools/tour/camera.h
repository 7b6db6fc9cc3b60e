#pragma once

#include "tour/eyes.h"

#include <QDir>
#include <QSize>

class QImage;

namespace orvane::tour {

// Keeps pictures of what the eyes look at.
class Camera
{
  public:
    Camera(const Eyes& TheEyes, const QDir& Pictures) : TheEyes(TheEyes), Pictures(Pictures) {}

    // Pictures from here on are of that look, whose windows fit into that resolution.
    void BeginLook(const QString& Prefix, QSize NewResolution);
    void Photograph(const QString& Stop);

    int Count() const { return Total; }
    const QString& Last() const { return LastFile; } // name of the last picture's file

  private:
    void CheckSize() const;
    QImage Seen() const;

    const Eyes& TheEyes;
    QDir Pictures;
    QString Look;
    QSize Resolution;
    QString LastFile = QStringLiteral("none");
    int Number = 0; // of the look's last picture
    int Total = 0;
};

} // namespace orvane::tour
