#include "Scale.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace fleetwright {

Scale::Scale(int formWidth, int formHeight) {
    constexpr double twipsPerPixel = 15.0;
    constexpr double drawnLineHeight = 13.0;
    constexpr double frameAndMenu = 80.0;  // what a window needs around its inside
    const double lineHeight = QFontMetrics(QApplication::font()).height();
    m_pixelsPerTwip = std::max(1.0, lineHeight / drawnLineHeight) / twipsPerPixel;
    if (const QScreen* const screen = QApplication::primaryScreen(); screen != nullptr) {
        const QSize available = screen->availableSize();
        m_pixelsPerTwip = std::min({m_pixelsPerTwip, available.width() / double(formWidth),
                                    (available.height() - frameAndMenu) / formHeight});
    }
}

int Scale::pixels(double twips) const {
    return static_cast<int>(std::lround(twips * m_pixelsPerTwip));
}

QRect Scale::rect(const Place& place) const {
    return {pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height)};
}

}  // namespace fleetwright
