#include "wholeFiles.h"

#include "BmpHeader.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace fleetwright {

namespace {

unsigned char byteAt(std::string_view bytes, std::size_t place) {
    return place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0;
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
