#include "outlines.h"

#include "caseFile.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace fleetwright {

namespace {

std::vector<std::uint32_t> rowOf(std::string_view letters) {
    static constexpr std::string_view known = "RGBCMY#.rgbcmyk";
    static constexpr std::uint32_t colours[] = {0xFF0000, 0x00FF00, 0x0000FF, 0x00FFFF, 0xFF00FF,
                                                0xFFFF00, 0x000000, 0xFFFFFF, 0xFE0000, 0x01FF00,
                                                0x0001FF, 0x00FFFE, 0xFF01FF, 0xFFFF01, 0x000001};
    std::vector<std::uint32_t> row;
    std::size_t count = 0;
    for (const char letter : letters) {
        if (letter >= '0' && letter <= '9') {
            count = 10 * count + static_cast<std::size_t>(letter - '0');
        } else {
            row.insert(row.end(), std::max<std::size_t>(count, 1), colours[known.find(letter)]);
            count = 0;
        }
    }
    return row;
}

}  // namespace

Raster outlineOf(const std::string& rows) {
    std::vector<std::vector<std::uint32_t>> pixels;
    std::size_t width = 0;
    for (const std::string& line : linesOf(rows)) {
        const std::size_t star = line.find('*');
        const std::size_t count = star == std::string::npos ? 1 : std::stoul(line);
        pixels.insert(pixels.end(), count, rowOf(std::string_view(line).substr(star + 1)));
        width = std::max(width, pixels.back().size());
    }
    Raster picture(static_cast<int>(width), static_cast<int>(pixels.size()));
    for (std::size_t y = 0; y < pixels.size(); ++y) {
        std::copy(pixels[y].begin(), pixels[y].end(), picture.row(static_cast<int>(y)).begin());
    }
    return picture;
}

}  // namespace fleetwright
