#include "outlines.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <vector>

namespace fleetwright {

namespace {

std::vector<std::uint32_t> rowOf(std::string_view letters) {
    static const std::map<char, std::uint32_t> colours = {
        {'R', 0xFF0000}, {'G', 0x00FF00}, {'B', 0x0000FF}, {'C', 0x00FFFF}, {'M', 0xFF00FF},
        {'Y', 0xFFFF00}, {'#', 0x000000}, {'.', 0xFFFFFF}, {'r', 0xFE0000}, {'g', 0x01FF00},
        {'b', 0x0001FF}, {'c', 0x00FFFE}, {'m', 0xFF01FF}, {'y', 0xFFFF01}, {'k', 0x000001}};
    std::vector<std::uint32_t> row;
    std::size_t count = 0;
    for (const char letter : letters) {
        if (letter >= '0' && letter <= '9') {
            count = 10 * count + static_cast<std::size_t>(letter - '0');
        } else {
            row.insert(row.end(), std::max<std::size_t>(count, 1), colours.at(letter));
            count = 0;
        }
    }
    return row;
}

}  // namespace

Raster outlineOf(std::string_view rows) {
    std::istringstream lines{std::string(rows)};
    std::vector<std::vector<std::uint32_t>> pixels;
    std::size_t width = 0;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t star = line.find('*');
        const std::size_t count = star == std::string::npos ? 1 : std::stoul(line);
        pixels.insert(pixels.end(), count, rowOf(line.substr(star + 1)));
        width = std::max(width, pixels.back().size());
    }
    Raster picture(static_cast<int>(width), static_cast<int>(pixels.size()));
    for (std::size_t y = 0; y < pixels.size(); ++y) {
        std::copy(pixels[y].begin(), pixels[y].end(), picture.row(static_cast<int>(y)).begin());
    }
    return picture;
}

}  // namespace fleetwright
