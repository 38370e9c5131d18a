#include "PictureSet.h"
#include "appendNumber.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace fleetwright {

std::string programIconFile(const PictureSet& window) {
    std::vector<std::pair<std::size_t, const std::string*>> icons;
    for (const std::size_t side : {16U, 24U, 32U, 48U, 64U, 256U}) {
        icons.emplace_back(side, &window.at("icon-" + std::to_string(side) + ".png").bytes);
    }
    constexpr std::size_t headSize = 6, entrySize = 16;
    std::string head, files;
    appendNumber(head, 0, 2);
    appendNumber(head, 1, 2);  // icons
    appendNumber(head, icons.size(), 2);
    for (const auto& [side, file] : icons) {
        appendNumber(head, side % 256, 1);  // 256 is written as 0
        appendNumber(head, side % 256, 1);
        appendNumber(head, 0, 2);
        appendNumber(head, 1, 2);   // planes
        appendNumber(head, 32, 2);  // bits a pixel
        appendNumber(head, file->size(), 4);
        appendNumber(head, headSize + entrySize * icons.size() + files.size(), 4);
        files += *file;
    }
    return head + files;
}

}  // namespace fleetwright
