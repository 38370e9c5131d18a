#include "mapMarks.h"

#include <algorithm>

namespace fleetwright {

namespace {

/// Outlines are mostly paper with ink here and there, and are looked through in blocks that the
/// compiler can take several pixels at a time of.
constexpr std::size_t blockSize = 32;

bool hasNoMark(const std::uint32_t* block) {
    constexpr std::uint32_t white = 0xFFFFFF;
    std::uint32_t common = white;
    std::uint32_t any = Black;
    for (std::size_t i = 0; i < blockSize; ++i) {
        common &= block[i];
        any |= block[i];
    }
    if (common == white || any == Black) {
        return true;
    }
    std::uint32_t marks = 0;
    for (std::size_t i = 0; i < blockSize; ++i) {
        marks += isMark(block[i]) ? 1U : 0U;
    }
    return marks == 0;
}

}  // namespace

std::size_t pixelsBeforeMark(std::span<const std::uint32_t> pixels) {
    auto plain = pixels.begin();
    while (static_cast<std::size_t>(pixels.end() - plain) >= blockSize && hasNoMark(&*plain)) {
        plain += blockSize;
    }
    return static_cast<std::size_t>(std::find_if(plain, pixels.end(), isMark) - pixels.begin());
}

}  // namespace fleetwright
