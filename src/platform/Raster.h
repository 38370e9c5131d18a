#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace fleetwright {

/// A picture of single pixels with the origin at the upper left corner. A colour is 0xRRGGBB.
class Raster {
public:
    Raster() = default;
    /// All white.
    Raster(int width, int height)
        : m_width(width), m_height(height),
          m_pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), white) {}

    static constexpr std::uint32_t white = 0xFFFFFF;

    int width() const { return m_width; }
    int height() const { return m_height; }
    bool isEmpty() const { return m_pixels.empty(); }

    /// A pixel inside the picture.
    std::uint32_t& pixel(int x, int y) { return m_pixels[index(x, y)]; }
    std::uint32_t pixel(int x, int y) const { return m_pixels[index(x, y)]; }

    /// The pixels of a row inside the picture.
    std::span<std::uint32_t> row(int y) {
        return {m_pixels.data() + index(0, y), static_cast<std::size_t>(m_width)};
    }
    std::span<const std::uint32_t> row(int y) const {
        return {m_pixels.data() + index(0, y), static_cast<std::size_t>(m_width)};
    }

    /// Adds white rows at the bottom, or cuts some off.
    void setHeight(int height) {
        m_pixels.resize(static_cast<std::size_t>(m_width) * static_cast<std::size_t>(height),
                        white);
        m_height = height;
    }

private:
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
               static_cast<std::size_t>(x);
    }

    int m_width = 0;
    int m_height = 0;
    std::vector<std::uint32_t> m_pixels;
};

}  // namespace fleetwright
