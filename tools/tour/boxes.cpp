#include "tour/boxes.h"

#include "tour/camera.h"
#include "tour/hands.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace orvane::tour {

namespace {

constexpr int GlanceEvery = 20; // milliseconds

QString WordsOf(const QDialog& Box)
{
    QStringList Result;
    for (const QLabel* Each : Box.findChildren<QLabel*>())
        if (Each->isVisible() && !Each->text().isEmpty())
            Result << Each->text();
    return Result.join(u' ');
}

} // namespace

Boxes::Boxes(Camera& TheCamera) : TheCamera(TheCamera)
{
    QObject::connect(&Glances, &QTimer::timeout, &Glances, [this] { Look(); });
    Glances.start(GlanceEvery);
}

void Boxes::Complain(const QString& Text)
{
    if (Complaint.isEmpty())
        Complaint = Text;
}

void Boxes::Check()
{
    if (!Awaited.empty())
        Complain(
            QStringLiteral("no box with the words « %1 » came up").arg(Awaited.front().Target));
    if (!Complaint.isEmpty())
        throw CannotGoOn(Complaint);
}

void Boxes::Look()
{
    auto* Box = dynamic_cast<QDialog*>(QApplication::activeModalWidget());
    if (IsBusy || Box == nullptr || !Box->isVisible())
        return;
    IsBusy = true;
    try { // nothing must travel through the toolkit
        Answer(*Box);
    } catch (const std::exception& Given) {
        Complain(QString::fromStdString(Given.what()));
    }
    if (Box == QApplication::activeModalWidget())
        Box->reject();
    IsBusy = false;
}

void Boxes::Answer(QDialog& Box)
{
    if (Awaited.empty())
        throw CannotGoOn(QStringLiteral("a box that nobody expected: %1").arg(WordsOf(Box)));
    const Step Await = Awaited.front();
    Awaited.pop_front();
    if (!WordsOf(Box).contains(Await.Target))
        throw CannotGoOn(
            QStringLiteral("the box doesn't say « %1 », but: %2").arg(Await.Target, WordsOf(Box)));
    if (!QTest::qWaitForWindowActive(&Box))
        throw CannotGoOn(QStringLiteral("the box doesn't get the keyboard: %1").arg(Await.Target));
    Give(Box, Await);
}

void Boxes::Give(QDialog& Box, const Step& Await) const
{
    if (auto* Field = Box.findChild<QLineEdit*>())
        Hands::TypeInto(*Field, Await.Text);
    else if (!Await.Text.isEmpty())
        throw CannotGoOn(QStringLiteral("the box has no field to type in: %1").arg(Await.Target));
    if (!Await.Picture.isEmpty())
        TheCamera.Photograph(Await.Picture);
    Hands::Click(*Box.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok));
}

} // namespace orvane::tour
