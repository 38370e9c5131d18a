#include "bmpFile.h"

#include "Raster.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace fleetwright {

namespace {

template <typename Integer>
void append(std::string& bytes, Integer value) {
    for (std::size_t i = 0; i < sizeof value; ++i) {
        bytes += static_cast<char>(value >> (8 * i));
    }
}

/// The lowest byte first.
void writeWord(char* out, std::uint32_t word) {
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(out, &word, sizeof word);
    } else {
        for (std::size_t i = 0; i < sizeof word; ++i) {
            out[i] = static_cast<char>(word >> (8 * i));
        }
    }
}

/// Writes blue, green and red of each pixel.
void writeRow(std::span<const std::uint32_t> row, char* out) {
    // Four pixels are three words, which are written at once, and pictures have many.
    for (; row.size() >= 4; row = row.subspan(4), out += 12) {
        writeWord(out, row[0] | row[1] << 24U);
        writeWord(out + 4, row[1] >> 8U | row[2] << 16U);
        writeWord(out + 8, row[2] >> 16U | row[3] << 8U);
    }
    for (const std::uint32_t pixel : row) {
        *out++ = static_cast<char>(pixel);
        *out++ = static_cast<char>(pixel >> 8U);
        *out++ = static_cast<char>(pixel >> 16U);
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
        writeRow(picture.row(y), out);
        out += line;
    }
    return bytes;
}

}  // namespace fleetwright
