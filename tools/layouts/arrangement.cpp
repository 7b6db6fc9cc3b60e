#include "layouts/arrangement.h"

#include "base/number_text.h"
#include "tables/tsv.h"
#include "toolkit/placing.h"

#include <algorithm>

namespace orvane::tools {

namespace {

Placement Defined(const Control& Which)
{
    return {double(Which.Left), double(Which.Top), double(Which.Width), double(Which.Height), 1};
}

bool Holds(const Control& Panel, const Control& Which)
{
    const Placement Outer = Defined(Panel);
    const Placement Inner = Defined(Which);
    const double X = Inner.Left + Inner.Width / 2;
    const double Y = Inner.Top + Inner.Height / 2;
    return Outer.Left <= X && X <= Outer.Left + Outer.Width && Outer.Top <= Y &&
           Y <= Outer.Top + Outer.Height;
}

std::optional<double> NumberIn(const std::string& Cell, const std::string& Place)
{
    if (Cell == "-")
        return std::nullopt;
    const auto Number = DoubleFromText(Cell);
    if (!Number)
        throw SourceError(Place + " : nombre « " + Cell + " » illisible");
    return Number;
}

} // namespace

Arrangement::Arrangement(const std::filesystem::path& File)
{
    for (const TsvTable::Row& Line : ReadTsv(File).Rows) {
        const auto Twips = [&](std::size_t Column) {
            const auto Pixels = NumberIn(Line.Cells.at(Column), Line.Place);
            return Pixels ? std::optional(*Pixels * TwipsPerPixel) : std::nullopt;
        };
        Screens[Line.Cells.at(0)].push_back(
            {Line.Cells.at(1), Twips(2), Twips(3), Twips(4), Twips(5),
             NumberIn(Line.Cells.at(6), Line.Place).value_or(100) / 100});
    }
}

const Arrangement::Row* Arrangement::Find(const std::string& Screen, const std::string& Name) const
{
    const auto Rows = Screens.find(Screen);
    if (Rows == Screens.end())
        return nullptr;
    const auto Found = std::ranges::find(Rows->second, Name, &Row::Name);
    return Found == Rows->second.end() ? nullptr : &*Found;
}

// The first in the table's order, where panels take turns in one place.
const Arrangement::Row* Arrangement::PanelUnder(const Control& Which) const
{
    const auto Rows = Screens.find(Which.Owner().Name());
    if (Rows == Screens.end() || Which.Kind() == ControlKind::Shape)
        return nullptr;
    const auto Found = std::ranges::find_if(Rows->second, [&](const Row& Each) {
        const Control* Panel = Which.Owner().FindOrNull(Each.Name);
        return Panel != nullptr && Panel->Kind() == ControlKind::Shape && Holds(*Panel, Which);
    });
    return Found == Rows->second.end() ? nullptr : &*Found;
}

Placement Arrangement::Moved(const Placement& From, const Row& By)
{
    return {By.X.value_or(From.Left), By.Y.value_or(From.Top),
            By.Wide.value_or(From.Width * By.Factor), By.High.value_or(From.Height * By.Factor),
            By.Factor};
}

Placement Arrangement::Of(const Screen& Which) const
{
    const Placement Size{0, 0, double(Which.Width), double(Which.Height), 1};
    const Row* Own = Find(Which.Name(), Which.Name());
    if (Own == nullptr)
        return Size;
    Placement Result = Moved(Size, {{}, {}, {}, Own->Wide, Own->High, 1});
    Result.Width *= Own->Factor;
    Result.Height *= Own->Factor;
    Result.Factor = Own->Factor;
    return Result;
}

Placement Arrangement::Of(const Control& Which) const
{
    Placement Result = Defined(Which);
    if (const Row* Own = Find(Which.Owner().Name(), Which.Name())) {
        Result = Moved(Result, *Own);
    } else if (const Row* Under = PanelUnder(Which)) {
        const Placement From = Defined(*Which.Owner().FindOrNull(Under->Name));
        const Placement To = Moved(From, *Under);
        Result = {To.Left + (Result.Left - From.Left) * To.Factor,
                  To.Top + (Result.Top - From.Top) * To.Factor, Result.Width * To.Factor,
                  Result.Height * To.Factor, To.Factor};
    }
    const double Whole = Of(Which.Owner()).Factor;
    return {Result.Left * Whole, Result.Top * Whole, Result.Width * Whole, Result.Height * Whole,
            Result.Factor * Whole};
}

} // namespace orvane::tools
