#pragma once

#include <QWidget>

namespace orvane {

// Says something to who listens to a screen reader, wherever the focus is. There is nothing to see.
class Announcer : public QWidget
{
  public:
    explicit Announcer(QWidget* Window);

    void Say(const QString& Words);
};

} // namespace orvane
