#include "BmpHeader.h"

#include <algorithm>
#include <cstdlib>

namespace fleetwright {

namespace {

constexpr std::size_t fileHeader = 14;
constexpr std::size_t oldHeader = 12;

/// A whole number of so many bytes, the lowest first.
std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t length) {
    std::uint32_t number = 0;
    for (std::size_t i = length; i > 0; --i) {
        const std::size_t at = place + i - 1;
        number = number << 8 | (at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U);
    }
    return number;
}

}  // namespace

BmpHeader::BmpHeader(std::string_view bytes)
    : size(numberAt(bytes, fileHeader, 4)), firstPixel(numberAt(bytes, 10, 4)) {
    if (size == oldHeader) {
        width = numberAt(bytes, 18, 2);
        height = numberAt(bytes, 20, 2);
        bits = numberAt(bytes, 24, 2);
        return;
    }
    width = numberAt(bytes, 18, 4);
    const auto signedHeight = static_cast<std::int32_t>(numberAt(bytes, 22, 4));
    height = static_cast<std::uint64_t>(std::abs(std::int64_t{signedHeight}));  // or from the top
    bits = numberAt(bytes, 28, 2);
    compression = numberAt(bytes, 30, 4);
    colours = numberAt(bytes, 46, 4);
    masks = {numberAt(bytes, 54, 4), numberAt(bytes, 58, 4), numberAt(bytes, 62, 4)};
}

std::size_t BmpHeader::colourTable() const {
    constexpr std::size_t mostBits = 8;
    if (bits > mostBits) {
        return 0;
    }
    return (colours == 0 ? std::size_t{1} << bits : colours) * (size == oldHeader ? 3 : 4);
}

std::size_t BmpHeader::pixels() const {
    constexpr std::size_t headerWithoutMasks = 40;
    const std::size_t behind = compression == Masks && size == headerWithoutMasks ? 12 : 0;
    return std::max(firstPixel, fileHeader + size + behind + colourTable());
}

BmpHeader::Channels BmpHeader::channels() const {
    constexpr Channels of16 = {0x7C00, 0x3E0, 0x1F}, of32 = {0xFF0000, 0xFF00, 0xFF};
    return compression == Masks ? masks : bits == 16 ? of16 : of32;
}

}  // namespace fleetwright
