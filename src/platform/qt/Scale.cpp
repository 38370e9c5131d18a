#include "Scale.h"

#include "Drawing.h"
#include "Error.h"

#include <QApplication>
#include <QFontMetrics>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace fleetwright {

Scale::Scale(int formWidth, int formHeight, const Drawings* drawings)
    : m_shared(std::make_shared<Shared>()) {
    constexpr double twipsPerPixel = 15.0;
    constexpr double drawnLineHeight = 13.0;
    constexpr double frameAndMenu = 80.0;  // what a window needs around its inside
    const double lineHeight = QFontMetrics(QApplication::font()).height();
    double& pixelsPerTwip = m_shared->pixelsPerTwip;
    pixelsPerTwip = std::max(1.0, lineHeight / drawnLineHeight) / twipsPerPixel;
    m_shared->lettersPerTwip = pixelsPerTwip;
    if (const QScreen* const screen = QApplication::primaryScreen(); screen != nullptr) {
        const QSize available = screen->availableSize();
        constexpr double smallest = 0.8 / twipsPerPixel;  // below, too much of a text is cut off
        pixelsPerTwip = std::clamp(std::min(available.width() / double(formWidth),
                                            (available.height() - frameAndMenu) / formHeight),
                                   smallest, pixelsPerTwip);
    }
    m_shared->drawings = drawings;
}

int Scale::pixels(double twips) const {
    return static_cast<int>(std::lround(twips * m_shared->pixelsPerTwip * m_shared->zoom));
}

int Scale::pixelsForLetters(double twips) const {
    return static_cast<int>(std::lround(twips * m_shared->lettersPerTwip * m_shared->zoom));
}

double Scale::twips(double pixels) const {
    return pixels / (m_shared->pixelsPerTwip * m_shared->zoom);
}

QRect Scale::rect(const Place& place) const {
    return {pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height)};
}

void Scale::setZoom(double zoom) const {
    m_shared->zoom = zoom;
}

int Scale::zoomed(int pixels) const {
    return static_cast<int>(std::lround(pixels * m_shared->zoom));
}

std::shared_ptr<const Drawing> Scale::drawingOf(const Raster& picture) const {
    try {
        return m_shared->drawings == nullptr ? nullptr : m_shared->drawings->of(picture);
    } catch (const Error&) {
        return nullptr;  // the picture shows all the same
    }
}

}  // namespace fleetwright
