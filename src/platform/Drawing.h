#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace fleetwright {

class Raster;

/// A shape of a drawing. What leaves the picture does not show.
struct DrawnShape {
    enum class Cap { Flat, Round, Square };
    enum class Join { Miter, Round, Bevel };

    /// SVG path data of M, L, C and Z alone, absolute, in pixels of the picture.
    std::string path;
    std::optional<std::uint32_t> fill;    ///< 0xRRGGBB
    std::optional<std::uint32_t> stroke;  ///< 0xRRGGBB
    double strokeWidth = 1;               ///< pixels of the picture
    Cap cap = Cap::Flat;
    Join join = Join::Miter;  ///< a miter of up to four times the width, as in SVG
    double opacity = 1;       ///< of fill and stroke
    bool isEvenOdd = false;
};

/// A rectangle. The unit is that of what it lies on: pixels of a picture, millimetres of a page.
struct Box {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    bool operator==(const Box&) const = default;
};

/// A picture as lines and areas, on white paper of its size.
struct Drawing {
    int width = 0;   ///< pixels of the picture
    int height = 0;  ///< pixels of the picture
    Box ink;         ///< what the shapes cover, pixels, even outside; empty if there are none
    std::vector<DrawnShape> shapes;
};

/// Finds the drawing of which a picture was made.
class Drawings {
public:
    virtual ~Drawings() = default;

    /// By size and pixels alone, so that a picture that somebody has changed has none: then null.
    /// Any number of threads may ask. Throws Error for a drawing that cannot be read.
    virtual std::shared_ptr<const Drawing> of(const Raster& picture) const = 0;
};

}  // namespace fleetwright
