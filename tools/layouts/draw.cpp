#include "layouts/draw.h"

#include "base/number_text.h"
#include "tables/tsv.h"

#include <charconv>
#include <cmath>

namespace orvane::tools {

namespace {

constexpr int Step = 10; // between two Num, so that a row can be put between two others

std::int32_t ColourOf(const std::string& Text, const std::string& Place)
{
    int Value = 0;
    if (Text.size() != 6 ||
        std::from_chars(Text.data(), Text.data() + 6, Value, 16).ptr != Text.data() + 6)
        throw SourceError(Place + " : couleur « " + Text + " » illisible");
    return RGB(Value >> 16, (Value >> 8) & 0xFF, Value & 0xFF).Number;
}

// Boxes whose width the program itself sets, the same at each resolution.
bool HasFixedWidth(const Control& Which)
{
    const std::string Name = Which.Owner().Name() + "/" + Which.Name();
    return Name == "frm_ArtisanatsManuels/cbo_Degré" ||
           Name == "frm_ArtisanatsMagiques/cbo_ProduitDétaillé";
}

class RowWriter
{
  public:
    RowWriter(const Arrangement& Arranged, double Factor, const Palette& Colours)
        : Arranged(Arranged),
          Factor(Factor),
          Colours(Colours)
    {
    }

    std::vector<std::string> RowOf(const Control& Which, int Num) const
    {
        Cells Row = Named(Which.Name(), Num);
        Row["ChangeLeftTop"] = "O";
        if (const auto* Stroke = dynamic_cast<const Line*>(&Which)) {
            Row["Left"] = Scaled(Stroke->X1);
            Row["Top"] = Scaled(Stroke->X2);
            Row["Width"] = Scaled(Stroke->Y1);
            Row["Height"] = Scaled(Stroke->Y2);
            return InOrder(Row);
        }
        const Placement At = Arranged.Of(Which);
        Row["Left"] = Scaled(At.Left);
        Row["Top"] = Scaled(At.Top);
        Size(Row, At);
        if (HasFixedWidth(Which))
            Row["Width"] = std::to_string(Which.Width());
        if (HasFont(Which.Kind())) {
            Row["ChangeFontSize"] = "O";
            Row["FontSize"] = TextOfDouble(std::round(Which.FontSize * At.Factor * Factor * 2) / 2);
        }
        if (Which.Kind() == ControlKind::Label)
            Paint(Row, Which.ForeColor);
        else if (const auto* Frame = dynamic_cast<const Shape*>(&Which))
            Paint(Row, Frame->BorderColor);
        return InOrder(Row);
    }

    std::vector<std::string> RowOf(const Screen& Which, int Num) const
    {
        Cells Row = Named(Which.Name(), Num);
        Size(Row, Arranged.Of(Which));
        return InOrder(Row);
    }

  private:
    using Cells = std::map<std::string, std::string>;

    static Cells Named(const std::string& Name, int Num)
    {
        return {{"Num", std::to_string(Num)}, {"NomControl", Name}};
    }

    static bool HasFont(ControlKind Kind)
    {
        return Kind == ControlKind::Label || Kind == ControlKind::TextBox ||
               Kind == ControlKind::ComboBox || Kind == ControlKind::ListBox ||
               Kind == ControlKind::SideMenu;
    }

    static std::vector<std::string> InOrder(const Cells& Row)
    {
        std::vector<std::string> Result;
        for (const std::string& Column : LayoutColumns()) {
            const auto Cell = Row.find(Column);
            Result.push_back(Cell == Row.end() ? std::string() : Cell->second);
        }
        return Result;
    }

    // On whole pixels, so that edges stay sharp.
    std::string Scaled(double Twips) const
    {
        constexpr int Pixel = 15;
        return std::to_string(std::lround(Twips * Factor / Pixel) * Pixel);
    }

    void Size(Cells& Row, const Placement& At) const
    {
        Row["ChangeWidth"] = "O";
        Row["Width"] = Scaled(At.Width);
        Row["ChangeHeight"] = "O";
        Row["Height"] = Scaled(At.Height);
    }

    void Paint(Cells& Row, Colour Given) const
    {
        const auto Known = Colours.find(Given.Number);
        Row["ChangeColor"] = "O";
        Row["Color"] = std::to_string(Known == Colours.end() ? Given.Number : Known->second);
    }

    const Arrangement& Arranged;
    double Factor;
    const Palette& Colours;
};

} // namespace

Palette ReadPalette(const std::filesystem::path& File)
{
    Palette Colours;
    for (const TsvTable::Row& Row : ReadTsv(File).Rows)
        Colours[ColourOf(Row.Cells.at(0), Row.Place)] = ColourOf(Row.Cells.at(1), Row.Place);
    return Colours;
}

LayoutFile Draw(const Screen& Which, const Arrangement& Arranged, double Factor,
                const Palette& Colours)
{
    const RowWriter Writer(Arranged, Factor, Colours);
    LayoutFile Result;
    int Num = 0;
    for (const Control* Each : Which.Controls())
        Result.Rows.push_back(Writer.RowOf(*Each, Num += Step));
    Result.Rows.push_back(Writer.RowOf(Which, Num + Step));
    return Result;
}

} // namespace orvane::tools
