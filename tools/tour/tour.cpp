#include "tour/tour.h"

#include "tour/names.h"
#include "tour/stops.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace orvane::tour {

namespace {

// What a filter leaves of a list: everything, if it names nothing of it.
QStringList Chosen(const QStringList& Names, QStringList& Filter)
{
    QStringList Result;
    for (const QString& Each : Names)
        if (Filter.removeIf([&](const QString& Given) {
                return FileNamePart(Given) == FileNamePart(Each);
            }) > 0)
            Result << Each;
    return Result.isEmpty() ? Names : Result;
}

QSize SizeOf(const QString& Resolution)
{
    static const QRegularExpression Numbers(QStringLiteral("(\\d+)\\s*x\\s*(\\d+)"));
    const QRegularExpressionMatch Found = Numbers.match(Resolution);
    return {Found.captured(1).toInt(), Found.captured(2).toInt()};
}

// A change of the skin alone leaves every control where it is, so each look is reached from another
// resolution.
QString OtherThan(const QString& One, const QStringList& Names)
{
    const auto Found =
        std::ranges::find_if(Names, [&](const QString& Each) { return Each != One; });
    return Found == Names.end() ? One : *Found;
}

} // namespace

void Tour::Walk(const QStringList& Filter)
{
    ReadLooks();
    QStringList Unknown = Filter;
    const QStringList Skins = Chosen(AllSkins, Unknown);
    const QStringList Resolutions = Chosen(AllResolutions, Unknown);
    if (!Unknown.isEmpty())
        throw CannotGoOn(QStringLiteral("neither skin nor resolution: %1; there are: %2")
                             .arg(Unknown.join(QStringLiteral(", ")),
                                  (AllSkins + AllResolutions).join(QStringLiteral(", "))));
    for (const QString& Skin : Skins)
        for (const QString& Resolution : Resolutions)
            Visit(Skin, Resolution);
    Do({{Deed::Click, "cmd_Quitter"}});
}

void Tour::ReadLooks()
{
    Do({{Deed::On, "frm_Accueil"},
        {Deed::Click, "cmd_Configuration"},
        {Deed::On, "frm_Configuration"}});
    AllSkins = TheHands.Entries(QStringLiteral("cbo_Skin"));
    AllResolutions = TheHands.Entries(QStringLiteral("cbo_Résolution"));
    Do({{Deed::Click, "cmd_Validation"}});
}

void Tour::Visit(const QString& Skin, const QString& Resolution)
{
    Place = Skin + QStringLiteral(", ") + Resolution;
    TheCamera.BeginLook(FileNamePart(Skin) + u'-' + FileNamePart(Resolution), SizeOf(Resolution));
    for (const QString& Each : {OtherThan(Resolution, AllResolutions), Resolution})
        Do(ChangeLook(QRegularExpression::escape(Skin), QRegularExpression::escape(Each)));
    for (const Script& Each : {HomeAndSettings(), ManualCrafts(), Archery(), LegendaryWeapons(),
                               Alchemy(), Gems(), SecondaryCrafts(), Basket(), News(), Realms()})
        Do(Each);
    if (!SeenOnce)
        Do(BoxesAndLists());
    SeenOnce = true;
}

void Tour::Do(const Script& Steps)
{
    for (const Step& Each : Steps)
        Do(Each);
}

void Tour::Do(const Step& Which)
{
    try {
        Try(Which);
        QCoreApplication::processEvents();
        if (Which.What != Deed::Await)
            TheBoxes.Check();
    } catch (const CannotGoOn& Given) {
        throw CannotGoOn(QStringLiteral("%1, after picture %2: %3: %4")
                             .arg(Place, TheCamera.Last(), Told(Which), QString(Given.what())));
    }
}

void Tour::Try(const Step& Which)
{
    switch (Which.What) {
    case Deed::On:
        return TheEyes.TurnTo(Which.Target);
    case Deed::Click:
        return TheHands.Click(Which.Target);
    case Deed::Item:
        return TheHands.ClickItem(Which.Target, Which.Text);
    case Deed::Pick:
        return TheHands.Pick(Which.Target, Which.Text);
    case Deed::Search:
        return Search(Which);
    case Deed::Type:
        return TheHands.Type(Which.Target, Which.Text);
    case Deed::Open:
        return TheHands.Open(Which.Target);
    case Deed::See:
        return TheEyes.Expect(Which.Target);
    case Deed::Wrong:
        return TheEyes.ExpectWrong(Which.Target);
    case Deed::Await:
        return TheBoxes.Expect(Which);
    case Deed::Photo:
        TheHands.PutMouseAside();
        return TheCamera.Photograph(Which.Target);
    }
}

void Tour::Search(const Step& Which)
{
    const auto Count = TheHands.Entries(Which.Target).size();
    for (int Row = 0; Row < Count; ++Row) {
        TheHands.Pick(Which.Target, Row);
        if (TheEyes.SeesAll(Which.Text))
            return;
    }
    throw CannotGoOn(QStringLiteral("none of the %1 entries shows that").arg(Count));
}

} // namespace orvane::tour
