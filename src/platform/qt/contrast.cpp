#include "contrast.h"

#include <algorithm>
#include <cmath>

namespace fleetwright {

namespace {

double luminance(const QColor& colour) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    constexpr double glare = 0.05;
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + glare) / (darker + glare);
}

QColor readableOn(const QColor& ground, const QColor& colour, double least) {
    if (contrast(ground, colour) >= least) {
        return colour;
    }
    const bool isDarkBetter = contrast(ground, Qt::black) > contrast(ground, Qt::white);
    const float step = isDarkBetter ? -0.01F : 0.01F;
    QColor shade = colour.toHsl();
    while (contrast(shade, ground) < least && shade.lightnessF() + step >= 0 &&
           shade.lightnessF() + step <= 1) {
        shade.setHslF(std::max(shade.hslHueF(), 0.0F), shade.hslSaturationF(),
                      shade.lightnessF() + step);
    }
    return shade.toRgb();
}

QPalette readableColours(const QPalette& palette) {
    using Role = QPalette::ColorRole;
    struct Pair {
        Role changed, kept;
    };
    QPalette colours;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const double least = group == QPalette::Disabled ? visibleContrast : readableContrast;
        // The ground of what is selected has no other use, that of all else has.
        for (const auto& [changed, kept] :
             {Pair{QPalette::Highlight, QPalette::HighlightedText},
              Pair{QPalette::Text, QPalette::Base}, Pair{QPalette::ButtonText, QPalette::Button},
              Pair{QPalette::WindowText, QPalette::Window}}) {
            const QColor colour = palette.color(group, changed);
            const QColor readable = readableOn(palette.color(group, kept), colour, least);
            if (readable != colour) {
                colours.setColor(group, changed, readable);
            }
        }
    }
    return colours;
}

QColor warningColour(const QPalette& palette) {
    constexpr QColor red(200, 0, 0);
    return readableOn(palette.color(QPalette::Base),
                      readableOn(palette.color(QPalette::Window), red));
}

}  // namespace fleetwright
