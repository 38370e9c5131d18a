#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fleetwright {

/// What a Windows bitmap says of itself. What the file has no more room for is 0.
struct BmpHeader {
    /// The bits of each channel in a pixel, as masks.
    struct Channels {
        std::uint32_t red, green, blue;
    };

    explicit BmpHeader(std::string_view bytes);

    std::size_t colourTable() const;
    /// Where the pixels begin, at the least.
    std::size_t pixels() const;
    /// Of pixels of 16 or 32 bits, which need no table.
    Channels channels() const;

    std::size_t size;        ///< of the header itself
    std::size_t firstPixel;  ///< place in the file, as it says
    std::uint64_t width, height;
    std::size_t bits;  ///< of a pixel
    enum : std::uint32_t { Plain, RunsOf8, RunsOf4, Masks };
    std::uint32_t compression = Plain;
    std::size_t colours = 0;  ///< how many there are, where that is said
    Channels masks{};         ///< where they are said
};

}  // namespace fleetwright
