#include "tour/boxes.h"

#include "scenario/stage.h"
#include "tour/camera.h"
#include "tour/hands.h"
#include "tour/names.h"

#include <QApplication>
#include <QColorDialog>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <utility>

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
            QStringLiteral("no box came up: %1").arg(QString::fromStdString(Awaited.front().Text)));
    if (!Complaint.isEmpty())
        throw Because(std::exchange(Complaint, {}));
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
        throw Because(QStringLiteral("a box that nobody expected: %1").arg(WordsOf(Box)));
    const scenario::AwaitedBox Wanted = Awaited.front();
    Awaited.pop_front();
    if (!scenario::IsWanted(WordsOf(Box).toStdString(), Wanted.Text))
        throw Because(QStringLiteral("the box doesn't say « %1 », but: %2")
                          .arg(QString::fromStdString(Wanted.Text), WordsOf(Box)));
    if (!QTest::qWaitForWindowActive(&Box))
        throw Because(QStringLiteral("the box doesn't get the keyboard: %1").arg(WordsOf(Box)));
    Give(Box, Wanted);
}

void Boxes::Give(QDialog& Box, const scenario::AwaitedBox& Wanted) const
{
    const QString Answer = QString::fromStdString(Wanted.Answer);
    if (auto* Colours = dynamic_cast<QColorDialog*>(&Box))
        Colours->setCurrentColor(QColor(Answer));
    else if (auto* Field = Box.findChild<QLineEdit*>())
        Hands::TypeInto(*Field, Answer);
    else if (!Answer.isEmpty())
        throw Because(QStringLiteral("the box has no field to type in: %1").arg(WordsOf(Box)));
    if (!Wanted.Photo.empty())
        TheCamera.Photograph(QString::fromStdString(Wanted.Photo));
    const bool Cancels = Wanted.Kind != "boîte" && Answer.isEmpty();
    QTest::keyClick(&Box, Cancels ? Qt::Key_Escape : Qt::Key_Return);
}

} // namespace orvane::tour
