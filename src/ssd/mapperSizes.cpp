#include "mapperSizes.h"

#include "checkedArithmetic.h"

#include <algorithm>

namespace fleetwright {

namespace {

constexpr int roomBeside = 200;

}  // namespace

std::int16_t largerOf(std::int16_t a, std::int16_t b) {
    return std::max(a, b);
}

WindowSize fitToSheet(const MapperMeasures& measures) {
    constexpr int roomAbove = 100;
    constexpr int roomBelow = 100;
    const std::int16_t width = largerOf(narrow<std::int16_t>(measures.sheetWidth),
                                        narrow<std::int16_t>(measures.frameWidth));
    return {.width = width + measures.frameLeft + roomBeside,
            .height = measures.sheetTop + roomAbove + measures.sheetHeight + roomBelow};
}

WindowSize keepMinimumSize(const MapperMeasures& measures, WindowSize size) {
    constexpr int roomBelow = 500;
    return {.width = std::max(size.width, measures.frameLeft + measures.frameWidth + roomBeside),
            .height = std::max(size.height, measures.sheetTop + measures.sheetHeight + roomBelow)};
}

}  // namespace fleetwright
