#include "PictureSet.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

namespace {

/// Appends a number of so many bytes, the lowest first.
void append(std::string& bytes, std::size_t number, int count) {
    for (int i = 0; i < count; ++i) {
        bytes += static_cast<char>(static_cast<std::uint8_t>(number >> (8 * i)));
    }
}

}  // namespace

std::string programIconFile(const PictureSet& window) {
    std::vector<std::pair<std::size_t, const std::string*>> icons;
    for (const std::size_t side : {16U, 24U, 32U, 48U, 64U, 256U}) {
        icons.emplace_back(side, &window.at("icon-" + std::to_string(side) + ".png").bytes);
    }
    constexpr std::size_t headSize = 6, entrySize = 16;
    std::string head, files;
    append(head, 0, 2);
    append(head, 1, 2);  // icons
    append(head, icons.size(), 2);
    for (const auto& [side, file] : icons) {
        append(head, side % 256, 1);  // 256 is written as 0
        append(head, side % 256, 1);
        append(head, 0, 2);
        append(head, 1, 2);   // planes
        append(head, 32, 2);  // bits a pixel
        append(head, file->size(), 4);
        append(head, headSize + entrySize * icons.size() + files.size(), 4);
        files += *file;
    }
    return head + files;
}

}  // namespace fleetwright
