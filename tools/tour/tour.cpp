#include "tour/tour.h"

#include "scenario/lines.h"
#include "tour/names.h"

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

scenario::Script StopsOf(const char* File)
{
    return scenario::ReadScript(std::filesystem::path(ORVANE_STOPS) / File);
}

} // namespace

void PlayAll(WindowScene& Scene, const scenario::Script& Script)
{
    scenario::Stage Stage(
        Scene, Script.TheViews,
        [](const scenario::Place&, const std::string& Wanted, const std::string& Seen) {
            throw scenario::CannotGoOn("expected " + Wanted + ", seen " + Seen);
        });
    for (const scenario::Scenario& Each : Script.Scenarios)
        Stage.Play(Each);
}

Tour::Tour(WindowScene& Scene)
    : Scene(Scene),
      Look(StopsOf("apparence.txt")),
      Stops(StopsOf("visite.txt")),
      Boxes(StopsOf("boîtes.txt")),
      Keys(StopsOf("clavier.txt"))
{
}

void Tour::Walk(const QStringList& Filter)
{
    ReadLooks();
    QStringList Unknown = Filter;
    const QStringList Skins = Chosen(AllSkins, Unknown);
    const QStringList Resolutions = Chosen(AllResolutions, Unknown);
    if (!Unknown.isEmpty())
        throw Because(QStringLiteral("neither skin nor resolution: %1; there are: %2")
                          .arg(Unknown.join(QStringLiteral(", ")),
                               (AllSkins + AllResolutions).join(QStringLiteral(", "))));
    for (const QString& Skin : Skins)
        for (const QString& Resolution : Resolutions) {
            Scene.LookAtRings(Resolution == Resolutions.front()); // the same at every size
            Visit(Skin, Resolution);
        }
    if (Filter.isEmpty())
        for (const QString& Layouts : Skins)
            for (const QString& Skin : Skins)
                if (Skin != Layouts)
                    VisitMixed(Skin, Layouts, Resolutions.front());
    Scene.Click("cmd_Quitter");
    if (Scene.Ends() == 0)
        throw scenario::CannotGoOn("the program doesn't quit");
}

void Tour::ReadLooks()
{
    const auto Listed = [this](const std::string& List) {
        QStringList Names;
        for (const std::string& Each : Scene.Entries(List))
            Names << QString::fromStdString(Each);
        return Names;
    };
    Scene.Click("cmd_Configuration");
    AllSkins = Listed("cbo_Skin");
    AllResolutions = Listed("cbo_Résolution");
    Scene.Click("cmd_Validation");
}

void Tour::Visit(const QString& Skin, const QString& Resolution)
{
    ChangeLook(Skin, OtherThan(Resolution, AllResolutions));
    ChangeLook(Skin, Resolution);
    Play(FileNamePart(Skin), Resolution);
}

// One skin's pictures on the layouts, and so on the colours, of another.
void Tour::VisitMixed(const QString& Skin, const QString& Layouts, const QString& Resolution)
{
    ChangeLook(Layouts, OtherThan(Resolution, AllResolutions));
    ChangeLook(Layouts, Resolution);
    ChangeLook(Skin, Resolution);
    Play(FileNamePart(Skin) + QStringLiteral("-sur-") + FileNamePart(Layouts), Resolution);
}

void Tour::Play(const QString& Look, const QString& Resolution)
{
    Scene.Photographer().BeginLook(Look + u'-' + FileNamePart(Resolution), SizeOf(Resolution));
    try {
        PlayAll(Scene, Stops);
        if (!SeenOnce)
            for (const scenario::Script* Each : {&Boxes, &Keys})
                PlayAll(Scene, *Each);
    } catch (const scenario::CannotGoOn& Given) {
        throw Because(QStringLiteral("%1, after picture %2: %3")
                          .arg(Look, Scene.Photographer().Last(), QString::fromUtf8(Given.what())));
    }
    SeenOnce = true;
}

void Tour::ChangeLook(const QString& Skin, const QString& Resolution)
{
    scenario::Script Filled = Look;
    for (scenario::Scenario& Each : Filled.Scenarios)
        for (scenario::Step& Step : Each.Steps) {
            Step.Text = scenario::Replaced(Step.Text, "<skin>", Skin.toStdString());
            Step.Text = scenario::Replaced(Step.Text, "<résolution>", Resolution.toStdString());
        }
    PlayAll(Scene, Filled);
}

} // namespace orvane::tour
