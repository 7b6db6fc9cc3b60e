#pragma once

#include "toolkit/picture.h"

#include <QIcon>
#include <QImage>
#include <QPixmap>
#include <QSize>

namespace orvane {

// A picture of the model, decoded when it is first to be seen. Where more pixels are asked for than
// it has, on dense screens and in large windows, the file "name@2x.ext" beside it is taken when
// there is one; in place of a GIF, the PNG of its name.
class PictureSource
{
  public:
    enum class Fit { Whole, KeepingProportions };

    void Set(const Picture& NewPicture);

    // The picture for a box of that size, null when neither it nor what is seen in its place can be
    // decoded. Keeping proportions makes it smaller at need, but never larger than its file is
    // sharp.
    const QPixmap& For(QSize Box, double Density, Fit How);

  private:
    QPixmap Scaled(QSize Box, double Density, Fit How) const;

    Picture TheFile;
    QPixmap Made;
    QSize MadeFor;
    double MadeDensity = 0;
};

// All sizes that the picture's file holds; null when it can't be decoded.
QIcon IconOf(const Picture& Given);

} // namespace orvane
