#pragma once

// How the window in which a sheet is made takes its size from the sheet. All measures in twips.

#include <cstdint>

namespace fleetwright {

/// What the window's size depends on.
struct MapperMeasures {
    int sheetTop = 0;     ///< upper edge of `picSSD`
    int sheetWidth = 0;   ///< outer width of `picSSD`
    int sheetHeight = 0;  ///< outer height of `picSSD`
    int frameLeft = 0;    ///< left edge of `fraControls`
    int frameWidth = 0;   ///< width of `fraControls`
};

/// Outer size of the window.
struct WindowSize {
    int width = 0;
    int height = 0;

    friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

/// The larger of two numbers.
std::int16_t largerOf(std::int16_t a, std::int16_t b);

/// The size that shows the sheet and the frame. Throws OverflowError if one of them is wider than
/// 16 bits hold.
WindowSize fitToSheet(const MapperMeasures& measures);

/// The size of a window in its normal state, or the smallest one it may have if that is larger.
WindowSize keepMinimumSize(const MapperMeasures& measures, WindowSize size);

}  // namespace fleetwright
