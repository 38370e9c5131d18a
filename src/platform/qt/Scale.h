#pragma once

#include "Control.h"

#include <QRect>

namespace fleetwright {

/// Turns twips into device-independent pixels: 15 to the pixel, times the desktop font's line
/// height over the 13 pixels that the places of controls were drawn for, so that no text is cut
/// off with a larger font; but never so large that a form leaves the screen.
class Scale {
public:
    /// The scale for a form of this inner size in twips.
    Scale(int formWidth, int formHeight);

    int pixels(double twips) const;
    double twips(double pixels) const { return pixels / m_pixelsPerTwip; }
    QRect rect(const Place& place) const;

private:
    double m_pixelsPerTwip;
};

}  // namespace fleetwright
