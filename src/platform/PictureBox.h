#pragma once

#include "Control.h"
#include "Raster.h"

#include <utility>

namespace fleetwright {

/// A box that holds a picture and, if it sizes itself, takes the picture's size.
class PictureBox : public Control {
public:
    PictureBox(Container& container, ControlDesign design)
        : Control(&container, std::move(design)) {}

    static constexpr int twipsPerPixel = 15;

    bool isAutoSize() const { return m_isAutoSize; }
    void setAutoSize(bool isAutoSize) { m_isAutoSize = isAutoSize; }

    const Raster& picture() const { return m_picture; }

    void setPicture(Raster picture) {
        m_picture = std::move(picture);
        if (m_isAutoSize) {
            fitToPicture();
        }
        Changed.raise();
    }

    /// The picture, to be drawn on; `Painted` is raised to show it.
    Raster& canvas() { return m_picture; }

    /// Takes the picture's size.
    void fitToPicture() {
        setPlace({place().left, place().top, m_picture.width() * twipsPerPixel,
                  m_picture.height() * twipsPerPixel});
    }

    /// Paints one pixel of the picture, which shows when the window is painted next.
    void paintPixel(int x, int y, std::uint32_t colour) {
        m_picture.pixel(x, y) = colour;
        Painted.raise();
    }

    /// Pixels of the picture have changed, and nothing else. For whoever draws it.
    Signal<> Painted;

private:
    bool m_isAutoSize = true;
    Raster m_picture;
};

}  // namespace fleetwright
