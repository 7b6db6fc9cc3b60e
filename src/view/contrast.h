#pragma once

#include <QColor>

#include <span>

// How well words can be read on what lies behind them.
namespace orvane {

inline constexpr double LeastContrast = 4.5; // of words, as the accessibility guidelines have it

// From one colour, a Share of the way to the other.
QColor Mixed(const QColor& From, const QColor& To, double Share);

// From 1, the same colour, to 21, black on white.
double Contrast(const QColor& One, const QColor& Other);

// Ink where it can be read on all Grounds; else the nearest lighter or darker one of its hue that
// can, or the best there is.
QColor Readable(const QColor& Ink, std::span<const QColor> Grounds);

} // namespace orvane
