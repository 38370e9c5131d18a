#include "bmpFile.h"

#include "Raster.h"

#include <cstddef>
#include <cstdint>

namespace fleetwright {

namespace {

template <typename Integer>
void append(std::string& bytes, Integer value) {
    for (std::size_t i = 0; i < sizeof value; ++i) {
        bytes += static_cast<char>(value >> (8 * i));
    }
}

}  // namespace

std::string bmpFile(const Raster& picture) {
    constexpr std::uint32_t fileHeader = 14;
    constexpr std::uint32_t infoHeader = 40;
    constexpr std::uint32_t pixelsPerMetre = 3937;  // 100 an inch
    constexpr std::size_t bytesPerPixel = 3;
    constexpr std::size_t alignment = 4;
    const auto width = static_cast<std::size_t>(picture.width());
    const auto height = static_cast<std::size_t>(picture.height());
    const std::size_t line = (width * bytesPerPixel + alignment - 1) / alignment * alignment;
    const auto size = static_cast<std::uint32_t>(line * height);

    std::string bytes;
    bytes.reserve(fileHeader + infoHeader + size);
    bytes += "BM";
    append(bytes, fileHeader + infoHeader + size);
    append(bytes, std::uint32_t{0});
    append(bytes, fileHeader + infoHeader);
    append(bytes, infoHeader);
    append(bytes, static_cast<std::uint32_t>(width));
    append(bytes, static_cast<std::uint32_t>(height));
    append(bytes, std::uint16_t{1});  // plane
    append(bytes, std::uint16_t{8 * bytesPerPixel});
    append(bytes, std::uint32_t{0});  // not compressed
    append(bytes, size);
    append(bytes, pixelsPerMetre);
    append(bytes, pixelsPerMetre);
    append(bytes, std::uint64_t{0});  // no palette

    bytes.resize(bytes.size() + size);
    char* out = bytes.data() + fileHeader + infoHeader;
    for (int y = picture.height() - 1; y >= 0; --y) {
        char* next = out;
        for (const std::uint32_t pixel : picture.row(y)) {
            *next++ = static_cast<char>(pixel);
            *next++ = static_cast<char>(pixel >> 8);
            *next++ = static_cast<char>(pixel >> 16);
        }
        out += line;
    }
    return bytes;
}

}  // namespace fleetwright
