#pragma once

#include "toolkit/colour.h"

#include <QColor>

#include <map>
#include <string>

// The colours that windows are painted with. A skin brings its own; what it leaves out keeps the
// program's, an inked parchment.
namespace orvane::look {

struct Shades
{
    QColor Ground{0xEF, 0xE6, 0xD3}; // of boxes and menus, and of screens without a picture
    QColor GroundTop{0xF4, 0xED, 0xDE};
    QColor GroundBottom{0xE8, 0xDC, 0xC3};
    QColor GroundEdge{0xC9, 0xB3, 0x86};
    QColor Panel{0xF8, 0xF2, 0xE4};
    QColor PanelBorder{0xB7, 0x9B, 0x6B};
    QColor Ink{0x2B, 0x1D, 0x0E};
    QColor MutedInk{0x54, 0x45, 0x33}; // 4.5 to 1 on paper and in wells
    QColor Paper{0xFC, 0xF8, 0xEE};    // figures and lists lie on it
    QColor Well{0xDF, 0xD6, 0xC6};     // open to typing
    QColor WellBorder{0x9A, 0x7F, 0x55};
    QColor FieldBorder{0xA8, 0x90, 0x5F};
    QColor Focus{0x8A, 0x4B, 0x08};
    QColor FocusHalo{0xFB, 0xF3, 0xE0};
    QColor Choice{0x6B, 0x44, 0x16}; // the chosen entry
    QColor ChoiceInk{0xFB, 0xF3, 0xE0};
    QColor QuietChoice{0xDC, 0xCA, 0xA3}; // the same in a list without the focus
    QColor Hover{0xEE, 0xE1, 0xC6};
    QColor WrongGround{0xFB, 0xE2, 0xDD};
    QColor WrongBorder{0xB3, 0x26, 0x1E};
    QColor PlateTop{0x80, 0x52, 0x27}; // buttons without a picture, heads of side menus
    QColor PlateBottom{0x52, 0x31, 0x11};
    QColor PlateBorder{0x38, 0x20, 0x09};
    QColor PlateInk{0xFB, 0xF3, 0xE0};
    QColor Tip{0xFF, 0xFA, 0xEC};
};

const Shades& Now();

// From then on, by the names that a skin's table has for them; others count for nothing.
void Take(const std::map<std::string, Colour>& Given);

} // namespace orvane::look
