#pragma once

#include <QColor>
#include <QPalette>

namespace fleetwright {

/// What is to be read is at least so far apart from what it stands on.
inline constexpr double readableContrast = 4.5;

/// What cannot be used just now is at least to be seen, also where a style shades what it stands
/// on.
inline constexpr double visibleContrast = 3;

/// What only parts things from each other is at least so far apart from both, which is about what
/// styles give it in light colours.
inline constexpr double edgeContrast = 1.7;

/// How far two colours are apart for the eye, as WCAG 2 counts: from 1 for equal ones to 21.
double contrast(const QColor& one, const QColor& other);

/// This colour, or the darker or lighter one of its hue that is so far apart from `ground`.
QColor readableOn(const QColor& ground, const QColor& colour, double least = readableContrast);

/// Those colours of a palette that have to be others for what is written to be read or, where it is
/// disabled, to be seen.
QPalette readableColours(const QPalette& palette);

/// What a text that warns is written in, on windows and in boxes of a palette, light or dark.
QColor warningColour(const QPalette& palette);

}  // namespace fleetwright
