#pragma once

#include "Control.h"
#include "Raster.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace fleetwright {

struct Drawing;

/// A box that holds a picture and, if it sizes itself, takes the picture's size and its border's.
/// Without a picture it keeps the size that it has.
class PictureBox : public Control {
public:
    PictureBox(Container& container, ControlDesign design)
        : Control(&container, std::move(design)) {}

    static constexpr int twipsPerPixel = 15;
    /// What the border of a framed box takes at each edge, in pixels.
    static constexpr int borderPixels = 2;

    bool isAutoSize() const { return m_isAutoSize; }
    void setAutoSize(bool isAutoSize) { m_isAutoSize = isAutoSize; }

    /// Twips to a pixel of the screen, so that a box that sizes itself is just as large as its
    /// picture there. For whoever draws it.
    double screenTwipsPerPixel() const { return m_screenTwipsPerPixel; }
    void setScreenTwipsPerPixel(double twips) {
        m_screenTwipsPerPixel = twips;
        if (m_isAutoSize) {
            fitToPicture();
        }
    }

    const Raster& picture() const { return m_picture; }

    void setPicture(Raster picture) {
        m_picture = std::move(picture);
        if (m_isAutoSize) {
            fitToPicture();
        }
        Changed.raise();
    }

    /// What a box shows that has no picture: lines and areas in ink, in the colour of the window's
    /// text. They fill the box, whatever its size on the screen.
    const std::shared_ptr<const Drawing>& drawing() const { return m_drawing; }
    void setDrawing(std::shared_ptr<const Drawing> drawing) {
        m_drawing = std::move(drawing);
        Changed.raise();
    }

    /// The picture, to be drawn on. `showDrawn` shows what was drawn.
    Raster& canvas() { return m_picture; }
    void showDrawn() { Painted.raise(0, m_picture.height()); }

    /// Takes the picture's size.
    void fitToPicture() {
        if (!m_picture.isEmpty()) {
            const int border = design().isFramed ? 2 * borderPixels : 0;
            const auto twips = [&](int pixels) {
                return static_cast<int>(std::lround((pixels + border) * m_screenTwipsPerPixel));
            };
            setPlace(
                {place().left, place().top, twips(m_picture.width()), twips(m_picture.height())});
        }
    }

    /// Paints pixels side by side, from (x, y) on, as far as they are in the picture. They show
    /// after `showPainted`.
    void paintStretch(int x, int y, int count, std::uint32_t colour) {
        const auto row = m_picture.row(y);
        const int end = std::min(x + count, m_picture.width());
        if (x < end) {
            std::fill(row.begin() + x, row.begin() + end, colour);
            m_firstPainted = std::min(m_firstPainted, y);
            m_endPainted = std::max(m_endPainted, y + 1);
        }
    }

    void showPainted() {
        if (m_firstPainted < m_endPainted) {
            Painted.raise(std::exchange(m_firstPainted, nothingPainted),
                          std::exchange(m_endPainted, 0));
        }
    }

    /// Rows of the picture have changed, from the first one to the one before the second, and
    /// nothing else. For whoever draws it.
    Signal<int, int> Painted;

private:
    static constexpr int nothingPainted = 0x7FFFFFFF;

    bool m_isAutoSize = true;
    double m_screenTwipsPerPixel = twipsPerPixel;
    Raster m_picture;
    std::shared_ptr<const Drawing> m_drawing;
    // Rows painted since the last `showPainted`.
    int m_firstPainted = nothingPainted;
    int m_endPainted = 0;
};

}  // namespace fleetwright
