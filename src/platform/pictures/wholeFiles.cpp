#include "wholeFiles.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace fleetwright {

namespace {

unsigned char byteAt(std::string_view bytes, std::size_t place) {
    return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0;
}

/// A whole number of so many bytes, the lowest first.
std::uint32_t numberAt(std::string_view bytes, std::size_t place, std::size_t length) {
    std::uint32_t number = 0;
    for (std::size_t i = length; i > 0; --i) {
        number = number << 8 | byteAt(bytes, place + i - 1);
    }
    return number;
}

/// What a bitmap says of itself.
struct BmpHeader {
    static constexpr std::size_t fileHeader = 14;
    static constexpr std::size_t oldHeader = 12;

    explicit BmpHeader(std::string_view bytes);

    std::size_t colourTable() const;
    /// Where the pixels begin, at the least.
    std::size_t pixels() const;

    std::size_t size;        ///< of the header itself
    std::size_t firstPixel;  ///< place in the file, as it says
    std::uint64_t width, height;
    std::size_t bits;  ///< of a pixel
    enum : std::uint32_t { Plain, RunsOf8, RunsOf4, Masks };
    std::uint32_t compression = Plain;
    std::size_t colours = 0;  ///< how many there are, where that is said
};

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
    const std::size_t masks = compression == Masks && size == headerWithoutMasks ? 12 : 0;
    return std::max(firstPixel, fileHeader + size + masks + colourTable());
}

/// Whether runs of equal pixels come to the end that the format wants behind them.
bool haveRunsAnEnd(std::string_view runs, std::size_t bitsAPixel) {
    enum { EndOfLine, End, Move };
    while (runs.size() >= 2) {
        const unsigned char count = byteAt(runs, 0);
        const unsigned char code = byteAt(runs, 1);
        std::size_t behind = 0;
        if (count == 0 && code == End) {
            return true;
        }
        if (count == 0 && code == Move) {
            behind = 2;
        } else if (count == 0 && code != EndOfLine) {
            behind = (code * bitsAPixel + 15) / 16 * 2;  // pairs of bytes
        }
        runs.remove_prefix(std::min(runs.size(), 2 + behind));
    }
    return false;
}

}  // namespace

bool isWholeBmp(std::string_view bytes) {
    const BmpHeader header(bytes);
    if (bytes.size() < header.pixels()) {
        return false;
    }
    if (header.compression == BmpHeader::RunsOf4 || header.compression == BmpHeader::RunsOf8) {
        return haveRunsAnEnd(bytes.substr(header.pixels()), header.bits);
    }
    const std::uint64_t line = (header.width * header.bits + 31) / 32 * 4;
    return line == 0 || (bytes.size() - header.pixels()) / line >= header.height;
}

bool isWholeJpeg(std::string_view bytes) {
    constexpr unsigned char mark = 0xFF, start = 0xD8, end = 0xD9;
    const auto standsAlone = [](unsigned char marker) {
        constexpr unsigned char temporary = 0x01, firstRestart = 0xD0;
        return marker == temporary || (marker >= firstRestart && marker <= start);
    };
    std::size_t at = 0;
    while (at < bytes.size()) {
        // What is no marker is a scan's; there, a zero takes the meaning from the byte before.
        if (byteAt(bytes, at) != mark || byteAt(bytes, at + 1) == 0) {
            ++at;
            continue;
        }
        const unsigned char marker = byteAt(bytes, at + 1);
        if (marker == end) {
            return true;
        }
        if (marker == mark) {
            ++at;
        } else if (standsAlone(marker)) {
            at += 2;
        } else {
            at += 2 + std::size_t{byteAt(bytes, at + 2)} * 256 + byteAt(bytes, at + 3);
        }
    }
    return false;
}

}  // namespace fleetwright
