#include "toolkit/forms.h"
#include "toolkit/placing.h"
#include "view/qt_text.h"
#include "view/reading_order.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace orvane {

namespace {

// A screen from a text: "what x y w h" for each control. "#" is a panel, "menu" a side menu, any
// other word the name of a text box. A dash before it hides it.
struct Arrangement
{
    explicit Arrangement(const char* Text)
    {
        static const QRegularExpression Part(R"((-?)([a-z]+|#) (-?\d+) (-?\d+) (-?\d+) (-?\d+))");
        for (const QRegularExpressionMatch& Each : Part.globalMatch(Text)) {
            Control& New = *Controls.emplace_back(Made(FromQt(Each.captured(2))));
            const auto At = [&](int Which) { return Each.captured(Which).toInt(); };
            Place(New, {At(3), At(4), At(5), At(6)});
            New.Visible = Each.captured(1).isEmpty();
        }
    }
    std::unique_ptr<Control> Made(const std::string& What)
    {
        if (What == "#")
            return std::make_unique<Shape>(Page, "shp");
        if (What == "menu")
            return std::make_unique<SideMenu>(Page, What);
        return std::make_unique<TextBox>(Page, What);
    }

    Forms TheForms;
    Screen Page{TheForms, "frm_Page", ""};
    std::vector<std::unique_ptr<Control>> Controls;
};

using Cases = std::pair<const char*, const char*>[];

} // namespace

TEST(ReadingOrder, GoesAsTheEyeDoes)
{
    const Cases Rows = {
        // rows, then from left to right; c is on d's row though a little lower
        {"d 200 60 50 24; c 10 62 50 20; b 200 10 50 24; a 10 10 50 24", "a b c d "},
        // columns of panels before rows across them
        {"# 0 0 300 100; # 0 110 300 100; # 310 0 300 100; # 310 110 300 100;"
         "c 320 10 50 24; b 10 120 50 24; d 320 120 50 24; a 10 10 50 24",
         "a b c d "},
        // a row below the panels comes last
        {"# 0 0 300 100; # 310 0 300 100;"
         "x 10 200 90 40; y 400 200 90 40; a 10 10 50 24; b 320 10 50 24",
         "a b x y "},
        // a menu at the left comes first, then what is beside it
        {"menu 0 0 100 500; # 110 60 300 300; # 420 60 300 300;"
         "foot 110 400 500 30; a 120 70 50 24; b 430 70 50 24; head 110 10 500 30",
         "menu head a b foot "},
        // a control belongs to the smallest panel under it
        {"# 0 0 610 210; # 0 0 300 200; # 310 0 300 200;"
         "b 10 120 50 24; c 320 10 50 24; a 10 10 50 24",
         "a b c "},
        // what is hidden doesn't count, neither control nor panel
        {"-# 0 0 300 300; -hidden 10 10 50 24; # 310 0 300 300;"
         "b 10 50 50 24; c 320 10 50 24; a 10 -40 600 24",
         "a b c "},
        // whatever size a file gives: none, one that goes backwards, one beyond all screens
        {"# 0 0 -300 -100; d 10 143165576 50 143165576; b 10 50 50 -24; c 10 100 0 0; a 10 10 50 "
         "24",
         "a b c d "},
    };
    for (const auto& [Arranged, Expected] : Rows) {
        Arrangement Given(Arranged);
        std::string Read;
        for (const Control* Each : ReadingOrder(Given.Page))
            Read += Each->Name() + " ";
        EXPECT_EQ(Read, Expected) << Arranged;
    }
}

} // namespace orvane
