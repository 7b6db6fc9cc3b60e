#pragma once

#include "scenario/script.h"

#include <QString>
#include <QTimer>

#include <deque>

class QDialog;

namespace orvane::tour {

class Camera;

// Answers the boxes that come up in the middle of a click, which waits for them. A box that nobody
// expects is closed and remembered as a complaint.
class Boxes
{
  public:
    explicit Boxes(Camera& TheCamera);

    // One after the other.
    void Await(const std::vector<scenario::AwaitedBox>& Boxes)
    {
        Awaited.assign(Boxes.begin(), Boxes.end());
    }

    // CannotGoOn tells what was wrong with the boxes up to now: an unexpected one, or one that
    // never came.
    void Check();

    void Complain(const QString& Text);

  private:
    void Look();
    void Answer(QDialog& Box);
    void Give(QDialog& Box, const scenario::AwaitedBox& Wanted) const;

    Camera& TheCamera;
    QTimer Glances;
    std::deque<scenario::AwaitedBox> Awaited;
    bool IsBusy = false;
    QString Complaint;
};

} // namespace orvane::tour
