#include "tour/legibility.h"

#include "tour/names.h"
#include "view/contrast.h"
#include "view/control_view.h"
#include "view/telling.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QPixmap>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace orvane::tour {

namespace {

// A box without its edge, which isn't its ground.
QRect Inside(const QRect& Box)
{
    const int Edge = std::min(4, Box.height() / 6);
    return Box.adjusted(Edge, Edge, -Edge, -Edge);
}

// The words that a widget shows, and the place where.
struct Words
{
    QString Text;
    QRect Place; // within the widget
};

std::vector<Words> WordsOf(const QWidget& Which)
{
    if (const auto* Label = qobject_cast<const QLabel*>(&Which))
        return {{Label->text(), Label->rect()}};
    if (const auto* Line = qobject_cast<const QLineEdit*>(&Which))
        return {{Line->text(), Inside(Line->rect())}};
    std::vector<Words> Result;
    if (const auto* Bar = qobject_cast<const QMenuBar*>(&Which))
        for (QAction* Each : Bar->actions())
            if (Each->isVisible())
                Result.push_back({Each->text(), Bar->actionGeometry(Each)});
    if (const auto* List = qobject_cast<const QListView*>(&Which))
        for (int Row = 0; Row < List->model()->rowCount(); ++Row) {
            const QModelIndex Index = List->model()->index(Row, 0);
            const QRect Place = List->visualRect(Index);
            if (List->viewport()->rect().contains(Place))
                Result.push_back(
                    {Index.data().toString(),
                     Place.translated(List->viewport()->pos()).adjusted(1, 1, -1, -1)});
        }
    return Result;
}

// What stands out most against what there is most of.
double ContrastIn(const QImage& Picture)
{
    std::vector<QColor> Pixels;
    if (Picture.isNull())
        throw Because(QStringLiteral("words without a place"));
    for (int Y = 0; Y < Picture.height(); ++Y)
        for (int X = 0; X < Picture.width(); ++X)
            Pixels.push_back(Picture.pixelColor(X, Y));
    const auto Middle = Pixels.begin() + std::ssize(Pixels) / 2;
    std::ranges::nth_element(Pixels, Middle, {},
                             [](const QColor& Each) { return Contrast(Each, QColor(Qt::black)); });
    const QColor Ground = *Middle;
    double Best = 1;
    for (const QColor& Each : Pixels)
        Best = std::max(Best, Contrast(Each, Ground));
    return Best;
}

void RefuseCut(const QWidget& Which, const Words& Given)
{
    const bool IsLine = qobject_cast<const QLineEdit*>(&Which) != nullptr;
    if (!IsLine && qobject_cast<const QLabel*>(&Which) == nullptr)
        return;
    const int Wide = Which.width();
    const QFontMetrics In = Which.fontMetrics();
    const bool Fits =
        In.horizontalAdvance(Given.Text) <= Wide ||
        (!IsLine && In.boundingRect(Which.rect(), Qt::TextWordWrap, Given.Text).height() <=
                        Which.height() + In.descent());
    if (!Fits)
        throw Because(
            QStringLiteral("« %1 » is cut short on %2").arg(Given.Text, ControlOf(&Which)));
}

} // namespace

void Legibility::Check(QWidget& Window)
{
    const QImage Seen = Window.grab().toImage();
    const double Density = Seen.devicePixelRatio();
    Least& Worst = Screens[Window.objectName()];
    for (const QWidget* Each : Window.findChildren<QWidget*>()) {
        const auto* View = dynamic_cast<const ControlView*>(Each);
        if (!Each->isVisible() || (View != nullptr && IsEmptyRow(View->Model())))
            continue;
        for (const Words& Given : WordsOf(*Each)) {
            if (Given.Text.trimmed().isEmpty())
                continue;
            RefuseCut(*Each, Given);
            const QRect Place(Each->mapTo(&Window, Given.Place.topLeft()), Given.Place.size());
            const QRect Pixels(Place.topLeft() * Density, Place.size() * Density);
            const double Found = ContrastIn(Seen.copy(Pixels.intersected(Seen.rect())));
            if (Found < Worst.Contrast)
                Worst = {Found, ControlOf(Each) + QStringLiteral(" « ") + Given.Text +
                                    QStringLiteral(" »")};
            if (Found < LeastContrast && Density == 1) // else strokes are smaller than a pixel
                throw Because(QStringLiteral("« %1 » on %2 stands out by %3 only")
                                  .arg(Given.Text, ControlOf(Each))
                                  .arg(Found, 0, 'f', 2));
        }
    }
}

QString Legibility::Table() const
{
    QString Result;
    for (const auto& [Screen, Worst] : Screens)
        Result += QStringLiteral("%1\t%2\t%3\n")
                      .arg(Screen)
                      .arg(Worst.Contrast, 0, 'f', 1)
                      .arg(Worst.Where);
    return Result;
}

} // namespace orvane::tour
