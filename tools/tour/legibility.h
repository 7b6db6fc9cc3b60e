#pragma once

#include <QString>

#include <map>

class QWidget;

namespace orvane::tour {

// Reads the words in windows as eyes do, from their pixels.
class Legibility
{
  public:
    // Every visible word of the window. Because() when one is cut short, or stands out too little
    // from its ground.
    void Check(QWidget& Window);

    // The least contrast seen in each window so far, a line for each.
    QString Table() const;

  private:
    struct Least
    {
        double Contrast = 21;
        QString Where;
    };
    std::map<QString, Least> Screens;
};

} // namespace orvane::tour
